// Drawings: the icons and the pictures that the buttons share, a page of each.

#include <afxwin.h>

#include "ContactSheet.h"
#include "GalleryPage.h"
#include "resource.h"

namespace
{
class CDrawingsPage : public CGalleryPage
{
public:
    CDrawingsPage(LPCTSTR pszTitle, AGalleryLog& log, std::vector<Drawing> drawings, CSize cell)
        : CGalleryPage(IDD_PAGE_DRAWINGS, pszTitle, log), m_drawings(std::move(drawings)), m_cell(cell)
    {
    }

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    std::vector<Drawing> m_drawings;
    CSize m_cell;
};

BEGIN_MESSAGE_MAP(CDrawingsPage, CGalleryPage)
    ON_WM_PAINT()
END_MESSAGE_MAP()

void CDrawingsPage::OnPaint()
{
    CPaintDC dc(this);
    CRect area;
    GetClientRect(area);
    PaintSheet(dc, area, m_drawings, {m_cell});
}
} // namespace

std::unique_ptr<CGalleryPage> MakeIconsPage(AGalleryLog& log)
{
    return std::make_unique<CDrawingsPage>(_T("Icons"), log, AllIcons(), CSize(38, 42));
}

std::unique_ptr<CGalleryPage> MakePicturesPage(AGalleryLog& log)
{
    return std::make_unique<CDrawingsPage>(_T("Pictures"), log, AllPictures(), CSize(72, 42));
}
