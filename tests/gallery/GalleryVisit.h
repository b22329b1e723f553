#pragma once
// Opens the gallery's windows for a test, and goes through their pages.

#include "GalleryDialog.h"
#include "resource.h"
#include "Testing.h"

using Visit = std::function<void(CWnd&)>;

/// Shows the gallery, and closes it as a user does.
inline void OpenAndClose(const Visit& visit)
{
    CGalleryDialog dialog;
    owtest::ModalVisit modal(
        [&](CWnd& window)
        {
            visit(window);
            window.GetDlgItem(IDC_CLOSE)->SendMessage(BM_CLICK);
        });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
}

/// Selects each page of the gallery in turn.
inline void ForEachPage(CWnd& gallery, const Visit& visit)
{
    auto& tree = static_cast<CPageTreeCtrl&>(*gallery.GetDlgItem(IDC_PAGES));
    for (HTREEITEM item = tree.GetRootItem(); item; item = tree.GetNextVisibleItem(item))
    {
        tree.SelectItem(item);
        gallery.UpdateWindow();
        for (CWnd* pPage = gallery.GetWindow(GW_CHILD); pPage; pPage = pPage->GetNextWindow())
            if (pPage->IsWindowVisible() && pPage->IsKindOf(RUNTIME_CLASS(CPageDialog)))
                visit(*pPage);
    }
}
