#pragma once
// Works on an open pop-up menu from inside its loop.
//
//     const owtest::MenuVisit visit([](const owtest::OpenMenu& menu) { menu.Click(2); });
//
// The visitor is called once, for the first menu that this thread shows after the object was made; several
// visitors one after the other, each when what the one before did has been worked off. A menu takes its input
// from the queue in a loop of its own, so a visitor must not pump: what it presses and clicks is worked off
// when it has returned; and no exception may leave it. A menu that is open long after the last visit is
// closed, so that a test fails and does not hang.

#include <afxwin.h>

#include "Input.h"

#include <functional>
#include <initializer_list>
#include <string>
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
        CRect rect; // on the screen
        ::GetMenuItemRect(nullptr, Handle(), item, &rect);
        QueueClick(rect.CenterPoint());
    }

private:
    HWND m_window;
};

class MenuVisit
{
public:
    using Visitor = std::function<void(const OpenMenu&)>;

    explicit MenuVisit(std::vector<Visitor> visitors)
        : m_visitors(std::move(visitors)), m_outer(std::exchange(s_current, this)),
          m_timer(::SetTimer(nullptr, 0, kPollMs, &Poll))
    {
    }
    explicit MenuVisit(Visitor visitor) : MenuVisit(std::vector<Visitor>{std::move(visitor)}) {}
    ~MenuVisit()
    {
        ::KillTimer(nullptr, m_timer);
        s_current = m_outer;
    }
    MenuVisit(const MenuVisit&) = delete;
    MenuVisit& operator=(const MenuVisit&) = delete;

    /// How many visitors were called; 0 also if what they did has not closed the menu.
    int Count() const { return m_count; }

private:
    static constexpr UINT kPollMs = 5;
    static constexpr ULONGLONG kPatienceMs = 10000;

    // A timer is served when no input waits and nothing is to be painted: what came before is worked off.
    static void CALLBACK Poll(HWND, UINT, UINT_PTR, DWORD)
    {
        if (const auto menus = OpenWindows(L"#32768"); !menus.empty() && s_current)
            s_current->VisitOrClose(menus.front());
    }

    void VisitOrClose(HWND window)
    {
        if (m_count < static_cast<int>(m_visitors.size()) && !m_gaveUp)
        {
            m_lastVisit = ::GetTickCount64();
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 1, 0); // what was painted comes to the screen
            m_visitors[m_count++](OpenMenu(window));
        }
        else if (::GetTickCount64() - m_lastVisit > kPatienceMs)
        {
            m_gaveUp = true;
            m_count = 0;
            ::EndMenu();
        }
    }

    inline static MenuVisit* s_current = nullptr;

    std::vector<Visitor> m_visitors;
    MenuVisit* m_outer;
    UINT_PTR m_timer;
    ULONGLONG m_lastVisit = 0; ///< in milliseconds
    int m_count = 0;
    bool m_gaveUp = false;
};
} // namespace owtest
