#include <afxwin.h>

#include "cells/LimitedExponentDoubleCell.h"

#include "cells/TypedNumber.h"
#include "edits/DoubleText.h"

#include <cmath>

IMPLEMENT_DYNCREATE(CLimitedExponentDoubleCell, CLimitedDoubleCell)

void CLimitedExponentDoubleCell::Set(int nCol, double dValue)
{
    m_dValue = ToLocal(nCol, dValue);
    ShowWithExponent();
}

BOOL CLimitedExponentDoubleCell::ValidateEdit(LPCWSTR pszText)
{
    if (!gfnIsNumberText(pszText, L".-+Ee") || !Accept(gfnReadDouble(pszText)))
        return FALSE;
    ShowWithExponent();
    return TRUE;
}

void CLimitedExponentDoubleCell::ShowWithExponent()
{
    constexpr int kDecimals = 4;
    if (std::isfinite(m_dValue))
    {
        wchar_t szText[kDoubleTextSize];
        SetText(gfnFormatExponent(szText, kDecimals, m_dValue));
        return;
    }
    CString strText = gfnFormatAllDigits(0, m_dValue);
    SetText(strText.MakeUpper()); // what is no number, too
}
