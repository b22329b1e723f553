#include <afxwin.h>

#include "combos/FontSelectionComboBox.h"

#include "buttons/ButtonSTImages.h"
#include "combos/DropWidth.h"
#include "module/AssertReport.h"
#include "module/DialogKeys.h"
#include "module/GdiScope.h"
#include "module/HostResourceScope.h"
#include "module/IconResource.h"
#include "resources/resource.h"

#include <algorithm>
#include <cwchar>
#include <iterator>

namespace
{
constexpr char kSource[] = ".\\FontSelectionComboBox";
constexpr LONG kRowHeight = 90; // tenths of a point

CSize IconSize(HICON hIcon)
{
    return ButtonImages::SizeOf(hIcon).value_or(CSize(0, 0));
}

/// Whether the window is a combo box by now. One that is being made is attached before it is.
bool IsReady(const CComboBox& combo)
{
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    return ::GetComboBoxInfo(combo, &info) != FALSE;
}
} // namespace

HICON CFontSelectionComboBox::s_hIconTTF = nullptr;
HICON CFontSelectionComboBox::s_hIconSHX = nullptr;
CSize CFontSelectionComboBox::s_szIconTTF(0, 0);
CSize CFontSelectionComboBox::s_szIconSHX(0, 0);
int CFontSelectionComboBox::s_nIconTextOffset = 4;

CFontSelectionComboBox::CFontSelectionComboBox(AFontSelectionNotificationHandler* pHandler)
    : m_crHilightBackground(::GetSysColor(COLOR_HIGHLIGHT)), m_crNormalText(::GetSysColor(COLOR_WINDOWTEXT)),
      m_crHilightText(::GetSysColor(COLOR_HIGHLIGHTTEXT)), m_crNormalBackground(::GetSysColor(COLOR_WINDOW)),
      m_pHandler(pHandler)
{
}

CFontSelectionComboBox::~CFontSelectionComboBox() = default;

// Wanted: kFillMessage has no entry, so that the posts of it do nothing.
BEGIN_MESSAGE_MAP(CFontSelectionComboBox, CComboBox)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_CONTROL_REFLECT(CBN_SELCHANGE, &CFontSelectionComboBox::OnSelChange)
    ON_CONTROL_REFLECT(CBN_DROPDOWN, &CFontSelectionComboBox::OnDropDown)
END_MESSAGE_MAP()

int CFontSelectionComboBox::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CComboBox::OnCreate(lpCreateStruct) == -1)
        return -1;
    FillFonts();
    return 0;
}

// The rows still stand, and the list that goes down will ask for the deletion of each: none is found any more.
void CFontSelectionComboBox::OnDestroy()
{
    CComboBox::OnDestroy();
    m_rows.clear();
}

UINT CFontSelectionComboBox::OnGetDlgCode()
{
    return CComboBox::OnGetDlgCode() | DLGC_WANTALLKEYS;
}

void CFontSelectionComboBox::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (!gfnHandleDialogKey(*this, nChar))
        CComboBox::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CFontSelectionComboBox::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (!gfnIsDialogKeyChar(nChar))
        CComboBox::OnChar(nChar, nRepCnt, nFlags);
}

void CFontSelectionComboBox::OnSelChange()
{
    if (!m_pHandler)
        return;
    CString strFont;
    EFontClass eClass = eFontTrueType;
    GetSelection(strFont, eClass);
    m_pHandler->OnFontSelected(GetDlgCtrlID(), strFont, eClass);
}

void CFontSelectionComboBox::OnDropDown()
{
    gfnGrowDropWidth(*this, (std::max)(s_szIconTTF.cx, s_szIconSHX.cx) + s_nIconTextOffset);
}

LRESULT CFontSelectionComboBox::OnInitFonts(WPARAM, LPARAM)
{
    InitFonts();
    return 0;
}

// ---- Icons ----------------------------------------------------------------------------------------------------------

void CFontSelectionComboBox::LoadIcons()
{
    const CHostResourceScope resources;
    if (!s_hIconTTF)
        ASSERT_AT(s_hIconTTF = gfnLoadIconResource(IDI_OW_TTF), kSource, 31);
    if (!s_hIconSHX)
        ASSERT_AT(s_hIconSHX = gfnLoadIconResource(IDI_OW_SHX), kSource, 33);
    s_szIconTTF = IconSize(s_hIconTTF);
    s_szIconSHX = IconSize(s_hIconSHX);
}

bool CFontSelectionComboBox::HasIcons()
{
    return s_hIconTTF && s_hIconSHX;
}

// ---- Rows -----------------------------------------------------------------------------------------------------------

void CFontSelectionComboBox::PreSubclassWindow()
{
    if (IsReady(*this))
        InitFonts();
    CComboBox::PreSubclassWindow();
}

void CFontSelectionComboBox::FillFonts()
{
    PostMessage(kFillMessage);
}

void CFontSelectionComboBox::InitFonts()
{
    CClientDC dc(this);
    SetRedraw(FALSE); // else the list looks after its scroll bar at each row
    ResetContent();
    m_rows.clear(); // where the parent does not pass WM_DELETEITEM on
    if (!gFontManager.m_bInitialized)
        gFontManager.Initialize(dc);
    ::EnumFonts(dc, nullptr, &AddFontOnce, reinterpret_cast<LPARAM>(this));
    SetRedraw(TRUE);
    Invalidate(FALSE);
}

int CALLBACK CFontSelectionComboBox::EnumFontProc(const LOGFONT* pLogFont, const TEXTMETRIC*, DWORD nType,
                                                  LPARAM lParam)
{
    if (nType == TRUETYPE_FONTTYPE)
        reinterpret_cast<CFontSelectionComboBox*>(lParam)->AddFont(*pLogFont);
    return TRUE;
}

void CFontSelectionComboBox::AddFont(const LOGFONT& logFont)
{
    const int nItem = AddString(logFont.lfFaceName);
    if (nItem < 0)
        return;
    m_rows.push_back(std::make_unique<SFontRow>(SFontRow{logFont, gFontManager.Find(logFont.lfFaceName)}));
    SetItemDataPtr(nItem, m_rows.back().get());
}

// Some systems name a font once for each of its character sets, one after another.
int CALLBACK CFontSelectionComboBox::AddFontOnce(const LOGFONT* pLogFont, const TEXTMETRIC* pMetric,
                                                 DWORD nType, LPARAM lParam)
{
    const Rows& rows = reinterpret_cast<CFontSelectionComboBox*>(lParam)->m_rows;
    if (!rows.empty() && std::wcscmp(rows.back()->logFont.lfFaceName, pLogFont->lfFaceName) == 0)
        return TRUE;
    return EnumFontProc(pLogFont, pMetric, nType, lParam);
}

// Rows of the caller, and those with data of the caller's own, have no record.
void CFontSelectionComboBox::DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct)
{
    if (const auto it = FindRecord(lpDeleteItemStruct->itemData); it != m_rows.end())
        m_rows.erase(it);
}

/// From the back, as the system empties a list from there.
CFontSelectionComboBox::Rows::const_iterator CFontSelectionComboBox::FindRecord(DWORD_PTR nItemData) const
{
    const auto* pRecord = reinterpret_cast<const SFontRow*>(nItemData);
    const auto it = std::find_if(m_rows.rbegin(), m_rows.rend(),
                                 [pRecord](const auto& pRow) { return pRow.get() == pRecord; });
    return it == m_rows.rend() ? m_rows.end() : std::prev(it.base());
}

CFontSelectionComboBox::SFontRow* CFontSelectionComboBox::RecordOf(int nItem) const
{
    const auto it = FindRecord(GetItemData(nItem));
    return it == m_rows.end() ? nullptr : it->get();
}

CFontSelectionComboBox::SFontRow CFontSelectionComboBox::FontOfName(const CString& strName)
{
    SFontRow row{};
    row.logFont.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpyn(row.logFont.lfFaceName, strName, LF_FACESIZE);
    row.nIndex = gFontManager.Find(strName);
    return row;
}

CFontSelectionComboBox::SFontRow CFontSelectionComboBox::FontOfRow(int nItem) const
{
    if (const SFontRow* pRecord = RecordOf(nItem))
        return *pRecord;
    CString strName;
    GetLBText(nItem, strName);
    return FontOfName(strName);
}

// ---- Selection ------------------------------------------------------------------------------------------------------

int CFontSelectionComboBox::GetSelFont(LOGFONT& logFont, EFontClass& eClass) const
{
    const int nItem = GetCurSel();
    if (nItem < 0)
        return -1;
    const SFontRow row = FontOfRow(nItem);
    logFont = row.logFont;
    eClass = gFontManager.Class(row.nIndex);
    return nItem;
}

bool CFontSelectionComboBox::GetSelection(CString& strFont, EFontClass& eClass) const
{
    LOGFONT logFont;
    if (GetSelFont(logFont, eClass) < 0)
        return false;
    strFont = logFont.lfFaceName;
    return true;
}

bool CFontSelectionComboBox::SetSelection(CString strFont)
{
    const int nItem = FindStringExact(-1, strFont);
    if (nItem < 0)
        return false;
    SetCurSel(nItem);
    return true;
}

// ---- Drawing --------------------------------------------------------------------------------------------------------

void CFontSelectionComboBox::SetNormalColors(COLORREF crBackground, COLORREF crText)
{
    m_crNormalBackground = crBackground;
    m_crNormalText = crText;
    Repaint();
}

void CFontSelectionComboBox::SetHilightColors(COLORREF crBackground, COLORREF crText)
{
    m_crHilightBackground = crBackground;
    m_crHilightText = crText;
    Repaint();
}

void CFontSelectionComboBox::Repaint()
{
    if (m_hWnd)
        Invalidate(FALSE);
}

void CFontSelectionComboBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    DrawFont(lpDrawItemStruct);
}

void CFontSelectionComboBox::MeasureItem(LPMEASUREITEMSTRUCT)
{
}

void CFontSelectionComboBox::DrawFont(LPDRAWITEMSTRUCT pItem)
{
    CDC& dc = *CDC::FromHandle(pItem->hDC);
    const bool bHilight = (pItem->itemState & ODS_SELECTED) != 0;
    const bool bDisabled = (pItem->itemState & ODS_DISABLED) != 0;
    dc.SetBkMode(TRANSPARENT);
    dc.FillSolidRect(&pItem->rcItem, bHilight ? m_crHilightBackground : m_crNormalBackground);
    dc.SetTextColor(bDisabled ? ::GetSysColor(COLOR_GRAYTEXT) : bHilight ? m_crHilightText : m_crNormalText);
    if (const int nItem = static_cast<int>(pItem->itemID); nItem >= 0)
        DrawRow(dc, pItem->rcItem, nItem);
}

void CFontSelectionComboBox::DrawRow(CDC& dc, CRect rect, int nItem)
{
    CString strText;
    GetLBText(nItem, strText);
    SFontRow* pRow = RecordOf(nItem);
    SFontRow named;
    if (!pRow)
        pRow = &(named = FontOfName(strText));

    if (const EFontClass eClass = gFontManager.Class(pRow->nIndex); HasIcons())
        rect.left += DrawFontIcon(dc, rect, eClass);
    else if (eClass == eFontSHX)
        strText += L" (SHX)";

    // Wanted: the height goes into the record itself, and GetSelFont answers it from the first paint on.
    pRow->logFont.lfHeight = kRowHeight;
    pRow->logFont.lfWidth = 0;
    CFont font;
    font.CreatePointFontIndirect(&pRow->logFont, &dc);
    const CGdiSelection selection(dc, font);
    rect.left += s_nIconTextOffset;
    dc.DrawText(strText, rect, DT_SINGLELINE | DT_VCENTER);
}

/// The icon's width.
int CFontSelectionComboBox::DrawFontIcon(CDC& dc, const CRect& rect, EFontClass eClass)
{
    const bool bSHX = eClass == eFontSHX;
    dc.DrawState(rect.TopLeft(), rect.Size(), bSHX ? s_hIconSHX : s_hIconTTF, DSS_NORMAL,
                 static_cast<CBrush*>(nullptr));
    return bSHX ? s_szIconSHX.cx : s_szIconTTF.cx;
}
