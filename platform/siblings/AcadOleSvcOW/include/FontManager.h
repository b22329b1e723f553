#pragma once
// CFontManager: the fonts that a text style of a drawing can use, each with an index and a class.
//
//     if (!gFontManager.m_bInitialized)
//         gFontManager.Initialize(dc);
//     const int index = gFontManager.Find(L"Arial");
//     if (gFontManager.Class(index) == eFontSHX) ...
//
// The fonts are the TrueType faces that the system knows and the SHX files of the directories that were set.
// An SHX font is named after its file, without directory and extension. If a face and a file share a name,
// the name stands for the file, as it does for the CAD host. Names are compared without case.
//
// Indices count from 0 in the order of the names and hold until the next Initialize.

#include "AcadOleSvcDef.h"
#include "FontClass.h"

#include <vector>

class ACADOLESVC_API CFontManager
{
public:
    /// Whether the fonts have been read. Cleared when the directories change.
    bool m_bInitialized = false;

    /// Directories with SHX files, searched without their subdirectories; none at first. Takes effect at the
    /// next Initialize. One that does not exist is ignored, as a search path may name drives that are absent
    /// today.
    void SetSHXDirectories(const CStringArray& directories);

    /// Reads the fonts anew, the faces as the device context knows them. False, with no font known and the
    /// flag still clear, if `hDC` is null.
    bool Initialize(HDC hDC);

    int Count() const;

    /// Index of a font, or -1.
    int Find(const CString& strName) const;

    /// Name of a font; empty for an index out of range.
    CString Name(int nIndex) const;

    /// Class of a font; eFontTrueType for an index out of range, -1 included.
    EFontClass Class(int nIndex) const;

private:
    struct SFont
    {
        CString strName;
        EFontClass eClass;
    };

    bool Has(int nIndex) const;
    void Sort();

    std::vector<SFont> m_fonts; ///< sorted by name, no name twice
    std::vector<CString> m_directories;
};

extern ACADOLESVC_API CFontManager gFontManager; ///< the fonts of the process
