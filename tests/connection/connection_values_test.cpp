#include "Testing.h"

#include "Check.h"
#include "Parts.h"
#include "Rules.h"

#include <numbers>

namespace
{
constexpr double mm = kMillimetre_m;

// Area by dimensions, and mass as the norm rounds it: each row of the table bears out the others.
TEST(Profiles, WeighWhatTheirDimensionsSay)
{
    EXPECT_EQ(Profiles().size(), 18u + 19u + 19u);
    for (const Profile& p : Profiles())
    {
        const double area = 2 * p.width_m * p.flange_m + (p.height_m - 2 * p.flange_m) * p.web_m +
                            (4 - std::numbers::pi) * p.radius_m * p.radius_m;
        const double mass = area * kSteelDensity_kgPerM3;
        EXPECT_NEAR(mass, p.mass_kgPerM, std::max(0.05, 0.005 * mass)) << std::wstring(p.name).size();
    }
}

// By hand, to four digits: 0.9 fub As / 1.25, and alpha v fub As / 1.25.
TEST(Check, ResistancesOfBolts)
{
    const std::tuple<const wchar_t*, const wchar_t*, double, double> cases[] = {
        {L"M12", L"5.6", 30.35, 20.23}, {L"M16", L"4.6", 45.22, 30.14}, {L"M24", L"10.9", 254.2, 141.2}};
    for (const auto& [bolt, grade, tension, shear] : cases)
    {
        const BoltSize& size = BoltSizes()[IndexOf(BoltSizes(), bolt)];
        const BoltClass& strength = BoltClasses()[IndexOf(BoltClasses(), grade)];
        EXPECT_NEAR(TensionResistance_N(size, strength) / 1e3, tension, tension * 5e-4);
        EXPECT_NEAR(ShearResistance_N(size, strength) / 1e3, shear, shear * 5e-4);
    }
    // M20 in S235, t = 15, e1 60: alpha = 60 / 66 = 0.909, k1 = 2.5: 2.5 x 0.909 x 360 x 20 x 15 / 1.25 = 196.4 kN
    Connection c;
    c.pitch_m = 80 * mm;
    EXPECT_NEAR(BearingResistance_N(c, 15 * mm, 60 * mm, 40 * mm) / 1e3, 196.4, 0.05);
}

// The connection as it is new, M = 60 kNm, V = 80 kN, N = 40 kN; newtons and millimetres.
//   bolts: rows at 45, 115, 185, 255 below the top, arms 249.65 to 39.65, sum of squares 0.10819 m2:
//   60 x 0.24965 / (2 x 0.10819) + 40 / 8 = 74.23 kN of 141.12, 10 of 94.08; together 0.1063 + 74.23 / 197.57
//   bearing: alpha = 70 / 66 - 0.25 = 0.8106, 2.5 x 0.8106 x 360 x 20 x 15 / 1.25
//   plate: m 41.92, e 40, leff 143.8, mode 1; column: m 31.1, e 40, leff 122.2, mode 2
//   flange weld: (60000 / 289.3 + 20) kN on 5 x 262.9, times root 2; web weld: 80 kN on 8 x 248.6, times root 3
TEST(Check, EveryEffectAndResistance)
{
    const double expected[kCheckCount][2] = {
        {74.23e3, 141.12e3}, {10e3, 94.08e3},     {0.4820, 1.0},       {74.23e3, 263.2e3}, {10e3, 175.1e3},
        {10e3, 175.1e3},     {148.46e3, 181.4e3}, {148.46e3, 203.0e3}, {244.6e6, 360e6},   {69.67e6, 360e6},
    };
    const auto results = CheckConnection(Connection(), {60e3, 80e3, 40e3});
    for (size_t i = 0; i < kCheckCount; ++i)
    {
        EXPECT_EQ(results[i].check, static_cast<ECheck>(i));
        EXPECT_NEAR(results[i].effect / expected[i][0], 1, 1e-3) << i;
        EXPECT_NEAR(results[i].resistance / expected[i][1], 1, 1e-3) << i;
    }
    EXPECT_EQ(Governing(results).check, ECheck::PlateBending);
    EXPECT_EQ(GreatestBoltTension_N(Connection(), {0, 0, -40e3}), 0.0) << "pressure is no tension";
}

TEST(Check, AllCasesAndNoMoreThanAreWanted)
{
    const Connection c;
    const Survey all = CheckAllCases(c, [](int) { return true; });
    EXPECT_EQ(all.casesChecked, kLoadCaseCount);
    EXPECT_EQ(all.governingCase, kLoadCaseCount - 1); // all greatest
    EXPECT_NEAR(all.loadCase.forces.moment_Nm, 1.35 * 15e3 + 1.5 * (19e3 + 4e3 + 7e3), 1e-6);
    EXPECT_NEAR(all.loadCase.forces.shear_N, 109.8e3, 1e-6);
    EXPECT_NEAR(all.loadCase.forces.axial_N, 9e3, 1e-6);
    EXPECT_EQ(LoadCaseAt(c, 0).forces, (Forces{9e3, 25e3, -9e3}));
    EXPECT_EQ(CheckAllCases(c, [](int checked) { return checked < 25; }).casesChecked, 25);
}

// Millimetres, by hand from the rules. The first row is past the flange by weld and head, as 15 + 10.7 + 7.07 + 17.32 + 2.
TEST(Rules, LimitsOfTheNewConnection)
{
    const FittedConnection fitted = Fit({});
    EXPECT_EQ(fitted.maxRows, 5);
    const std::tuple<Limits, double, double> bounds[] = {
        {fitted.thickness, 10, 60}, {fitted.flangeWeld, 3, 7},     {fitted.webWeld, 3, 4},
        {fitted.height, 315, 400},  {fitted.endDistance, 53, 100}, {fitted.pitch, 49, 72},
        {fitted.gauge, 80, 147},    {fitted.width, 153, 200}};
    for (const auto& [limits, least, greatest] : bounds)
    {
        EXPECT_NEAR(limits.min_m / mm, least, 1e-9);
        EXPECT_NEAR(limits.max_m / mm, greatest, 1e-9);
    }
}

// Whatever is chosen: what is fitted stays so, and either keeps the rules or says which it breaks.
TEST(Rules, FitEveryCombination)
{
    const int profiles = static_cast<int>(Profiles().size()), bolts = static_cast<int>(BoltSizes().size());
    for (int beam = 0; beam < profiles; ++beam)
        for (int column = 18; column < profiles; ++column)
            for (int bolt = 0; bolt < bolts; ++bolt)
            {
                Connection wanted;
                wanted.beam = beam;
                wanted.column = column;
                wanted.boltSize = bolt;
                const FittedConnection fitted = Fit(wanted);
                ASSERT_EQ(Fit(fitted.values).values, fitted.values) << beam << ' ' << column << ' ' << bolt;
                const Connection& c = fitted.values;
                ASSERT_EQ(c.plateHeight_m, fitted.height.Nearest(c.plateHeight_m));
                const double hole = c.Bolt().hole_m;
                if (!BrokenRules(fitted).empty())
                    continue;
                ASSERT_GE(std::min({c.endDistance_m, c.BottomDistance_m(), c.EdgeDistance_m()}),
                          1.2 * hole - 1e-9);
                ASSERT_GE(c.pitch_m, 2.2 * hole - 1e-9);
                ASSERT_GE(c.gauge_m, 2.4 * hole - 1e-9);
                ASSERT_LE(c.plateWidth_m, c.Column().width_m + 1e-9);
                ASSERT_GT(Governing(CheckConnection(c, {1e3, 1e3, 0})).Utilisation(), 0);
            }
}

// M20 x 65: 15 + 15 + 8 + 18 + 6 = 62; shank 160.3 g, head 76.5 g, nut 65.7 g.
TEST(Parts, WeightsOfBolts)
{
    const auto parts = PartsOf(Connection());
    EXPECT_EQ(parts[ePartBolts].description, L"M20x65 - 8.8");
    EXPECT_EQ(parts[ePartBolts].count, 64);
    EXPECT_NEAR(parts[ePartBolts].mass_kg, 0.3025, 5e-4);
}

TEST(Model, FilesKeepWhatTheyAreGivenAndStandWhatTheyAreNot)
{
    const auto path = std::filesystem::temp_directory_path() / L"connection_values_test" / L"all.txt";
    Connection c;
    c.beam = 3;
    c.pitch_m = 0.1 / 3;
    c.parts[0].mark = L"Greda \u0161 = [1]";
    c.drawing.dimensionColor = 0xFFFFFF;
    WriteConnections(path, {{L"[a]=b", c}, {L"", Connection()}});
    const auto read = ReadConnections(path);
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].name, L"[a]=b");
    EXPECT_EQ(read[0].values, c);
    EXPECT_EQ(read[1].values, Connection());

    std::ofstream(path) << "pitch=1\n[x]\nbeam=IPE 1\nboltRows=-4\npitch=nan\ngauge=\nlengths.unit=9\nheight";
    EXPECT_EQ(ReadConnections(path).at(0).values, Connection());
    std::filesystem::remove_all(path.parent_path());
    EXPECT_TRUE(ReadConnections(path).empty());
}
} // namespace
