// Virtual grid: a million rows of which none is stored.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

#include <cmath>

namespace
{
constexpr int kNodes = 1000000;
constexpr int kColumns = 6;

class CVirtualGridPageDialog : public CGalleryPageDialog
{
public:
    explicit CVirtualGridPageDialog(CGalleryHostDialog& host)
        : CGalleryPageDialog(IDD_PAGE_VIRTUAL_GRID, host)
    {
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_VIRTUAL_GRID, m_grid);
    }
    int OnInitPageDialog() override
    {
        m_grid.SetVirtualMode(TRUE);
        m_grid.SetCallbackFunc(FillCell, reinterpret_cast<LPARAM>(this));
        m_grid.SetDoubleBuffering();
        m_grid.SetListMode();
        m_grid.SetGridLineColor(RGB(222, 226, 232));
        m_grid.SetGridBkColor(::GetSysColor(COLOR_WINDOW));
        m_grid.SetColumnCount(kColumns);
        m_grid.SetRowCount(kNodes + 1);
        m_grid.SetFixedRowCount(1);
        m_grid.SetFixedColumnCount(1);
        m_grid.ExpandColumnsToFit();
        SetDlgItemText(IDC_VIRTUAL_ROW, _T("500000"));
        return TRUE;
    }

    afx_msg void OnGo()
    {
        const int nRow = static_cast<int>(GetDlgItemInt(IDC_VIRTUAL_ROW));
        if (nRow < 1 || nRow > kNodes)
            return;
        // The bar is set, not walked to: a step for each of half a million lines would take its time.
        m_grid.SetFocusCell(nRow, 1);
        m_grid.SetSelectedRange(nRow, 1, nRow, kColumns - 1);
        m_grid.ShowRow(nRow);
        m_grid.SetFocus();
    }
    afx_msg void OnFocusMoved(NMHDR* pHeader, LRESULT* pResult)
    {
        *pResult = 0;
        Log(_T("Nodes"), _T("LVN_ITEMCHANGED  row %d"), reinterpret_cast<GridNotify&>(*pHeader).iRow);
    }
    afx_msg void OnCacheHint(NMHDR* pHeader, LRESULT* pResult)
    {
        *pResult = 0;
        const CCellRange& range = reinterpret_cast<GridCacheHint&>(*pHeader).range;
        if (range == CCellRange())
            return;
        CString strText;
        strText.Format(gOtLang.Do(_T("About to be asked for rows %d to %d")), range.minRow, range.maxRow);
        SetDlgItemText(IDC_VIRTUAL_ASKED, strText);
    }
    DECLARE_MESSAGE_MAP()

private:
    class CNodesGrid : public CGridCtrl
    {
    public:
        void ShowRow(int nRow)
        {
            SetScrollPos32(SB_VERT, (nRow - 1) * GetRowHeight(nRow));
            Refresh();
        }
    };

    /// What the cell shows: headings, the node's number, its place and its load.
    static int FillCell(GV_DISPINFO* pInfo, LPARAM)
    {
        static constexpr LPCTSTR kHeadings[kColumns] = {_T("Node"),  _T("x [m]"),  _T("y [m]"),
                                                        _T("z [m]"), _T("F [kN]"), _T("Support")};
        GV_ITEM& item = pInfo->item;
        if (item.row == 0)
        {
            item.strText = gOtLang.Do(kHeadings[item.col]);
            item.nFormat = GV_HEADING_FORMAT;
            return 0;
        }
        const int nNode = item.row - 1;
        item.nFormat = (item.col == 0 ? DT_CENTER : DT_RIGHT) | DT_VCENTER | DT_SINGLELINE;
        switch (item.col)
        {
        case 0:
            item.strText.Format(_T("%d"), item.row);
            break;
        case 1:
            item.strText.Format(_T("%.3f"), nNode % 100 * 1.25);
            break;
        case 2:
            item.strText.Format(_T("%.3f"), nNode / 100 % 100 * 0.8);
            break;
        case 3:
            item.strText.Format(_T("%.3f"), nNode / 10000 * 3.2);
            break;
        case 4:
            item.strText.Format(_T("%.2f"), 12.5 * std::sin(nNode * 0.37));
            if (item.strText[0] == _T('-'))
                item.crFgClr = RGB(176, 32, 32);
            break;
        default:
            item.strText = gOtLang.Do(nNode < 10000 && nNode % 25 == 0 ? _T("fixed") : _T(""));
        }
        return 0;
    }

    CNodesGrid m_grid;
};

BEGIN_MESSAGE_MAP(CVirtualGridPageDialog, CGalleryPageDialog)
    ON_BN_CLICKED(IDC_VIRTUAL_GO, &CVirtualGridPageDialog::OnGo)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_VIRTUAL_GRID, &CVirtualGridPageDialog::OnFocusMoved)
    ON_NOTIFY(LVN_ODCACHEHINT, IDC_VIRTUAL_GRID, &CVirtualGridPageDialog::OnCacheHint)
END_MESSAGE_MAP()
} // namespace

void AddVirtualGridPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CVirtualGridPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageVirtualGrid, _T("Virtual grid"), pDialog),
                    manager.GetPage(ePageGrid));
}
