#pragma once
// Works on an open pop-up menu from inside its loop.
//
//     owtest::MenuVisit visit([](const owtest::OpenMenu& menu) { menu.Click(2); });
//     owtest::Click(button);
//     EXPECT_EQ(visit.Count(), 1);
//
// The visitor is called once: for the first menu that this thread shows after the object was made. A menu takes
// its input from the queue in a loop of its own, so a visitor must not pump: what it presses and clicks is worked
// off when it has returned; and no exception may leave it. A menu that is open long after that is closed, so that a
// test fails and does not hang.

#include <afxwin.h>

#include "Input.h"

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace owtest
{
/// The menu as it stands on the screen.
class OpenMenu
{
public:
    explicit OpenMenu(HWND window) : m_window(window) {}

    HWND Window() const { return m_window; }
    HMENU Handle() const { return reinterpret_cast<HMENU>(::SendMessageW(m_window, MN_GETHMENU, 0, 0)); }
    /// The labels as they were given to the system: an ampersand that shows is doubled.
    std::vector<std::wstring> Labels() const
    {
        std::vector<std::wstring> labels(::GetMenuItemCount(Handle()));
        for (size_t item = 0; item < labels.size(); ++item)
        {
            wchar_t text[256] = L"";
            ::GetMenuStringW(Handle(), static_cast<UINT>(item), text, ARRAYSIZE(text), MF_BYPOSITION);
            labels[item] = text;
        }
        return labels;
    }

    void Press(std::initializer_list<WORD> virtualKeys) const
    {
        for (const WORD key : virtualKeys)
            QueueKey(key);
    }
    void Click(int item) const
    {
        CRect rect;
        ::GetMenuItemRect(nullptr, Handle(), item, &rect);
        QueueClick(rect.CenterPoint());
    }

private:
    HWND m_window;
};

class MenuVisit
{
public:
    explicit MenuVisit(std::function<void(const OpenMenu&)> visitor)
        : m_visitor(std::move(visitor)), m_outer(std::exchange(s_current, this)),
          m_timer(::SetTimer(nullptr, 0, kPollMs, &Poll))
    {
    }
    ~MenuVisit()
    {
        ::KillTimer(nullptr, m_timer);
        s_current = m_outer;
    }
    MenuVisit(const MenuVisit&) = delete;
    MenuVisit& operator=(const MenuVisit&) = delete;

    /// How many menus were visited: 0 or 1.
    int Count() const { return m_count; }

private:
    static constexpr UINT kPollMs = 5;
    static constexpr ULONGLONG kPatienceMs = 2000;

    // A timer is served when no input waits: the menu has worked off what came before.
    static void CALLBACK Poll(HWND, UINT, UINT_PTR, DWORD)
    {
        if (HWND window = OpenMenuWindow(); window && s_current)
            s_current->Visit(window);
    }

    void Visit(HWND window)
    {
        if (m_count == 0)
        {
            ++m_count;
            m_deadline = ::GetTickCount64() + kPatienceMs;
            m_visitor(OpenMenu(window));
        }
        else if (::GetTickCount64() > m_deadline)
            ::EndMenu();
    }

    static HWND OpenMenuWindow()
    {
        HWND found = nullptr;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM into) -> BOOL
            {
                wchar_t name[16] = L"";
                ::GetClassNameW(window, name, ARRAYSIZE(name));
                if (std::wstring_view(name) != L"#32768" || !::IsWindowVisible(window))
                    return TRUE;
                *reinterpret_cast<HWND*>(into) = window;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&found));
        return found;
    }

    inline static MenuVisit* s_current = nullptr;

    std::function<void(const OpenMenu&)> m_visitor;
    MenuVisit* m_outer;
    UINT_PTR m_timer;
    int m_count = 0;
    ULONGLONG m_deadline = 0; ///< when a menu that was visited should long be closed
};
} // namespace owtest
