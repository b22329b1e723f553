#pragma once
// What the gallery's two dialogs share: they host pages in a frame, write down what happens, and show the
// preview of a page that draws one. Each adds its own way to select a page.
//
// Keys. F6 goes to the log from wherever the focus is, and from the log back there; Shift+F6 to the page
// selector. Escape asks before the log is lost; the button and the close box close at once. Enter closes
// nothing.

#include "NotificationLog.h"
#include "Pages.h"

#include <DialogControlsOW.h>

class CGalleryHostDialog : public CDialog,
                           public APageFrameProvider,
                           public ASelectPageNotificationClient,
                           public AAttributeChangeNotificationClient
{
public:
    CGalleryHostDialog(UINT nTemplateId, CWnd* pParent);

    /// Where the manager puts the dialogs of pages.
    CRect GetPageFrame() override;

    // What the selectors and the manager tell
    void PageSelected(CPage* pNew, CPage* pOld) override;
    void AttributeChangedUsingGUI() override;

    /// Adds a line to the log. The control's name is shown as it comes.
    void Write(LPCTSTR pszControl, LPCTSTR pszCall);

    /// Moves the focus if the message is one of the keys for that; false if it is not.
    bool GoByKey(const MSG& msg);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void OnOK() override {}
    void OnCancel() override;

    afx_msg void OnClose();
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    DECLARE_MESSAGE_MAP()

    CPageManager m_manager{this};

private:
    void GoToLog();
    void GoBackFromLog();
    void PaintPreview(CDC& dc, const CRect& area) const;

    CNotificationLog m_log;
    CPage* m_pShown = nullptr; ///< the selected page; not owned
    HWND m_hLeft = nullptr;    ///< the control that the focus left for the log; it may be gone
};
