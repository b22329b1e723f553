#include <afxwin.h>

#include "groups/FontCtrlGroup.h"

namespace
{
constexpr double kMinHeight = 0.001; // in metres on paper, as the maximum
constexpr double kMaxHeight = 0.02;
constexpr double kHeightStep = 0.5; // in millimetres

CComplexUnit Millimetre()
{
    return CComplexUnit(CMeasurementUnit(CMeasurementUnit::eMillimetre, CMeasurementUnit::eLength));
}
} // namespace

// ---- The colour button ------------------------------------------------------------------------------------

BEGIN_MESSAGE_MAP(CFontCtrlGroup::CColorButton, CAcadColorBtnST)
    ON_CONTROL_REFLECT(BN_CLICKED, &CFontCtrlGroup::CColorButton::OnClicked)
END_MESSAGE_MAP()

void CFontCtrlGroup::CColorButton::OnClicked()
{
    if (m_pCurrentColor)
        CAcadColorBtnST::OnClicked();
    else
        CButtonST::OnClicked();
}

DWORD CFontCtrlGroup::CColorButton::OnDrawBackground(CDC* pDC, CRect& rect)
{
    return m_pCurrentColor ? CAcadColorBtnST::OnDrawBackground(pDC, rect)
                           : CButtonST::OnDrawBackground(pDC, rect);
}

// ---- The group --------------------------------------------------------------------------------------------

CFontCtrlGroup::CFontCtrlGroup(UINT nFontId, UINT nHeightId, UINT nColorId, UINT nCheck1Id, UINT nCheck2Id,
                               UINT nCheck3Id, UINT nApplyId, AFontCtrlGroupNotificationHandler* pHandler)
    : m_nFontId(nFontId), m_nHeightId(nHeightId), m_nColorId(nColorId), m_nCheck1Id(nCheck1Id),
      m_nCheck2Id(nCheck2Id), m_nCheck3Id(nCheck3Id), m_nApplyId(nApplyId), m_comboFont(this),
      m_editHeight(this, CEditDoubleWithRange::kCreateControl, CEditDoubleWithRange::kCreateControl),
      m_btnColor(this), m_btnCheck1(this), m_btnCheck2(this), m_btnCheck3(this), m_btnApply(this),
      m_pHandler(pHandler)
{
}

CFontCtrlGroup::~CFontCtrlGroup() = default;

void CFontCtrlGroup::DoDataExchange(CDataExchange* pDX)
{
    DDX_Control(pDX, m_nFontId, m_comboFont);
    DDX_Control(pDX, m_nHeightId, m_editHeight);
    DDX_Control(pDX, m_nColorId, m_btnColor);
    DDX_Control(pDX, m_nCheck1Id, m_btnCheck1);
    DDX_Control(pDX, m_nCheck2Id, m_btnCheck2);
    DDX_Control(pDX, m_nCheck3Id, m_btnCheck3);
    DDX_Control(pDX, m_nApplyId, m_btnApply);
}

int CFontCtrlGroup::OnInitDialog()
{
    CFontSelectionComboBox::LoadIcons();
    m_editHeight.SetComplexUnit(Millimetre());
    m_editHeight.SetRange(kMinHeight, kMaxHeight);
    m_editHeight.SetSpinStep(kHeightStep);
    m_editHeight.SetFormat(eDoubleFormatFixed, 1);
    m_btnApply.SetIcon(CButtonST::hApplyToAll);
    if (HasWindows())
    {
        m_btnApply.SetWindowText(L"");
        HideThirdCheckBox();
    }
    if (m_pFont)
        ShowFont();
    return 1;
}

void CFontCtrlGroup::SetFontSource(epgFont* pFont)
{
    m_pFont = pFont;
    if (pFont)
        ShowFont();
    else
        m_btnColor.SetColorSource(nullptr);
}

void CFontCtrlGroup::ShowFont()
{
    m_btnColor.SetColorSource(&m_pFont->nColor);
    if (!HasWindows())
        return;
    m_comboFont.SetSelection(m_pFont->strName);
    m_editHeight.SetValue(m_pFont->dHeight);
    m_btnCheck1.SetCheck(m_pFont->nCheck1);
    m_btnCheck2.SetCheck(m_pFont->nCheck2);
    m_btnCheck3.SetCheck(m_pFont->nCheck3);
    if (m_pFont->eClass != eFontTrueType)
        ClearCheckBoxes();
    EnableCheckBoxes(m_pFont->eClass == eFontTrueType);
}

// The record's fields stay.
void CFontCtrlGroup::ClearCheckBoxes()
{
    for (CButtonST* pCheck : {&m_btnCheck1, &m_btnCheck2, &m_btnCheck3})
        pCheck->SetCheck(0);
}

void CFontCtrlGroup::EnableCheckBoxes(BOOL bEnable)
{
    m_btnCheck1.EnableWindow(bEnable);
    m_btnCheck2.EnableWindow(bEnable);
    HideThirdCheckBox();
}

// Wanted: it never shows, although its field and its control exist.
void CFontCtrlGroup::HideThirdCheckBox()
{
    m_btnCheck3.EnableWindow(FALSE);
    m_btnCheck3.ShowWindow(SW_HIDE);
}

void CFontCtrlGroup::UpdateCheckBoxes(int bEnable)
{
    if (!bEnable)
        ClearCheckBoxes();
    EnableCheckBoxes(bEnable);
}

// Only another class touches the check boxes.
void CFontCtrlGroup::OnFontSelected(int nId, const CString& strFont, EFontClass eClass)
{
    if (nId != static_cast<int>(m_nFontId) || !m_pFont)
        return;
    m_pFont->strName = strFont;
    m_pFont->eClass = eClass;
    const bool bEnable = eClass == eFontTrueType;
    if (HasWindows() && (m_btnCheck1.IsWindowEnabled() != FALSE) != bEnable)
        UpdateCheckBoxes(bEnable);
    ReportChange();
}

void CFontCtrlGroup::OnEditNKillFocus(int nId)
{
    if (nId != static_cast<int>(m_nHeightId) || !m_pFont)
        return;
    m_pFont->dHeight = m_editHeight.GetValue();
    ReportChange();
}

// A press of the spin stores at once.
void CFontCtrlGroup::OnEditDWRSpinDeltaPos(int nId)
{
    OnEditNKillFocus(nId);
}

// The button has written the record already.
void CFontCtrlGroup::OnAcadColorChosen(int nId, int /*nColor*/)
{
    if (nId == static_cast<int>(m_nColorId))
        ReportChange();
}

void CFontCtrlGroup::OnButtonClicked(int nId)
{
    if (!m_pFont)
        return;
    const auto nButtonId = static_cast<UINT>(nId);
    if (nButtonId == m_nCheck1Id)
        StoreCheck(m_pFont->nCheck1, m_btnCheck1);
    else if (nButtonId == m_nCheck2Id)
        StoreCheck(m_pFont->nCheck2, m_btnCheck2);
    else if (nButtonId == m_nCheck3Id)
        StoreCheck(m_pFont->nCheck3, m_btnCheck3);
    else if (nButtonId == m_nApplyId && m_pHandler)
        m_pHandler->OnFontGroupButton(this, m_pFont);
}

void CFontCtrlGroup::StoreCheck(int& nCheck, const CButtonST& button)
{
    nCheck = button.GetCheck();
    ReportChange();
}

void CFontCtrlGroup::ReportChange()
{
    if (m_pHandler && m_pFont)
        m_pHandler->OnFontGroupChanged(this, m_pFont);
}
