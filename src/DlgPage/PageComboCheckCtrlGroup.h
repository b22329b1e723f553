#pragma once
// A page selector made of a combo box and a check box: while the box is checked, rows that have a child page
// show it.
//
// ```cpp
//     class CSettingsDialog : public CDialog, public APageFrameProvider
//     {
//         CPageManager m_manager{this};
//         CPageComboCheckCtrlGroup m_group{IDC_PAGES, IDC_DETAILS};
//     };
// ```
//
// How to wire it, and what it asks of pages and controls: PageComboCtrlGroup.h. In the dialog template the
// check box is a BS_AUTOCHECKBOX: the group reads its state and leaves the change to it.

#include <afxwin.h>

#include "DlgPage/PageComboCtrlGroup.h"
#include "buttons/ExtButton.h"

class OW_DIALOGCONTROLS_API CPageComboCheckCtrlGroup : public CPageComboCtrlGroup
{
public:
    CPageComboCheckCtrlGroup(int nComboId, int nToggleId);
    ~CPageComboCheckCtrlGroup() override;

protected:
    /// The child while the box is seen and checked, else the top-level page.
    CPage* GetPage(int nRow, int nToggleVisible, int nToggleState) const override;
    int GetToggleState() const override;
    /// Wanted: in a row without a child the box stays as it is, for the next row that has one.
    void SetToggleState(bool bHasSecondary, int nSecondary) override;
    int ClickToggle() override;
    const CButton& Toggle() const override { return toggle; }

private:
    CExtButton toggle;
};
