// The gallery as a host of pages: what it takes it gives back, also when it closes while a page is in use.

#include "ComboGalleryDialog.h"
#include "GalleryDialog.h"
#include "resource.h"

#include "Handles.h"
#include "Input.h"
#include "ModalVisit.h"

#include <gtest/gtest.h>

#include <functional>

namespace
{
constexpr size_t kSystemsShare = 32; ///< bytes that Wine keeps of each window for good, rounded up

using Visit = std::function<void(CWnd&)>;

/// Shows the dialog, and closes it as a user does.
template <class Dialog>
void OpenAndClose(const Visit& visit)
{
    Dialog dialog(nullptr);
    owtest::ModalVisit modal(
        [&](CWnd& window)
        {
            visit(window);
            window.GetDlgItem(IDCANCEL)->SendMessage(BM_CLICK);
        });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
}

/// Opens the dialog many times, and expects to find everything as it was.
template <class Dialog>
void ExpectNothingKept(int nOpenings, const Visit& useIt)
{
    int nWindows = 0;
    const auto open = [&]
    {
        OpenAndClose<Dialog>(
            [&](CWnd& window)
            {
                useIt(window);
                nWindows = owtest::CountHandles().windows;
            });
        AfxGetApp()->OnIdle(1); // frees temporary objects
    };
    for (int i = 0; i < 3; ++i)
        open(); // what is made once in a process is made now
    const owtest::HandleCount before = owtest::CountHandles();
    const size_t heapBefore = owtest::CountHeapBytes();
    for (int i = 0; i < nOpenings; ++i)
        open();
    const owtest::HandleCount after = owtest::CountHandles();
    EXPECT_EQ(before.gdi, after.gdi);
    EXPECT_EQ(before.windows, after.windows);
    EXPECT_LE(after.user - before.user, 2);
    EXPECT_LE(owtest::CountHeapBytes(), heapBefore + nOpenings * nWindows * kSystemsShare);
}
} // namespace

TEST(GalleryDialog, GivesBackWhatItTook)
{
    ExpectNothingKept<CGalleryDialog>(50,
                                      [](CWnd& window)
                                      {
                                          auto& tree = static_cast<CTreeCtrl&>(*window.GetDlgItem(IDC_PAGES));
                                          for (HTREEITEM item = tree.GetRootItem(); item;
                                               item = tree.GetNextVisibleItem(item))
                                          {
                                              tree.SelectItem(item);
                                              window.UpdateWindow();
                                          }
                                      });
}

TEST(ComboGalleryDialog, GivesBackWhatItTook)
{
    ExpectNothingKept<CComboGalleryDialog>(10,
                                           [](CWnd& window)
                                           {
                                               owtest::Press(VK_DOWN);
                                               window.GetDlgItem(IDC_PAGE_CHECK)->SendMessage(BM_CLICK);
                                           });
}

// Boxes report that they lose the focus while their dialog goes down.
TEST(GalleryDialog, ClosesWhileAPageIsInUse)
{
    OpenAndClose<CGalleryDialog>(
        [](CWnd&)
        {
            owtest::Press(VK_TAB); // from the tree into the first page
            owtest::Type(L"HEB 300");
            CString strText;
            CWnd::GetFocus()->GetWindowText(strText);
            EXPECT_EQ(L"HEB 300", strText);
        });
}
