#pragma once
// The dialog of CSingleThreadProgress, on one of two templates of the library: with a Cancel button or
// without.
//
// It deletes itself when its window goes, whoever destroys that, and tells its progress object.

#include "buttons/ButtonST.h"
#include "dialogs/ProgressCtrlEx.h"

class CSingleThreadProgress;

class CDlgSingleThreadProgress : public CDialog
{
public:
    /// `hParent`: the window of the one who works, or null. While the dialog asks, it takes no input.
    CDlgSingleThreadProgress(CSingleThreadProgress& owner, HWND hParent, const CString& strTitle,
                             bool bCancellable);

    /// Makes the window, hidden. If false, the object is gone, or has no window.
    bool MakeWindow();
    CProgressCtrlEx& Bar() { return m_bar; }
    bool IsCancelled() const { return m_bCancelled; }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void PostNcDestroy() override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

private:
    bool AskWhetherToStop();

    CProgressCtrlEx m_bar;
    CButtonST m_btnCancel{nullptr}; ///< on the cancellable template only
    CString m_strTitle;
    bool m_bCancellable;
    bool m_bCancelled = false; ///< and never false again
    bool m_bAsking = false;
    HWND m_hParent;
    CSingleThreadProgress& m_owner;
};
