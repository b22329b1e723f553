// Drawings: the icons and the pictures that the buttons share. Two pages that share a dialog, which shows the
// drawings of whichever is selected.

#include <afxwin.h>

#include "ContactSheet.h"
#include "GalleryPage.h"
#include "resource.h"

namespace
{
class CDrawingsPage : public CTitledPage
{
public:
    CDrawingsPage(LPCTSTR pszTitle, CPageDialog* pDialog, std::vector<Drawing> drawings, CSize cell)
        : CTitledPage(pszTitle, pDialog), drawings(std::move(drawings)), cell(cell)
    {
    }

    const std::vector<Drawing> drawings;
    const CSize cell;
};

class CDrawingsDialog : public CGalleryPage
{
public:
    explicit CDrawingsDialog(AGalleryHost& host) : CGalleryPage(IDD_PAGE_DRAWINGS, host) {}

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

BEGIN_MESSAGE_MAP(CDrawingsDialog, CGalleryPage)
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

CPage* AddDrawingsPage(AGalleryHost& host, CPage* pParent)
{
    auto* pDialog = new CDrawingsDialog(host);
    host.AddDialog(pDialog);
    CPage* pIcons = host.AddPage(new CDrawingsPage(_T("Icons"), pDialog, AllIcons(), CSize(38, 42)), pParent);
    host.AddPage(new CDrawingsPage(_T("Pictures"), pDialog, AllPictures(), CSize(72, 42)), pIcons);
    return pIcons;
}
