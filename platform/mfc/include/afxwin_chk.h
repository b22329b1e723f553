#pragma once
// A list box with a check box before each item.
//
//     m_parts.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_HASSTRINGS | LBS_OWNERDRAWFIXED, rect, this, IDC_PARTS);
//     m_parts.AddString(L"bolts");
//     m_parts.SetCheck(0, BST_CHECKED);
//     ...
//     ON_CLBN_CHKCHANGE(IDC_PARTS, &CMyDialog::OnPartChecked)
//
// The list is owner-drawn, of fixed or variable height. A click on a box or the space bar changes it, in every selected
// item where several can be; a disabled item takes neither. Item data stays the program's own.

#include <afxwin_ctl.h>

#define CLBN_CHKCHANGE 40 // notification: the user changed a check box
#define ON_CLBN_CHKCHANGE(id, memberFxn) ON_CONTROL(CLBN_CHKCHANGE, id, memberFxn)

class AFX_CORE_CLASS CCheckListBox : public CListBox
{
    DECLARE_DYNAMIC(CCheckListBox)

public:
    CCheckListBox();
    ~CCheckListBox() override { DestroyWindow(); }

    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;

    /// BS_CHECKBOX, BS_3STATE, BS_AUTOCHECKBOX (the first) or BS_AUTO3STATE; only the latter two change by themselves.
    void SetCheckStyle(UINT nStyle);
    UINT GetCheckStyle() { return m_nStyle; }
    /// 0 unchecked, 1 checked, 2 indeterminate, which the three-state styles know.
    void SetCheck(int nIndex, int nCheck);
    int GetCheck(int nIndex);
    void Enable(int nIndex, BOOL bEnabled = TRUE);
    BOOL IsEnabled(int nIndex);

    /// Where the box is drawn: by default in the middle of the item's left end, `rectCheckBox`.
    virtual CRect OnGetCheckPosition(CRect, CRect rectCheckBox) { return rectCheckBox; }

    /// The item right of its box. To be overridden for variable heights or lists without strings.
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;

    int CalcMinimumItemHeight();                      ///< box and text find room
    int CheckFromPoint(CPoint point, BOOL& bInCheck); ///< the item at a point, -1 for none
    void SetSelectionCheck(int nCheck);               ///< of all selected items

protected:
    void PreSubclassWindow() override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

    UINT m_nStyle = BS_AUTOCHECKBOX;
    int m_cyText = 0; ///< height of a line; 0: not asked yet

    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg LRESULT OnSetFont(WPARAM, LPARAM);
    afx_msg LRESULT OnLBAddString(WPARAM w, LPARAM l) { return AddItem(LB_ADDSTRING, w, l); }
    afx_msg LRESULT OnLBInsertString(WPARAM w, LPARAM l) { return AddItem(LB_INSERTSTRING, w, l); }
    afx_msg LRESULT OnLBFindString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnLBSelectString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnLBGetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnLBGetItemData(WPARAM wParam, LPARAM);
    afx_msg LRESULT OnLBSetItemData(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnLBSetItemHeight(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    struct CItem;

    bool HasStrings() const { return (GetStyle() & LBS_HASSTRINGS) != 0; }
    bool ChangesByItself() const { return m_nStyle == BS_AUTOCHECKBOX || m_nStyle == BS_AUTO3STATE; }
    CItem* FindItem(int index);
    CItem* MakeItem(int index);
    int FindData(int after, LPARAM data);
    LRESULT AddItem(UINT message, WPARAM wParam, LPARAM lParam);
    int CheckNext(int index);
    void TellParent();
    CRect BoxOf(CRect item);
    void InvalidateItem(int index);
    void FitItemHeight();
    bool IsGrey(int index) { return !IsWindowEnabled() || !IsEnabled(index); }
    void DrawWithBox(const DRAWITEMSTRUCT& whole);
    void MeasureWithBox(MEASUREITEMSTRUCT& measured);
};
