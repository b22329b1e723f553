#include <afxwin.h>

#include "grid/WheelLines.h"

#include <cstdlib>

namespace
{
/// Windows 95 itself does not tell the wheel's lines otherwise.
bool IsWindows95()
{
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    if (!::GetVersionExW(&version))
        return true;
    return version.dwPlatformId == VER_PLATFORM_WIN32_WINDOWS && version.dwMinorVersion == 0;
}

int WheelLinesFromRegistry(int nDefault)
{
    HKEY hKey = nullptr;
    if (::RegOpenKeyExW(HKEY_CURRENT_USER, L"Control Panel\\Desktop", 0, KEY_QUERY_VALUE, &hKey) !=
        ERROR_SUCCESS)
        return nDefault;
    wchar_t text[128] = {};
    DWORD nBytes = sizeof text - sizeof *text; // a value without its terminator still ends
    DWORD nType = 0;
    const LSTATUS nStatus = ::RegQueryValueExW(hKey, L"WheelScrollLines", nullptr, &nType,
                                               reinterpret_cast<BYTE*>(text), &nBytes);
    ::RegCloseKey(hKey);
    return nStatus == ERROR_SUCCESS && nType == REG_SZ ? static_cast<int>(std::wcstoul(text, nullptr, 10))
                                                       : nDefault;
}
} // namespace

int gfnMouseWheelLines()
{
    constexpr int kUsual = 3;
    if (IsWindows95())
        return WheelLinesFromRegistry(kUsual);
    UINT nLines = kUsual;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &nLines, 0);
    return static_cast<int>(nLines);
}
