#include <afxwin.h>

#include "edits/EditIntegerWithRange.h"

#include <climits>
#include <cwchar>

namespace
{
constexpr int kLongestText = 11; // characters of -2147483648

bool ParseInteger(CString strText, int& n)
{
    strText.Trim();
    const CString strDigits = strText.Left(1) == L"-" ? strText.Mid(1) : strText;
    if (strDigits.IsEmpty() || strDigits.SpanIncluding(L"0123456789") != strDigits)
        return false;
    // A number that even 64 bits do not hold comes out as their limit, and so is refused, too.
    const long long nWide = std::wcstoll(strText, nullptr, 10);
    if (nWide < INT_MIN || nWide > INT_MAX)
        return false;
    n = static_cast<int>(nWide);
    return true;
}
} // namespace

CEditIntegerWithRange::CEditIntegerWithRange(CEditNNotificationHandler* pHandler)
    : CEditWithValidation(pHandler)
{
}

BEGIN_MESSAGE_MAP(CEditIntegerWithRange, CEditWithValidation)
END_MESSAGE_MAP()

void CEditIntegerWithRange::HandlerOnCreate()
{
    CEditWithValidation::HandlerOnCreate();
    SetLimitText(kLongestText);
}

void CEditIntegerWithRange::SetValue(int n, bool bForce)
{
    if (n == m_nValue && !bForce && !m_bEmpty)
        return;
    m_nValue = n;
    m_bEmpty = false;
    EnsureValueIsInRange();
    UpdateGUIWithStoredData();
}

int CEditIntegerWithRange::GetValue() const
{
    return m_nValue;
}

void CEditIntegerWithRange::SetEmpty(bool bForce)
{
    if (m_bEmpty && !bForce)
        return;
    m_bEmpty = true;
    UpdateGUIWithStoredData();
}

bool CEditIntegerWithRange::IsEmpty() const
{
    return m_bEmpty;
}

void CEditIntegerWithRange::SetRange(int nMin, int nMax, bool bForce)
{
    if (!m_range.Set(nMin, nMax) && !bForce)
        return;
    if (EnsureValueIsInRange() || bForce)
        UpdateGUIWithStoredData();
}

void CEditIntegerWithRange::SetMinRange(int nMin, bool bForce)
{
    SetRange(nMin, INT_MAX, bForce);
}

void CEditIntegerWithRange::SetMaxRange(int nMax, bool bForce)
{
    SetRange(INT_MIN, nMax, bForce);
}

void CEditIntegerWithRange::GetRange(int& nMin, int& nMax) const
{
    nMin = m_range.GetMin();
    nMax = m_range.GetMax();
}

int CEditIntegerWithRange::GetMinRange() const
{
    return m_range.GetMin();
}

int CEditIntegerWithRange::GetMaxRange() const
{
    return m_range.GetMax();
}

void CEditIntegerWithRange::DisableRangeChecking()
{
    m_range.Disable();
}

bool CEditIntegerWithRange::IsRangeCheckingEnabled() const
{
    return m_range.IsEnabled();
}

bool CEditIntegerWithRange::EnsureValueIsInRange()
{
    return m_range.Clamp(m_nValue);
}

bool CEditIntegerWithRange::IsDataCurrentlyInGUIValid() const
{
    int n = 0;
    return ParseText(n) && m_range.Contains(n);
}

bool CEditIntegerWithRange::ValidateAndStoreDataFromGUI()
{
    if (!ParseText(m_nValue))
        return false;
    m_bEmpty = false;
    EnsureValueIsInRange();
    return true;
}

void CEditIntegerWithRange::UpdateGUIWithStoredData()
{
    if (!m_hWnd)
        return;
    CString strText;
    if (!m_bEmpty)
        strText.Format(L"%d", m_nValue);
    SafeSetWindowText(strText);
}

/// False, with the number as it was, if the text does not parse or there is no window.
bool CEditIntegerWithRange::ParseText(int& n) const
{
    return ParseInteger(ReadText(), n);
}
