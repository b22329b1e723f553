#include "ColorDialog.h"

#include "acadhost.h"
#include "aced.h"
#include "rxmfcapi.h"

#include "HostModule.h"

static constexpr WCHAR kByLayerText[] = L"ByLayer";
static constexpr WCHAR kByBlockText[] = L"ByBlock";

namespace
{
/// The window over which a dialog of the host opens.
CWnd* DialogParent()
{
    if (CWnd* pActive = CWnd::GetActiveWindow())
        return pActive;
    return acadhostHasFrame() ? acedGetAcadFrame() : nullptr;
}

/// The number that a text consists of, or kNoColor.
int ParseNumber(LPCWSTR pszText)
{
    LPWSTR pszEnd = nullptr;
    const long nNumber = ::wcstol(pszText, &pszEnd, 10);
    return pszEnd != pszText && *pszEnd == L'\0' && IsPlainColor(nNumber) ? nNumber : kNoColor;
}
} // namespace

Adesk::Boolean acedSetColorDialog(int& nColor, Adesk::Boolean bAllowMetaColor, int nCurLayerColor)
{
    if (!CColorGrid::RegisterWindowClass())
        return Adesk::kFalse;
    const CHostResources resources;
    CColorDialog dialog(nColor, bAllowMetaColor != Adesk::kFalse, nCurLayerColor, DialogParent());
    if (dialog.DoModal() != IDOK)
        return Adesk::kFalse;
    nColor = dialog.GetColor();
    return Adesk::kTrue;
}

CColorDialog::CColorDialog(int nColor, bool bAllowMetaColor, int nLayerColor, CWnd* pParent)
    : CDialog(IDD, pParent), m_nColor(nColor), m_bAllowMetaColor(bAllowMetaColor),
      m_nLayerColor(IsPlainColor(nLayerColor) ? nLayerColor : kForeground)
{
    if (!CanChoose(m_nColor))
        m_nColor = kNoColor;
    m_nOldColor = m_nColor;
}

BEGIN_MESSAGE_MAP(CColorDialog, CDialog)
    ON_CONTROL(CColorGrid::eSelectionChanged, IDC_COLOR_GRID, &CColorDialog::OnGridSelectionChanged)
    ON_CONTROL(CColorGrid::eHotChanged, IDC_COLOR_GRID, &CColorDialog::OnGridHotChanged)
    ON_CONTROL(CColorGrid::eAccepted, IDC_COLOR_GRID, &CColorDialog::OnGridAccepted)
    ON_EN_CHANGE(IDC_COLOR_TEXT, &CColorDialog::OnTextChanged)
    ON_BN_CLICKED(IDC_COLOR_BYLAYER, &CColorDialog::OnByLayer)
    ON_BN_CLICKED(IDC_COLOR_BYBLOCK, &CColorDialog::OnByBlock)
END_MESSAGE_MAP()

void CColorDialog::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_COLOR_GRID, m_grid);
    DDX_Control(pDX, IDC_COLOR_PREVIEW, m_preview);
    DDX_Control(pDX, IDC_COLOR_TEXT, m_text);
    DDX_Control(pDX, IDC_COLOR_INDEX, m_indexText);
    DDX_Control(pDX, IDC_COLOR_RGB, m_rgbText);
}

BOOL CColorDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    if (!m_bAllowMetaColor)
    {
        GetDlgItem(IDC_COLOR_BYLAYER)->ShowWindow(SW_HIDE);
        GetDlgItem(IDC_COLOR_BYBLOCK)->ShowWindow(SW_HIDE);
    }
    ShowText();
    ShowChoice();
    return TRUE; // the focus goes to the grid, the first control
}

/// A digit typed over the swatches begins a number in the box.
BOOL CColorDialog::PreTranslateMessage(MSG* pMsg)
{
    const bool bDigit = pMsg->message == WM_CHAR && pMsg->wParam >= L'0' && pMsg->wParam <= L'9';
    if (bDigit && pMsg->hwnd == m_grid.m_hWnd)
    {
        m_text.SetFocus();
        m_text.SetSel(0, -1);
        m_text.SendMessage(WM_CHAR, pMsg->wParam, pMsg->lParam);
        return TRUE;
    }
    return CDialog::PreTranslateMessage(pMsg);
}

void CColorDialog::OnOK()
{
    if (CanChoose(m_nColor))
    {
        CDialog::OnOK();
        return;
    }
    ::MessageBeep(MB_ICONEXCLAMATION);
    m_text.SetFocus();
    m_text.SetSel(0, -1);
}

void CColorDialog::OnGridSelectionChanged()
{
    Choose(m_grid.GetSelection());
}

void CColorDialog::OnGridHotChanged()
{
    const int nHot = m_grid.GetHot();
    ShowReadout(nHot != kNoColor ? nHot : m_nColor);
}

void CColorDialog::OnGridAccepted()
{
    OnOK();
}

void CColorDialog::OnTextChanged()
{
    if (m_bSettingText)
        return;
    m_nColor = ParseText();
    ShowChoice();
}

void CColorDialog::OnByLayer()
{
    Choose(kByLayer);
}

void CColorDialog::OnByBlock()
{
    Choose(kByBlock);
}

bool CColorDialog::CanChoose(int nColor) const
{
    return IsPlainColor(nColor) || (m_bAllowMetaColor && IsMetaColor(nColor));
}

/// The index that the box names, or kNoColor.
int CColorDialog::ParseText() const
{
    CString strText;
    m_text.GetWindowText(strText);
    strText.Trim();
    if (m_bAllowMetaColor && strText.CompareNoCase(kByLayerText) == 0)
        return kByLayer;
    if (m_bAllowMetaColor && strText.CompareNoCase(kByBlockText) == 0)
        return kByBlock;
    return ParseNumber(strText);
}

void CColorDialog::Choose(int nColor)
{
    m_nColor = nColor;
    ShowText();
    ShowChoice();
}

void CColorDialog::ShowText()
{
    CString strText;
    if (m_nColor == kByLayer)
        strText = kByLayerText;
    else if (m_nColor == kByBlock)
        strText = kByBlockText;
    else if (m_nColor != kNoColor)
        strText.Format(L"%d", m_nColor);
    m_bSettingText = true;
    m_text.SetWindowText(strText);
    m_bSettingText = false;
}

void CColorDialog::ShowChoice()
{
    m_grid.SetSelection(m_nColor);
    m_preview.SetColors(ShownColor(m_nOldColor), ShownColor(m_nColor));
    ShowReadout(m_nColor);
}

/// Tells of a colour: of the swatch to which the mouse moved, or of the choice if that changed last.
void CColorDialog::ShowReadout(int nColor)
{
    CString strIndex;
    CString strRGB;
    if (IsPlainColor(nColor))
    {
        const COLORREF color = acedGetRGB(nColor);
        strIndex.Format(L"Index color: %d", nColor);
        strRGB.Format(L"Red, green, blue: %d, %d, %d", GetRValue(color), GetGValue(color), GetBValue(color));
    }
    m_indexText.SetWindowText(strIndex);
    m_rgbText.SetWindowText(strRGB);
}

COLORREF CColorDialog::ShownColor(int nColor) const
{
    if (nColor == kNoColor)
        return CLR_NONE;
    return acedGetRGB(nColor == kByLayer ? m_nLayerColor : nColor);
}
