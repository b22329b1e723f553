#pragma once
// What CStringT asks of the run-time library and the system, by overloads for its two character types.

#include <windows.h>

#include <cctype>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <cwctype>
#include <string_view>

struct AfxText
{
    static size_t Length(const char* psz) { return strlen(psz); }
    static size_t Length(const wchar_t* psz) { return wcslen(psz); }
    static int CompareText(const char* psz1, const char* psz2) { return strcmp(psz1, psz2); }
    static int CompareText(const wchar_t* psz1, const wchar_t* psz2) { return wcscmp(psz1, psz2); }
    static int CompareTextNoCase(const char* psz1, const char* psz2) { return _stricmp(psz1, psz2); }
    static int CompareTextNoCase(const wchar_t* psz1, const wchar_t* psz2) { return _wcsicmp(psz1, psz2); }
    static int CollateText(const char* psz1, const char* psz2) { return strcoll(psz1, psz2); }
    static int CollateText(const wchar_t* psz1, const wchar_t* psz2) { return wcscoll(psz1, psz2); }
    static int CollateTextNoCase(const char* psz1, const char* psz2) { return _stricoll(psz1, psz2); }
    static int CollateTextNoCase(const wchar_t* psz1, const wchar_t* psz2) { return _wcsicoll(psz1, psz2); }
    static void UpperCase(char* psz) { _strupr(psz); }
    static void UpperCase(wchar_t* psz) { _wcsupr(psz); }
    static void LowerCase(char* psz) { _strlwr(psz); }
    static void LowerCase(wchar_t* psz) { _wcslwr(psz); }
    static const char* FindChar(const char* psz, char ch) { return strchr(psz, ch); }
    static const wchar_t* FindChar(const wchar_t* psz, wchar_t ch) { return wcschr(psz, ch); }
    static const char* FindLastChar(const char* psz, char ch) { return strrchr(psz, ch); }
    static const wchar_t* FindLastChar(const wchar_t* psz, wchar_t ch) { return wcsrchr(psz, ch); }
    /// Also finds the empty text, at once; not every run-time library does so at the end of a text.
    template <typename CH>
    static const CH* FindText(const CH* psz, const CH* pszSub)
    {
        const std::basic_string_view<CH> text(psz);
        const size_t nHit = text.find(pszSub);
        return nHit != text.npos ? psz + nHit : nullptr;
    }
    static size_t SpanOf(const char* psz, const char* pszSet) { return strspn(psz, pszSet); }
    static size_t SpanOf(const wchar_t* psz, const wchar_t* pszSet) { return wcsspn(psz, pszSet); }
    static size_t SpanNotOf(const char* psz, const char* pszSet) { return strcspn(psz, pszSet); }
    static size_t SpanNotOf(const wchar_t* psz, const wchar_t* pszSet) { return wcscspn(psz, pszSet); }
    static bool IsSpace(char ch) { return isspace(static_cast<unsigned char>(ch)) != 0; }
    static bool IsSpace(wchar_t ch) { return iswspace(ch) != 0; }

    /// The run-time library's own functions, and not the portable ones: they give %s its Microsoft meaning.
    static int FormattedLength(const char* pszFormat, va_list args) { return _vscprintf(pszFormat, args); }
    static int FormattedLength(const wchar_t* pszFormat, va_list args)
    {
        return _vscwprintf(pszFormat, args);
    }
    static int FormatText(char* pszBuffer, int nSize, const char* pszFormat, va_list args)
    {
        return _vsnprintf(pszBuffer, size_t(nSize), pszFormat, args);
    }
    static int FormatText(wchar_t* pszBuffer, int nSize, const wchar_t* pszFormat, va_list args)
    {
        return _vsnwprintf(pszBuffer, size_t(nSize), pszFormat, args);
    }

    static constexpr DWORD formatFlags = FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER;

    static DWORD FormatSystemText(LPCSTR pszFormat, LPSTR* ppszText, va_list* pArgs)
    {
        return ::FormatMessageA(formatFlags, pszFormat, 0, 0, reinterpret_cast<LPSTR>(ppszText), 0, pArgs);
    }
    static DWORD FormatSystemText(LPCWSTR pszFormat, LPWSTR* ppszText, va_list* pArgs)
    {
        return ::FormatMessageW(formatFlags, pszFormat, 0, 0, reinterpret_cast<LPWSTR>(ppszText), 0, pArgs);
    }
    static DWORD ReadEnvironment(LPCSTR pszVar, LPSTR pszBuffer, DWORD nSize)
    {
        return ::GetEnvironmentVariableA(pszVar, pszBuffer, nSize);
    }
    static DWORD ReadEnvironment(LPCWSTR pszVar, LPWSTR pszBuffer, DWORD nSize)
    {
        return ::GetEnvironmentVariableW(pszVar, pszBuffer, nSize);
    }

    /// Conversions through the ANSI code page. Without a destination they answer the length needed.
    static int ConvertText(LPCSTR pch, int nLength, LPWSTR pDest, int nDestLength)
    {
        return ::MultiByteToWideChar(CP_ACP, 0, pch, nLength, pDest, nDestLength);
    }
    static int ConvertText(LPCWSTR pch, int nLength, LPSTR pDest, int nDestLength)
    {
        return ::WideCharToMultiByte(CP_ACP, 0, pch, nLength, pDest, nDestLength, nullptr, nullptr);
    }
};
