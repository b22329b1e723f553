// Parts: the schedule. What follows from the connection is grey and cannot be edited.

#include <afxwin.h>

#include "ConnectionPage.h"
#include "Parts.h"

namespace
{
enum EColumn
{
    eMark,
    eDescription,
    eCount,
    eLength,
    eMass,
    eTotalMass,
    eColor,
    eColumnCount
};

class CPartsPageDialog : public CConnectionPageDialog, public AExtGridCtrlNotificationHandler
{
public:
    explicit CPartsPageDialog(CConnectionDialog& host) : CConnectionPageDialog(IDD_PAGE_PARTS, host) {}

    int OnInitPageDialog() override;
    void ShowValues(const FittedConnection& fitted) override;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CConnectionPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_PARTS, m_grid);
    }

    void OnExtGridRowChanged(int, int, int) override {}
    void OnExtGridRClick(int, int) override {}
    bool OnExtGridEndEdit(int, int nRow, int nCol, const CString* pText) override;

    afx_msg void OnGridClick(NMHDR* pHeader, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    template <class Cell>
    Cell& CellAt(int nPart, int nCol) const
    {
        return static_cast<Cell&>(*m_grid.GetCell(nPart + 1, nCol));
    }
    static bool IsEditable(int nPart, int nCol);
    void MakeRow(int nPart);
    void ShowLengthUnit();

    CExtGridCtrl m_grid{this};
};

BEGIN_MESSAGE_MAP(CPartsPageDialog, CConnectionPageDialog)
    ON_NOTIFY(NM_CLICK, IDC_PARTS, OnGridClick)
END_MESSAGE_MAP()

// A colour cell tells nobody of its choice, which has been made when the click is told.
void CPartsPageDialog::OnGridClick(NMHDR*, LRESULT* pResult)
{
    *pResult = 0;
    bool bChanged = false;
    for (int nPart = 0; nPart < ePartCount; ++nPart)
    {
        int& nColor = Wanted().parts[static_cast<size_t>(nPart)].color;
        const int nChosen = CellAt<CGridCellColorCombo>(nPart, eColor).DajMastAci();
        bChanged = bChanged || nColor != nChosen;
        nColor = nChosen;
    }
    if (bChanged)
        MyAttributeChanged();
}

int CPartsPageDialog::OnInitPageDialog()
{
    constexpr LPCTSTR kHeadings[] = {_T("Oznaka"), _T("Profil"), _T("Kom."), _T("Duzina"),
                                      _T("kg/kom"), _T("kg"),     _T("Boja")};
    constexpr int kWidths[] = {50, 88, 36, 78, 50, 52, 56};

    SetUpGrid(m_grid, 1 + ePartCount, eColumnCount);
    m_grid.InstallMessageHook(); // the window is the template's
    m_grid.SetPersistentGridColumnsWidth(_T("Connection parts"), 0);
    for (int nCol = 0; nCol < eColumnCount; ++nCol)
    {
        m_grid.SetItemText(0, nCol, Tr(kHeadings[nCol]));
        m_grid.SetColumnWidth(nCol, kWidths[nCol]); // the one of the last run, if there is one
    }
    for (int nPart = 0; nPart < ePartCount; ++nPart)
        MakeRow(nPart);
    m_grid.SetFocusCell(1, eMark);
    return TRUE;
}

void CPartsPageDialog::ShowValues(const FittedConnection& fitted)
{
    ShowLengthUnit();
    const auto parts = PartsOf(fitted.values);
    double dTotal_kg = 0;
    for (int nPart = 0; nPart < ePartCount; ++nPart)
    {
        const Part& part = parts[static_cast<size_t>(nPart)];
        const PartEntry& entry = fitted.values.parts[static_cast<size_t>(nPart)];
        m_grid.SetItemText(nPart + 1, eMark, entry.mark.c_str());
        m_grid.SetItemText(nPart + 1, eDescription, part.description.c_str());
        CellAt<CLimitedIntCell>(nPart, eCount).Set(part.count);
        CellAt<CLimitedDoubleCell>(nPart, eLength).Set(eLength, part.length_m);
        CellAt<CLimitedDoubleCell>(nPart, eMass).Set(eMass, part.mass_kg);
        CellAt<CLimitedDoubleCell>(nPart, eTotalMass).Set(eTotalMass, part.TotalMass_kg());
        CellAt<CGridCellColorCombo>(nPart, eColor).PostaviMastAci(entry.color);
        dTotal_kg += part.TotalMass_kg();
    }
    m_grid.Invalidate(FALSE);
    CString strTotal;
    strTotal.Format(Tr(_T("Ukupno %.1f kg")), dTotal_kg);
    SetDlgItemText(IDC_TOTAL_MASS, strTotal);
}

// Numbers have been taken by their cells.
bool CPartsPageDialog::OnExtGridEndEdit(int, int nRow, int nCol, const CString* pText)
{
    PartEntry& entry = Wanted().parts[static_cast<size_t>(nRow - 1)];
    if (nCol == eMark)
        entry.mark = pText->GetString();
    else if (nCol == eCount)
        entry.count = CellAt<CLimitedIntCell>(nRow - 1, eCount).Get();
    else if (nCol == eLength)
        entry.length_m = CellAt<CLimitedDoubleCell>(nRow - 1, eLength).Get(eLength);
    MyAttributeChanged();
    return true;
}

bool CPartsPageDialog::IsEditable(int nPart, int nCol)
{
    return nCol == eMark || (nCol == eCount && nPart != ePartBolts) ||
           (nCol == eLength && (nPart == ePartBeam || nPart == ePartColumn));
}

void CPartsPageDialog::MakeRow(int nPart)
{
    constexpr COLORREF kDerived = RGB(96, 96, 96);
    const int nRow = nPart + 1;
    m_grid.SetCellType(nRow, eCount, RUNTIME_CLASS(CLimitedIntCell));
    for (const int nCol : {eLength, eMass, eTotalMass})
        m_grid.SetCellType(nRow, nCol, RUNTIME_CLASS(CLimitedDoubleCell));
    m_grid.SetCellType(nRow, eColor, RUNTIME_CLASS(CGridCellColorCombo));
    CellAt<CLimitedIntCell>(nPart, eCount).SetMin(1, TRUE);
    CellAt<CLimitedIntCell>(nPart, eCount).SetMax(9999, TRUE);
    for (int nCol = eMark; nCol < eColumnCount; ++nCol)
    {
        if (nCol >= eCount)
            m_grid.SetItemFormat(nRow, nCol, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
        if (IsEditable(nPart, nCol))
            continue;
        m_grid.SetItemState(nRow, nCol, m_grid.GetItemState(nRow, nCol) | CELL_READONLY);
        if (nCol != eColor)
            m_grid.SetItemFgColour(nRow, nCol, kDerived);
    }
}

void CPartsPageDialog::ShowLengthUnit()
{
    CComplexUnit unit = LengthFormat().Unit();
    m_grid.SetColDescription(eLength, &unit, _T("Duzina"));
    for (int nPart = 0; nPart < ePartCount; ++nPart)
    {
        auto& length = CellAt<CLimitedDoubleCell>(nPart, eLength);
        length.SetBrojDecimala(LengthFormat().nUnitIndex == CMeasurementUnit::eMillimetre ? 0 : 3);
        length.SetLocalMin(0.0, FALSE);
    }
}
} // namespace

CConnectionPageDialog* NewPartsPage(CConnectionDialog& host)
{
    return new CPartsPageDialog(host);
}
