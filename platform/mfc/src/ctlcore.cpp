// The classic controls.

#include <afxwin.h>


// ---------------------------------------------------------------------------------------------------------
// CStatic

IMPLEMENT_DYNAMIC(CStatic, CWnd)

CStatic::CStatic() = default;

CStatic::~CStatic()
{
    DestroyWindow();
}

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_STATIC, lpszText, dwStyle, rect, pParentWnd, nID);
}

HICON CStatic::SetIcon(HICON hIcon)
{
    return AfxSend<HICON>(STM_SETICON, hIcon);
}

HICON CStatic::GetIcon() const
{
    return AfxSend<HICON>(STM_GETICON);
}

HENHMETAFILE CStatic::SetEnhMetaFile(HENHMETAFILE hMetaFile)
{
    return AfxSend<HENHMETAFILE>(STM_SETIMAGE, IMAGE_ENHMETAFILE, hMetaFile);
}

HENHMETAFILE CStatic::GetEnhMetaFile() const
{
    return AfxSend<HENHMETAFILE>(STM_GETIMAGE, IMAGE_ENHMETAFILE);
}

HBITMAP CStatic::SetBitmap(HBITMAP hBitmap)
{
    return AfxSend<HBITMAP>(STM_SETIMAGE, IMAGE_BITMAP, hBitmap);
}

HBITMAP CStatic::GetBitmap() const
{
    return AfxSend<HBITMAP>(STM_GETIMAGE, IMAGE_BITMAP);
}

HCURSOR CStatic::SetCursor(HCURSOR hCursor)
{
    return AfxSend<HCURSOR>(STM_SETIMAGE, IMAGE_CURSOR, hCursor);
}

HCURSOR CStatic::GetCursor()
{
    return AfxSend<HCURSOR>(STM_GETIMAGE, IMAGE_CURSOR);
}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn static must draw itself
}

// ---------------------------------------------------------------------------------------------------------
// CButton

IMPLEMENT_DYNAMIC(CButton, CWnd)

CButton::CButton() = default;

CButton::~CButton()
{
    DestroyWindow();
}

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_BUTTON, lpszCaption, dwStyle, rect, pParentWnd, nID);
}

UINT CButton::GetState() const
{
    return AfxSend<UINT>(BM_GETSTATE);
}

void CButton::SetState(BOOL bHighlight)
{
    AfxSend(BM_SETSTATE, bHighlight);
}

int CButton::GetCheck() const
{
    return AfxSend<int>(BM_GETCHECK);
}

void CButton::SetCheck(int nCheck)
{
    AfxSend(BM_SETCHECK, nCheck);
}

UINT CButton::GetButtonStyle() const
{
    constexpr DWORD buttonStyles = 0x00FF;
    return GetStyle() & buttonStyles;
}

void CButton::SetButtonStyle(UINT nStyle, BOOL bRedraw)
{
    AfxSend(BM_SETSTYLE, nStyle, bRedraw);
}

HICON CButton::SetIcon(HICON hIcon)
{
    return AfxSend<HICON>(BM_SETIMAGE, IMAGE_ICON, hIcon);
}

HICON CButton::GetIcon() const
{
    return AfxSend<HICON>(BM_GETIMAGE, IMAGE_ICON);
}

HBITMAP CButton::SetBitmap(HBITMAP hBitmap)
{
    return AfxSend<HBITMAP>(BM_SETIMAGE, IMAGE_BITMAP, hBitmap);
}

HBITMAP CButton::GetBitmap() const
{
    return AfxSend<HBITMAP>(BM_GETIMAGE, IMAGE_BITMAP);
}

HCURSOR CButton::SetCursor(HCURSOR hCursor)
{
    return AfxSend<HCURSOR>(BM_SETIMAGE, IMAGE_CURSOR, hCursor);
}

HCURSOR CButton::GetCursor()
{
    return AfxSend<HCURSOR>(BM_GETIMAGE, IMAGE_CURSOR);
}

BOOL CButton::GetIdealSize(SIZE* psize) const
{
    return AfxSend<BOOL>(BCM_GETIDEALSIZE, 0, psize);
}

BOOL CButton::SetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
{
    return AfxSend<BOOL>(BCM_SETIMAGELIST, 0, pbuttonImagelist);
}

BOOL CButton::GetImageList(PBUTTON_IMAGELIST pbuttonImagelist) const
{
    return AfxSend<BOOL>(BCM_GETIMAGELIST, 0, pbuttonImagelist);
}

BOOL CButton::SetTextMargin(LPRECT pmargin)
{
    return AfxSend<BOOL>(BCM_SETTEXTMARGIN, 0, pmargin);
}

BOOL CButton::GetTextMargin(LPRECT pmargin) const
{
    return AfxSend<BOOL>(BCM_GETTEXTMARGIN, 0, pmargin);
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CButton::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn button must draw itself
}

// ---------------------------------------------------------------------------------------------------------
// CListBox

IMPLEMENT_DYNAMIC(CListBox, CWnd)

CListBox::CListBox() = default;

CListBox::~CListBox()
{
    DestroyWindow();
}

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_LISTBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CListBox::GetCount() const
{
    return AfxSend<int>(LB_GETCOUNT);
}

int CListBox::GetHorizontalExtent() const
{
    return AfxSend<int>(LB_GETHORIZONTALEXTENT);
}

void CListBox::SetHorizontalExtent(int cxExtent)
{
    AfxSend(LB_SETHORIZONTALEXTENT, cxExtent);
}

int CListBox::GetTopIndex() const
{
    return AfxSend<int>(LB_GETTOPINDEX);
}

int CListBox::SetTopIndex(int nIndex)
{
    return AfxSend<int>(LB_SETTOPINDEX, nIndex);
}

LCID CListBox::GetLocale() const
{
    return AfxSend<LCID>(LB_GETLOCALE);
}

LCID CListBox::SetLocale(LCID nNewLocale)
{
    return AfxSend<LCID>(LB_SETLOCALE, nNewLocale);
}

int CListBox::InitStorage(int nItems, UINT nBytes)
{
    return AfxSend<int>(LB_INITSTORAGE, nItems, nBytes);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const
{
    const DWORD answer = AfxSend<DWORD>(LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y));
    bOutside = HIWORD(answer);
    return LOWORD(answer);
}

DWORD CListBox::GetListBoxInfo() const
{
    return ::GetListBoxInfo(m_hWnd);
}

void CListBox::SetColumnWidth(int cxWidth)
{
    AfxSend(LB_SETCOLUMNWIDTH, cxWidth);
}

void CListBox::SetTabStops()
{
    AfxSend(LB_SETTABSTOPS);
}

BOOL CListBox::SetTabStops(const int& cxEachStop)
{
    return AfxSend<BOOL>(LB_SETTABSTOPS, 1, &cxEachStop);
}

BOOL CListBox::SetTabStops(int nTabStops, LPINT rgTabStops)
{
    return AfxSend<BOOL>(LB_SETTABSTOPS, nTabStops, rgTabStops);
}

int CListBox::GetCurSel() const
{
    return AfxSend<int>(LB_GETCURSEL);
}

int CListBox::SetCurSel(int nSelect)
{
    return AfxSend<int>(LB_SETCURSEL, nSelect);
}

int CListBox::GetSel(int nIndex) const
{
    return AfxSend<int>(LB_GETSEL, nIndex);
}

int CListBox::SetSel(int nIndex, BOOL bSelect)
{
    return AfxSend<int>(LB_SETSEL, bSelect, nIndex);
}

int CListBox::GetSelCount() const
{
    return AfxSend<int>(LB_GETSELCOUNT);
}

int CListBox::GetSelItems(int nMaxItems, LPINT rgIndex) const
{
    return AfxSend<int>(LB_GETSELITEMS, nMaxItems, rgIndex);
}

void CListBox::SetAnchorIndex(int nIndex)
{
    AfxSend(LB_SETANCHORINDEX, nIndex);
}

int CListBox::GetAnchorIndex() const
{
    return AfxSend<int>(LB_GETANCHORINDEX);
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem)
{
    if (bSelect)
        return AfxSend<int>(LB_SELITEMRANGEEX, nFirstItem, nLastItem);
    // The message takes a selection away when the range is given backwards.
    return AfxSend<int>(LB_SELITEMRANGEEX, nLastItem, nFirstItem);
}

int CListBox::GetCaretIndex() const
{
    return AfxSend<int>(LB_GETCARETINDEX);
}

int CListBox::SetCaretIndex(int nIndex, BOOL bScroll)
{
    return AfxSend<int>(LB_SETCARETINDEX, nIndex, MAKELPARAM(bScroll, 0));
}

DWORD_PTR CListBox::GetItemData(int nIndex) const
{
    return AfxSend<DWORD_PTR>(LB_GETITEMDATA, nIndex);
}

int CListBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return AfxSend<int>(LB_SETITEMDATA, nIndex, dwItemData);
}

void* CListBox::GetItemDataPtr(int nIndex) const
{
    return AfxSend<void*>(LB_GETITEMDATA, nIndex);
}

int CListBox::SetItemDataPtr(int nIndex, void* pData)
{
    return AfxSend<int>(LB_SETITEMDATA, nIndex, pData);
}

int CListBox::GetItemRect(int nIndex, LPRECT lpRect) const
{
    return AfxSend<int>(LB_GETITEMRECT, nIndex, lpRect);
}

int CListBox::GetText(int nIndex, LPTSTR lpszBuffer) const
{
    return AfxSend<int>(LB_GETTEXT, nIndex, lpszBuffer);
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    rString.Empty();
    const int length = GetTextLen(nIndex);
    if (length == LB_ERR)
        return;
    GetText(nIndex, rString.GetBufferSetLength(length));
    rString.ReleaseBuffer();
}

int CListBox::GetTextLen(int nIndex) const
{
    return AfxSend<int>(LB_GETTEXTLEN, nIndex);
}

int CListBox::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    return AfxSend<int>(LB_SETITEMHEIGHT, nIndex, MAKELPARAM(cyItemHeight, 0));
}

int CListBox::GetItemHeight(int nIndex) const
{
    return AfxSend<int>(LB_GETITEMHEIGHT, nIndex);
}

int CListBox::AddString(LPCTSTR lpszItem)
{
    return AfxSend<int>(LB_ADDSTRING, 0, lpszItem);
}

int CListBox::DeleteString(UINT nIndex)
{
    return AfxSend<int>(LB_DELETESTRING, nIndex);
}

int CListBox::InsertString(int nIndex, LPCTSTR lpszItem)
{
    return AfxSend<int>(LB_INSERTSTRING, nIndex, lpszItem);
}

void CListBox::ResetContent()
{
    AfxSend(LB_RESETCONTENT);
}

int CListBox::Dir(UINT attr, LPCTSTR lpszWildCard)
{
    return AfxSend<int>(LB_DIR, attr, lpszWildCard);
}

int CListBox::FindString(int nStartAfter, LPCTSTR lpszItem) const
{
    return AfxSend<int>(LB_FINDSTRING, nStartAfter, lpszItem);
}

int CListBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    return AfxSend<int>(LB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

int CListBox::SelectString(int nStartAfter, LPCTSTR lpszItem)
{
    return AfxSend<int>(LB_SELECTSTRING, nStartAfter, lpszItem);
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    switch (message)
    {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        break;
    case WM_COMPAREITEM:
        *pLResult = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case WM_DELETEITEM:
        DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        break;
    case WM_VKEYTOITEM:
        *pLResult = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    case WM_CHARTOITEM:
        *pLResult = CharToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    }
    return TRUE;
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn list must draw its items
}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn list must know the height of its items
}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn, sorted list must know the order of its items
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT)
{
}

int CListBox::VKeyToItem(UINT, UINT)
{
    return -1;
}

int CListBox::CharToItem(UINT, UINT)
{
    return -1;
}

// ---------------------------------------------------------------------------------------------------------
// CComboBox

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

CComboBox::CComboBox() = default;

CComboBox::~CComboBox()
{
    DestroyWindow();
}

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_COMBOBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CComboBox::GetCount() const
{
    return AfxSend<int>(CB_GETCOUNT);
}

int CComboBox::GetCurSel() const
{
    return AfxSend<int>(CB_GETCURSEL);
}

int CComboBox::SetCurSel(int nSelect)
{
    return AfxSend<int>(CB_SETCURSEL, nSelect);
}

LCID CComboBox::GetLocale() const
{
    return AfxSend<LCID>(CB_GETLOCALE);
}

LCID CComboBox::SetLocale(LCID nNewLocale)
{
    return AfxSend<LCID>(CB_SETLOCALE, nNewLocale);
}

int CComboBox::GetTopIndex() const
{
    return AfxSend<int>(CB_GETTOPINDEX);
}

int CComboBox::SetTopIndex(int nIndex)
{
    return AfxSend<int>(CB_SETTOPINDEX, nIndex);
}

int CComboBox::InitStorage(int nItems, UINT nBytes)
{
    return AfxSend<int>(CB_INITSTORAGE, nItems, nBytes);
}

void CComboBox::SetHorizontalExtent(UINT nExtent)
{
    AfxSend(CB_SETHORIZONTALEXTENT, nExtent);
}

UINT CComboBox::GetHorizontalExtent() const
{
    return AfxSend<UINT>(CB_GETHORIZONTALEXTENT);
}

int CComboBox::SetDroppedWidth(UINT nWidth)
{
    return AfxSend<int>(CB_SETDROPPEDWIDTH, nWidth);
}

int CComboBox::GetDroppedWidth() const
{
    return AfxSend<int>(CB_GETDROPPEDWIDTH);
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO pcbi) const
{
    return ::GetComboBoxInfo(m_hWnd, pcbi);
}

BOOL CComboBox::SetMinVisibleItems(int iMinVisible)
{
    return AfxSend<BOOL>(CB_SETMINVISIBLE, iMinVisible);
}

int CComboBox::GetMinVisible() const
{
    return AfxSend<int>(CB_GETMINVISIBLE);
}

DWORD CComboBox::GetEditSel() const
{
    return AfxSend<DWORD>(CB_GETEDITSEL);
}

BOOL CComboBox::LimitText(int nMaxChars)
{
    return AfxSend<BOOL>(CB_LIMITTEXT, nMaxChars);
}

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar)
{
    return AfxSend<BOOL>(CB_SETEDITSEL, 0, MAKELPARAM(nStartChar, nEndChar));
}

BOOL CComboBox::SetCueBanner(LPCTSTR lpcwText)
{
    return AfxSend<BOOL>(CB_SETCUEBANNER, 0, lpcwText);
}

BOOL CComboBox::GetCueBanner(LPTSTR lpcwText, int cchText) const
{
    return AfxSend<BOOL>(CB_GETCUEBANNER, lpcwText, cchText);
}

void CComboBox::Clear()
{
    AfxSend(WM_CLEAR);
}

void CComboBox::Copy()
{
    AfxSend(WM_COPY);
}

void CComboBox::Cut()
{
    AfxSend(WM_CUT);
}

void CComboBox::Paste()
{
    AfxSend(WM_PASTE);
}

DWORD_PTR CComboBox::GetItemData(int nIndex) const
{
    return AfxSend<DWORD_PTR>(CB_GETITEMDATA, nIndex);
}

int CComboBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return AfxSend<int>(CB_SETITEMDATA, nIndex, dwItemData);
}

void* CComboBox::GetItemDataPtr(int nIndex) const
{
    return AfxSend<void*>(CB_GETITEMDATA, nIndex);
}

int CComboBox::SetItemDataPtr(int nIndex, void* pData)
{
    return AfxSend<int>(CB_SETITEMDATA, nIndex, pData);
}

int CComboBox::GetLBText(int nIndex, LPTSTR lpszText) const
{
    return AfxSend<int>(CB_GETLBTEXT, nIndex, lpszText);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    rString.Empty();
    const int length = GetLBTextLen(nIndex);
    if (length == CB_ERR)
        return;
    GetLBText(nIndex, rString.GetBufferSetLength(length));
    rString.ReleaseBuffer();
}

int CComboBox::GetLBTextLen(int nIndex) const
{
    return AfxSend<int>(CB_GETLBTEXTLEN, nIndex);
}

int CComboBox::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    return AfxSend<int>(CB_SETITEMHEIGHT, nIndex, MAKELPARAM(cyItemHeight, 0));
}

int CComboBox::GetItemHeight(int nIndex) const
{
    return AfxSend<int>(CB_GETITEMHEIGHT, nIndex);
}

int CComboBox::SetExtendedUI(BOOL bExtended)
{
    return AfxSend<int>(CB_SETEXTENDEDUI, bExtended);
}

BOOL CComboBox::GetExtendedUI() const
{
    return AfxSend<BOOL>(CB_GETEXTENDEDUI);
}

void CComboBox::GetDroppedControlRect(LPRECT lprect) const
{
    AfxSend(CB_GETDROPPEDCONTROLRECT, 0, lprect);
}

BOOL CComboBox::GetDroppedState() const
{
    return AfxSend<BOOL>(CB_GETDROPPEDSTATE);
}

void CComboBox::ShowDropDown(BOOL bShowIt)
{
    AfxSend(CB_SHOWDROPDOWN, bShowIt);
}

int CComboBox::AddString(LPCTSTR lpszString)
{
    return AfxSend<int>(CB_ADDSTRING, 0, lpszString);
}

int CComboBox::DeleteString(UINT nIndex)
{
    return AfxSend<int>(CB_DELETESTRING, nIndex);
}

int CComboBox::InsertString(int nIndex, LPCTSTR lpszString)
{
    return AfxSend<int>(CB_INSERTSTRING, nIndex, lpszString);
}

void CComboBox::ResetContent()
{
    AfxSend(CB_RESETCONTENT);
}

int CComboBox::Dir(UINT attr, LPCTSTR lpszWildCard)
{
    return AfxSend<int>(CB_DIR, attr, lpszWildCard);
}

int CComboBox::FindString(int nStartAfter, LPCTSTR lpszString) const
{
    return AfxSend<int>(CB_FINDSTRING, nStartAfter, lpszString);
}

int CComboBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    return AfxSend<int>(CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

int CComboBox::SelectString(int nStartAfter, LPCTSTR lpszString)
{
    return AfxSend<int>(CB_SELECTSTRING, nStartAfter, lpszString);
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    switch (message)
    {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        break;
    case WM_COMPAREITEM:
        *pLResult = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case WM_DELETEITEM:
        DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    }
    return TRUE;
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn combo box must draw its items
}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn combo box must know the height of its items
}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn, sorted combo box must know the order of its items
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT)
{
}

// ---------------------------------------------------------------------------------------------------------
// CEdit

IMPLEMENT_DYNAMIC(CEdit, CWnd)

CEdit::CEdit() = default;

CEdit::~CEdit()
{
    DestroyWindow();
}

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_EDIT, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CEdit::CanUndo() const
{
    return AfxSend<BOOL>(EM_CANUNDO);
}

int CEdit::GetLineCount() const
{
    return AfxSend<int>(EM_GETLINECOUNT);
}

BOOL CEdit::GetModify() const
{
    return AfxSend<BOOL>(EM_GETMODIFY);
}

void CEdit::SetModify(BOOL bModified)
{
    AfxSend(EM_SETMODIFY, bModified);
}

void CEdit::SetRect(LPCRECT lpRect)
{
    AfxSend(EM_SETRECT, 0, lpRect);
}

void CEdit::SetRectNP(LPCRECT lpRect)
{
    AfxSend(EM_SETRECTNP, 0, lpRect);
}

void CEdit::GetRect(LPRECT lpRect) const
{
    AfxSend(EM_GETRECT, 0, lpRect);
}

DWORD CEdit::GetSel() const
{
    return AfxSend<DWORD>(EM_GETSEL);
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const
{
    AfxSend(EM_GETSEL, &nStartChar, &nEndChar);
}

HLOCAL CEdit::GetHandle() const
{
    return AfxSend<HLOCAL>(EM_GETHANDLE);
}

void CEdit::SetHandle(HLOCAL hBuffer)
{
    AfxSend(EM_SETHANDLE, hBuffer);
}

void CEdit::SetMargins(UINT nLeft, UINT nRight)
{
    AfxSend(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(nLeft, nRight));
}

DWORD CEdit::GetMargins() const
{
    return AfxSend<DWORD>(EM_GETMARGINS);
}

void CEdit::SetLimitText(UINT nMax)
{
    AfxSend(EM_SETLIMITTEXT, nMax);
}

UINT CEdit::GetLimitText() const
{
    return AfxSend<UINT>(EM_GETLIMITTEXT);
}

CPoint CEdit::PosFromChar(UINT nChar) const
{
    return CPoint(AfxSend<LPARAM>(EM_POSFROMCHAR, nChar));
}

int CEdit::CharFromPos(CPoint pt) const
{
    return AfxSend<int>(EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer) const
{
    return AfxSend<int>(EM_GETLINE, nIndex, lpszBuffer);
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    // The message reads the size of the buffer from its first word.
    *reinterpret_cast<WORD*>(lpszBuffer) = static_cast<WORD>(nMaxLength);
    return GetLine(nIndex, lpszBuffer);
}

void CEdit::EmptyUndoBuffer()
{
    AfxSend(EM_EMPTYUNDOBUFFER);
}

BOOL CEdit::FmtLines(BOOL bAddEOL)
{
    return AfxSend<BOOL>(EM_FMTLINES, bAddEOL);
}

void CEdit::LimitText(int nChars)
{
    AfxSend(EM_LIMITTEXT, nChars);
}

int CEdit::LineFromChar(int nIndex) const
{
    return AfxSend<int>(EM_LINEFROMCHAR, nIndex);
}

int CEdit::LineIndex(int nLine) const
{
    return AfxSend<int>(EM_LINEINDEX, nLine);
}

int CEdit::LineLength(int nLine) const
{
    return AfxSend<int>(EM_LINELENGTH, nLine);
}

void CEdit::LineScroll(int nLines, int nChars)
{
    AfxSend(EM_LINESCROLL, nChars, nLines);
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo)
{
    AfxSend(EM_REPLACESEL, bCanUndo, lpszNewText);
}

void CEdit::SetPasswordChar(TCHAR ch)
{
    AfxSend(EM_SETPASSWORDCHAR, ch);
}

TCHAR CEdit::GetPasswordChar() const
{
    return AfxSend<TCHAR>(EM_GETPASSWORDCHAR);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll)
{
    const auto position = [](WORD word) { return word == 0xFFFF ? -1 : static_cast<int>(word); };
    SetSel(position(LOWORD(dwSelection)), position(HIWORD(dwSelection)), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    AfxSend(EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll)
        AfxSend(EM_SCROLLCARET);
}

BOOL CEdit::SetTabStops(int nTabStops, LPINT rgTabStops)
{
    return AfxSend<BOOL>(EM_SETTABSTOPS, nTabStops, rgTabStops);
}

void CEdit::SetTabStops()
{
    AfxSend(EM_SETTABSTOPS);
}

BOOL CEdit::SetTabStops(const int& cxEachStop)
{
    return AfxSend<BOOL>(EM_SETTABSTOPS, 1, &cxEachStop);
}

int CEdit::GetFirstVisibleLine() const
{
    return AfxSend<int>(EM_GETFIRSTVISIBLELINE);
}

BOOL CEdit::SetReadOnly(BOOL bReadOnly)
{
    return AfxSend<BOOL>(EM_SETREADONLY, bReadOnly);
}

BOOL CEdit::SetCueBanner(LPCWSTR lpszText)
{
    return AfxSend<BOOL>(EM_SETCUEBANNER, FALSE, lpszText);
}

BOOL CEdit::GetCueBanner(LPWSTR lpszText, int cchText) const
{
    return AfxSend<BOOL>(EM_GETCUEBANNER, lpszText, cchText);
}

BOOL CEdit::ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip)
{
    return AfxSend<BOOL>(EM_SHOWBALLOONTIP, 0, pEditBalloonTip);
}

BOOL CEdit::ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon)
{
    EDITBALLOONTIP tip = {};
    tip.cbStruct = sizeof(tip);
    tip.pszTitle = lpszTitle;
    tip.pszText = lpszText;
    tip.ttiIcon = ttiIcon;
    return ShowBalloonTip(&tip);
}

BOOL CEdit::HideBalloonTip()
{
    return AfxSend<BOOL>(EM_HIDEBALLOONTIP);
}

BOOL CEdit::Undo()
{
    return AfxSend<BOOL>(EM_UNDO);
}

void CEdit::Clear()
{
    AfxSend(WM_CLEAR);
}

void CEdit::Copy()
{
    AfxSend(WM_COPY);
}

void CEdit::Cut()
{
    AfxSend(WM_CUT);
}

void CEdit::Paste()
{
    AfxSend(WM_PASTE);
}

// ---------------------------------------------------------------------------------------------------------
// CScrollBar

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

CScrollBar::CScrollBar() = default;

CScrollBar::~CScrollBar()
{
    DestroyWindow();
}

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_SCROLLBAR, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CScrollBar::GetScrollPos() const
{
    return ::GetScrollPos(m_hWnd, SB_CTL);
}

int CScrollBar::SetScrollPos(int nPos, BOOL bRedraw)
{
    return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw);
}

void CScrollBar::GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const
{
    ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
}

void CScrollBar::SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw)
{
    ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
}

void CScrollBar::ShowScrollBar(BOOL bShow)
{
    ::ShowScrollBar(m_hWnd, SB_CTL, bShow);
}

BOOL CScrollBar::EnableScrollBar(UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask |= nMask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo);
}

int CScrollBar::GetScrollLimit()
{
    int minimum = 0;
    int maximum = 0;
    GetScrollRange(&minimum, &maximum);
    SCROLLINFO info = {};
    if (GetScrollInfo(&info, SIF_PAGE) && info.nPage > 1)
        maximum -= info.nPage - 1;
    return maximum;
}

BOOL CScrollBar::GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const
{
    pScrollInfo->cbSize = sizeof(SCROLLBARINFO);
    return ::GetScrollBarInfo(m_hWnd, OBJID_CLIENT, pScrollInfo);
}
