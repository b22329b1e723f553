#include <afxwin.h>

#include "groups/FormatJediniceCtrlGroup.h"

namespace
{
constexpr int kUnits = 6;       // of length, numbered from 0
constexpr int kDefaultUnit = 2; // the millimetre
constexpr int kLength = 0;      // kind of a measurement unit
constexpr int kMaxNumber = 15;  // in the edit
constexpr int kAtEnd = -1;      // of a list, also of a sorted one

/// The bits that mark a three-state button that leaves its state to us.
constexpr DWORD kStateByHand = BS_3STATE;
} // namespace

CFormatJediniceCtrlGroup::CFormatJediniceCtrlGroup(int nComboId, int nButtonId, int nEditId,
                                                   AFormatJediniceCtrlGroupNotificationHandler* pHandler)
    : m_nComboId(nComboId), m_nButtonId(nButtonId), m_nEditId(nEditId), m_combo(this), m_button(this),
      m_edit(this), m_pHandler(pHandler)
{
    m_edit.SetRange(0, kMaxNumber);
}

CFormatJediniceCtrlGroup::~CFormatJediniceCtrlGroup() = default;

void CFormatJediniceCtrlGroup::DoDataExchange(CDataExchange* pDX)
{
    const bool bNew = !HasWindows();
    DDX_Control(pDX, m_nComboId, m_combo);
    DDX_Control(pDX, m_nButtonId, m_button);
    DDX_Control(pDX, m_nEditId, m_edit);
    if (bNew && m_pFormat)
        ListUnits();
}

void CFormatJediniceCtrlGroup::SetFormatSource(CFormatJedinice* pFormat)
{
    m_pFormat = pFormat;
    if (HasWindows())
        ListUnits();
}

void CFormatJediniceCtrlGroup::Update(bool bToControls, bool bCommon)
{
    if (!m_pFormat || !HasWindows())
        return;
    if (!bToControls)
    {
        StoreControls();
    }
    else if (bCommon)
    {
        SetCtrlState(*m_pFormat);
    }
    else
    {
        ShowNoCommonValue();
    }
}

void CFormatJediniceCtrlGroup::SetCtrlState(const CFormatJedinice& format)
{
    if (!HasWindows())
        return;
    SelectUnit(format.nUnitIndex);
    m_button.SetCheck(format.nCheckFlag == 1 ? BST_CHECKED : BST_UNCHECKED);
    m_edit.SetValue(format.nEditValue, true);
}

CFormatJedinice CFormatJediniceCtrlGroup::GetCtrlState()
{
    CFormatJedinice format;
    if (!HasWindows())
        return format;
    format.nUnitIndex = m_combo.GetCurSel();
    format.nCheckFlag = m_button.GetCheck() != BST_UNCHECKED;
    format.nEditValue = m_edit.GetValue();
    return format;
}

void CFormatJediniceCtrlGroup::Enable(int bEnable)
{
    ForEachControl([bEnable](CWnd& control) { control.EnableWindow(bEnable); });
}

void CFormatJediniceCtrlGroup::Display(int bShow)
{
    ForEachControl(
        [bShow](CWnd& control)
        {
            control.EnableWindow(bShow);
            control.ShowWindow(bShow ? SW_SHOW : SW_HIDE);
        });
}

void CFormatJediniceCtrlGroup::OnExtComboBoxSelChanged(int nId, int /*nSel*/)
{
    if (nId != m_nComboId)
        return;
    if (m_pFormat && m_combo.m_hWnd)
        m_pFormat->nUnitIndex = m_combo.GetCurSel();
    Report(eSourceCombo);
}

// Wanted: a three-state button is toggled for any id, and the record gets the state before the toggle. Other check
// boxes have changed by themselves already.
void CFormatJediniceCtrlGroup::OnButtonClicked(int nId)
{
    if (!m_button.m_hWnd)
        return;
    const int nState = m_button.GetCheck();
    if ((m_button.GetStyle() & kStateByHand) == kStateByHand)
        m_button.SetCheck(nState == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED);
    if (nId != m_nButtonId)
        return;
    if (m_pFormat)
        m_pFormat->nCheckFlag = nState == BST_CHECKED;
    Report(eSourceButton);
}

// Wanted: what is being typed does not go to the record yet.
void CFormatJediniceCtrlGroup::OnEditNChange(int nId)
{
    if (nId == m_nEditId)
        Report(eSourceTyping);
}

void CFormatJediniceCtrlGroup::OnEditNKillFocus(int nId)
{
    if (nId != m_nEditId)
        return;
    if (m_pFormat)
        m_pFormat->nEditValue = m_edit.GetValue();
    Report(eSourceEditLeft);
}

bool CFormatJediniceCtrlGroup::HasWindows() const
{
    return m_combo.m_hWnd && m_button.m_hWnd && m_edit.m_hWnd;
}

void CFormatJediniceCtrlGroup::ListUnits()
{
    m_combo.ResetContent();
    if (!m_pFormat)
        return;
    for (int nUnit = 0; nUnit < kUnits; ++nUnit)
        m_combo.InsertString(kAtEnd, CComplexUnit(CMeasurementUnit(nUnit, kLength)).Symbol());
    SelectUnit(m_pFormat->nUnitIndex);
}

// Systems differ in what a combo box does with an index that it does not have.
void CFormatJediniceCtrlGroup::SelectUnit(int nUnit)
{
    if (m_combo.SetCurSel(nUnit) == CB_ERR)
        m_combo.SetCurSel(-1);
}

void CFormatJediniceCtrlGroup::ShowNoCommonValue()
{
    m_combo.SetCurSel(-1);
    m_button.SetCheck(BST_INDETERMINATE);
    m_edit.SetEmpty();
}

void CFormatJediniceCtrlGroup::StoreControls()
{
    const CFormatJedinice shown = GetCtrlState();
    if (shown.nUnitIndex == CB_ERR)
        m_combo.SetCurSel(kDefaultUnit);
    m_pFormat->nUnitIndex = shown.nUnitIndex == CB_ERR ? kDefaultUnit : shown.nUnitIndex;
    m_pFormat->nCheckFlag = shown.nCheckFlag;
    m_pFormat->nEditValue = shown.nEditValue;
}

void CFormatJediniceCtrlGroup::Report(ESource eSource)
{
    if (m_pHandler && m_pFormat)
        m_pHandler->OnFormatGroupChanged(this, m_pFormat, eSource);
}

template <class Function>
void CFormatJediniceCtrlGroup::ForEachControl(Function function)
{
    if (!HasWindows())
        return;
    for (CWnd* pControl :
         {static_cast<CWnd*>(&m_combo), static_cast<CWnd*>(&m_button), static_cast<CWnd*>(&m_edit)})
        function(*pControl);
}
