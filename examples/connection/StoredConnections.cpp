#include <afxwin.h>

#include "StoredConnections.h"

#include "Language.h"

#include <algorithm>
#include <stdexcept>

namespace
{
/// Does something with a file; false, and a message, if that fails.
template <class Use>
bool TryWithFile(LPCTSTR pszMessage, const std::filesystem::path& path, Use use)
{
    try
    {
        use();
        return true;
    }
    catch (const std::exception&)
    {
        const CString strText = Tr(pszMessage) + _T("\r\n") + path.c_str();
        COstrelMessageBox::MessageBox(strText, _T("Veza grede sa stubom"), MB_OK | MB_ICONWARNING);
        return false;
    }
}

constexpr LPCTSTR kNotRead = _T("Datoteka ne moze da se procita:");
constexpr LPCTSTR kNotWritten = _T("Datoteka ne moze da se upise:");
} // namespace

CStoredConnections::CStoredConnections(Connection& values, const CString& strFolder)
    : m_values(values), m_named(strFolder.GetString()), m_accepted(m_named)
{
    m_named /= L"configurations.txt";
    m_accepted /= L"accepted.txt";
}

void CStoredConnections::LoadConfigs()
{
    TryWithFile(kNotRead, m_named, [this] { m_entries = ReadConnections(m_named); });
}

int CStoredConnections::GetConfigNames(CStringArray& names)
{
    names.RemoveAll();
    for (const NamedConnection& entry : m_entries)
        names.Add(entry.name.c_str());
    return static_cast<int>(m_entries.size());
}

bool CStoredConnections::AddConfig(const CString& name)
{
    if (Find(name) >= 0)
        return false;
    auto entries = m_entries;
    entries.push_back({name.GetString(), m_values});
    if (Store(entries))
        m_nCurrent = static_cast<int>(entries.size()) - 1;
    return true;
}

void CStoredConnections::OverwriteConfig(const CString& name)
{
    const int nIndex = Find(name);
    if (nIndex < 0)
        return;
    auto entries = m_entries;
    entries[nIndex].values = m_values;
    if (Store(entries))
        m_nCurrent = nIndex;
}

// The entry that follows becomes current, or else the last one.
void CStoredConnections::DeleteConfig(int nIndex)
{
    if (!Exists(nIndex))
        return;
    auto entries = m_entries;
    entries.erase(entries.begin() + nIndex);
    if (Store(entries))
        SetCurrentConfig((std::min)(nIndex, static_cast<int>(m_entries.size()) - 1));
}

void CStoredConnections::SetCurrentConfig(int nIndex)
{
    m_nCurrent = Exists(nIndex) ? nIndex : -1;
    m_values = ValuesOf(m_nCurrent);
}

bool CStoredConnections::IsConfigChanged()
{
    return !(m_values == ValuesOf(m_nCurrent));
}

int CStoredConnections::GetCurrentConfig()
{
    return m_nCurrent;
}

CString CStoredConnections::GetConfigName(int nIndex)
{
    return Exists(nIndex) ? CString(m_entries[nIndex].name.c_str()) : CString();
}

Connection CStoredConnections::LoadAccepted() const
{
    std::vector<NamedConnection> entries;
    TryWithFile(kNotRead, m_accepted, [&] { entries = ReadConnections(m_accepted); });
    return entries.empty() ? Connection() : entries.front().values;
}

bool CStoredConnections::StoreAccepted(const Connection& connection) const
{
    return TryWithFile(kNotWritten, m_accepted,
                       [&] {
                           WriteConnections(m_accepted, {{std::wstring(), connection}});
                       });
}

void CStoredConnections::FindCurrent()
{
    const auto same = [this](const NamedConnection& entry) { return entry.values == m_values; };
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), same);
    m_nCurrent = found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
}

bool CStoredConnections::Exists(int nIndex) const
{
    return nIndex >= 0 && nIndex < static_cast<int>(m_entries.size());
}

Connection CStoredConnections::ValuesOf(int nIndex) const
{
    return Exists(nIndex) ? m_entries[nIndex].values : Connection();
}

int CStoredConnections::Find(const CString& strName) const
{
    for (size_t i = 0; i < m_entries.size(); ++i)
        if (m_entries[i].name == strName.GetString())
            return static_cast<int>(i);
    return -1;
}

/// The entries are those of the file: what could not be written is not taken.
bool CStoredConnections::Store(const std::vector<NamedConnection>& entries)
{
    const bool bWritten = TryWithFile(kNotWritten, m_named, [&] { WriteConnections(m_named, entries); });
    if (bWritten)
        m_entries = entries;
    return bWritten;
}
