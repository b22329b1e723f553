#pragma once
// A page selector made of a combo box and a button: the button leads from a row's page to its child page and
// back, and changes its text and icon with it.
//
// ```cpp
//     class CSettingsDialog : public CDialog, public APageFrameProvider
//     {
//         CPageManager m_manager{this};
//         CPageComboButtonSTCtrlGroup m_group{IDC_PAGES, IDC_MORE};
//     };
// ```
//
// How to wire it, and what it asks of pages and controls: PageComboCtrlGroup.h. In the dialog template the
// button is a push button.
//
// Text and icon. While the child page shows they are "Nazad" and CButtonST::hIconUp, otherwise "Napred" and
// CButtonST::hIconDown; the texts go through gOtLang, and both texts and icons are taken when the group is
// made. This library loads neither icon: the button has a text only unless another module has set the two
// members by then, or SetStateIcons gives others. The button shows them from the first selection by code or
// click on; until then it is as the template has it.

#include <afxwin.h>

#include "DlgPage/PageComboCtrlGroup.h"
#include "buttons/ButtonST.h"

class OW_DIALOGCONTROLS_API CPageComboButtonSTCtrlGroup : public CPageComboCtrlGroup
{
public:
    CPageComboButtonSTCtrlGroup(int nComboId, int nToggleId);
    ~CPageComboButtonSTCtrlGroup() override;

    /// Other texts, as they shall be read. They show from the next change of state on.
    void SetStateTexts(CString strOn, CString strOff);
    /// Other icons, likewise; null for none. They stay the caller's, and must outlive the group.
    void SetStateIcons(HICON hOn, HICON hOff);

protected:
    /// Shows the state that is 1 while the child page shows.
    void SetButtonState(int nState);
    int GetButtonState() const;

    /// Where a row has a child, the state alone decides. Wanted: a row without one has no page while the
    /// button is seen and on.
    CPage* GetPage(int nRow, int nToggleVisible, int nToggleState) const override;
    int GetToggleState() const override;
    void SetToggleState(bool bHasSecondary, int nSecondary) override;
    int ClickToggle() override;
    const CButton& Toggle() const override { return toggle; }

private:
    CButtonST toggle;
    HICON iconOn;   ///< shown while the child page shows; not owned
    HICON iconOff;  ///< not owned
    CString textOn; ///< shown while the child page shows
    CString textOff;
    int buttonState = 0; ///< 1 while the child page shows
};
