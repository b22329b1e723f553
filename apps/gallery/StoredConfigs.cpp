#include <afxwin.h>

#include "StoredConfigs.h"

#include "TextFile.h"

#include <algorithm>

namespace
{
/// Takes a line out of a text, from `nStart` on; at the end of the text what is left.
CString NextLine(const CString& strText, int& nStart)
{
    const int nFound = strText.Find(_T('\n'), nStart);
    const int nEnd = nFound < 0 ? strText.GetLength() : nFound;
    const CString strLine = strText.Mid(nStart, nEnd - nStart);
    nStart = nEnd + 1;
    return strLine;
}
} // namespace

CStoredConfigs::CStoredConfigs(BoltPattern& values, const CString& strPath)
    : m_values(values), m_strPath(strPath)
{
}

void CStoredConfigs::LoadConfigs()
{
    TryWithFile([this] { m_entries = Read(m_strPath); });
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
    if (Find(m_entries, name) != m_entries.end())
        return false;
    Put(name);
    return true;
}

void CStoredConfigs::OverwriteConfig(const CString& name)
{
    Put(name);
}

// The entry that follows becomes current, or else the last one.
void CStoredConfigs::DeleteConfig(int nIndex)
{
    const CString strName = GetConfigName(nIndex);
    Apply(
        [&](Entries& entries)
        {
            if (const auto found = Find(entries, strName); found != entries.end())
                entries.erase(found);
        });
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

CStoredConfigs::Entries::iterator CStoredConfigs::Find(Entries& entries, const CString& strName)
{
    return std::find_if(entries.begin(), entries.end(),
                        [&](const Entry& entry) { return entry.strName == strName; });
}

// An entry takes two lines: its values, and its name, which may be any text. Values that are none are left out.
CStoredConfigs::Entries CStoredConfigs::Read(const CString& strPath)
{
    Entries entries;
    CFileStatus status;
    const CString strText = CFile::GetStatus(strPath, status) ? ReadText(strPath) : CString();
    for (int nStart = 0; nStart < strText.GetLength();)
    {
        const CString strValues = NextLine(strText, nStart);
        Entry entry{NextLine(strText, nStart), {}};
        if (::swscanf(strValues, L"%d %lf %lf %d", &entry.values.nRows, &entry.values.dPitch,
                      &entry.values.dEdge, &entry.values.nGrade) == 4)
            entries.push_back(entry);
    }
    return entries;
}

void CStoredConfigs::Write(const CString& strPath, const Entries& entries)
{
    CString strText;
    for (const Entry& entry : entries)
    {
        strText.AppendFormat(_T("%d %.17g %.17g %d\n"), entry.values.nRows, entry.values.dPitch,
                             entry.values.dEdge, entry.values.nGrade);
        strText += entry.strName + _T('\n');
    }
    WriteText(strPath, strText);
}

/// Changes the entries here, in step with what the dialog shows, and those in the file.
template <class Change>
void CStoredConfigs::Apply(Change change)
{
    change(m_entries);
    TryWithFile(
        [&]
        {
            Entries stored = Read(m_strPath);
            change(stored);
            Write(m_strPath, stored);
        });
}

/// Stores the present values under a name, in the entry that has it or in a new one at the end.
void CStoredConfigs::Put(const CString& strName)
{
    Apply(
        [&](Entries& entries)
        {
            const auto found = Find(entries, strName);
            if (found != entries.end())
                found->values = m_values;
            else
                entries.push_back({strName, m_values});
        });
    m_nCurrent = static_cast<int>(Find(m_entries, strName) - m_entries.begin());
}

bool CStoredConfigs::Exists(int nIndex) const
{
    return nIndex >= 0 && nIndex < static_cast<int>(m_entries.size());
}

BoltPattern CStoredConfigs::ValuesOf(int nIndex) const
{
    return Exists(nIndex) ? m_entries[nIndex].values : BoltPattern();
}
