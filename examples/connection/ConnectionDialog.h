#pragma once
// The dialog: pages at the left, the drawing at the right, named configurations above. It holds the values;
// pages show them and change them, and say so by MyAttributeChanged.
//
//     the user types --> box --> page: Wanted().pitch_m = ...; MyAttributeChanged()
//                                        --> AttributeChangedUsingGUI: Fit, page.ShowValues, drawing, state
//
// OK keeps the values for the next start. Cancel and Escape ask if they were changed. F6 goes from the tree to
// the page and back.

#include "ConnectionView.h"
#include "Rules.h"
#include "StoredConnections.h"
#include "resource.h"

#include <DialogControlsOW.h>

class CConnectionDialog : public CDialog,
                          public APageFrameProvider,
                          public AAttributeChangeNotificationClient,
                          public AConfigCtrlGroupNotificationHandler
{
public:
    /// What is to be kept goes into files of the folder.
    explicit CConnectionDialog(const CString& strFolder, CWnd* pParent = nullptr);

    /// What the user wants; to be changed by pages.
    Connection& Wanted() { return m_wanted; }
    /// What can be built of it.
    const FittedConnection& Fitted() const { return m_fitted; }

    /// Goes to the tree.
    void LeavePage() { GotoDlgCtrl(&m_tree); }

    CRect GetPageFrame() override;
    void AttributeChangedUsingGUI() override { ShowAll(); }
    void OnConfigGroupChanged(CConfigCtrlGroup*) override { ShowAll(); }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void OnOK() override;
    void OnCancel() override;

    afx_msg void OnSaved() { ShowState(); }
    DECLARE_MESSAGE_MAP()

private:
    void AddPages();
    void ShowAll();
    void ShowState();
    bool Ask(const CString& strQuestion);

    Connection m_wanted;
    Connection m_kept; ///< the values of the last start
    FittedConnection m_fitted;
    CStoredConnections m_stored;
    CConfigCtrlGroup m_configs{IDC_CONFIGS, IDC_CONFIG_SAVE, IDC_CONFIG_DELETE, &m_stored, this};
    CPageManager m_manager{this};
    CPageTreeCtrl m_tree;
    CPageGradientCaptionStatic m_caption{m_tree};
    CConnectionView m_view;
};
