#include <afxwin.h>

#include "DlgPage/PageComboButtonSTCtrlGroup.h"

#include <Translator.h>

CPageComboButtonSTCtrlGroup::CPageComboButtonSTCtrlGroup(int nComboId, int nToggleId)
    : CPageComboCtrlGroup(nComboId, nToggleId), toggle(this), iconOn(CButtonST::hIconUp),
      iconOff(CButtonST::hIconDown), textOn(gOtLang.Do(L"Nazad")), textOff(gOtLang.Do(L"Napred"))
{
}

CPageComboButtonSTCtrlGroup::~CPageComboButtonSTCtrlGroup() = default;

void CPageComboButtonSTCtrlGroup::SetStateTexts(CString strOn, CString strOff)
{
    textOn = strOn;
    textOff = strOff;
}

void CPageComboButtonSTCtrlGroup::SetStateIcons(HICON hOn, HICON hOff)
{
    iconOn = hOn;
    iconOff = hOff;
}

void CPageComboButtonSTCtrlGroup::SetButtonState(int nState)
{
    toggle.SetIcon(nState ? iconOn : iconOff);
    toggle.SetWindowText(nState ? textOn : textOff);
    buttonState = nState;
}

int CPageComboButtonSTCtrlGroup::GetButtonState() const
{
    return buttonState;
}

CPage* CPageComboButtonSTCtrlGroup::GetPage(int nRow, int nToggleVisible, int nToggleState) const
{
    CPage* pSecondary = GetSecondary(nRow);
    if (!nToggleState || (!pSecondary && !nToggleVisible))
        return GetPrimary(nRow);
    return pSecondary;
}

int CPageComboButtonSTCtrlGroup::GetToggleState() const
{
    return GetButtonState();
}

void CPageComboButtonSTCtrlGroup::SetToggleState(bool bHasSecondary, int nSecondary)
{
    SetButtonState(bHasSecondary && nSecondary);
}

int CPageComboButtonSTCtrlGroup::ClickToggle()
{
    SetButtonState(!GetButtonState());
    return GetButtonState();
}
