#pragma once
// What the dialog edits: an end-plate connection of a beam to a column, as the user wants it. Values without
// windows. Rules.h tells what of it can be built, Check.h whether it holds, Parts.h what it weighs.

#include "Steel.h"

#include <array>
#include <filesystem>
#include <string>
#include <vector>

/// Internal forces at the face of the column. Positive: tension at the top flange, shear downwards, tension.
struct Forces
{
    double moment_Nm = 0;
    double shear_N = 0;
    double axial_N = 0;

    friend bool operator==(const Forces&, const Forces&) = default;
};

enum EAction
{
    eActionPermanent,
    eActionImposed,
    eActionWind,
    eActionSnow,
    eActionCount
};

enum EPart
{
    ePartBeam,
    ePartColumn,
    ePartPlate,
    ePartBolts,
    ePartCount
};

/// What the user says of a part; the rest follows from the connection.
struct PartEntry
{
    std::wstring mark;
    int count = 1;       ///< of the bolts it follows from that of the plates
    double length_m = 0; ///< of plates and bolts it follows from the connection
    int color = 7;       ///< colour index of the CAD host

    friend bool operator==(const PartEntry&, const PartEntry&) = default;
};

/// How the drawing is made. The first three are indices of the pictures of the library's pickers.
struct DrawingStyle
{
    int dimensionEnds = 0;
    int dimensionText = 0;
    int hatch = 0;
    unsigned long dimensionColor = 0x683418; ///< RGB, red in the lowest byte
    std::wstring font;                       ///< empty: the usual one
    double textHeight_m = 0.0025;            ///< on paper
    int textColor = 5;                       ///< colour index of the CAD host
    int bold = 0;
    int italic = 0;

    friend bool operator==(const DrawingStyle&, const DrawingStyle&) = default;
};

/// How lengths are written. The unit has the number that the library's units have.
struct LengthStyle
{
    int unit = 2;
    int decimals = 0;
    int symbol = 0;

    friend bool operator==(const LengthStyle&, const LengthStyle&) = default;
};

struct Connection
{
    // Indices into the tables of Steel.h
    int beam = 10;     ///< IPE 300
    int column = 42;   ///< HEB 200
    int steel = 0;     ///< S235
    int boltSize = 2;  ///< M20
    int boltClass = 2; ///< 8.8

    int boltRows = 4;             ///< of two bolts each
    double endDistance_m = 0.060; ///< e1: top of the plate to the first row
    double pitch_m = 0.070;       ///< p1: row to row
    double gauge_m = 0.100;       ///< p2: between the two bolts of a row
    double plateThickness_m = 0.015;
    double plateHeight_m = 0.330;
    double plateWidth_m = 0.180;
    double flangeWeld_m = 0.005; ///< throat a
    double webWeld_m = 0.004;    ///< throat a

    std::array<Forces, eActionCount> actions{
        {{15e3, 28e3, 0}, {19e3, 34e3, 0}, {4e3, 2e3, 6e3}, {7e3, 12e3, 0}}};
    std::array<PartEntry, ePartCount> parts{
        {{L"B 1", 4, 6.0, 150}, {L"C 1", 2, 3.6, 30}, {L"PL 1", 8, 0, 5}, {L"M", 64, 0, 1}}};
    DrawingStyle drawing;
    LengthStyle lengths;

    const Profile& Beam() const { return Profiles()[static_cast<size_t>(beam)]; }
    const Profile& Column() const { return Profiles()[static_cast<size_t>(column)]; }
    const SteelGrade& Steel() const { return SteelGrades()[static_cast<size_t>(steel)]; }
    const BoltSize& Bolt() const { return BoltSizes()[static_cast<size_t>(boltSize)]; }
    const BoltClass& Class() const { return BoltClasses()[static_cast<size_t>(boltClass)]; }
    double EdgeDistance_m() const { return (plateWidth_m - gauge_m) / 2; } ///< e2
    double BottomDistance_m() const { return plateHeight_m - endDistance_m - (boltRows - 1) * pitch_m; }

    friend bool operator==(const Connection&, const Connection&) = default;
};

struct NamedConnection
{
    std::wstring name;
    Connection values;
};

/// Reads what WriteConnections wrote. What is missing, unknown or out of its range stays as in a new
/// Connection. No file means none. Throws std::runtime_error if there is a file that cannot be read.
std::vector<NamedConnection> ReadConnections(const std::filesystem::path& path);

/// Replaces the file as a whole: either the old or the new one is there. Throws std::runtime_error.
void WriteConnections(const std::filesystem::path& path, const std::vector<NamedConnection>& connections);
