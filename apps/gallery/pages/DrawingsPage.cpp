// Drawings: the icons and the pictures that the buttons share. Two pages that share a dialog, which shows the
// drawings of whichever is selected.

#include <afxwin.h>

#include "ContactSheet.h"
#include "GalleryPage.h"
#include "resource.h"

namespace
{
class CDrawingsPage : public CGalleryPage
{
public:
    CDrawingsPage(EPageID id, LPCTSTR pszTitle, CPageDialog* pDialog, std::vector<Drawing> drawings,
                  CSize cell)
        : CGalleryPage(id, pszTitle, pDialog), drawings(std::move(drawings)), cell(cell)
    {
    }

    const std::vector<Drawing> drawings;
    const CSize cell;
};

class CDrawingsDialog : public CGalleryPageDialog
{
public:
    explicit CDrawingsDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_DRAWINGS, host) {}

    void BindControlsToSources(bool bBind, CPage* pPage) override
    {
        m_pPage = bBind ? static_cast<CDrawingsPage*>(pPage) : nullptr;
        Invalidate();
    }

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    CDrawingsPage* m_pPage = nullptr; ///< the page that is shown
};

BEGIN_MESSAGE_MAP(CDrawingsDialog, CGalleryPageDialog)
    ON_WM_PAINT()
END_MESSAGE_MAP()

void CDrawingsDialog::OnPaint()
{
    CPaintDC dc(this);
    CRect area;
    GetClientRect(area);
    if (m_pPage)
        PaintSheet(dc, area, m_pPage->drawings, {m_pPage->cell});
}
} // namespace

// One dialog serves both pages.
void AddDrawingsPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CDrawingsDialog(host);
    manager.AddDialog(pDialog);
    CPage* pIcons = new CDrawingsPage(ePageIcons, _T("Icons"), pDialog, AllIcons(), CSize(38, 42));
    manager.AddPage(pIcons, nullptr);
    manager.AddPage(new CDrawingsPage(ePagePictures, _T("Pictures"), pDialog, AllPictures(), CSize(72, 42)),
                    pIcons);
}
