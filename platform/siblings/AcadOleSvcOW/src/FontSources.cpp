#include "FontSources.h"

#include <filesystem>

static int CALLBACK AddFace(const LOGFONT* pLogFont, const TEXTMETRIC*, DWORD nType, LPARAM lParam)
{
    const bool bVertical = pLogFont->lfFaceName[0] == L'@';
    if (nType == TRUETYPE_FONTTYPE && !bVertical)
        reinterpret_cast<std::vector<CString>*>(lParam)->push_back(pLogFont->lfFaceName);
    return TRUE; // go on
}

std::vector<CString> TrueTypeFaces(HDC hDC)
{
    std::vector<CString> faces;
    LOGFONT any = {};
    any.lfCharSet = DEFAULT_CHARSET;
    ::EnumFontFamiliesEx(hDC, &any, &AddFace, reinterpret_cast<LPARAM>(&faces), 0);
    return faces;
}

std::vector<CString> SHXFontsIn(const CString& strDirectory)
{
    std::vector<CString> names;
    std::error_code error; // a directory that is not there has no fonts
    for (const auto& entry : std::filesystem::directory_iterator(strDirectory.GetString(), error))
    {
        const CString strExtension = entry.path().extension().c_str();
        if (strExtension.CompareNoCase(L".shx") == 0)
            names.push_back(entry.path().stem().c_str());
    }
    return names;
}
