#include <afxwin.h>

#include "cells/GridCellBase.h"

#include "cells/CellMemory.h"
#include "cells/GridCellPainter.h"
#include "cells/GridDefaultCell.h"
#include "grid/GridCtrl.h"
#include "grid/NotifyOwner.h"

#include <algorithm>

namespace
{
/// A context to measure on: the given one, or that of the grid's window for the length of the scope. A grid
/// without a window measures on the screen.
class CMeasureDC
{
public:
    CMeasureDC(CDC* pGiven, CGridCtrl* pGrid) : m_pDC(pGiven)
    {
        if (m_pDC || !pGrid)
            return;
        m_hWnd = pGrid->GetSafeHwnd();
        m_hTaken = ::GetDC(m_hWnd);
        m_pDC = CDC::FromHandle(m_hTaken);
    }
    ~CMeasureDC()
    {
        if (m_hTaken)
            ::ReleaseDC(m_hWnd, m_hTaken);
    }
    CMeasureDC(const CMeasureDC&) = delete;
    CMeasureDC& operator=(const CMeasureDC&) = delete;

    CDC* Get() const { return m_pDC; }

private:
    CDC* m_pDC;
    HWND m_hWnd = nullptr;
    HDC m_hTaken = nullptr;
};

CSize MeasureLines(CDC& dc, LPCWSTR pszText, UINT nFormat)
{
    int nWidest = 0;
    for (LPCWSTR pszLine = pszText; pszLine;)
    {
        const LPCWSTR pszEnd = wcschr(pszLine, L'\n');
        const int nLength = static_cast<int>(pszEnd ? pszEnd - pszLine : wcslen(pszLine));
        nWidest = std::max<int>(nWidest, dc.GetTextExtent(pszLine, nLength).cx);
        pszLine = pszEnd ? pszEnd + 1 : nullptr;
    }
    CRect rect(0, 0, nWidest + 1, 0);
    dc.DrawText(pszText, -1, &rect, nFormat | DT_CALCRECT);
    return rect.Size();
}
} // namespace

IMPLEMENT_DYNCREATE(CGridCellBase, CObject)

CGridCellBase::CGridCellBase()
{
}

CGridCellBase::~CGridCellBase()
{
}

void* CGridCellBase::operator new(std::size_t nSize)
{
    return gfnTakeCellMemory(nSize);
}

void CGridCellBase::operator delete(void* p, std::size_t nSize) noexcept
{
    gfnGiveCellMemory(p, nSize);
}

#if defined(_DEBUG)
// What a constructor that throws leaves behind here is lost: nobody tells its size.
void* CGridCellBase::operator new(std::size_t nSize, LPCSTR, int)
{
    return gfnTakeCellMemory(nSize);
}
#endif

void CGridCellBase::Serialize(CArchive& /*ar*/)
{
}

#ifdef _DEBUG
void CGridCellBase::AssertValid() const
{
}

void CGridCellBase::Dump(CDumpContext& /*dc*/) const
{
}
#endif

// ---- Contents: nothing is kept here but the state ---------------------------------------------------------

void CGridCellBase::SetText(LPCWSTR /*pszText*/)
{
}

void CGridCellBase::SetImage(int /*nImage*/)
{
}

void CGridCellBase::SetData(LPARAM /*lParam*/)
{
}

void CGridCellBase::SetState(DWORD nState)
{
    m_nState = nState;
}

void CGridCellBase::SetFormat(DWORD /*nFormat*/)
{
}

void CGridCellBase::SetTextClr(COLORREF /*clr*/)
{
}

void CGridCellBase::SetBackClr(COLORREF /*clr*/)
{
}

void CGridCellBase::SetFont(const LOGFONTW* /*plf*/)
{
}

void CGridCellBase::SetMargin(UINT /*nMargin*/)
{
}

void CGridCellBase::SetGrid(CGridCtrl* /*pGrid*/)
{
}

void CGridCellBase::SetCoords(int /*nRow*/, int /*nCol*/)
{
}

LPCWSTR CGridCellBase::GetText()
{
    return nullptr;
}

LPCWSTR CGridCellBase::GetTipText()
{
    return GetText();
}

int CGridCellBase::GetImage()
{
    return -1;
}

LPARAM CGridCellBase::GetData()
{
    return 0;
}

DWORD CGridCellBase::GetState()
{
    return m_nState;
}

DWORD CGridCellBase::GetFormat()
{
    return 0;
}

COLORREF CGridCellBase::GetTextClr()
{
    return 0;
}

COLORREF CGridCellBase::GetBackClr()
{
    return 0;
}

LOGFONTW* CGridCellBase::GetFont()
{
    return nullptr;
}

CFont* CGridCellBase::GetFontObject()
{
    return nullptr;
}

CGridCtrl* CGridCellBase::GetGrid()
{
    return nullptr;
}

CWnd* CGridCellBase::GetEditWnd()
{
    return nullptr;
}

UINT CGridCellBase::GetMargin()
{
    return 0;
}

CGridCellBase* CGridCellBase::GetDefaultCell()
{
    CGridCtrl* const pGrid = GetGrid();
    return pGrid ? pGrid->GetDefaultCell(IsFixedRow() != FALSE, IsFixedCol() != FALSE) : nullptr;
}

BOOL CGridCellBase::IsDefaultFont()
{
    return FALSE;
}

BOOL CGridCellBase::IsEditing()
{
    return FALSE;
}

BOOL CGridCellBase::IsFocused()
{
    return GetState() & CELL_FOCUSED;
}

BOOL CGridCellBase::IsFixed()
{
    return GetState() & CELL_FIXED;
}

BOOL CGridCellBase::IsFixedCol()
{
    return GetState() & CELL_FIXEDCOL;
}

BOOL CGridCellBase::IsFixedRow()
{
    return GetState() & CELL_FIXEDROW;
}

BOOL CGridCellBase::IsSelected()
{
    return GetState() & CELL_SELECTED;
}

BOOL CGridCellBase::IsReadOnly()
{
    return GetState() & CELL_READONLY;
}

BOOL CGridCellBase::IsModified()
{
    return GetState() & CELL_MODIFIED;
}

BOOL CGridCellBase::IsDropHighlighted()
{
    return GetState() & CELL_DROPHILITED;
}

void CGridCellBase::operator=(const CGridCellBase& cell)
{
    if (this == &cell)
        return;
    auto& source = const_cast<CGridCellBase&>(cell); // the queries are not const, but change nothing
    SetGrid(source.GetGrid());
    SetText(source.GetText());
    SetImage(source.GetImage());
    SetData(source.GetData());
    SetState(source.GetState());
    SetFormat(source.GetFormat());
    SetTextClr(source.GetTextClr());
    SetBackClr(source.GetBackClr());
    SetFont(source.IsDefaultFont() ? nullptr : source.GetFont());
    SetMargin(source.GetMargin());
}

void CGridCellBase::Reset()
{
    m_nState = 0;
}

// ---- Drawing and measuring --------------------------------------------------------------------------------

BOOL CGridCellBase::Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd)
{
    return CGridCellPainter(*this, nRow, nCol).Paint(pDC, rect, bEraseBkgnd);
}

BOOL CGridCellBase::GetTextRect(LPRECT pRect)
{
    CSize size;
    if (GetImageSize(size))
        pRect->left += size.cx + 1 + static_cast<int>(GetMargin());
    return TRUE;
}

BOOL CGridCellBase::GetTipTextRect(LPRECT pRect)
{
    return GetTextRect(pRect);
}

bool CGridCellBase::GetImageSize(CSize& size)
{
    const int nImage = GetImage();
    if (nImage < 0)
        return false;
    CGridCtrl* const pGrid = GetGrid();
    CImageList* const pImageList = pGrid ? pGrid->GetImageList() : nullptr;
    IMAGEINFO info;
    if (!pImageList || !pImageList->GetImageInfo(nImage, &info))
        return false;
    size = CRect(info.rcImage).Size();
    return true;
}

CSize CGridCellBase::GetTextExtent(LPCWSTR pszText, CDC* pDC)
{
    const CMeasureDC dc(pDC, pszText ? GetGrid() : nullptr);
    if (!dc.Get() || !pszText)
    {
        const auto* const pDefault = dynamic_cast<CGridDefaultCell*>(GetDefaultCell());
        return pDefault ? CSize(pDefault->GetWidth(), pDefault->GetHeight()) : CSize(0, 0);
    }

    CSize size = MeasureText(*dc.Get(), pszText);
    const int nMargin = static_cast<int>(GetMargin());
    size += CSize(4 * nMargin, 2 * nMargin);

    const LOGFONTW* const plf = GetFont();
    if (plf && (plf->lfEscapement == 900 || plf->lfEscapement == -900))
        return CSize(size.cy, size.cx + 4 * nMargin); // the text stands on its side
    return size;
}

/// The text in this cell's font and format, without margins.
CSize CGridCellBase::MeasureText(CDC& dc, LPCWSTR pszText)
{
    CFont* const pFont = GetFontObject();
    CFont* const pOldFont = pFont ? dc.SelectObject(pFont) : nullptr;
    const UINT nFormat = GetFormat();
    CSize size = (nFormat & DT_WORDBREAK) && !(nFormat & DT_SINGLELINE)
                     ? MeasureLines(dc, pszText, nFormat)
                     : dc.GetTextExtent(pszText, static_cast<int>(wcslen(pszText)));
    TEXTMETRIC metrics;
    if (dc.GetTextMetrics(&metrics))
        size.cx += metrics.tmOverhang;
    if (pOldFont)
        dc.SelectObject(pOldFont);
    return size;
}

CSize CGridCellBase::GetCellExtent(CDC* pDC)
{
    const CSize sizeText = GetTextExtent(GetText(), pDC);
    CSize sizeImage;
    if (!GetImageSize(sizeImage))
        return sizeText;
    sizeImage += CSize(1, 1);
    return CSize(sizeText.cx + sizeImage.cx, std::max(sizeText.cy, sizeImage.cy));
}

// ---- Editing ----------------------------------------------------------------------------------------------

BOOL CGridCellBase::Edit(int /*nRow*/, int /*nCol*/, CRect /*rect*/, CPoint /*point*/, UINT /*nID*/,
                         UINT /*nChar*/)
{
    return FALSE;
}

BOOL CGridCellBase::ValidateEdit(LPCWSTR /*pszText*/)
{
    return TRUE;
}

void CGridCellBase::EndEdit()
{
}

BOOL CGridCellBase::PrintCell(CDC* /*pDC*/, int /*nRow*/, int /*nCol*/, CRect /*rect*/)
{
    return FALSE;
}

void CGridCellBase::OnEndEdit()
{
}

// ---- Mouse ------------------------------------------------------------------------------------------------

void CGridCellBase::OnMouseEnter()
{
}

void CGridCellBase::OnMouseOver()
{
}

void CGridCellBase::OnMouseLeave()
{
}

void CGridCellBase::OnClick(CPoint /*point*/)
{
}

void CGridCellBase::OnClickDown(CPoint /*point*/)
{
}

void CGridCellBase::OnRClick(CPoint /*point*/)
{
}

void CGridCellBase::OnDblClick(CPoint /*point*/)
{
}

BOOL CGridCellBase::OnSetCursor()
{
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

LRESULT CGridCellBase::SendMessageToParent(int nRow, int nCol, int nMessage)
{
    return gfnNotifyOwner(GetGrid(), nRow, nCol, static_cast<UINT>(nMessage));
}
