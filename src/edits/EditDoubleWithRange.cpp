#include <afxwin.h>

#include "edits/EditDoubleWithRange.h"

#include "module/HasWindow.h"

#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <optional>

using namespace ow;

namespace
{
// Stands for "no value". Computed when the library is loaded, and told from other NaNs by its bits.
const double g_dEmpty = std::fmod(1.0, 0.0);

constexpr DWORD kSpinStyle = WS_VISIBLE | UDS_ARROWKEYS | UDS_ALIGNRIGHT;
constexpr DWORD kUnitLabelStyle = WS_VISIBLE | SS_CENTERIMAGE;

// The spin only tells of presses: it stands in the middle of its range and can go both ways for ever.
constexpr short kSpinMin = 0, kSpinMax = 100, kSpinPos = 50;

// Just below a half: a number between two steps goes to the nearer one first and then one step on, and one
// that rounding has put a little beside its step goes exactly one step.
constexpr double kSnap = 0.4995;

/// The number `nDelta` steps from the base; nothing if no finite number is there. Whole numbers of steps are
/// counted in a double, so that a count of any size is defined.
std::optional<double> StepFrom(double dBase, double dStep, int nDelta)
{
    const double dCount = nDelta > 0 ? std::floor(dBase / dStep + kSnap) : std::ceil(dBase / dStep - kSnap);
    const double dNext = (dCount + nDelta) * dStep;
    return std::isfinite(dNext) ? std::optional(dNext) : std::nullopt;
}

CRect ClientRectOnScreen(const CWnd& wnd)
{
    CRect rect;
    wnd.GetClientRect(rect);
    wnd.ClientToScreen(rect);
    rect.NormalizeRect();
    return rect;
}

int ClientWidth(const CWnd& wnd)
{
    CRect rect;
    wnd.GetClientRect(rect);
    return rect.Width();
}

/// At the end of the dialog an own control would join its last group: radio buttons, say, whose arrow keys would
/// then lead into the spin.
void PutBehind(CWnd& own, const CWnd& box)
{
    own.SetWindowPos(&box, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

struct SLabelMetrics
{
    int nTextWidth = 1;
    int nGap = 1;
};

/// The width of a symbol and the gap in front of it, in the parent's font, in pixels.
SLabelMetrics MeasureLabel(CWnd& wnd, const CString& strSymbol)
{
    CClientDC dc(&wnd);
    CFont* pFont = wnd.GetParent()->GetFont(); // null: the context's own font is the one that is shown
    CFont* pOldFont = pFont ? dc.SelectObject(pFont) : nullptr;
    const SLabelMetrics metrics{dc.GetTextExtent(strSymbol).cx,
                                dc.GetTextExtent(L" ").cx + ::GetSystemMetrics(SM_CXEDGE)};
    if (pOldFont)
        dc.SelectObject(pOldFont);
    return metrics;
}
} // namespace

CEditDoubleWithRange::CEditDoubleWithRange(CEditNNotificationHandler* pHandler, unsigned int nUnitLabelId,
                                           unsigned int nSpinId)
    : CEditWithValidation(pHandler), m_unitLabelId(nUnitLabelId), m_spinId(nSpinId)
{
}

BEGIN_MESSAGE_MAP(CEditDoubleWithRange, CEditWithValidation)
    ON_WM_SHOWWINDOW()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

void CEditDoubleWithRange::OnShowWindow(BOOL bShow, UINT nStatus)
{
    CEditWithValidation::OnShowWindow(bShow, nStatus);
    const int nShow = bShow ? SW_SHOW : SW_HIDE;
    if (m_unitLabel.m_hWnd)
        m_unitLabel.ShowWindow(nShow);
    if (m_spinId.IsOwn() && m_spin.m_hWnd)
        m_spin.ShowWindow(nShow);
}

// The own controls are the parent's children and would outlive the box. A spin of the template does, let go.
void CEditDoubleWithRange::OnDestroy()
{
    CEditWithValidation::OnDestroy();
    if (m_spinId.IsOwn())
        m_spin.DestroyWindow();
    else if (m_spin.m_hWnd)
        m_spin.UnsubclassWindow();
    m_unitLabel.DestroyWindow();
}

// The spin goes first: it takes a part of the box's width, and the label stands behind both.
void CEditDoubleWithRange::HandlerOnCreate()
{
    AttachSpin();
    CreateOwnUnitLabel();
    CEditWithValidation::HandlerOnCreate();
}

void CEditDoubleWithRange::AttachSpin()
{
    if (m_spinId.Get() == 0)
        return;
    CRect rect;
    GetClientRect(rect);
    if (m_spinId.IsOwn())
    {
        if (!m_spin.Create(kSpinStyle, rect, GetParent(), m_spinId.Get()))
            return;
        PutBehind(m_spin, *this);
    }
    else
    {
        const HWND hSpin = ::GetDlgItem(::GetParent(m_hWnd), m_spinId.Get());
        if (!hSpin || FromHandlePermanent(hSpin) || !m_spin.SubclassWindow(hSpin))
            return;
    }
    m_spin.SetBuddy(this);
    m_spin.SetRange(kSpinMin, kSpinMax);
    m_spin.SetPos(kSpinPos);
}

void CEditDoubleWithRange::CreateOwnUnitLabel()
{
    if (!m_unitLabelId.IsOwn())
        return;
    m_unitLabel.Create(L"", kUnitLabelStyle, CalcUnitRect(), GetParent(), m_unitLabelId.Get());
    m_unitLabel.SetFont(GetParent()->GetFont());
    PutBehind(m_unitLabel, *this);
}

void CEditDoubleWithRange::PlaceOwnUnitLabel()
{
    if (m_hWnd && m_unitLabel.m_hWnd)
        m_unitLabel.MoveWindow(CalcUnitRect());
}

CRect CEditDoubleWithRange::CalcUnitRect()
{
    const CString strMeasured = m_bUnitEnabled ? m_unit.Symbol() : CString(L"x");
    const SLabelMetrics metrics = strMeasured.IsEmpty() ? SLabelMetrics() : MeasureLabel(*this, strMeasured);
    const bool bOwnSpin = m_spinId.IsOwn() && m_spin.m_hWnd;
    const int nSpinPart = bOwnSpin ? ClientWidth(m_spin) - ::GetSystemMetrics(SM_CXEDGE) : 0;

    const CRect box = ClientRectOnScreen(*this);
    const CRect parent = ClientRectOnScreen(*GetParent());
    const CPoint corner(box.right - parent.left + nSpinPart + metrics.nGap, box.top - parent.top);
    return CRect(corner, CSize(metrics.nTextWidth, box.Height()));
}

void CEditDoubleWithRange::SetValue(double d, bool bForce)
{
    if (d == m_dValue && !bForce) // never true of the empty value, which is a NaN
        return;
    m_dValue = d;
    EnsureValueIsInRange();
    UpdateGUIWithStoredData();
}

double CEditDoubleWithRange::GetValue() const
{
    return m_dValue;
}

void CEditDoubleWithRange::SetEmpty(bool bForce)
{
    if (IsEmpty() && !bForce)
        return;
    m_dValue = g_dEmpty;
    UpdateGUIWithStoredData();
}

bool CEditDoubleWithRange::IsEmpty() const
{
    return IsEmptyValue(m_dValue);
}

bool CEditDoubleWithRange::IsEmptyValue(double d)
{
    return std::bit_cast<std::uint64_t>(d) == std::bit_cast<std::uint64_t>(g_dEmpty);
}

void CEditDoubleWithRange::SetRange(double dMin, double dMax, bool bForce)
{
    if (!m_range.Set(dMin, dMax) && !bForce)
        return;
    if (EnsureValueIsInRange() || bForce)
        UpdateGUIWithStoredData();
}

void CEditDoubleWithRange::SetMinRange(double dMin, bool bForce)
{
    SetRange(dMin, DBL_MAX, bForce);
}

void CEditDoubleWithRange::SetMaxRange(double dMax, bool bForce)
{
    SetRange(-DBL_MAX, dMax, bForce);
}

void CEditDoubleWithRange::GetRange(double& dMin, double& dMax) const
{
    dMin = m_range.GetMin();
    dMax = m_range.GetMax();
}

double CEditDoubleWithRange::GetMinRange() const
{
    return m_range.GetMin();
}

double CEditDoubleWithRange::GetMaxRange() const
{
    return m_range.GetMax();
}

void CEditDoubleWithRange::DisableRangeChecking()
{
    m_range.Disable();
}

bool CEditDoubleWithRange::IsRangeCheckingEnabled() const
{
    return m_range.IsEnabled();
}

/// Whether the value was moved. The empty value, which is a NaN, lies in no range and outside of none.
bool CEditDoubleWithRange::EnsureValueIsInRange()
{
    return m_range.Clamp(m_dValue);
}

void CEditDoubleWithRange::SetFormat(EDoubleFormat eFormat, int nDecimals, bool bForce)
{
    if (eFormat == m_eFormat && nDecimals == m_nDecimals && !bForce)
        return;
    m_eFormat = eFormat;
    m_nDecimals = nDecimals;
    UpdateGUIWithStoredData();
}

EDoubleFormat CEditDoubleWithRange::GetFormat() const
{
    return m_eFormat;
}

void CEditDoubleWithRange::GetFormat(EDoubleFormat& eFormat, int& nDecimals) const
{
    eFormat = m_eFormat;
    nDecimals = m_nDecimals;
}

int CEditDoubleWithRange::GetDecimals() const
{
    return m_nDecimals;
}

CString CEditDoubleWithRange::GetPrintfFormatString() const
{
    return gfnDoublePrintfFormat(m_eFormat, m_nDecimals);
}

CString CEditDoubleWithRange::GetScanfFormatString() const
{
    return kDoubleScanfFormat;
}

void CEditDoubleWithRange::SetComplexUnit(const CComplexUnit& unit)
{
    ValidateAndStoreDataFromGUI(); // what stands in the box stands there in the old unit
    const bool bSymbolChanges = !m_bUnitEnabled || unit != m_unit;
    m_bUnitEnabled = true;
    m_unit = unit;
    UpdateGUIWithStoredData();
    if (bSymbolChanges)
        PlaceOwnUnitLabel();
}

void CEditDoubleWithRange::DisableComplexUnit()
{
    if (!m_bUnitEnabled)
        return;
    ValidateAndStoreDataFromGUI();
    m_bUnitEnabled = false;
    UpdateGUIWithStoredData();
}

const CComplexUnit& CEditDoubleWithRange::GetComplexUnit() const
{
    return m_unit;
}

bool CEditDoubleWithRange::IsComplexUnitEnabled() const
{
    return m_bUnitEnabled;
}

void CEditDoubleWithRange::AttachCustomUnitConvertor(const CUnitsConvertor* pConvertor)
{
    m_pConvertor = pConvertor;
}

unsigned int CEditDoubleWithRange::GetComplexUnitStaticId() const
{
    return m_unitLabelId.Get();
}

unsigned int CEditDoubleWithRange::GetSpinCtrlId() const
{
    return m_spinId.Get();
}

void CEditDoubleWithRange::SetSpinStep(double dStep)
{
    m_dSpinStep = dStep;
}

double CEditDoubleWithRange::GetSpinStep() const
{
    return m_dSpinStep;
}

double CEditDoubleWithRange::ToLocal(double dGlobal) const
{
    return m_bUnitEnabled ? m_unit.ToLocal(dGlobal) : dGlobal;
}

CValueRange<double> CEditDoubleWithRange::LocalRange() const
{
    CValueRange<double> range;
    range.Set(ToLocal(m_range.GetMin()), ToLocal(m_range.GetMax()));
    return range;
}

CString CEditDoubleWithRange::UnitSymbol() const
{
    return m_bUnitEnabled ? m_unit.Symbol() : CString();
}

bool CEditDoubleWithRange::IsDataCurrentlyInGUIValid() const
{
    double d = 0.0;
    return ParseText(d) && m_range.Contains(d);
}

bool CEditDoubleWithRange::ValidateAndStoreDataFromGUI()
{
    if (!ParseText(m_dValue))
        return false;
    EnsureValueIsInRange();
    return true;
}

/// False, with the number as it was, if the text does not parse or there is no window.
bool CEditDoubleWithRange::ParseText(double& dGlobal) const
{
    double d = 0.0;
    if (!gfnParseDouble(ReadText(), d))
        return false;
    if (m_bUnitEnabled)
        d = m_unit.ToGlobal(d);
    if (!std::isfinite(d)) // a typed number may pass what a double holds on its way to the global unit, too
        return false;
    dGlobal = d;
    return true;
}

void CEditDoubleWithRange::UpdateGUIWithStoredData()
{
    if (!m_hWnd)
        return;
    ShowUnitSymbol();
    if (IsEmpty())
        SafeSetWindowText(L"");
    else
        ShowNumber(gfnFormatDouble(GetPrintfFormatString(), ToLocal(m_dValue)));
}

void CEditDoubleWithRange::ShowUnitSymbol()
{
    if (m_unitLabelId.Get() != 0)
        GetParent()->SetDlgItemText(m_unitLabelId.Get(), UnitSymbol());
}

/// A box with a selection, and one that was empty, has its new text selected; one with only a caret has not.
void CEditDoubleWithRange::ShowNumber(const CString& strText)
{
    int nStart = 0, nEnd = 0;
    GetSel(nStart, nEnd);
    const bool bSelected = nStart != nEnd && nStart != -1;
    const bool bWasEmpty = GetWindowTextLength() == 0;
    SafeSetWindowText(strText);
    if (bWasEmpty || bSelected)
        SetSel(0, -1);
}

void CEditDoubleWithRange::OnSpinDeltapos(NM_UPDOWN* pNMUpDown, LRESULT* pResult)
{
    if (IsReadOnly())
        return;
    *pResult = 1;
    std::optional<double> next = StepFrom(SpinBase(), m_dSpinStep, pNMUpDown->iDelta);
    if (!next)
        return;
    LocalRange().Clamp(*next);
    // Not guarded, so that the new text is stored and reported like a typed one.
    const HWND hWnd = m_hWnd;
    SetWindowText(gfnFormatDouble(GetPrintfFormatString(), *next));
    if (!gfnHasWindow(this, hWnd))
        return; // the handler closed the dialog
    if (auto* pHandler = dynamic_cast<CEditDWRNotificationHandler*>(GetNotificationHandler()))
        pHandler->OnEditDWRSpinDeltaPos(GetDlgCtrlID());
}

/// The number from which a press steps, in the local unit: what the text says, or else the value; 0 in an
/// empty box.
double CEditDoubleWithRange::SpinBase() const
{
    double dBase = 0.0;
    if (gfnParseDouble(ReadText(), dBase) || IsEmpty())
        return dBase;
    return ToLocal(m_dValue);
}
