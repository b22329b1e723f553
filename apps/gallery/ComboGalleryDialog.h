#pragma once
// The same pages where there is no room for a tree: selected by a combo box with a toggle for a row's second
// page, once with a button for the toggle and once with a check box. The two selectors follow each other.

#include "GalleryHostDialog.h"

#include <utility>

/// Lets one page selector follow another, and gives the focus back to the one that the user works with.
template <class Selector, class Follower>
class CSelectorLink : public ASelectPageNotificationClient
{
public:
    /// `bAtWork` is common to both directions, so that they do not follow each other for ever.
    CSelectorLink(Selector& selector, Follower& follower, bool& bAtWork)
        : m_selector(selector), m_follower(follower), m_bAtWork(bAtWork)
    {
    }

    void PageSelected(CPage* pNew, CPage*) override
    {
        if (std::exchange(m_bAtWork, true))
            return;
        m_follower.SetCurrentPage(pNew);
        m_selector.SetFocus();
        m_bAtWork = false;
    }

private:
    Selector& m_selector;
    Follower& m_follower;
    bool& m_bAtWork;
};

class CComboGalleryDialog : public CGalleryHostDialog
{
public:
    explicit CComboGalleryDialog(CWnd* pParent = nullptr);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

private:
    CPageComboButtonSTCtrlGroup m_byButton;
    CPageComboCheckCtrlGroup m_byCheck;
    CPageGradientCaptionStatic m_caption{m_byButton};

    bool m_bLinking = false;
    CSelectorLink<CPageComboButtonSTCtrlGroup, CPageComboCheckCtrlGroup> m_linkButton{m_byButton, m_byCheck,
                                                                                      m_bLinking};
    CSelectorLink<CPageComboCheckCtrlGroup, CPageComboButtonSTCtrlGroup> m_linkCheck{m_byCheck, m_byButton,
                                                                                     m_bLinking};
};
