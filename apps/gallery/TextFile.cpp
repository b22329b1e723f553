#include <afxwin.h>

#include "TextFile.h"

#include <algorithm>

CString ReadText(const CString& strPath, UINT nMost)
{
    CFile file(strPath, CFile::modeRead | CFile::shareDenyNone);
    const int nSize = static_cast<int>((std::min<ULONGLONG>)(file.GetLength(), nMost));
    CStringA strBytes;
    const UINT nRead = file.Read(strBytes.GetBuffer(nSize), static_cast<UINT>(nSize));
    strBytes.ReleaseBuffer(static_cast<int>(nRead));

    const int nLength = ::MultiByteToWideChar(CP_UTF8, 0, strBytes, strBytes.GetLength(), nullptr, 0);
    CString strText;
    ::MultiByteToWideChar(CP_UTF8, 0, strBytes, strBytes.GetLength(), strText.GetBuffer(nLength), nLength);
    strText.ReleaseBuffer(nLength);
    return strText;
}

void WriteText(const CString& strPath, const CString& strText)
{
    const int nLength =
        ::WideCharToMultiByte(CP_UTF8, 0, strText, strText.GetLength(), nullptr, 0, nullptr, nullptr);
    CStringA strBytes;
    ::WideCharToMultiByte(CP_UTF8, 0, strText, strText.GetLength(), strBytes.GetBuffer(nLength), nLength,
                          nullptr, nullptr);
    strBytes.ReleaseBuffer(nLength);
    CFile file(strPath, CFile::modeCreate | CFile::modeWrite);
    file.Write(strBytes.GetString(), static_cast<UINT>(nLength));
}
