#pragma once
// The same pages where there is no room for a tree: selected by a combo box with a toggle for a row's second
// page, once with a button for the toggle and once with a check box. The two selectors follow each other.

#include "GalleryHostDialog.h"
#include "PageIds.h"

class CComboGalleryDialog : public CGalleryHostDialog
{
public:
    /// Shows the page of this identity first.
    explicit CComboGalleryDialog(CWnd* pParent = nullptr, CPage::EPageID idFirst = ePageTextBoxes);

    /// The focus stays where it is: with whichever selector the user works.
    void PageSelected(CPage* pNew, CPage* pOld) override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

private:
    CPageComboButtonSTCtrlGroup m_byButton;
    CPageComboCheckCtrlGroup m_byCheck;
    CPageGradientCaptionStatic m_caption{m_byButton};
    const CPage::EPageID m_idFirst;
    bool m_bFollowing = false; ///< a selector is being set to what the other one selected
};
