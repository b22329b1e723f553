#include "Steel.h"

namespace
{
/// A row as the tables of the norms have it: millimetres, and kilograms for each metre.
constexpr Profile Row(const wchar_t* name, double h, double b, double tw, double tf, double r, double mass)
{
    constexpr double mm = kMillimetre_m;
    return {name, h * mm, b * mm, tw * mm, tf * mm, r * mm, mass};
}

/// Millimetres and square millimetres.
constexpr BoltSize Bolt(const wchar_t* name, double d, double hole, double area, double head, double k,
                        double nut)
{
    constexpr double mm = kMillimetre_m;
    return {name, d * mm, hole * mm, area * mm * mm, head * mm, k * mm, nut * mm};
}

constexpr double MPa(double value)
{
    return value * 1e6;
}

// EN 10365: name, h, b, tw, tf, r, mass.
constexpr Profile kProfiles[] = {
    Row(L"IPE 80", 80, 46, 3.8, 5.2, 5, 6.00),      Row(L"IPE 100", 100, 55, 4.1, 5.7, 7, 8.10),
    Row(L"IPE 120", 120, 64, 4.4, 6.3, 7, 10.4),    Row(L"IPE 140", 140, 73, 4.7, 6.9, 7, 12.9),
    Row(L"IPE 160", 160, 82, 5.0, 7.4, 9, 15.8),    Row(L"IPE 180", 180, 91, 5.3, 8.0, 9, 18.8),
    Row(L"IPE 200", 200, 100, 5.6, 8.5, 12, 22.4),  Row(L"IPE 220", 220, 110, 5.9, 9.2, 12, 26.2),
    Row(L"IPE 240", 240, 120, 6.2, 9.8, 15, 30.7),  Row(L"IPE 270", 270, 135, 6.6, 10.2, 15, 36.1),
    Row(L"IPE 300", 300, 150, 7.1, 10.7, 15, 42.2), Row(L"IPE 330", 330, 160, 7.5, 11.5, 18, 49.1),
    Row(L"IPE 360", 360, 170, 8.0, 12.7, 18, 57.1), Row(L"IPE 400", 400, 180, 8.6, 13.5, 21, 66.3),
    Row(L"IPE 450", 450, 190, 9.4, 14.6, 21, 77.6), Row(L"IPE 500", 500, 200, 10.2, 16.0, 21, 90.7),
    Row(L"IPE 550", 550, 210, 11.1, 17.2, 24, 106), Row(L"IPE 600", 600, 220, 12.0, 19.0, 24, 122),
    Row(L"HEA 100", 96, 100, 5, 8, 12, 16.7),       Row(L"HEA 120", 114, 120, 5, 8, 12, 19.9),
    Row(L"HEA 140", 133, 140, 5.5, 8.5, 12, 24.7),  Row(L"HEA 160", 152, 160, 6, 9, 15, 30.4),
    Row(L"HEA 180", 171, 180, 6, 9.5, 15, 35.5),    Row(L"HEA 200", 190, 200, 6.5, 10, 18, 42.3),
    Row(L"HEA 220", 210, 220, 7, 11, 18, 50.5),     Row(L"HEA 240", 230, 240, 7.5, 12, 21, 60.3),
    Row(L"HEA 260", 250, 260, 7.5, 12.5, 24, 68.2), Row(L"HEA 280", 270, 280, 8, 13, 24, 76.4),
    Row(L"HEA 300", 290, 300, 8.5, 14, 27, 88.3),   Row(L"HEA 320", 310, 300, 9, 15.5, 27, 97.6),
    Row(L"HEA 340", 330, 300, 9.5, 16.5, 27, 105),  Row(L"HEA 360", 350, 300, 10, 17.5, 27, 112),
    Row(L"HEA 400", 390, 300, 11, 19, 27, 125),     Row(L"HEA 450", 440, 300, 11.5, 21, 27, 140),
    Row(L"HEA 500", 490, 300, 12, 23, 27, 155),     Row(L"HEA 550", 540, 300, 12.5, 24, 27, 166),
    Row(L"HEA 600", 590, 300, 13, 25, 27, 178),     Row(L"HEB 100", 100, 100, 6, 10, 12, 20.4),
    Row(L"HEB 120", 120, 120, 6.5, 11, 12, 26.7),   Row(L"HEB 140", 140, 140, 7, 12, 12, 33.7),
    Row(L"HEB 160", 160, 160, 8, 13, 15, 42.6),     Row(L"HEB 180", 180, 180, 8.5, 14, 15, 51.2),
    Row(L"HEB 200", 200, 200, 9, 15, 18, 61.3),     Row(L"HEB 220", 220, 220, 9.5, 16, 18, 71.5),
    Row(L"HEB 240", 240, 240, 10, 17, 21, 83.2),    Row(L"HEB 260", 260, 260, 10, 17.5, 24, 93.0),
    Row(L"HEB 280", 280, 280, 10.5, 18, 24, 103),   Row(L"HEB 300", 300, 300, 11, 19, 27, 117),
    Row(L"HEB 320", 320, 300, 11.5, 20.5, 27, 127), Row(L"HEB 340", 340, 300, 12, 21.5, 27, 134),
    Row(L"HEB 360", 360, 300, 12.5, 22.5, 27, 142), Row(L"HEB 400", 400, 300, 13.5, 24, 27, 155),
    Row(L"HEB 450", 450, 300, 14, 26, 27, 171),     Row(L"HEB 500", 500, 300, 14.5, 28, 27, 187),
    Row(L"HEB 550", 550, 300, 15, 29, 27, 199),     Row(L"HEB 600", 600, 300, 15.5, 30, 27, 212),
};

constexpr SteelGrade kGrades[] = {
    {L"S235", MPa(235), MPa(360), 0.80},
    {L"S275", MPa(275), MPa(430), 0.85},
    {L"S355", MPa(355), MPa(490), 0.90},
};

// Name, d, hole, stress area, across flats, height of head and of nut.
constexpr BoltSize kBolts[] = {
    Bolt(L"M12", 12, 13, 84.3, 18, 7.5, 10.8), Bolt(L"M16", 16, 18, 157, 24, 10, 14.8),
    Bolt(L"M20", 20, 22, 245, 30, 12.5, 18),   Bolt(L"M22", 22, 24, 303, 34, 14, 19.4),
    Bolt(L"M24", 24, 26, 353, 36, 15, 21.5),   Bolt(L"M27", 27, 30, 459, 41, 17, 23.8),
    Bolt(L"M30", 30, 33, 561, 46, 18.7, 25.6), Bolt(L"M36", 36, 39, 817, 55, 22.5, 31),
};

constexpr BoltClass kClasses[] = {
    {L"4.6", MPa(240), MPa(400), 0.6},
    {L"5.6", MPa(300), MPa(500), 0.6},
    {L"8.8", MPa(640), MPa(800), 0.6},
    {L"10.9", MPa(900), MPa(1000), 0.5},
};
} // namespace

std::span<const Profile> Profiles()
{
    return kProfiles;
}

std::span<const SteelGrade> SteelGrades()
{
    return kGrades;
}

std::span<const BoltSize> BoltSizes()
{
    return kBolts;
}

std::span<const BoltClass> BoltClasses()
{
    return kClasses;
}
