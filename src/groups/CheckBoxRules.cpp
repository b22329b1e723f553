#include <afxwin.h>

#include "groups/CheckBoxRules.h"

#include "groups/RadioGroup.h"

#include <algorithm>

namespace
{
bool HasWindow(const CButton* pButton)
{
    return pButton && pButton->m_hWnd;
}

bool IsChecked(const CButton& button)
{
    return button.GetCheck() == BST_CHECKED;
}

void Check(CButton& button, bool bChecked)
{
    button.SetCheck(bChecked ? BST_CHECKED : BST_UNCHECKED);
}

/// Checks and enables what a value of box and group stands for; a value that is no option clears all.
void ShowIn(CRadioGroup& group, int nValue)
{
    group.SetOption(std::max(nValue, 0) - 1);
    group.Enable(nValue != 0);
}
} // namespace

void gfnObradiCheckBox(CButton* pCheck, bool bSet, int* pnValue)
{
    if (!HasWindow(pCheck) || !pnValue)
        return;
    if (bSet)
        Check(*pCheck, *pnValue != 0);
    else
        *pnValue = IsChecked(*pCheck);
}

void gfnObradiDvaCheckBoxa(CButton* pFirst, CButton* pSecond, bool bSet, int* pnValue)
{
    if (!HasWindow(pFirst) || !HasWindow(pSecond) || !pnValue)
        return;
    if (bSet)
    {
        Check(*pFirst, *pnValue != 0);
        Check(*pSecond, *pnValue == 2);
    }
    else if (IsChecked(*pFirst))
    {
        *pnValue = pSecond->GetCheck() + 1; // wanted: an indeterminate second box reads 3
    }
    else
    {
        *pnValue = 0;
        Check(*pSecond, false);
    }
    pSecond->EnableWindow(*pnValue != 0);
}

void gfnObradiUslovniCheckBox(CButton* pCheck, bool bSet, int* pnCondition, int* pnValue)
{
    if (!HasWindow(pCheck) || !pnCondition || !pnValue)
        return;
    if (bSet || *pnCondition != 0)
        gfnObradiCheckBox(pCheck, bSet, pnValue);
    pCheck->EnableWindow(*pnCondition != 0);
}

void gfnObradiChkBoxSaGrupomRadioDugmica(CButton* pCheck, CRadioGroup& group, bool bSet, int* pnValue)
{
    if (!HasWindow(pCheck) || !pnValue)
        return;
    if (bSet)
        Check(*pCheck, *pnValue != 0);
    else
        *pnValue = IsChecked(*pCheck) ? std::max(group.GetOption() + 1, 1) : 0; // on always gives an option
    ShowIn(group, *pnValue);
}
