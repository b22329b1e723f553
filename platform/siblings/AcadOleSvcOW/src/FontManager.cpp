#include "FontManager.h"

#include "FontSources.h"

#include <algorithm>

CFontManager gFontManager;

void CFontManager::SetSHXDirectories(const CStringArray& directories)
{
    m_directories.clear();
    for (INT_PTR i = 0; i < directories.GetSize(); ++i)
        m_directories.push_back(directories[i]);
    m_bInitialized = false;
}

bool CFontManager::Initialize(HDC hDC)
{
    m_fonts.clear();
    m_bInitialized = false;
    if (!hDC)
        return false;
    for (const CString& strDirectory : m_directories)
    {
        for (const CString& strName : SHXFontsIn(strDirectory))
            m_fonts.push_back({strName, eFontSHX});
    }
    for (const CString& strFace : TrueTypeFaces(hDC))
        m_fonts.push_back({strFace, eFontTrueType});
    Sort();
    m_bInitialized = true;
    return true;
}

int CFontManager::Count() const
{
    return static_cast<int>(m_fonts.size());
}

int CFontManager::Find(const CString& strName) const
{
    const auto it = std::lower_bound(m_fonts.begin(), m_fonts.end(), strName,
                                     [](const SFont& font, const CString& strWanted)
                                     { return font.strName.CompareNoCase(strWanted) < 0; });
    if (it == m_fonts.end() || it->strName.CompareNoCase(strName) != 0)
        return -1;
    return static_cast<int>(it - m_fonts.begin());
}

CString CFontManager::Name(int nIndex) const
{
    return Has(nIndex) ? m_fonts[nIndex].strName : CString();
}

EFontClass CFontManager::Class(int nIndex) const
{
    return Has(nIndex) ? m_fonts[nIndex].eClass : eFontTrueType;
}

bool CFontManager::Has(int nIndex) const
{
    return nIndex >= 0 && nIndex < Count();
}

/// Sorts by name and keeps the first of each: the files were added first, so they win over faces.
void CFontManager::Sort()
{
    std::ranges::stable_sort(m_fonts, [](const SFont& left, const SFont& right)
                             { return left.strName.CompareNoCase(right.strName) < 0; });
    const auto repeated = std::unique(m_fonts.begin(), m_fonts.end(), [](const SFont& left, const SFont& right)
                                      { return left.strName.CompareNoCase(right.strName) == 0; });
    m_fonts.erase(repeated, m_fonts.end());
}
