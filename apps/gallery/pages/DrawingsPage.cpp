// Drawings: the icons and pictures that the buttons share.

#include <afxwin.h>

#include "ContactSheet.h"
#include "GalleryPage.h"
#include "resource.h"

namespace
{
class CDrawingsPage : public CGalleryPage
{
public:
    explicit CDrawingsPage(AGalleryLog& log) : CGalleryPage(IDD_PAGE_DRAWINGS, _T("Drawings"), log) {}

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDrawingsPage, CGalleryPage)
    ON_WM_PAINT()
END_MESSAGE_MAP()

void CDrawingsPage::OnPaint()
{
    constexpr int kGap = 8;
    CPaintDC dc(this);
    CRect area;
    GetClientRect(area);
    area.top += PaintSheet(dc, area, AllIcons(), {CSize(38, 36)}) + kGap;
    PaintSheet(dc, area, AllPictures(), {CSize(53, 34)});
}
} // namespace

std::unique_ptr<CGalleryPage> MakeDrawingsPage(AGalleryLog& log)
{
    return std::make_unique<CDrawingsPage>(log);
}
