#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

#include "ModalVisit.h"
#include "Picture.h"

namespace
{
constexpr int kFirstCell = 10153; ///< of the pop-up, in four columns

/// Opens the pop-up or the dialog of a button by a click, and uses it.
void Visit(CWnd& page, int nButton, const std::function<void(CWnd&)>& use)
{
    const owtest::ModalVisit visit(use);
    owtest::Click(*page.GetDlgItem(nButton));
    Require(visit.Count() == 1, L"no colours to choose from");
}

/// Whether the face of a button shows the colour.
bool Shows(CWnd& page, int nButton, COLORREF cr)
{
    CWnd& button = *page.GetDlgItem(nButton);
    return owtest::PumpUntil(
        [&]
        {
            CRect rect;
            button.GetClientRect(rect);
            owtest::Surface picture(rect.Width(), rect.Height());
            owtest::Capture(button, picture);
            return picture.at(rect.Width() / 3, rect.Height() / 2) == cr;
        });
}

/// Number labels of the page that show a text; their ids are the pool's.
int CountNumbers(CWnd& page, LPCTSTR pszText)
{
    int nCount = 0;
    for (int id = 11000; id < 11200; ++id)
        nCount += page.GetDlgItem(id) && TextOf(page, id) == pszText;
    return nCount;
}

void UseColours(CWnd& page)
{
    bool saved = false;
    Visit(page, IDC_COL_FLANGES,
          [&](CWnd& popup)
          {
              popup.UpdateWindow();
              owtest::Pump();
              saved = owtest::SaveWindowPng(*page.GetParent(), PicturePath(L"colours_open.png")) &&
                      owtest::SaveWindowPng(popup, PicturePath(L"colours_popup.png"));
              owtest::Click(*popup.GetDlgItem(kFirstCell + 18));
          });
    Require(saved, L"the picture of the pop-up was not written");
    Require(Shows(page, IDC_COL_FLANGES, 0xFFFF00), L"the mouse does not choose");

    owtest::Click(*page.GetDlgItem(IDC_COL_STORE));
    owtest::Click(*page.GetDlgItem(IDC_COL_RESET));
    owtest::Click(*page.GetDlgItem(IDC_COL_LOAD));
    Require(TextOf(page, IDC_COL_STATE) == _T("Loaded from the profile."), L"the palette does not come back");

    Visit(page, IDC_COL_WEB,
          [](CWnd&)
          {
              owtest::Press(VK_DOWN);
              owtest::Press(VK_RIGHT);
              owtest::Press(VK_RETURN);
          });
    Require(Shows(page, IDC_COL_WEB, 0x0000FF), L"the keyboard does not choose");
    Visit(page, IDC_COL_WEB, [](CWnd&) { owtest::Click(*CWnd::GetDesktopWindow(), CPoint(2, 2)); });

    Visit(page, IDC_COL_OUTLINE,
          [](CWnd&)
          {
              owtest::Type(L"96");
              owtest::Press(VK_RETURN);
          });
    Require(CountNumbers(page, _T("96")) == 2, L"the numbers do not follow");
    Focus(page, IDC_COL_RESET);
}

const PageUse s_use(ePageColours, &UseColours);
} // namespace
