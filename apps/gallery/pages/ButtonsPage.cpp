// Buttons: every style and state of CButtonST side by side, with and without a visual style.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

#include <vector>

namespace
{
constexpr int kColumns = 6; ///< three themed ones, then three without a theme
constexpr COLORREF kKey = RGB(255, 0, 255);

/// The rows of the template, from the top.
enum Row
{
    rowRaised,
    rowFlat,
    rowDefault,
    rowUnchecked,
    rowChecked,
    rowDisabled,
    rowColored,
    rowToolbar,
    rowTransparent,
    rowAlignments,
    rowCount
};

/// A section through a beam, on the transparent colour. The button that is given it owns it.
HBITMAP MakePicture()
{
    constexpr RECT kParts[] = {{1, 1, 17, 4}, {8, 4, 10, 13}, {1, 13, 17, 16}};
    CWindowDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 18, 17);
    const HGDIOBJ old = ::SelectObject(dc, bitmap);
    dc.FillSolidRect(0, 0, 18, 17, kKey);
    for (const RECT& part : kParts)
        dc.FillSolidRect(&part, RGB(40, 90, 170));
    ::SelectObject(dc, old);
    return static_cast<HBITMAP>(bitmap.Detach());
}

/// A button that can be made opaque again.
class CPageButton : public CButtonST
{
public:
    using CButtonST::CButtonST;
    void ShowTransparent(bool bTransparent)
    {
        if (bTransparent)
            DrawTransparent();
        m_bDrawTransparent = bTransparent;
        Invalidate();
    }
};

class CButtonsPageDialog : public CGalleryPageDialog, public AButtonSTNotificationHandler
{
public:
    explicit CButtonsPageDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_BUTTONS, host)
    {
        for (int i = 0; i < rowCount * kColumns; ++i)
            m_buttons.push_back(std::make_unique<CPageButton>(this));
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    int OnInitPageDialog() override;
    void OnButtonClicked(int nId) override;

    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSwitch();
    DECLARE_MESSAGE_MAP()

private:
    void Dress(CPageButton& button, Row row, int column);
    void DressAlignment(CPageButton& button, int column);
    void Apply(CPageButton& button, Row row, int column);
    void PaintPattern(CDC& dc, CRect rect) const;
    CRect RowRect(Row row) const;
    bool IsOn(int nSwitch) const { return IsDlgButtonChecked(nSwitch) == BST_CHECKED; }

    template <class Function>
    void ForEachButton(Function function)
    {
        for (int i = 0; i < static_cast<int>(m_buttons.size()); ++i)
            function(*m_buttons[i], static_cast<Row>(i / kColumns), i % kColumns);
    }

    std::vector<std::unique_ptr<CPageButton>> m_buttons; ///< row by row
};

BEGIN_MESSAGE_MAP(CButtonsPageDialog, CGalleryPageDialog)
    ON_WM_ERASEBKGND()
    ON_BN_CLICKED(IDC_BTN_FLAT, &CButtonsPageDialog::OnSwitch)
    ON_BN_CLICKED(IDC_BTN_THEME, &CButtonsPageDialog::OnSwitch)
    ON_BN_CLICKED(IDC_BTN_TRANSPARENT, &CButtonsPageDialog::OnSwitch)
    ON_CBN_SELCHANGE(IDC_BTN_ALIGN, &CButtonsPageDialog::OnSwitch)
END_MESSAGE_MAP()

// The ground of transparent buttons has a pattern that shows how well they let it through.
BOOL CButtonsPageDialog::OnEraseBkgnd(CDC* pDC)
{
    const BOOL bErased = CGalleryPageDialog::OnEraseBkgnd(pDC);
    if (IsOn(IDC_BTN_TRANSPARENT))
        PaintPattern(*pDC, RowRect(rowRaised) | RowRect(rowAlignments));
    else
        PaintPattern(*pDC, RowRect(rowTransparent));
    return bErased;
}

void CButtonsPageDialog::OnSwitch()
{
    ForEachButton([&](CPageButton& button, Row row, int column) { Apply(button, row, column); });
    Invalidate();
}

void CButtonsPageDialog::DoDataExchange(CDataExchange* pDX)
{
    CGalleryPageDialog::DoDataExchange(pDX);
    for (size_t i = 0; i < m_buttons.size(); ++i)
        DDX_Control(pDX, IDC_BTN_FIRST + static_cast<int>(i), *m_buttons[i]);
}

int CButtonsPageDialog::OnInitPageDialog()
{
    CheckDlgButton(IDC_BTN_THEME, BST_CHECKED);
    auto* pAlign = static_cast<CComboBox*>(GetDlgItem(IDC_BTN_ALIGN));
    for (LPCTSTR pszAlign :
         {_T("Left of the title"), _T("Above the title"), _T("Right of the title"), _T("In the corner")})
        pAlign->AddString(gOtLang.Do(pszAlign));
    pAlign->SetCurSel(0);
    ForEachButton(
        [&](CPageButton& button, Row row, int column)
        {
            Dress(button, row, column);
            Apply(button, row, column);
        });
    return TRUE;
}

void CButtonsPageDialog::OnButtonClicked(int nId)
{
    Log(_T("Button"), _T("OnButtonClicked(%d)"), nId);
}

/// What a button is for good: images, tooltip, state.
void CButtonsPageDialog::Dress(CPageButton& button, Row row, int column)
{
    if (row == rowAlignments)
        return DressAlignment(button, column);
    if (column % 3 == 0)
        button.SetIcon(CButtonST::hIconOk,
                       row == rowUnchecked || row == rowChecked ? CButtonST::hIconNo : nullptr);
    else if (column % 3 == 1)
        button.SetBitmaps(MakePicture(), kKey);
    if (row == rowChecked)
        button.SetCheck(1);
    if (row == rowDefault)
        button.SendMessage(BM_SETSTYLE, BS_DEFPUSHBUTTON); // a dialog leaves the style to one button only
    if (row == rowColored)
    {
        button.SetColor(CButtonST::colorBackOut, RGB(255, 244, 204));
        button.SetColor(CButtonST::colorBackIn, RGB(255, 224, 130));
        button.SetColor(CButtonST::colorBackFocus, RGB(255, 236, 170));
        button.SetColor(CButtonST::colorTextOut, RGB(150, 60, 0));
        button.SetColor(CButtonST::colorTextIn, RGB(190, 0, 0));
        button.SetColor(CButtonST::colorTextFocus, RGB(150, 60, 0));
    }
    button.DrawAsToolbar(row == rowToolbar);
    button.SetTooltipText(gOtLang.Do(column < kColumns / 2 ? _T("The visual style draws face and border.")
                                                           : _T("Face and border are drawn by lines.")));
}

void CButtonsPageDialog::DressAlignment(CPageButton& button, int column)
{
    if (column == kColumns - 1) // a picture: the grey copy of an icon would never be released
        button.SetBitmaps(MakePicture(), kKey, reinterpret_cast<HBITMAP>(CButtonST::copyGray));
    else
        button.SetIcon(CButtonST::hIconPogled, nullptr);
    button.SetAlign(column <= CButtonST::alignNone ? static_cast<BYTE>(column) : BYTE(CButtonST::alignLeft));
    button.SetTooltipText(gOtLang.Do(column == kColumns - 1
                                         ? _T("The picture takes its colours under the mouse.")
                                         : _T("The place of the image beside the title.")));
}

/// What the switches at the top decide.
void CButtonsPageDialog::Apply(CPageButton& button, Row row, int column)
{
    const bool bThemed = column < kColumns / 2 && IsOn(IDC_BTN_THEME);
    button.SetThemeHelper(bThemed ? CButtonST::pLocalTheme : nullptr);
    button.SetFlat(IsOn(IDC_BTN_FLAT) || row == rowFlat || row == rowTransparent);
    button.ShowTransparent(IsOn(IDC_BTN_TRANSPARENT) || row == rowTransparent);
    if (row != rowAlignments)
        if (const int nAlign = static_cast<CComboBox*>(GetDlgItem(IDC_BTN_ALIGN))->GetCurSel(); nAlign >= 0)
            button.SetAlign(static_cast<BYTE>(nAlign));
}

CRect CButtonsPageDialog::RowRect(Row row) const
{
    CRect first, last;
    m_buttons[row * kColumns]->GetWindowRect(first);
    m_buttons[row * kColumns + kColumns - 1]->GetWindowRect(last);
    CRect rect = first | last;
    ScreenToClient(rect);
    rect.InflateRect(3, 2);
    return rect;
}

void CButtonsPageDialog::PaintPattern(CDC& dc, CRect rect) const
{
    CBrush brush(HS_BDIAGONAL, RGB(120, 165, 215));
    dc.SetBkColor(RGB(232, 241, 251));
    dc.FillRect(rect, &brush);
}
} // namespace

void AddButtonsPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CButtonsPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageButtons, _T("Buttons"), pDialog), nullptr);
}
