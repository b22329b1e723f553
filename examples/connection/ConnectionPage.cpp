#include <afxwin.h>

#include "ConnectionPage.h"

#include "ConnectionDialog.h"

CConnectionPageDialog::CConnectionPageDialog(UINT nTemplateId, CConnectionDialog& host)
    : CPageDialog(nTemplateId, &host), m_host(host)
{
}

void CConnectionPageDialog::BindControlsToSources(bool bBind, CPage*)
{
    if (bBind)
        ShowValues(Fitted());
}

BOOL CConnectionPageDialog::OnInitDialog()
{
    gOtLang.TranslateDialog(this); // before the controls are bound and filled
    SetWindowPos(m_host.GetDlgItem(IDC_PAGE_FRAME), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    return CPageDialog::OnInitDialog();
}

BOOL CConnectionPageDialog::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_F6)
    {
        m_host.LeavePage();
        return TRUE;
    }
    const bool bOfPage = ::GetParent(pMsg->hwnd) == m_hWnd;
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE && bOfPage &&
        !::SendMessage(pMsg->hwnd, CB_GETDROPPEDSTATE, 0, 0))
    {
        m_host.PostMessage(WM_COMMAND, IDCANCEL);
        return TRUE;
    }
    return CPageDialog::PreTranslateMessage(pMsg);
}

Connection& CConnectionPageDialog::Wanted()
{
    return m_host.Wanted();
}

const FittedConnection& CConnectionPageDialog::Fitted() const
{
    return m_host.Fitted();
}

// A box that the user types in has this value and these limits already: nothing is written to it.
void CConnectionPageDialog::ShowLength(CEditDoubleWithRange& edit, double value_m, const Limits& limits)
{
    const CComplexUnit unit = LengthFormat().Unit();
    if (edit.GetComplexUnit().Symbol() != unit.Symbol() || !edit.IsComplexUnitEnabled())
    {
        edit.SetComplexUnit(unit);
        edit.SetFormat(eDoubleFormatFixed, DecimalsOfBoxes());
        edit.SetSpinStep(unit.ToLocal(kMillimetre_m));
    }
    edit.SetRange(limits.min_m, limits.max_m);
    edit.SetValue(value_m);
    CString strLimits;
    strLimits.Format(_T("%.4g - %.4g %s"), unit.ToLocal(limits.min_m), unit.ToLocal(limits.max_m),
                     unit.Symbol().GetString());
    SetDlgItemText(edit.GetDlgCtrlID() + IDC_LIMITS_OF, strLimits);
}

CFormatJedinice CConnectionPageDialog::LengthFormat() const
{
    return ToFormat(Fitted().values.lengths);
}

/// With decimals enough for a tenth of a millimetre.
CString CConnectionPageDialog::LengthText(double length_m) const
{
    const CComplexUnit unit = LengthFormat().Unit();
    return gfnFormatDouble(gfnDoublePrintfFormat(eDoubleFormatFixed, DecimalsOfBoxes()),
                           unit.ToLocal(length_m)) +
           _T(" ") + unit.Symbol();
}

int CConnectionPageDialog::DecimalsOfBoxes() const
{
    static constexpr int kDecimals[] = {4, 2, 1, 3, 3, 4}; // by the number of the unit
    return kDecimals[Fitted().values.lengths.unit];
}

CFormatJedinice ToFormat(const LengthStyle& style)
{
    CFormatJedinice format;
    format.nUnitIndex = style.unit;
    format.nCheckFlag = style.symbol;
    format.nEditValue = style.decimals;
    return format;
}

void SetUpGrid(CGridCtrl& grid, int nRows, int nColumns)
{
    constexpr int kRowHeight = 18; // pixels: room for a swatch
    grid.SetDoubleBuffering();
    grid.EnableSelection(FALSE);
    grid.SetGridBkColor(::GetSysColor(COLOR_WINDOW));
    grid.SetGridLineColor(RGB(222, 226, 232));
    grid.SetRowCount(nRows);
    grid.SetColumnCount(nColumns);
    grid.SetFixedRowCount(1);
    for (int nRow = 0; nRow < nRows; ++nRow)
        grid.SetRowHeight(nRow, kRowHeight);
    for (int nCol = 0; nCol < nColumns; ++nCol)
        grid.SetItemFormat(0, nCol, GV_HEADING_FORMAT);
}
