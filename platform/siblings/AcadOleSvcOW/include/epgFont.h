#pragma once
// epgFont: the font of a text in a drawing. A plain record: whoever shows or edits it reads and writes the
// fields.

#include "AcadOleSvcDef.h"
#include "FontClass.h"

struct epgFont
{
    CString strName;                   ///< name of the font, see CFontManager
    double dHeight = 0.0025;           ///< height of the text, in metres on paper
    int nColor = 256;                  ///< colour index of the CAD host; 256 is ByLayer
    int nCheck1 = 0;                   ///< bold, 0 or 1; TrueType only
    int nCheck2 = 0;                   ///< italic, 0 or 1; TrueType only
    int nCheck3 = 0;                   ///< underlined, 0 or 1; TrueType only
    EFontClass eClass = eFontTrueType; ///< class of the font
};
