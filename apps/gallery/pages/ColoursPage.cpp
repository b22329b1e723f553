// Colours: a beam's section filled with RGB colours and drawn in the host's, chosen by colour buttons.

#include <afxwin.h>

#include "GalleryPage.h"
#include "Shelf.h"
#include "resource.h"

#include "module/GdiScope.h"

#include <aced.h>

namespace
{
/// A host colour button that outlives the page that shows it.
class CShelvedButton : private AAcadColorBtnSTNotificationHandler
{
public:
    CAcadColorBtnST button{this};
    AAcadColorBtnSTNotificationHandler* pBorrower = nullptr;

    void PutBack()
    {
        button.DestroyWindow();
        button.SetColorSource(nullptr);
    }

private:
    void OnAcadColorChosen(int nId, int nColor) override { pBorrower->OnAcadColorChosen(nId, nColor); }
};

class CColoursPageDialog : public CGalleryPageDialog,
                           public AColorBtnSTNotificationHandler,
                           public AAcadColorBtnSTNotificationHandler
{
public:
    explicit CColoursPageDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_COLOURS, host) {}

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    int OnInitPageDialog() override;

    void OnColorChosen(int nId, int nColor) override;
    void OnAcadColorChosen(int nId, int nColor) override;

    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnReset();
    afx_msg void OnStore();
    afx_msg void OnLoad();
    DECLARE_MESSAGE_MAP()

private:
    void ShowPalette(LPCTSTR pszCall, LPCTSTR pszState);
    void PaintPreview(CDC& dc, const CRect& area) const;
    void PaintAxes(CDC& dc, const CRect& area) const;

    CColorBtnST m_btnFlanges{this}, m_btnWeb{this}, m_btnLocked{this};
    CBorrowed<CShelvedButton> m_outline{this}, m_axes{this}, m_lockedOutline{this};

    DWORD m_crFlanges = 0xF0CAA6, m_crWeb = 0xC0DCC0;
    int m_nOutline = 5, m_nAxes = 1; ///< blue and red
};

BEGIN_MESSAGE_MAP(CColoursPageDialog, CGalleryPageDialog)
    ON_WM_DRAWITEM()
    ON_BN_CLICKED(IDC_COL_RESET, &CColoursPageDialog::OnReset)
    ON_BN_CLICKED(IDC_COL_STORE, &CColoursPageDialog::OnStore)
    ON_BN_CLICKED(IDC_COL_LOAD, &CColoursPageDialog::OnLoad)
END_MESSAGE_MAP()

void CColoursPageDialog::OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (nIDCtl == IDC_COL_PREVIEW)
        PaintInMemory(*lpDrawItemStruct, [this](CDC& dc, const CRect& area) { PaintPreview(dc, area); });
    else
        CGalleryPageDialog::OnDrawItem(nIDCtl, lpDrawItemStruct);
}

void CColoursPageDialog::OnReset()
{
    CColorBtnST::Reset();
    ShowPalette(_T("Reset()"), _T("The palette is as delivered."));
}

void CColoursPageDialog::OnStore()
{
    const bool bStored = CColorBtnST::Store() != 0;
    ShowPalette(bStored ? _T("Store() = 1") : _T("Store() = 0"),
                bStored ? _T("Stored in the application's profile.") : _T("The profile cannot be written."));
}

void CColoursPageDialog::OnLoad()
{
    const bool bLoaded = CColorBtnST::Load() != 0;
    ShowPalette(bLoaded ? _T("Load() = 1") : _T("Load() = 0"),
                bLoaded ? _T("Loaded from the profile.") : _T("Nothing was stored: as delivered."));
}

void CColoursPageDialog::DoDataExchange(CDataExchange* pDX)
{
    CGalleryPageDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_COL_FLANGES, m_btnFlanges);
    DDX_Control(pDX, IDC_COL_WEB, m_btnWeb);
    DDX_Control(pDX, IDC_COL_LOCKED, m_btnLocked);
    DDX_Control(pDX, IDC_COL_OUTLINE, m_outline->button);
    DDX_Control(pDX, IDC_COL_AXES, m_axes->button);
    DDX_Control(pDX, IDC_COL_LOCKED_OUTLINE, m_lockedOutline->button);
}

int CColoursPageDialog::OnInitPageDialog()
{
    m_btnFlanges.SetColorSource(&m_crFlanges);
    m_btnWeb.SetColorSource(&m_crWeb);
    m_btnLocked.SetColorSource(&m_crWeb);
    m_outline->button.SetColorSource(&m_nOutline);
    m_axes->button.SetColorSource(&m_nAxes);
    m_lockedOutline->button.SetColorSource(&m_nOutline);
    m_btnFlanges.SetTooltipText(gOtLang.Do(_T("Any colour: twenty at hand, others by \"Other...\"")));
    m_outline->button.SetTooltipText(gOtLang.Do(_T("One of the host's colours, by number")));
    return TRUE;
}

// The colour is in its variable already. Of the preview the button knows nothing.
void CColoursPageDialog::OnColorChosen(int nId, int nColor)
{
    Log(nId == IDC_COL_WEB ? _T("Web") : _T("Flanges"), _T("OnColorChosen(%d, 0x%06X)"), nId, nColor);
    GetDlgItem(IDC_COL_PREVIEW)->Invalidate(FALSE);
}

void CColoursPageDialog::OnAcadColorChosen(int nId, int nColor)
{
    Log(nId == IDC_COL_AXES ? _T("Axes") : _T("Outline"), _T("OnAcadColorChosen(%d, %d)"), nId, nColor);
    m_lockedOutline->button.SetColorSource(&m_nOutline); // its number does not follow by itself
    GetDlgItem(IDC_COL_PREVIEW)->Invalidate(FALSE);
}

void CColoursPageDialog::ShowPalette(LPCTSTR pszCall, LPCTSTR pszState)
{
    Log(_T("Palette"), pszCall);
    SetDlgItemText(IDC_COL_STATE, gOtLang.Do(pszState));
}

/// The section of a rolled beam: flanges and web filled, their outline and the axes drawn, as on a sheet.
void CColoursPageDialog::PaintPreview(CDC& dc, const CRect& area) const
{
    dc.FillSolidRect(area, RGB(255, 255, 255));
    dc.Draw3dRect(area, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNSHADOW));

    const CPoint middle = area.CenterPoint();
    const int nHalfWidth = area.Height() / 5, nHalfHeight = area.Height() * 3 / 8;
    const int nFlange = nHalfHeight / 5, nHalfWeb = nFlange / 2;
    const int left = middle.x - nHalfWidth, right = middle.x + nHalfWidth;
    const int top = middle.y - nHalfHeight, bottom = middle.y + nHalfHeight;
    dc.FillSolidRect(CRect(left, top, right, top + nFlange), m_crFlanges);
    dc.FillSolidRect(CRect(left, bottom - nFlange, right, bottom), m_crFlanges);
    dc.FillSolidRect(CRect(middle.x - nHalfWeb, top + nFlange, middle.x + nHalfWeb, bottom - nFlange),
                     m_crWeb);

    CPoint outline[] = {{left, top},
                        {right, top},
                        {right, top + nFlange},
                        {middle.x + nHalfWeb, top + nFlange},
                        {middle.x + nHalfWeb, bottom - nFlange},
                        {right, bottom - nFlange},
                        {right, bottom},
                        {left, bottom},
                        {left, bottom - nFlange},
                        {middle.x - nHalfWeb, bottom - nFlange},
                        {middle.x - nHalfWeb, top + nFlange},
                        {left, top + nFlange}};
    CPen pen(PS_SOLID, 3, acedGetRGB(m_nOutline));
    const CGdiSelection penScope(dc, pen);
    const CGdiSelection noBrush(dc, ::GetStockObject(NULL_BRUSH));
    dc.Polygon(outline, static_cast<int>(std::size(outline)));
    PaintAxes(dc, area);
}

void CColoursPageDialog::PaintAxes(CDC& dc, const CRect& area) const
{
    constexpr int kMargin = 12; // pixels
    const CPoint middle = area.CenterPoint();
    CPen pen(PS_DASHDOT, 1, acedGetRGB(m_nAxes));
    const CGdiSelection penScope(dc, pen);
    dc.SetBkMode(TRANSPARENT);
    dc.MoveTo(middle.x, area.top + kMargin);
    dc.LineTo(middle.x, area.bottom - kMargin);
    dc.MoveTo(middle.x - area.Height() / 3, middle.y);
    dc.LineTo(middle.x + area.Height() / 3, middle.y);
}
} // namespace

void AddColoursPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CColoursPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageColours, _T("Colours"), pDialog), manager.GetPage(ePagePickers));
}
