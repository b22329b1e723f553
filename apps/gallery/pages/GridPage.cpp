// Grid: a parts list to edit, size, sort, select and save.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

namespace
{
enum EColumn
{
    eMark,
    eProfile,
    eLength,
    eCount,
    eWeight,
    eRemark,
    eColumnCount
};

struct Part
{
    LPCTSTR profile;
    int icon; ///< of the profile icons in CGridCtrl::GridImageList
    double kgPerMetre;
    int length; ///< millimetres
    int count;
    LPCTSTR remark;
};

const Part kParts[] = {
    {_T("IPE 200"), 0, 22.4, 6000, 12, _T("rafter")},
    {_T("IPE 300"), 0, 42.2, 7850, 6, _T("main beam")},
    {_T("HEA 160"), 0, 30.4, 4200, 8, _T("column")},
    {_T("UPN 140"), 1, 16.0, 3100, 10, _T("")},
    {_T("UPN 200"), 1, 25.3, 5400, 4, _T("edge beam")},
    {_T("L 60x60x6"), 3, 5.4, 1250, 32, _T("bracing")},
    {_T("L 80x80x8"), 3, 9.7, 1480, 16, _T("bracing")},
    {_T("HEB 200"), 0, 61.3, 4200, 2, _T("corner column")},
    {_T("IPE 160"), 0, 15.8, 2400, 24, _T("purlin")},
    {_T("UPN 100"), 1, 10.6, 900, 18, _T("console")},
    {_T("L 50x50x5"), 3, 3.8, 640, 40, _T("cleat")},
    {_T("HEA 240"), 0, 60.3, 5100, 4, _T("")},
};

class CGridPageDialog : public CGalleryPageDialog
{
public:
    explicit CGridPageDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_GRID, host) {}

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_GRID, m_grid);
    }
    int OnInitPageDialog() override
    {
        m_grid.SetImageList(&CGridCtrl::GridImageList);
        m_grid.SetDoubleBuffering();
        m_grid.SetHeaderSort();
        m_grid.SetCompareFunction(CompareCells);
        m_grid.SetTextBkColor(RGB(255, 255, 255));
        m_grid.SetGridBkColor(::GetSysColor(COLOR_WINDOW));
        m_grid.SetGridLineColor(RGB(222, 226, 232));
        MakeHeadings();
        for (const Part& part : kParts)
            AddPart(part);
        FitColumns();
        m_grid.SetModified(FALSE);
        m_grid.SetFocusCell(1, eLength);
        CheckDlgButton(IDC_GRID_SORT, TRUE);
        CheckDlgButton(IDC_GRID_LINES, TRUE);
        return TRUE;
    }

    afx_msg void OnAdd()
    {
        AddPart(kParts[(m_grid.GetRowCount() - 1) % std::size(kParts)]);
        const int nRow = m_grid.GetRowCount() - 1;
        m_grid.SetFocusCell(nRow, eProfile);
        m_grid.EnsureVisible(nRow, eProfile);
        m_grid.Refresh();
    }
    afx_msg void OnDelete()
    {
        const CCellRange range = m_grid.GetSelectedCellRange();
        for (int nRow = range.maxRow; nRow >= range.minRow; --nRow)
            m_grid.DeleteRow(nRow);
        m_grid.Refresh();
    }
    afx_msg void OnFit()
    {
        FitColumns();
        m_grid.Refresh();
    }
    afx_msg void OnSave()
    {
        TCHAR szDirectory[MAX_PATH];
        ::GetTempPath(MAX_PATH, szDirectory);
        const CString strPath = CString(szDirectory) + _T("parts.csv");
        if (m_grid.Save(strPath, _T(';')))
            Log(_T("Parts list"), _T("saved as %s"), strPath.GetString());
    }
    afx_msg void OnSettings()
    {
        if ((IsDlgButtonChecked(IDC_GRID_LIST_MODE) != 0) != (m_grid.GetListMode() != FALSE))
            m_grid.SetListMode(IsDlgButtonChecked(IDC_GRID_LIST_MODE));
        m_grid.SetHeaderSort(IsDlgButtonChecked(IDC_GRID_SORT));
        m_grid.SetEnterIsTab(IsDlgButtonChecked(IDC_GRID_ENTER));
        m_grid.SetGridLines(IsDlgButtonChecked(IDC_GRID_LINES) ? GVL_BOTH : GVL_NONE);
    }
    afx_msg void OnFocusMoved(NMHDR* pHeader, LRESULT* pResult)
    {
        Tell(_T("LVN_ITEMCHANGED"), pHeader, pResult);
    }
    afx_msg void OnDoubleClick(NMHDR* pHeader, LRESULT* pResult) { Tell(_T("NM_DBLCLK"), pHeader, pResult); }
    afx_msg void OnRightClick(NMHDR* pHeader, LRESULT* pResult) { Tell(_T("NM_RCLICK"), pHeader, pResult); }
    afx_msg void OnBeginEdit(NMHDR* pHeader, LRESULT* pResult)
    {
        Tell(_T("LVN_BEGINLABELEDIT"), pHeader, pResult);
    }
    /// Refuses what is no positive number in the columns of numbers, and works out the weight.
    afx_msg void OnEndEdit(NMHDR* pHeader, LRESULT* pResult)
    {
        const auto& record = reinterpret_cast<GridNotify&>(*pHeader);
        const bool bNumber = record.iColumn == eLength || record.iColumn == eCount;
        const bool bRefused = bNumber && _wtoi(m_grid.GetItemText(record.iRow, record.iColumn)) <= 0;
        Tell(bRefused ? _T("LVN_ENDLABELEDIT, refused") : _T("LVN_ENDLABELEDIT"), pHeader, pResult);
        *pResult = bRefused ? -1 : 0;
        if (bNumber && !bRefused)
            ShowWeight(record.iRow);
    }
    DECLARE_MESSAGE_MAP()

private:
    void Tell(LPCTSTR pszWhat, NMHDR* pHeader, LRESULT* pResult)
    {
        const auto& record = reinterpret_cast<GridNotify&>(*pHeader);
        *pResult = 0;
        Log(_T("Parts list"), _T("%s  row %d, column %d"), gOtLang.Do(pszWhat).GetString(), record.iRow,
            record.iColumn);
    }

    /// As wide as the contents and the sort arrow want, and the last one up to the edge.
    void FitColumns()
    {
        constexpr int kArrow = 16;
        m_grid.AutoSizeColumns();
        for (int nCol = 0; nCol < eColumnCount; ++nCol)
            m_grid.SetColumnWidth(nCol, m_grid.GetColumnWidth(nCol) + kArrow, TRUE);
        m_grid.ExpandLastColumn();
    }

    /// Numbers by their value, all else by its text.
    static int CompareCells(LPARAM lFirst, LPARAM lSecond, LPARAM lData)
    {
        const double dFirst = _wtof(reinterpret_cast<CGridCellBase*>(lFirst)->GetText());
        const double dSecond = _wtof(reinterpret_cast<CGridCellBase*>(lSecond)->GetText());
        if (dFirst != 0 && dSecond != 0)
            return (dFirst > dSecond) - (dFirst < dSecond);
        return CGridCtrl::pfnCellTextCompare(lFirst, lSecond, lData);
    }

    void MakeHeadings()
    {
        static constexpr LPCTSTR kHeadings[] = {_T("Part"),   _T("Profile"),     _T("Length [mm]"),
                                                _T("Pieces"), _T("Weight [kg]"), _T("Remark")};
        m_grid.SetRowCount(1);
        m_grid.SetColumnCount(eColumnCount);
        m_grid.SetFixedRowCount(1);
        m_grid.SetFixedColumnCount(1);
        for (int nCol = 0; nCol < eColumnCount; ++nCol)
        {
            m_grid.SetItemText(0, nCol, gOtLang.Do(kHeadings[nCol]));
            m_grid.SetItemFormat(0, nCol, GV_HEADING_FORMAT);
        }
    }

    void AddPart(const Part& part)
    {
        CString strMark;
        strMark.Format(_T("P%02d"), m_grid.GetRowCount());
        const int nRow = m_grid.InsertRow(strMark, -1);
        m_grid.SetRowHeight(nRow, m_grid.GetDefCellHeight());
        m_grid.SetItemFormat(nRow, eMark, GV_HEADING_FORMAT);
        m_grid.SetItemText(nRow, eProfile, part.profile);
        m_grid.SetItemImage(nRow, eProfile, CGridCtrl::nFirstGridIconIdx + part.icon);
        m_grid.SetItemTextFmt(nRow, eLength, _T("%d"), part.length);
        m_grid.SetItemTextFmt(nRow, eCount, _T("%d"), part.count);
        m_grid.SetItemText(nRow, eRemark, part.remark);
        m_grid.SetItemData(nRow, eWeight, static_cast<LPARAM>(part.kgPerMetre * 10));
        for (const int nCol : {eLength, eCount, eWeight})
            m_grid.SetItemFormat(nRow, nCol, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
        m_grid.SetItemState(nRow, eWeight, m_grid.GetItemState(nRow, eWeight) | CELL_READONLY);
        m_grid.SetItemFgColour(nRow, eWeight, RGB(96, 100, 108));
        ShowWeight(nRow);
    }

    void ShowWeight(int nRow)
    {
        const double dLength = _wtoi(m_grid.GetItemText(nRow, eLength)) / 1000.0;
        const double dPieces = _wtoi(m_grid.GetItemText(nRow, eCount));
        const double dPerMetre = m_grid.GetItemData(nRow, eWeight) / 10.0;
        m_grid.SetItemTextFmt(nRow, eWeight, _T("%.1f"), dLength * dPieces * dPerMetre);
        m_grid.RedrawCell(nRow, eWeight);
    }

    CGridCtrl m_grid;
};

BEGIN_MESSAGE_MAP(CGridPageDialog, CGalleryPageDialog)
    ON_BN_CLICKED(IDC_GRID_ADD, &CGridPageDialog::OnAdd)
    ON_BN_CLICKED(IDC_GRID_DELETE, &CGridPageDialog::OnDelete)
    ON_BN_CLICKED(IDC_GRID_FIT, &CGridPageDialog::OnFit)
    ON_BN_CLICKED(IDC_GRID_SAVE, &CGridPageDialog::OnSave)
    ON_BN_CLICKED(IDC_GRID_LIST_MODE, &CGridPageDialog::OnSettings)
    ON_BN_CLICKED(IDC_GRID_SORT, &CGridPageDialog::OnSettings)
    ON_BN_CLICKED(IDC_GRID_ENTER, &CGridPageDialog::OnSettings)
    ON_BN_CLICKED(IDC_GRID_LINES, &CGridPageDialog::OnSettings)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_GRID, &CGridPageDialog::OnFocusMoved)
    ON_NOTIFY(NM_DBLCLK, IDC_GRID, &CGridPageDialog::OnDoubleClick)
    ON_NOTIFY(NM_RCLICK, IDC_GRID, &CGridPageDialog::OnRightClick)
    ON_NOTIFY(LVN_BEGINLABELEDITW, IDC_GRID, &CGridPageDialog::OnBeginEdit)
    ON_NOTIFY(LVN_ENDLABELEDITW, IDC_GRID, &CGridPageDialog::OnEndEdit)
END_MESSAGE_MAP()
} // namespace

void AddGridPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CGridPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageGrid, _T("Grid"), pDialog), nullptr);
}
