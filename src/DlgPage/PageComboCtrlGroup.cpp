#include <afxwin.h>

#include "DlgPage/PageComboCtrlGroup.h"

#include "DlgPage/Page.h"

using namespace ow;

CPageComboCtrlGroup::CPageComboCtrlGroup(int nComboId, int nToggleId)
    : comboId(nComboId), toggleId(nToggleId), combo(this)
{
}

CPageComboCtrlGroup::~CPageComboCtrlGroup() = default;

void CPageComboCtrlGroup::DoDataExchange(CDataExchange* pDX)
{
    DDX_Control(pDX, comboId, combo);
    DDX_Control(pDX, toggleId, Toggle());
}

void CPageComboCtrlGroup::RegisterSelectPageNotification(ASelectPageNotificationClient* pClient,
                                                         bool bRegister)
{
    RegisterClient(selectClients, pClient, bRegister);
}

void CPageComboCtrlGroup::PageAdded(CPage* pPage, CPage* pParent)
{
    if (pParent)
        rows.AddSecondary(pPage, pParent);
    else
        rows.AddPrimary(pPage, combo.AddString(pPage->GetTreeItemName()));
}

CPage* CPageComboCtrlGroup::GetCurrentPage() const
{
    if (!combo.m_hWnd)
        return nullptr;
    return GetPage(combo.GetCurSel(), IsToggleVisible(), GetToggleState());
}

void CPageComboCtrlGroup::SetCurrentPage(CPage* pPage)
{
    const int nPage = rows.FindPage(pPage);
    const int nRow = nPage < 0 ? -1 : rows.RowOf(nPage);
    const bool bHasSecondary = rows.Secondary(nRow) != nullptr;
    if (nRow >= 0)
    {
        CPage* pOld = GetPage(currentRow, IsToggleVisible(), currentSecondary);
        currentSecondary = rows.IsPrimary(nPage) ? 0 : 1;
        if (!TellSelected(GetPage(nRow, bHasSecondary, currentSecondary), pOld))
            return;
    }
    combo.SetCurSel(nRow);
    ShowToggle(bHasSecondary);
    SetToggleState(bHasSecondary, currentSecondary);
    currentRow = nRow;
}

void CPageComboCtrlGroup::SetFocus()
{
    combo.SetFocus();
}

// The toggle keeps its state from row to row: who looks at child pages goes on to do so where there are some.
// Wanted: only the row is noted. SetCurrentPage names the old page by the state that was told last, so after
// a box that stayed checked in a row without a child, it names the row's top-level page.
void CPageComboCtrlGroup::OnExtComboBoxSelChanged(int nId, int nRow)
{
    if (nId != comboId)
        return;
    CPage* pOld = GetPage(currentRow, IsToggleVisible(), GetToggleState());
    ShowToggle(rows.Secondary(nRow) != nullptr);
    currentRow = nRow;
    TellSelected(GetPage(nRow, IsToggleVisible(), GetToggleState()), pOld);
}

void CPageComboCtrlGroup::OnButtonClicked(int nId)
{
    if (nId != toggleId)
        return;
    const int nState = ClickToggle();
    CPage* pPrimary = rows.Primary(currentRow);
    CPage* pSecondary = rows.Secondary(currentRow);
    currentSecondary = nState;
    if (nState)
        TellSelected(pSecondary, pPrimary);
    else
        TellSelected(pPrimary, pSecondary);
}

int CPageComboCtrlGroup::FindPage(CPage* pPage) const
{
    return rows.FindPage(pPage);
}

int CPageComboCtrlGroup::FindParent(CPage* pPage) const
{
    return rows.FindParent(pPage);
}

CPage* CPageComboCtrlGroup::GetPrimary(int nRow) const
{
    return rows.Primary(nRow);
}

CPage* CPageComboCtrlGroup::GetSecondary(int nRow) const
{
    return rows.Secondary(nRow);
}

BOOL CPageComboCtrlGroup::IsToggleVisible() const
{
    return Toggle().IsWindowVisible();
}

void CPageComboCtrlGroup::ShowToggle(bool bShow)
{
    Toggle().EnableWindow(bShow);
    Toggle().ShowWindow(bShow ? SW_SHOW : SW_HIDE);
}

bool CPageComboCtrlGroup::TellSelected(CPage* pNew, CPage* pOld)
{
    const int selection = ++selections;
    CPage* const pTold = std::exchange(pageBeingTold, pNew);
    for (INT_PTR i = 0; i < selectClients.GetSize() && selection == selections; ++i)
        if (auto* pClient = selectClients[i])
            pClient->PageSelected(pNew, pTold ? pTold : pOld);
    pageBeingTold = pTold;
    return selection == selections;
}
