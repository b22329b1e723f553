#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

#include "MenuVisit.h"
#include "ModalVisit.h"
#include "Picture.h"

#include <memory>

namespace
{
constexpr int kLast = 8; ///< of the pickers, from 0: the one that begins disabled

CWnd& Picker(CWnd& page, int n)
{
    return *page.GetDlgItem(IDC_PICK_FIRST + n);
}

bool HasFocus(CWnd& control)
{
    return owtest::PumpUntil([&] { return ::GetFocus() == control.m_hWnd; });
}

/// The drawing as it stands on the screen.
std::unique_ptr<owtest::Surface> DrawingOf(CWnd& page)
{
    CWnd& preview = *page.GetDlgItem(IDC_PICK_PREVIEW);
    preview.UpdateWindow();
    CRect rect;
    preview.GetWindowRect(rect);
    auto pPicture = std::make_unique<owtest::Surface>(rect.Width(), rect.Height());
    owtest::Capture(preview, *pPicture);
    return pPicture;
}

/// Opens a picker's menu, lets the visitors choose in it, and looks whether value and drawing follow.
void Pick(CWnd& page, int n, const std::function<void()>& open,
          std::vector<owtest::MenuVisit::Visitor> visitors)
{
    const std::wstring name = L" of picker " + std::to_wstring(n);
    const CString strBefore = TextOf(page, IDC_PICK_VALUE_FIRST + n);
    const auto pBefore = DrawingOf(page);
    const int nVisitors = static_cast<int>(visitors.size());
    owtest::MenuVisit visit(std::move(visitors));
    open();
    Require(visit.Count() == nVisitors, L"the menu does not open or close" + name);
    const auto changed = [&] { return TextOf(page, IDC_PICK_VALUE_FIRST + n) != strBefore; };
    Require(owtest::PumpUntil(changed), L"the value stays" + name);
    Require(!(*DrawingOf(page) == *pBefore), L"the drawing stays" + name);
}

/// From picker to picker by Tab, opening them with Space and Enter in turns; then out of a menu by Escape.
void PickByKeyboard(CWnd& page)
{
    Picker(page, 0).SetFocus();
    for (int n = 0; n < kLast; ++n)
    {
        Require(HasFocus(Picker(page, n)), L"Tab does not come to a picker");
        const WORD opener = n % 2 ? VK_RETURN : VK_SPACE;
        const auto open = [=]
        {
            owtest::QueueKey(opener); // the key is up again when the menu is asked
            owtest::Pump();
        };
        Pick(page, n, open, {[](const owtest::OpenMenu& menu) {
                 menu.Press({VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN});
             }});
        owtest::Press(VK_TAB);
    }
    Require(HasFocus(*page.GetDlgItem(IDC_PICK_BY_LAYER)), L"Tab stops at a disabled picker");
    owtest::Press(VK_SPACE);
    Require(owtest::PumpUntil([&] { return Picker(page, kLast).IsWindowEnabled() != FALSE; }),
            L"the picker stays disabled");
}

/// The first menu with its third entry under the mouse.
void PickWithPicture(CWnd& page)
{
    bool bSaved = false;
    const auto point = [](const owtest::OpenMenu& menu) { menu.Press({VK_DOWN, VK_DOWN}); };
    const auto saveAndTake = [&](const owtest::OpenMenu& menu)
    {
        bSaved = owtest::SaveWindowPng(*page.GetParent(), PicturePath(L"pickers_open.png"));
        menu.Press({VK_RETURN});
    };
    Pick(page, 0, [&] { owtest::Click(Picker(page, 0)); }, {point, saveAndTake});
    Require(bSaved, L"the picture of the menu was not written");
}

/// A colour out of the pop-up, by keys.
void PickColor(CWnd& page)
{
    const auto pBefore = DrawingOf(page);
    const owtest::ModalVisit visit(
        [](CWnd&)
        {
            owtest::Press(VK_DOWN);
            owtest::Press(VK_RETURN);
        });
    owtest::Click(*page.GetDlgItem(IDC_PICK_COLOR));
    Require(visit.Count() == 1, L"no colours to choose from");
    Require(!(*DrawingOf(page) == *pBefore), L"the drawing keeps its colour");
}

void UsePickers(CWnd& page)
{
    PickByKeyboard(page);
    PickColor(page);
    PickWithPicture(page);
    for (int n = 1; n <= kLast; ++n)
        Pick(page, n, [&] { owtest::Click(Picker(page, n)); },
             {[](const owtest::OpenMenu& menu) { menu.Click(1); }});
    owtest::Click(*page.GetDlgItem(IDC_PICK_BY_LAYER));
    Picker(page, 1).SetFocus(); // shows what focus looks like
}

const PageUse s_use(ePagePickers, &UsePickers);
} // namespace
