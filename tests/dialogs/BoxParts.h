#pragma once
// The parts of an open message box or name dialog, and a window for it to stand over.

#include <DialogControlsOW.h>

#include "Texts.h"

#include <acdocman.h>

constexpr int kFirst = IDOK, kSecond = 101, kThird = 102, kFourth = 103, kMessage = 104;

using owtest::TextOf;
using Visitor = owtest::ModalVisit::Visitor;

inline const Visitor PressEscape = [](CWnd&) { owtest::Press(VK_ESCAPE); };
inline const Visitor PressEnter = [](CWnd&) { owtest::Press(VK_RETURN); };

inline Visitor ClickOn(int id)
{
    return [id](CWnd& box) { owtest::Click(*box.GetDlgItem(id)); };
}

/// What `open` answers. The visitor has the dialog that it opens.
inline int Visited(const std::function<int()>& open, const Visitor& visitor)
{
    owtest::ModalVisit visit(visitor);
    const int answer = open();
    EXPECT_EQ(visit.Count(), 1);
    return answer;
}

/// Texts of a dialog and of those of the controls that are shown, with bars between.
inline std::wstring TextsOf(CWnd& dialog, std::initializer_list<int> ids)
{
    std::wstring texts = TextOf(dialog);
    for (const int id : ids)
        if (dialog.GetDlgItem(id)->IsWindowVisible())
            texts += L'|' + TextOf(*dialog.GetDlgItem(id));
    return texts;
}

inline CRect PlaceOf(const CWnd& dialog, int id)
{
    CRect rect;
    dialog.GetDlgItem(id)->GetWindowRect(rect);
    dialog.ScreenToClient(rect);
    return rect;
}

/// Pixels inside the edge of a button, as it shows, in which one part of the colour is twice another.
inline int CountColoured(CWnd& box, int id)
{
    const CSize inside = PlaceOf(box, id).Size() - CSize(6, 6);
    owtest::Surface picture(inside.cx, inside.cy);
    box.GetDlgItem(id)->UpdateWindow();
    CClientDC dc(box.GetDlgItem(id));
    picture.dc().BitBlt(0, 0, inside.cx, inside.cy, &dc, 3, 3, SRCCOPY);
    int found = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
        {
            const COLORREF pixel = picture.at(x, y);
            const auto [low, high] = std::minmax({GetRValue(pixel), GetGValue(pixel), GetBValue(pixel)});
            found += high > 2 * low;
        }
    return found;
}

struct OwnerWindow : CWnd
{
    OwnerWindow()
    {
        const DWORD style = WS_OVERLAPPEDWINDOW | WS_VISIBLE;
        CreateEx(0, AfxRegisterWndClass(0), L"Owner", style, 200, 200, 401, 301, nullptr, nullptr);
    }
    ~OwnerWindow() override { DestroyWindow(); }
};
