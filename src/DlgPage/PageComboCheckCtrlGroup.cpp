#include <afxwin.h>

#include "DlgPage/PageComboCheckCtrlGroup.h"

CPageComboCheckCtrlGroup::CPageComboCheckCtrlGroup(int nComboId, int nToggleId)
    : CPageComboCtrlGroup(nComboId, nToggleId), toggle(this)
{
}

CPageComboCheckCtrlGroup::~CPageComboCheckCtrlGroup() = default;

CPage* CPageComboCheckCtrlGroup::GetPage(int nRow, int nToggleVisible, int nToggleState) const
{
    return nToggleVisible && nToggleState ? GetSecondary(nRow) : GetPrimary(nRow);
}

int CPageComboCheckCtrlGroup::GetToggleState() const
{
    return toggle.GetCheck();
}

void CPageComboCheckCtrlGroup::SetToggleState(bool bHasSecondary, int nSecondary)
{
    if (bHasSecondary)
        toggle.SetCheck(nSecondary);
}

// The box has changed its state already.
int CPageComboCheckCtrlGroup::ClickToggle()
{
    return GetToggleState();
}
