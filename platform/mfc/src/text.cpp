// Texts with numbered inserts, and parts of separated texts.

#include <afx.h>

namespace
{
/// The number of an insert from the character behind the percent sign (1 to 9, then A for 10 and so on), or 0.
int InsertNumber(TCHAR ch)
{
    if (ch >= '1' && ch <= '9')
        return ch - '0';
    return ch >= 'A' && ch <= 'Z' ? 10 + ch - 'A' : 0;
}
} // namespace

BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString, TCHAR chSep)
{
    LPCTSTR lpsz = lpszFullString;
    for (; lpsz != nullptr && iSubString > 0; --iSubString)
    {
        lpsz = _tcschr(lpsz, chSep);
        if (lpsz != nullptr)
            ++lpsz;
    }
    if (lpsz == nullptr)
    {
        rString.Empty();
        return FALSE;
    }
    LPCTSTR const lpszEnd = _tcschr(lpsz, chSep);
    rString = lpszEnd != nullptr ? CString(lpsz, int(lpszEnd - lpsz)) : CString(lpsz);
    return TRUE;
}

/// An insert that there is no text for becomes a question mark.
void AFXAPI AfxFormatStrings(CString& rString, LPCTSTR lpszFormat, LPCTSTR const* rglpsz, int nString)
{
    CString strResult;
    for (LPCTSTR lpsz = lpszFormat; *lpsz != 0; ++lpsz)
    {
        const int nInsert = *lpsz == '%' ? InsertNumber(lpsz[1]) : 0;
        if (nInsert == 0)
        {
            strResult.AppendChar(*lpsz);
            continue;
        }
        ++lpsz;
        strResult.Append(nInsert <= nString ? rglpsz[nInsert - 1] : L"?");
    }
    rString = strResult;
}

void AFXAPI AfxFormatStrings(CString& rString, UINT nIDS, LPCTSTR const* rglpsz, int nString)
{
    CString strFormat;
    VERIFY(strFormat.LoadString(nIDS));
    AfxFormatStrings(rString, strFormat, rglpsz, nString);
}

void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1)
{
    AfxFormatStrings(rString, nIDS, &lpsz1, 1);
}

void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2)
{
    LPCTSTR const rglpsz[] = {lpsz1, lpsz2};
    AfxFormatStrings(rString, nIDS, rglpsz, 2);
}
