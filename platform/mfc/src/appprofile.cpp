// The application's profile, in the registry or in an .ini file.

#include <afxwin.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace
{
/// A registry key that closes itself.
class CKey
{
public:
    CKey() = default;
    explicit CKey(HKEY key) : m_key(key) {}
    ~CKey()
    {
        if (m_key != nullptr)
            ::RegCloseKey(m_key);
    }
    CKey(const CKey&) = delete;
    CKey& operator=(const CKey&) = delete;
    HKEY get() const { return m_key; }
    HKEY release() { return std::exchange(m_key, nullptr); }

private:
    HKEY m_key = nullptr;
};

HKEY MakeSubKey(HKEY parent, LPCTSTR name)
{
    HKEY key = nullptr;
    if (parent == nullptr || ::RegCreateKeyEx(parent, name, 0, nullptr, REG_OPTION_NON_VOLATILE,
                                              KEY_READ | KEY_WRITE, nullptr, &key, nullptr) != ERROR_SUCCESS)
        return nullptr;
    return key;
}

/// The bytes of a value of the type; empty when it is missing or of another type.
std::vector<BYTE> ReadValue(HKEY key, LPCTSTR entry, DWORD type)
{
    DWORD size = 0;
    DWORD found = 0;
    if (key == nullptr || ::RegQueryValueEx(key, entry, nullptr, &found, nullptr, &size) != ERROR_SUCCESS ||
        found != type)
        return {};
    std::vector<BYTE> value(size);
    if (::RegQueryValueEx(key, entry, nullptr, nullptr, value.data(), &size) != ERROR_SUCCESS)
        return {};
    value.resize(size);
    return value;
}

BOOL WriteValue(HKEY key, LPCTSTR entry, DWORD type, const void* data, size_t size)
{
    return key != nullptr && ::RegSetValueEx(key, entry, 0, type, static_cast<const BYTE*>(data),
                                             static_cast<DWORD>(size)) == ERROR_SUCCESS;
}

// A byte stands in an .ini file as two letters from A to P, its low half first.
CString EncodeBinary(const BYTE* data, UINT size)
{
    CString text;
    for (UINT index = 0; index < size; ++index)
    {
        text += static_cast<wchar_t>(L'A' + (data[index] & 0x0F));
        text += static_cast<wchar_t>(L'A' + (data[index] >> 4));
    }
    return text;
}

void DecodeBinary(const CString& text, BYTE* data)
{
    for (int index = 0; index + 1 < text.GetLength(); index += 2)
        data[index / 2] = static_cast<BYTE>((text[index] - L'A') | ((text[index + 1] - L'A') << 4));
}
} // namespace

HKEY CWinApp::GetAppRegistryKey()
{
    ASSERT(m_pszRegistryKey != nullptr && m_pszProfileName != nullptr);
    const CKey software(MakeSubKey(HKEY_CURRENT_USER, L"Software"));
    const CKey company(MakeSubKey(software.get(), m_pszRegistryKey));
    return MakeSubKey(company.get(), m_pszProfileName);
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection)
{
    ASSERT(lpszSection != nullptr);
    const CKey application(GetAppRegistryKey());
    return MakeSubKey(application.get(), lpszSection);
}

LONG CWinApp::DelRegTree(HKEY hParentKey, const CString& strKeyName)
{
    return ::RegDeleteTree(hParentKey, strKeyName);
}

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault)
{
    if (m_pszRegistryKey == nullptr)
        return ::GetPrivateProfileInt(lpszSection, lpszEntry, nDefault, m_pszProfileName);
    const CKey section(GetSectionKey(lpszSection));
    const auto value = ReadValue(section.get(), lpszEntry, REG_DWORD);
    DWORD number = static_cast<DWORD>(nDefault);
    if (value.size() == sizeof number)
        memcpy(&number, value.data(), sizeof number);
    return number;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue)
{
    if (m_pszRegistryKey == nullptr)
    {
        CString text;
        text.Format(L"%d", nValue);
        return ::WritePrivateProfileString(lpszSection, lpszEntry, text, m_pszProfileName);
    }
    const CKey section(GetSectionKey(lpszSection));
    return WriteValue(section.get(), lpszEntry, REG_DWORD, &nValue, sizeof nValue);
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault)
{
    if (m_pszRegistryKey == nullptr)
    {
        constexpr DWORD longestText = 4096; // characters
        CString text;
        const DWORD length =
            ::GetPrivateProfileString(lpszSection, lpszEntry, lpszDefault != nullptr ? lpszDefault : L"",
                                      text.GetBuffer(longestText), longestText, m_pszProfileName);
        text.ReleaseBuffer(static_cast<int>(length));
        return text;
    }
    const CKey section(GetSectionKey(lpszSection));
    std::vector<BYTE> value = ReadValue(section.get(), lpszEntry, REG_SZ);
    if (value.empty())
        return lpszDefault;
    value.resize(value.size() + sizeof(wchar_t)); // other programs may leave the closing zero out
    return reinterpret_cast<LPCTSTR>(value.data());
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue)
{
    if (m_pszRegistryKey == nullptr)
        return ::WritePrivateProfileString(lpszSection, lpszEntry, lpszValue, m_pszProfileName);
    if (lpszEntry == nullptr)
    {
        const CKey application(GetAppRegistryKey());
        return application.get() != nullptr &&
               ::RegDeleteKey(application.get(), lpszSection) == ERROR_SUCCESS;
    }
    const CKey section(GetSectionKey(lpszSection));
    if (lpszValue == nullptr)
        return section.get() != nullptr && ::RegDeleteValue(section.get(), lpszEntry) == ERROR_SUCCESS;
    return WriteValue(section.get(), lpszEntry, REG_SZ, lpszValue, (wcslen(lpszValue) + 1) * sizeof(wchar_t));
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes)
{
    *ppData = nullptr;
    *pBytes = 0;
    if (m_pszRegistryKey == nullptr)
    {
        const CString text = GetProfileString(lpszSection, lpszEntry);
        if (text.IsEmpty())
            return FALSE;
        *pBytes = static_cast<UINT>(text.GetLength() / 2);
        *ppData = new BYTE[*pBytes];
        DecodeBinary(text, *ppData);
        return TRUE;
    }
    const CKey section(GetSectionKey(lpszSection));
    const auto value = ReadValue(section.get(), lpszEntry, REG_BINARY);
    if (value.empty())
        return FALSE;
    *pBytes = static_cast<UINT>(value.size());
    *ppData = new BYTE[value.size()];
    std::copy(value.begin(), value.end(), *ppData);
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes)
{
    if (m_pszRegistryKey == nullptr)
        return WriteProfileString(lpszSection, lpszEntry, EncodeBinary(pData, nBytes));
    const CKey section(GetSectionKey(lpszSection));
    return WriteValue(section.get(), lpszEntry, REG_BINARY, pData, nBytes);
}

void CWinApp::LoadStdProfileSettings(UINT)
{
    m_nNumPreviewPages = GetProfileInt(L"Settings", L"PreviewPages", 0);
}
