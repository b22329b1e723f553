// Steel schedule: the members of a frame, one a row, in cells that know what they hold, and with units to be
// chosen.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

#include <vector>

namespace
{
enum EColumn
{
    eNumber,
    eProfile,
    eLength,
    eWeight,
    eCount,
    eGalvanised,
    eColor,
    eColumnCount
};

struct SMember
{
    LPCTSTR pszProfile;
    double dLength; ///< metres
    double dWeight; ///< newtons, of one piece
    int nCount;
    bool bGalvanised;
    int nColor; ///< the CAD host's colour index of its layer
};

constexpr SMember kMembers[] = {
    {_T("HEA 240"), 5.1, 3017, 4, false, 30},     {_T("HEB 200"), 4.2, 2526, 2, false, 30},
    {_T("IPE 300"), 7.85, 3250, 6, false, 150},   {_T("IPE 200"), 6.0, 1319, 12, true, 150},
    {_T("UPN 140"), 3.1, 487, 10, true, 92},      {_T("L 80x80x8"), 1.48, 141, 16, true, 210},
    {_T("L 60x60x6"), 1.25, 66.3, 32, true, 210}, {_T("IPE 160"), 2.4, 372, 24, false, 52},
};

constexpr double kLongest = 18.0; ///< metres: what a lorry carries

/// A unit that the user can choose for a column, with the decimals that suit it.
struct SUnitChoice
{
    UINT nButtonId;
    int nUnit;
    int nKind;
    int nDecimals;
};

constexpr SUnitChoice kLengthUnits[] = {
    {IDC_SCHEDULE_MM, CMeasurementUnit::eMillimetre, CMeasurementUnit::eLength, 0},
    {IDC_SCHEDULE_CM, CMeasurementUnit::eCentimetre, CMeasurementUnit::eLength, 1},
    {IDC_SCHEDULE_M, CMeasurementUnit::eMetre, CMeasurementUnit::eLength, 3},
    {IDC_SCHEDULE_FT, CMeasurementUnit::eFoot, CMeasurementUnit::eLength, 2},
};
constexpr SUnitChoice kWeightUnits[] = {
    {IDC_SCHEDULE_N, CMeasurementUnit::eNewton, CMeasurementUnit::eForce, 0},
    {IDC_SCHEDULE_KN, CMeasurementUnit::eKilonewton, CMeasurementUnit::eForce, 3},
};

class CSteelSchedulePageDialog : public CGalleryPageDialog, public AExtGridCtrlNotificationHandler
{
public:
    explicit CSteelSchedulePageDialog(CGalleryHostDialog& host)
        : CGalleryPageDialog(IDD_PAGE_STEEL_SCHEDULE, host)
    {
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_SCHEDULE, m_grid);
    }
    int OnInitPageDialog() override;

    void OnExtGridRowChanged(int nId, int nRow, int nPrevRow) override
    {
        Log(_T("Steel schedule"), _T("OnExtGridRowChanged(%d, row %d, before %d)"), nId, nRow, nPrevRow);
        ShowStored(nRow);
    }
    bool OnExtGridEndEdit(int nId, int nRow, int nCol, const CString* pText) override;
    void OnExtGridRClick(int nId, int nRow) override
    {
        Log(_T("Steel schedule"), _T("OnExtGridRClick(%d, row %d)"), nId, nRow);
    }

    afx_msg void OnLengthUnit(UINT nId) { ShowLengthsIn(kLengthUnits[nId - IDC_SCHEDULE_MM]); }
    afx_msg void OnWeightUnit(UINT nId)
    {
        ShowColumnIn(kWeightUnits[nId - IDC_SCHEDULE_N], eWeight, _T("Weight"));
    }
    afx_msg void OnCheckClicked(NMHDR* pHeader, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    template <class Cell>
    Cell& CellAt(int nRow, int nCol) const
    {
        return static_cast<Cell&>(*m_grid.GetCell(nRow, nCol));
    }
    CLimitedDoubleCell& Number(int nRow, int nCol) const { return CellAt<CLimitedDoubleCell>(nRow, nCol); }

    void MakeHeadings();
    void AddMember(const SMember& member);
    void MakeCells(int nRow);
    void SizeColumns();
    void ShowColumnIn(const SUnitChoice& choice, int nCol, LPCTSTR pszHeading);
    void ShowLengthsIn(const SUnitChoice& choice);
    void ShowStored(int nRow);

    CExtGridCtrl m_grid{this};
    CStringArray m_profiles;
};

BEGIN_MESSAGE_MAP(CSteelSchedulePageDialog, CGalleryPageDialog)
    ON_COMMAND_RANGE(IDC_SCHEDULE_MM, IDC_SCHEDULE_FT, &CSteelSchedulePageDialog::OnLengthUnit)
    ON_COMMAND_RANGE(IDC_SCHEDULE_N, IDC_SCHEDULE_KN, &CSteelSchedulePageDialog::OnWeightUnit)
    ON_NOTIFY(GVN_CHECKCLICKED, IDC_SCHEDULE, &CSteelSchedulePageDialog::OnCheckClicked)
END_MESSAGE_MAP()

int CSteelSchedulePageDialog::OnInitPageDialog()
{
    for (const SMember& member : kMembers)
        m_profiles.Add(member.pszProfile);

    m_grid.InstallMessageHook(); // the window is the dialog template's
    m_grid.SetDoubleBuffering();
    m_grid.EnableSelection(FALSE); // the current row says where one is
    m_grid.SetGridBkColor(::GetSysColor(COLOR_WINDOW));
    m_grid.SetGridLineColor(RGB(222, 226, 232));
    MakeHeadings();
    for (const SMember& member : kMembers)
        AddMember(member);

    CheckRadioButton(IDC_SCHEDULE_MM, IDC_SCHEDULE_FT, IDC_SCHEDULE_MM);
    CheckRadioButton(IDC_SCHEDULE_N, IDC_SCHEDULE_KN, IDC_SCHEDULE_KN);
    OnLengthUnit(IDC_SCHEDULE_MM);
    OnWeightUnit(IDC_SCHEDULE_KN);
    SizeColumns();
    m_grid.SetFocusCell(1, eLength);
    return TRUE;
}

// The cell has looked at a number by itself; what is left is a profile without a name.
bool CSteelSchedulePageDialog::OnExtGridEndEdit(int nId, int nRow, int nCol, const CString* pText)
{
    const bool bAccepted = !pText->IsEmpty();
    Log(_T("Steel schedule"), _T("OnExtGridEndEdit(%d, row %d, column %d, \"%s\")   %s"), nId, nRow, nCol,
        pText->GetString(), gOtLang.Do(bAccepted ? _T("accepted") : _T("refused")).GetString());
    if (bAccepted)
        ShowStored(nRow);
    return bAccepted;
}

void CSteelSchedulePageDialog::OnCheckClicked(NMHDR* pHeader, LRESULT* pResult)
{
    const int nRow = reinterpret_cast<GridNotify&>(*pHeader).iRow;
    *pResult = 0;
    Log(_T("Steel schedule"), _T("GVN_CHECKCLICKED  row %d"), nRow);
    ShowStored(nRow);
}

// ---- The schedule -----------------------------------------------------------------------------------------

void CSteelSchedulePageDialog::MakeHeadings()
{
    m_grid.SetRowCount(1);
    m_grid.SetColumnCount(eColumnCount);
    m_grid.SetFixedRowCount(1);
    m_grid.SetFixedColumnCount(1);
    m_grid.SetItemText(0, eNumber, gOtLang.Do(_T("No.")));
    m_grid.SetItemText(0, eProfile, gOtLang.Do(_T("Profile")));
    m_grid.SetItemText(0, eCount, gOtLang.Do(_T("Pieces")));
    m_grid.SetItemText(0, eGalvanised, gOtLang.Do(_T("Galvanised")));
    m_grid.SetItemText(0, eColor, gOtLang.Do(_T("Layer colour")));
    for (int nCol = 0; nCol < eColumnCount; ++nCol)
        m_grid.SetItemFormat(0, nCol, GV_HEADING_FORMAT);
}

void CSteelSchedulePageDialog::AddMember(const SMember& member)
{
    constexpr int kRowHeight = 20; // pixels: room for swatch and arrow
    CString strNumber;
    strNumber.Format(_T("%d"), m_grid.GetRowCount());
    const int nRow = m_grid.InsertRow(strNumber);
    m_grid.SetRowHeight(nRow, kRowHeight);
    MakeCells(nRow);

    m_grid.SetItemText(nRow, eProfile, member.pszProfile);
    Number(nRow, eLength).Set(eLength, member.dLength);
    Number(nRow, eWeight).Set(eWeight, member.dWeight);
    CellAt<CLimitedIntCell>(nRow, eCount).Set(member.nCount);
    CellAt<CGridCellCheck>(nRow, eGalvanised).SetCheck(member.bGalvanised);
    CellAt<CGridCellColorCombo>(nRow, eColor).PostaviMastAci(member.nColor);
}

void CSteelSchedulePageDialog::MakeCells(int nRow)
{
    m_grid.SetCellType(nRow, eProfile, RUNTIME_CLASS(CGridCellCombo));
    m_grid.SetCellType(nRow, eLength, RUNTIME_CLASS(CLimitedDoubleCell));
    m_grid.SetCellType(nRow, eWeight, RUNTIME_CLASS(CLimitedDoubleCell));
    m_grid.SetCellType(nRow, eCount, RUNTIME_CLASS(CLimitedIntCell));
    m_grid.SetCellType(nRow, eGalvanised, RUNTIME_CLASS(CGridCellCheck));
    m_grid.SetCellType(nRow, eColor, RUNTIME_CLASS(CGridCellColorCombo));

    CellAt<CGridCellCombo>(nRow, eProfile).SetOptions(m_profiles);
    Number(nRow, eLength).SetLocalMin(0.0, FALSE);
    Number(nRow, eWeight).SetLocalMin(0.0, FALSE);
    CellAt<CLimitedIntCell>(nRow, eCount).SetMin(1, TRUE);
    CellAt<CLimitedIntCell>(nRow, eCount).SetMax(999, TRUE);

    m_grid.SetItemFormat(nRow, eNumber, GV_HEADING_FORMAT);
    m_grid.SetItemFormat(nRow, eProfile, DT_LEFT | DT_VCENTER | DT_SINGLELINE);
    for (const int nCol : {eLength, eWeight, eCount})
        m_grid.SetItemFormat(nRow, nCol, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
    // An edit has nothing to do where a click chooses.
    for (const int nCol : {eGalvanised, eColor})
        m_grid.SetItemState(nRow, nCol, m_grid.GetItemState(nRow, nCol) | CELL_READONLY);
}

void CSteelSchedulePageDialog::SizeColumns()
{
    constexpr int kWidths[] = {34, 104, 92, 92, 64, 82};
    for (int nCol = 0; nCol < eColor; ++nCol)
        m_grid.SetColumnWidth(nCol, kWidths[nCol], TRUE);
    m_grid.ExpandLastColumn();
}

// ---- Units ------------------------------------------------------------------------------------------------

/// The values stay and their texts change: each is got in the column's old unit and set in the new one.
void CSteelSchedulePageDialog::ShowColumnIn(const SUnitChoice& choice, int nCol, LPCTSTR pszHeading)
{
    std::vector<double> values;
    for (int nRow = 1; nRow < m_grid.GetRowCount(); ++nRow)
        values.push_back(Number(nRow, nCol).Get(nCol));
    CComplexUnit unit(CMeasurementUnit(choice.nUnit, choice.nKind));
    m_grid.SetColDescription(nCol, &unit, pszHeading);
    for (int nRow = 1; nRow < m_grid.GetRowCount(); ++nRow)
    {
        Number(nRow, nCol).SetBrojDecimala(choice.nDecimals);
        Number(nRow, nCol).Set(nCol, values[nRow - 1]);
    }
    m_grid.Refresh();
}

void CSteelSchedulePageDialog::ShowLengthsIn(const SUnitChoice& choice)
{
    ShowColumnIn(choice, eLength, _T("Length"));
    const CComplexUnit unit(CMeasurementUnit(choice.nUnit, choice.nKind));
    for (int nRow = 1; nRow < m_grid.GetRowCount(); ++nRow)
        Number(nRow, eLength).SetLocalMax(unit.ToLocal(kLongest), TRUE);
}

/// What the cells hold, in global units.
void CSteelSchedulePageDialog::ShowStored(int nRow)
{
    CString strText;
    strText.Format(gOtLang.Do(_T("Stored: %s, %g m, %g N, %d pieces, %s, colour %d")),
                   m_grid.GetItemText(nRow, eProfile).GetString(), Number(nRow, eLength).Get(eLength),
                   Number(nRow, eWeight).Get(eWeight), CellAt<CLimitedIntCell>(nRow, eCount).Get(),
                   gOtLang
                       .Do(CellAt<CGridCellCheck>(nRow, eGalvanised).GetCheck() ? _T("galvanised")
                                                                                : _T("not galvanised"))
                       .GetString(),
                   CellAt<CGridCellColorCombo>(nRow, eColor).DajMastAci());
    SetDlgItemText(IDC_SCHEDULE_STORED, strText);
}
} // namespace

void AddSteelSchedulePage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CSteelSchedulePageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageSteelSchedule, _T("Steel schedule"), pDialog), nullptr);
}
