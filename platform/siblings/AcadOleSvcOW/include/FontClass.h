#pragma once

/// Class of a font, as stored in records: the numbers must stay.
enum EFontClass : int
{
    eFontTrueType = 0,
    eFontSHX = 1,
};
