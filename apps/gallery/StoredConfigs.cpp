#include <afxwin.h>

#include "StoredConfigs.h"

#include "TextFile.h"

#include <algorithm>

CStoredConfigs::CStoredConfigs(BoltPattern& values, const CString& strPath)
    : m_values(values), m_strPath(strPath)
{
}

// A pattern takes two lines: its values, and its name, which may be any text.
void CStoredConfigs::LoadConfigs()
{
    m_entries.clear();
    CFileStatus status;
    if (!CFile::GetStatus(m_strPath, status))
        return;
    try
    {
        const CString strText = ReadText(m_strPath);
        for (int nStart = 0; nStart < strText.GetLength();)
        {
            const int nName = strText.Find(_T('\n'), nStart) + 1;
            const int nEnd = strText.Find(_T('\n'), nName);
            if (nName == 0 || nEnd < 0)
                return;
            Entry entry;
            if (::swscanf(strText.GetString() + nStart, L"%d %lf %lf %d", &entry.values.nRows,
                          &entry.values.dPitch, &entry.values.dEdge, &entry.values.nGrade) == 4)
            {
                entry.strName = strText.Mid(nName, nEnd - nName);
                m_entries.push_back(entry);
            }
            nStart = nEnd + 1;
        }
    }
    catch (CFileException* pException)
    {
        pException->ReportError(MB_ICONWARNING);
        pException->Delete();
    }
}

void CStoredConfigs::StoreConfigs()
{
    CString strText;
    for (const Entry& entry : m_entries)
    {
        strText.AppendFormat(_T("%d %.17g %.17g %d\n"), entry.values.nRows, entry.values.dPitch,
                             entry.values.dEdge, entry.values.nGrade);
        strText += entry.strName + _T('\n');
    }
    try
    {
        WriteText(m_strPath, strText);
    }
    catch (CFileException* pException)
    {
        pException->ReportError(MB_ICONWARNING);
        pException->Delete();
    }
}

int CStoredConfigs::GetConfigNames(CStringArray& names)
{
    names.RemoveAll();
    for (const Entry& entry : m_entries)
        names.Add(entry.strName);
    return static_cast<int>(m_entries.size());
}

bool CStoredConfigs::AddConfig(const CString& name)
{
    if (Find(name) >= 0)
        return false;
    m_nCurrent = static_cast<int>(m_entries.size());
    m_entries.push_back({name, m_values});
    StoreConfigs();
    return true;
}

void CStoredConfigs::OverwriteConfig(const CString& name)
{
    m_nCurrent = Find(name);
    if (!Exists(m_nCurrent))
        return;
    m_entries[m_nCurrent].values = m_values;
    StoreConfigs();
}

void CStoredConfigs::RenameConfig(int nIndex, const CString& name)
{
    if (!Exists(nIndex))
        return;
    m_entries[nIndex].strName = name;
    StoreConfigs();
}

// The entry that follows becomes current, or else the last one.
void CStoredConfigs::DeleteConfig(int nIndex)
{
    if (!Exists(nIndex))
        return;
    m_entries.erase(m_entries.begin() + nIndex);
    StoreConfigs();
    SetCurrentConfig((std::min)(nIndex, static_cast<int>(m_entries.size()) - 1));
}

void CStoredConfigs::SetCurrentConfig(int nIndex)
{
    m_nCurrent = Exists(nIndex) ? nIndex : -1;
    m_values = ValuesOf(m_nCurrent);
}

bool CStoredConfigs::IsConfigChanged()
{
    return m_values != ValuesOf(m_nCurrent);
}

int CStoredConfigs::GetCurrentConfig()
{
    return m_nCurrent;
}

// A name for what began as Default is for the user to find.
CString CStoredConfigs::GetConfigName(int nIndex)
{
    return Exists(nIndex) ? m_entries[nIndex].strName : CString();
}

int CStoredConfigs::Find(const CString& strName) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const Entry& entry) { return entry.strName == strName; });
    return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
}

bool CStoredConfigs::Exists(int nIndex) const
{
    return nIndex >= 0 && nIndex < static_cast<int>(m_entries.size());
}

BoltPattern CStoredConfigs::ValuesOf(int nIndex) const
{
    return Exists(nIndex) ? m_entries[nIndex].values : BoltPattern();
}
