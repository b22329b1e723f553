// Pickers: one for each set of pictures, and a colour, at work on a drawing.

#include <afxwin.h>

#include "DrawingPreview.h"
#include "GalleryPage.h"
#include "resource.h"

namespace
{
class CPickersPageDialog : public CGalleryPageDialog,
                           public ABitmapBtnSTNotificationHandler,
                           public AColorBtnSTNotificationHandler
{
public:
    explicit CPickersPageDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_PICKERS, host) {}

    int OnInitPageDialog() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void OnBitmapChosen(int nId, int nIndex) override;
    void OnColorChosen(int nId, int nColor) override;

    afx_msg void OnByLayer();
    DECLARE_MESSAGE_MAP()

private:
    /// A picker, where its index goes, and what the log calls it. Its id is that of its place in the list.
    struct Choice
    {
        CBitmapBtnST& picker;
        int& value;
        LPCTSTR pszName;
    };
    static constexpr int kChoices = 9;

    void ShowValue(int nChoice);
    void ShowDrawing();

    CBitmapBtnSTKotnaLinija m_btnDimensionEnds{this};
    CBitmapBtnSTTekstKote m_btnDimensionText{this};
    CBitmapBtnSTSrafura m_btnHatch{this};
    CBitmapBtnSTVisinskaKota m_btnElevation{this};
    CBitmapBtnSTLinija m_btnLevelLine{this};
    CBitmapBtnSTSimbolPresekaLinija m_btnSectionLine{this};
    CBitmapBtnSTSimbolPresekaZavrsetak m_btnLeftEnd{this}, m_btnRightEnd{this};
    CBitmapBtnSTLinija m_btnGroundLine{this};
    CColorBtnST m_btnColor{this};
    CDrawingPreview m_preview;

    DrawingStyle m_style;
    const Choice m_choices[kChoices] = {
        {m_btnDimensionEnds, m_style.dimensionEnds, _T("Dimension ends")},
        {m_btnDimensionText, m_style.dimensionText, _T("Dimension text")},
        {m_btnHatch, m_style.hatch, _T("Hatch")},
        {m_btnElevation, m_style.elevationMark, _T("Elevation mark")},
        {m_btnLevelLine, m_style.levelLine, _T("Level line")},
        {m_btnSectionLine, m_style.sectionLine, _T("Section line")},
        {m_btnLeftEnd, m_style.leftEnd, _T("Left end")},
        {m_btnRightEnd, m_style.rightEnd, _T("Right end")},
        {m_btnGroundLine, m_style.groundLine, _T("Ground line")},
    };
};

BEGIN_MESSAGE_MAP(CPickersPageDialog, CGalleryPageDialog)
    ON_BN_CLICKED(IDC_PICK_BY_LAYER, &CPickersPageDialog::OnByLayer)
END_MESSAGE_MAP()

// The layer's line is the continuous one; what was picked comes back with the picker.
void CPickersPageDialog::OnByLayer()
{
    m_btnGroundLine.EnableWindow(IsDlgButtonChecked(IDC_PICK_BY_LAYER) != BST_CHECKED);
    ShowDrawing();
}

void CPickersPageDialog::DoDataExchange(CDataExchange* pDX)
{
    CGalleryPageDialog::DoDataExchange(pDX);
    for (int i = 0; i < kChoices; ++i)
        DDX_Control(pDX, IDC_PICK_FIRST + i, m_choices[i].picker);
    m_btnColor.SetColorSource(&m_style.color);
    DDX_Control(pDX, IDC_PICK_COLOR, m_btnColor);
    DDX_Control(pDX, IDC_PICK_PREVIEW, m_preview);
}

int CPickersPageDialog::OnInitPageDialog()
{
    m_style.sectionLine = 5;
    m_style.leftEnd = m_style.rightEnd = 1;
    for (int i = 0; i < kChoices; ++i)
    {
        m_choices[i].picker.SetEnumSource(&m_choices[i].value);
        m_choices[i].picker.DrawFlatFocus(TRUE); // for those who go by keyboard
        ShowValue(i);
    }
    m_btnColor.DrawFlatFocus(TRUE);
    CheckDlgButton(IDC_PICK_BY_LAYER, BST_CHECKED);
    OnByLayer();
    return TRUE;
}

void CPickersPageDialog::OnBitmapChosen(int nId, int nIndex)
{
    const int nChoice = nId - IDC_PICK_FIRST;
    Log(m_choices[nChoice].pszName, _T("OnBitmapChosen(%d, %d)"), nId, nIndex);
    ShowValue(nChoice);
    ShowDrawing();
}

void CPickersPageDialog::OnColorChosen(int nId, int nColor)
{
    Log(_T("Colour"), _T("OnColorChosen(%d, 0x%06X)"), nId, nColor);
    ShowDrawing();
}

void CPickersPageDialog::ShowValue(int nChoice)
{
    const auto& [picker, value, pszName] = m_choices[nChoice];
    CString strText;
    strText.Format(gOtLang.Do(_T("%d of %d")), value + 1, picker.BitmapCount());
    SetDlgItemText(IDC_PICK_VALUE_FIRST + nChoice, strText);
}

void CPickersPageDialog::ShowDrawing()
{
    DrawingStyle shown = m_style;
    if (!m_btnGroundLine.IsWindowEnabled())
        shown.groundLine = 0;
    m_preview.Show(shown);
}
} // namespace

void AddPickersPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CPickersPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePagePickers, _T("Pickers"), pDialog), nullptr);
}
