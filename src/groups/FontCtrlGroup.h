#pragma once
// Seven controls of a dialog that together edit an epgFont: the font's name, its height, its colour, three
// check boxes, and a button that applies the record further.
//
// ```cpp
//     class CTextStyleDialog : public CDialog, public AFontCtrlGroupNotificationHandler
//     {
//         epgFont m_font;
//         CFontCtrlGroup m_group{IDC_FONT, IDC_HEIGHT, IDC_COLOR, IDC_BOLD, IDC_ITALIC, IDC_UNDERLINED,
//                                IDC_TO_ALL, this};
//         void DoDataExchange(CDataExchange* pDX) override { m_group.DoDataExchange(pDX); }
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog();
//             m_group.OnInitDialog();
//             m_group.SetFontSource(&m_font);
//             return TRUE;
//         }
//         void OnFontGroupChanged(CFontCtrlGroup*, epgFont* pFont) override { DrawPreview(*pFont); }
//         void OnFontGroupButton(CFontCtrlGroup*, epgFont* pFont) override { ApplyToAll(*pFont); }
//     };
// ```
//
// Template. The font's combo box as CFontSelectionComboBox wants it; an edit for the height, with room at its
// right for a spin and the unit; a button for the colour, with room for its number; three check boxes; a push
// button. The group gives the last one its icon and takes its text away.
//
// Height. Shown in millimetres with one decimal, and kept within 0.001 and 0.02 of the record's metres.
//
// Check boxes. They count for TrueType fonts only: with a record or a choice of another class they are
// cleared and disabled, while the record's fields stay as they are. So a box that is enabled again by a
// TrueType font is clear at first, whatever the record says. The third box never shows: wanted, although its
// field and its control exist.
//
// Reports. A change by the user is stored in the record first, and OnFontGroupChanged is called then: a
// chosen font, the height when its edit is left, changed or not, or its spin pressed, a colour, a check box.
// The apply button stores nothing and calls OnFontGroupButton. What the program sets is not reported.
//
// Ownership. Neither the record nor the handler is owned. Both must outlive the group, or the record be taken
// away by SetFontSource(nullptr): without one nothing is stored, nobody is called, and the colour button
// paints no swatch and opens nothing. The controls keep showing what they showed.
//
// How many. A group holds a CAcadColorBtnST, and so takes an id of ResourceIdPool for good, and two more
// while it lives. Keep the dialog object or the group, and let it open again; see AcadColorBtnST.h.

#include <afxwin.h>

#include <epgFont.h>

#include "buttons/AcadColorBtnST.h"
#include "combos/FontSelectionComboBox.h"
#include "edits/EditDoubleWithRange.h"
#include "module/Export.h"
#include "module/NotificationInterfaces.h"

class OW_DIALOGCONTROLS_API CFontCtrlGroup : public AFontSelectionNotificationHandler,
                                             public CEditDWRNotificationHandler,
                                             public AAcadColorBtnSTNotificationHandler,
                                             public AButtonSTNotificationHandler
{
public:
    /// The handler may be null.
    CFontCtrlGroup(UINT nFontId, UINT nHeightId, UINT nColorId, UINT nCheck1Id, UINT nCheck2Id,
                   UINT nCheck3Id, UINT nApplyId, AFontCtrlGroupNotificationHandler* pHandler);
    ~CFontCtrlGroup() override;
    CFontCtrlGroup(const CFontCtrlGroup&) = delete;
    CFontCtrlGroup& operator=(const CFontCtrlGroup&) = delete;

    /// Binds the seven controls. Throws CNotSupportedException if the dialog lacks one, as DDX_Control does.
    void DoDataExchange(CDataExchange* pDX);

    /// Sets up the controls and loads the icons of the font list; shows the record, if any. Answers 1.
    int OnInitDialog();

    /// The record to edit; null for none. A font that is not in the list leaves the selection as it is; a
    /// height outside the limits shows as the nearest inside, and stays in the record until the edit is left.
    void SetFontSource(epgFont* pFont);

    void OnFontSelected(int nId, const CString& strFont, EFontClass eClass) override;
    void OnEditNKillFocus(int nId) override;
    void OnEditDWRSpinDeltaPos(int nId) override;
    void OnAcadColorChosen(int nId, int nColor) override;
    void OnButtonClicked(int nId) override;

private:
    /// A colour button that a record need not stand behind.
    class CColorButton : public CAcadColorBtnST
    {
    public:
        using CAcadColorBtnST::CAcadColorBtnST;

    protected:
        DWORD OnDrawBackground(CDC* pDC, CRect& rect) override;
        afx_msg void OnClicked();
        DECLARE_MESSAGE_MAP()
    };

    bool HasWindows() const { return m_btnApply.m_hWnd != nullptr; }
    void ShowFont();
    void ClearCheckBoxes();
    void EnableCheckBoxes(BOOL bEnable);
    void HideThirdCheckBox();
    void UpdateCheckBoxes(int bEnable);
    void StoreCheck(int& nCheck, const CButtonST& button);
    void ReportChange();

    const UINT m_nFontId;
    const UINT m_nHeightId;
    const UINT m_nColorId;
    const UINT m_nCheck1Id;
    const UINT m_nCheck2Id;
    const UINT m_nCheck3Id;
    const UINT m_nApplyId;
    CFontSelectionComboBox m_comboFont;
    CEditDoubleWithRange m_editHeight;
    CColorButton m_btnColor;
    CButtonST m_btnCheck1;
    CButtonST m_btnCheck2;
    CButtonST m_btnCheck3;
    CButtonST m_btnApply;
    epgFont* m_pFont = nullptr;
    AFontCtrlGroupNotificationHandler* m_pHandler;
};
