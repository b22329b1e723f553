#pragma once
// The base of the library's text boxes: an edit control that reports to a typed handler.
//
// ```cpp
//     class CSizeDialog : public CDialog, public CEditNNotificationHandler
//     {
//         CEditN m_editName{nullptr};                       // null: the dialog itself is asked
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_NAME, m_editName); }
//         void OnEditNChange(int nId) override { ... }
//     };
// ```
//
// Reports. The handler given to the constructor is called; without one the box's parent window is, if its
// class implements CEditNNotificationHandler; without either the box is silent. The handler is not owned and
// must outlive the box. A handler may change the box, and must not destroy it.
//
// Keys. In every box Tab and Enter move the focus to the next control and Shift+Tab to the one before, so
// Enter does not press the dialog's default button; Escape sends IDCANCEL to the parent.
//
// Texts. SafeSetWindowText is the way for a program to set a text without a notification. A plain
// SetWindowText counts as typing: it sets the changed flag and calls the handler.
//
// A box may come from a dialog template (DDX_Control, SubclassDlgItem) or be made by Create.

#include <afxwin.h>

#include "module/Export.h"
#include "module/NotificationInterfaces.h"

class OW_DIALOGCONTROLS_API CEditN : public CEdit
{
public:
    explicit CEditN(CEditNNotificationHandler* pHandler);

    /// Writes the text without a notification.
    void SafeSetWindowText(const wchar_t* pszText);

    /// Whether the control has ES_READONLY.
    bool IsReadOnly() const;

    /// Whether the text was changed since the box last received the focus. Stays so when the focus leaves.
    bool HasChangedSinceLastSetFocus() const;

    /// Whether texts go through CEditCtrlAnsiInterface. Off at first.
    bool GetAnsiInterface() const;
    void SetAnsiInterface(bool bAnsi);

protected:
    /// The window has come to be: once for each box, created or taken over.
    virtual void HandlerOnCreate();
    /// The text was changed, and not by SafeSetWindowText.
    virtual void HandlerOnChange();
    /// The box has received the focus.
    virtual void HandlerOnSetFocus();
    /// The box has lost the focus.
    virtual void HandlerOnKillFocus();

    bool DoesNotificationHandlerExist() const;
    CEditNNotificationHandler* GetNotificationHandler() const;
    CEditNNotificationHandler* GetSafeNotificationHandler() const;

    void SetChangedSinceLastSetFocus();

    /// What stands in the box, the counterpart of SafeSetWindowText: all of it, also under a
    /// CEditCtrlAnsiMsgHook. Empty without a window.
    CString ReadText() const;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PreSubclassWindow() override;
    void PostNcDestroy() override;

    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg BOOL OnChange();
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    bool m_bSettingText = false; ///< the box itself is writing; its notification is ignored
    bool m_bChanged = false;
    bool m_bAnsiInterface = false;
    bool m_bBeingCreated = false; ///< between PreCreateWindow and the window: WM_CREATE is still to come
    CEditNNotificationHandler* m_pHandler;
};
