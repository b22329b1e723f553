#include <afxwin.h>

#include "grid/SavedWidths.h"

#include "grid/GridAxis.h"

#include <algorithm>

namespace
{
constexpr wchar_t kSection[] = L"OstrelWorks";
} // namespace

CString CSavedWidths::KeyOf(const CString& strName, int n)
{
    CString strKey;
    strKey.Format(L"%s_%d", strName.GetString(), n);
    return strKey;
}

CSavedWidths::CSavedWidths(const CString& strKey)
    : m_strKey(strKey), m_pApp(strKey.IsEmpty() ? nullptr : AfxGetApp())
{
}

int CSavedWidths::Read(int nCol, int nDefault) const
{
    if (!m_pApp)
        return nDefault;
    return std::max(0, static_cast<int>(m_pApp->GetProfileInt(kSection, EntryOf(nCol), nDefault)));
}

void CSavedWidths::Write(const CGridAxis& columns) const
{
    for (int nCol = 0; m_pApp && nCol < columns.Count(); ++nCol)
        m_pApp->WriteProfileInt(kSection, EntryOf(nCol), columns.Size(nCol));
}

CString CSavedWidths::EntryOf(int nCol) const
{
    CString strEntry;
    strEntry.Format(L"%s_col_%d", m_strKey.GetString(), nCol);
    return strEntry;
}
