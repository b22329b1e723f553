// Cross grid: member forces by load case. The row and the column of the current cell are painted as a cross,
// and the sums under the heading form a band of their own.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr int kCases = 7;    ///< columns of the body
constexpr int kMemberCount = 24; ///< rows of the body below the band
enum EBandRow
{
    eLargest = 1,
    eSmallest,
    eFirstMember,
};
constexpr COLORREF kBand = RGB(255, 244, 214);
constexpr COLORREF kBody = RGB(255, 255, 255);

class CCrossGridPageDialog : public CGalleryPageDialog,
                             public AExtGridCtrl2NotificationHandler,
                             public AExtGridCtrl2ExtraHeaderSupport
{
public:
    explicit CCrossGridPageDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_CROSS_GRID, host) {}

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_CROSS_GRID, m_grid);
    }
    int OnInitPageDialog() override;

    void OnExtGrid2CellChanged(int nId, CCellID cell, CCellID prevCell) override
    {
        Log(_T("Forces"), _T("OnExtGrid2CellChanged(%d, cell %d,%d, before %d,%d)"), nId, cell.row, cell.col,
            prevCell.row, prevCell.col);
    }
    bool OnExtGrid2EndEdit(int nId, CCellID cell, const CString* pText) override;
    void OnExtGrid2RClick(int nId, CCellID cell) override
    {
        Log(_T("Forces"), _T("OnExtGrid2RClick(%d, cell %d,%d)"), nId, cell.row, cell.col);
    }

    int GetExtraHeaderColor() override { return kBand; }
    int GetExtraHeaderCount() override { return eFirstMember - eLargest; }
    int GetBodyColor() override { return kBody; }

    afx_msg void OnGoToLargest();
    DECLARE_MESSAGE_MAP()

private:
    double ForceAt(int nRow, int nCol) const { return _wtof(m_grid.GetItemText(nRow, nCol)); }
    void MakeHeadings();
    void FillBody();
    void ShowExtremes(int nCol);

    CExtGridCtrl2 m_grid{this, this};
};

BEGIN_MESSAGE_MAP(CCrossGridPageDialog, CGalleryPageDialog)
    ON_BN_CLICKED(IDC_CROSS_GRID_GO, &CCrossGridPageDialog::OnGoToLargest)
END_MESSAGE_MAP()

int CCrossGridPageDialog::OnInitPageDialog()
{
    m_grid.InstallMessageHook(); // the window is the dialog template's
    m_grid.SetDoubleBuffering();
    m_grid.EnableSelection(FALSE); // the cross says where one is
    m_grid.SetGridBkColor(::GetSysColor(COLOR_WINDOW));
    m_grid.SetGridLineColor(RGB(222, 226, 232));
    m_grid.SetRowCount(eFirstMember + kMemberCount);
    m_grid.SetColumnCount(1 + kCases);
    m_grid.SetFixedRowCount(1);
    m_grid.SetFixedColumnCount(1);
    MakeHeadings();
    FillBody();
    m_grid.ExpandColumnsToFit();
    m_grid.SetFocusCell(eFirstMember + 1, 3);
    return TRUE;
}

/// Takes numbers only, and works out the column's extremes again.
bool CCrossGridPageDialog::OnExtGrid2EndEdit(int nId, CCellID cell, const CString* pText)
{
    double dForce = 0.0;
    const bool bAccepted = gfnParseDouble(*pText, dForce);
    Log(_T("Forces"), _T("OnExtGrid2EndEdit(%d, cell %d,%d, \"%s\")   %s"), nId, cell.row, cell.col,
        pText->GetString(), gOtLang.Do(bAccepted ? _T("accepted") : _T("refused")).GetString());
    if (bAccepted)
        ShowExtremes(cell.col);
    return bAccepted;
}

/// To the largest force of the current column.
void CCrossGridPageDialog::OnGoToLargest()
{
    const int nCol = std::max(m_grid.GetFocusCell().col, 1);
    int nLargest = eFirstMember;
    for (int nRow = eFirstMember; nRow < m_grid.GetRowCount(); ++nRow)
    {
        if (ForceAt(nRow, nCol) > ForceAt(nLargest, nCol))
            nLargest = nRow;
    }
    m_grid.SetFocusCell(nLargest, nCol);
    m_grid.EnsureVisible(nLargest, nCol); // making a cell current does not scroll
    m_grid.SetFocus();
}

// ---- Contents ---------------------------------------------------------------------------------------------

void CCrossGridPageDialog::MakeHeadings()
{
    m_grid.SetItemText(0, 0, gOtLang.Do(_T("Forces [kN]")));
    m_grid.SetItemText(eLargest, 0, gOtLang.Do(_T("Largest")));
    m_grid.SetItemText(eSmallest, 0, gOtLang.Do(_T("Smallest")));
    for (int nRow = eFirstMember; nRow < m_grid.GetRowCount(); ++nRow)
        m_grid.SetItemTextFmt(nRow, 0, gOtLang.Do(_T("Member %d")), nRow - eFirstMember + 1);
    for (int nCol = 1; nCol <= kCases; ++nCol)
        m_grid.SetItemTextFmt(0, nCol, gOtLang.Do(_T("LC %d")), nCol);
    for (int nCol = 0; nCol <= kCases; ++nCol)
        m_grid.SetItemFormat(0, nCol, GV_HEADING_FORMAT);
}

void CCrossGridPageDialog::FillBody()
{
    for (int nCol = 1; nCol <= kCases; ++nCol)
    {
        for (int nRow = 1; nRow < m_grid.GetRowCount(); ++nRow)
            m_grid.SetItemFormat(nRow, nCol, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
        for (int nRow = eFirstMember; nRow < m_grid.GetRowCount(); ++nRow)
            m_grid.SetItemTextFmt(nRow, nCol, _T("%.1f"), 40.0 * nCol * std::sin(nRow * 0.9 + nCol * nCol));
        for (const int nRow : {eLargest, eSmallest})
        {
            m_grid.SetItemBkColour(nRow, nCol, kBand); // before the cross has passed over it
            m_grid.SetItemState(nRow, nCol, m_grid.GetItemState(nRow, nCol) | CELL_READONLY);
        }
        ShowExtremes(nCol);
    }
}

void CCrossGridPageDialog::ShowExtremes(int nCol)
{
    double dLargest = ForceAt(eFirstMember, nCol);
    double dSmallest = dLargest;
    for (int nRow = eFirstMember; nRow < m_grid.GetRowCount(); ++nRow)
    {
        dLargest = std::max(dLargest, ForceAt(nRow, nCol));
        dSmallest = std::min(dSmallest, ForceAt(nRow, nCol));
    }
    m_grid.SetItemTextFmt(eLargest, nCol, _T("%.1f"), dLargest);
    m_grid.SetItemTextFmt(eSmallest, nCol, _T("%.1f"), dSmallest);
    m_grid.RedrawColumn(nCol);
}
} // namespace

void AddCrossGridPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CCrossGridPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageCrossGrid, _T("Cross grid"), pDialog),
                    manager.GetPage(ePageSteelSchedule));
}
