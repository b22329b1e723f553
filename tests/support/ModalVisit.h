#pragma once
// Works on a modal dialog or message box from inside its message loop.
//
//     owtest::ModalVisit visit([](CWnd& box) { owtest::Press(VK_ESCAPE); });
//     EXPECT_EQ(dialog.DoModal(), IDCANCEL);
//     EXPECT_EQ(visit.Count(), 1);
//
// The visitor is called once: for the first dialog that this thread shows and lets be used after the object
// was made. If the dialog is still open afterwards, it is cancelled, so that a test fails and does not hang.
// Visits nest. Exceptions must not leave the visitor, which is called by the system.

#include <afxwin.h>

#include "Input.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace owtest
{
class ModalVisit
{
public:
    explicit ModalVisit(std::function<void(CWnd&)> visitor)
        : m_visitor(std::move(visitor)), m_known(OpenDialogs()), m_outer(std::exchange(s_current, this)),
          m_timer(::SetTimer(nullptr, 0, kPollMs, &Poll))
    {
    }
    ~ModalVisit()
    {
        ::KillTimer(nullptr, m_timer);
        s_current = m_outer;
    }
    ModalVisit(const ModalVisit&) = delete;
    ModalVisit& operator=(const ModalVisit&) = delete;

    /// How many dialogs were visited: 0 or 1.
    int Count() const { return m_count; }

private:
    static constexpr UINT kPollMs = 5;

    static void CALLBACK Poll(HWND, UINT, UINT_PTR, DWORD)
    {
        if (s_current && s_current->m_count == 0)
            s_current->VisitIfOpen();
    }

    void VisitIfOpen()
    {
        const std::vector<HWND> open = OpenDialogs();
        const auto isNew = [this](HWND dialog)
        { return std::find(m_known.begin(), m_known.end(), dialog) == m_known.end(); };
        const auto found = std::find_if(open.begin(), open.end(), isNew);
        if (found == open.end())
            return;
        const HWND dialog = *found;
        ::KillTimer(nullptr, m_timer);
        ++m_count;
        Activate(dialog);
        m_visitor(*CWnd::FromHandle(dialog));
        if (IsOpen(dialog))
            ::SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    }

    static bool IsOpen(HWND window) { return ::IsWindowVisible(window) && ::IsWindowEnabled(window); }

    static std::vector<HWND> OpenDialogs()
    {
        std::vector<HWND> dialogs;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM found) -> BOOL
            {
                wchar_t name[16] = L"";
                ::GetClassNameW(window, name, ARRAYSIZE(name));
                if (std::wstring_view(name) == L"#32770" && IsOpen(window))
                    reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&dialogs));
        return dialogs;
    }

    inline static ModalVisit* s_current = nullptr;

    std::function<void(CWnd&)> m_visitor;
    std::vector<HWND> m_known; ///< dialogs that were open before
    ModalVisit* m_outer;       ///< the visit that waits, or over whose dialog this one happens
    UINT_PTR m_timer;
    int m_count = 0;
};
} // namespace owtest
