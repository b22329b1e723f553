#pragma once
// What the two page selectors made of a combo box and a toggle have in common.
//
// Each top-level page has a row of the combo box; a toggle beside it leads to the row's child page and back,
// and is hidden and disabled in rows that have none. See CPageComboButtonSTCtrlGroup and
// CPageComboCheckCtrlGroup, which differ in the toggle.
//
// A group is a member of the host dialog, and serves a CPageManager as the tree does. The wiring must come in
// this order, as nothing is replayed:
//
// ```cpp
//     m_group.DoDataExchange(pDX);                               // in the host's DoDataExchange
//     m_manager.RegisterAddPageNotification(&m_group, true);
//     m_group.RegisterSelectPageNotification(&m_manager, true);
//     m_manager.AddDialog(pDialog); m_manager.AddPage(pFirst, nullptr); // the rows fill themselves
//     m_group.SetCurrentPage(pFirst);                            // nothing is selected until then
// ```
//
// The combo box must be a CBS_DROPDOWNLIST without CBS_SORT: rows count in the order of adding.
//
// Pages are told apart by GetPageID: of two pages with one identity the one added first is found. Of several
// children of one page the latest can be reached; a child of a child counts for its parent's row.

#include <afxwin.h>

#include "DlgPage/ClientList.h"
#include "DlgPage/PageComboRows.h"
#include "combos/ExtComboBox.h"
#include "module/Export.h"
#include "module/NotificationInterfaces.h"

#include <utility>

class OW_DIALOGCONTROLS_API CPageComboCtrlGroup : public AAddPageNotificationClient,
                                                  public ACurrentPageProvider,
                                                  public AExtComboBoxNotificationHandler,
                                                  public AButtonSTNotificationHandler
{
public:
    ~CPageComboCtrlGroup() override;
    CPageComboCtrlGroup(const CPageComboCtrlGroup&) = delete;
    CPageComboCtrlGroup& operator=(const CPageComboCtrlGroup&) = delete;

    /// Binds the two controls. Throws CNotSupportedException if the dialog lacks one of them, as DDX_Control
    /// does.
    void DoDataExchange(CDataExchange* pDX);

    /// Whom to tell of the selection; not owned, told in the order of registering. The first one registered
    /// cannot be removed again.
    void RegisterSelectPageNotification(ASelectPageNotificationClient* pClient, bool bRegister);

    /// Adds a row for a top-level page; or puts a child behind the row of its parent, which must have been
    /// added before, as CPageManager sees to: an unknown one raises MFC's invalid-argument exception. Neither
    /// is owned.
    void PageAdded(CPage* pPage, CPage* pParent) override;

    /// The page that the two controls show; null if no row is selected, or if the controls are not there.
    CPage* GetCurrentPage() const override;

    /// Tells the clients of the page and selects its row. With null or an unknown page nothing is selected,
    /// the toggle hides, and nobody is told: what shows in the frame stays until the next selection.
    void SetCurrentPage(CPage* pPage);

    /// Gives the focus to the combo box.
    void SetFocus();

    void OnExtComboBoxSelChanged(int nId, int nRow) override;
    void OnButtonClicked(int nId) override;

protected:
    CPageComboCtrlGroup(int nComboId, int nToggleId);

    /// The first page of the same identity, as an index in the order of adding; -1 for none and for null.
    int FindPage(CPage* pPage) const;
    /// The first child of a page, likewise.
    int FindParent(CPage* pPage) const;

    /// The page that a row shows with the toggle in a given state; may be null.
    virtual CPage* GetPage(int nRow, int nToggleVisible, int nToggleState) const = 0;

    /// 1 while the toggle stands for the child.
    virtual int GetToggleState() const = 0;
    /// Makes the toggle show the state that a selection by code asks for.
    virtual void SetToggleState(bool bHasSecondary, int nSecondary) = 0;
    /// Carries out a click on the toggle; answers the state after it.
    virtual int ClickToggle() = 0;

    /// The control beside the combo box.
    virtual const CButton& Toggle() const = 0;

    /// The top-level page of a row, and the child behind it; null where there is none, and for a row that
    /// there is not.
    CPage* GetPrimary(int nRow) const;
    /// The child.
    CPage* GetSecondary(int nRow) const;

private:
    CButton& Toggle() { return const_cast<CButton&>(std::as_const(*this).Toggle()); }
    BOOL IsToggleVisible() const;
    void ShowToggle(bool bShow);
    /// False if a client has selected another page meanwhile, in place of this one: that selection counts.
    bool TellSelected(CPage* pNew, CPage* pOld);

    int comboId;
    int toggleId;
    CExtComboBox combo;
    ow::CClientList<ASelectPageNotificationClient> selectClients;
    ow::CPageComboRows rows;
    int selections = 0;             ///< how many were told
    CPage* pageBeingTold = nullptr; ///< while the clients are told
    int currentRow = -1;            ///< as last told to the clients
    int currentSecondary = 0;       ///< the toggle's state, as last told by a click or by SetCurrentPage
};
