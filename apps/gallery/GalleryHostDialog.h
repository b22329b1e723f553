#pragma once
// What the gallery's two dialogs share: they host pages in a frame, and write down what happens. Each adds
// its own way to select a page.

#include "NotificationLog.h"
#include "Pages.h"

class CGalleryHostDialog : public CDialog,
                           public APageFrameProvider,
                           public AGalleryHost,
                           public ASelectPageNotificationClient,
                           public AAttributeChangeNotificationClient
{
public:
    CGalleryHostDialog(UINT nTemplateId, CWnd* pParent);

    // The page frame
    CRect GetPageFrame() override;

    // The host of the pages
    CDialog& Window() override { return *this; }
    void AddDialog(CGalleryPage* pDialog) override;
    CPage* AddPage(CPage* pPage, CPage* pParent) override;
    void Write(LPCTSTR pszControl, LPCTSTR pszCall) override;

    // What the selectors and the manager tell
    void PageSelected(CPage* pNew, CPage* pOld) override;
    void AttributeChangedUsingGUI() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    /// Enter closes nothing: a log should not be lost by a slip.
    void OnOK() override {}

    CPageManager m_manager{this};

private:
    CNotificationLog m_log;
};
