#include <afxwin.h>

#include "cells/LimitedQuestionMarkDoubleCell.h"

#include "cells/TypedNumber.h"

IMPLEMENT_DYNCREATE(CLimitedQuestionMarkDoubleCell, CLimitedDoubleCell)

namespace
{
constexpr double kNoNumber = -1.0;
} // namespace

void CLimitedQuestionMarkDoubleCell::Set(int nCol, double dValue)
{
    m_dValue = ToLocal(nCol, dValue);
    ShowNumberOrMark();
}

// The bounds are passed over on purpose: a cell without a number must be within reach whatever they say.
BOOL CLimitedQuestionMarkDoubleCell::ValidateEdit(LPCWSTR pszText)
{
    constexpr wchar_t kSigns[] = L".-+";
    if (*gfnSkipNumber(pszText, kSigns) == L'?')
        m_dValue = kNoNumber;
    else if (gfnIsNumberText(pszText, kSigns))
        m_dValue = gfnReadDouble(pszText);
    else
        return FALSE;
    ShowNumberOrMark();
    return TRUE;
}

void CLimitedQuestionMarkDoubleCell::ShowNumberOrMark()
{
    if (m_dValue > 0.0)
        ShowDecimal();
    else
        SetText(L"?");
}
