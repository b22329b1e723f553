#pragma once
// The base of the dialogs that show the controls of pages: a modeless child dialog inside the host's.
//
// ```cpp
//     class CBeamDialog : public CPageDialog, public CEditNNotificationHandler
//     {
//         CEditDoubleWithRange m_editSpan{this};
//         CBeamPage* m_pPage = nullptr;
//
//     public:
//         explicit CBeamDialog(CWnd* pHost) : CPageDialog(IDD_BEAMS, pHost) {}
//         int OnInitPageDialog() override { m_editSpan.SetMinRange(0); return TRUE; }
//         void BindControlsToSources(bool bBind, CPage* pPage) override
//         {
//             m_pPage = bBind ? static_cast<CBeamPage*>(pPage) : nullptr;
//             if (m_pPage) m_editSpan.SetValue(m_pPage->dSpan);
//         }
//         void OnEditNChange(int) override { m_pPage->dSpan = m_editSpan.GetValue(); MyAttributeChanged(); }
//     };
// ```
//
// Template: a child (WS_CHILD, DS_CONTROL) without a frame, not visible. CPageManager::AddDialog owns the
// object, creates its window in the host and leaves it hidden; it lives as long as the host.
//
// Keys. Escape does nothing in a page: it closes neither the page nor the host. Enter makes a line break in a
// multi-line edit with ES_WANTRETURN; with any other control it goes on as if the page were no dialog, to the
// host's default button in the end. Tab goes from the page's last control on to the host's next one, and back.
// But the library's own boxes, like multi-line edits, move the focus within the page: where one of them stands
// last, Tab goes round, and a host offers a key of its own to leave. Every other key is translated by the
// page, so that PreTranslateMessage of the host never sees it: an accelerator that must work in a page too
// belongs to the frame or the application.

#include <afxwin.h>

#include "module/Export.h"
#include "module/NotificationInterfaces.h"

class OW_DIALOGCONTROLS_API CPageDialog : public CDialog
{
    DECLARE_DYNCREATE(CPageDialog)

public:
    CPageDialog(UINT nTemplateId, CWnd* pParent);
    ~CPageDialog() override;

    /// Sets up the controls, once, when the window has just been made. The result is not looked at.
    virtual int OnInitPageDialog();
    /// A page that uses this dialog comes (true: the dialog has been shown for it) or goes (false: it has
    /// been hidden). The place to point controls at the values of the page. With pages that share a dialog,
    /// one comes without the other going first. Does nothing here.
    virtual void BindControlsToSources(bool bBind, CPage* pPage);

    /// The template that the dialog was made with.
    UINT GetDialogTemplateID() const;

    /// Whom MyAttributeChanged tells; not owned. Null: nobody.
    void AttachAttributeChangeNotificationClient(AAttributeChangeNotificationClient* pClient);

    /// Sends WM_KILLFOCUS to a focused edit of this dialog, so that it takes over what was typed, although
    /// the focus stays where it is.
    void SendFocusedControlKillFocusMessage();

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    /// For creation by class name only: an internal error that ends the process. A page dialog needs its
    /// template.
    CPageDialog();

    /// To be called from each handler of a control that changes a value.
    void MyAttributeChanged();

    DECLARE_MESSAGE_MAP()

private:
    bool BreakLineInFocusedEdit(const MSG& msg);

    UINT dialogTemplateId;
    AAttributeChangeNotificationClient* attributeChangeClient = nullptr; ///< not owned
};
