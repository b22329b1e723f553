#pragma once
// Works on a modal dialog or message box from inside its message loop.
//
//     const owtest::ModalVisit visit([](CWnd& box) { owtest::Press(VK_ESCAPE); });
//
// The visitor is called once: for the first dialog that this thread shows and lets be used after the object
// was made. With several visitors, each has the next dialog, whether it opens over the last one or after it.
// A dialog that is still open after its visit is cancelled, so that a test fails and does not hang. Visits
// nest. Exceptions must not leave a visitor, which is called by the system.

#include <afxwin.h>

#include "Input.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace owtest
{
class ModalVisit
{
public:
    using Visitor = std::function<void(CWnd&)>;

    explicit ModalVisit(Visitor visitor) : ModalVisit(std::vector{std::move(visitor)}) {}
    explicit ModalVisit(std::vector<Visitor> visitors)
        : m_visitors(std::move(visitors)), m_known(OpenDialogs()), m_outer(std::exchange(s_current, this)),
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

    /// How many dialogs were visited.
    int Count() const { return static_cast<int>(m_count); }

private:
    static constexpr UINT kPollMs = 5;

    static void CALLBACK Poll(HWND, UINT, UINT_PTR, DWORD)
    {
        if (s_current && s_current->m_count < s_current->m_visitors.size())
            s_current->VisitIfOpen();
    }

    void VisitIfOpen()
    {
        std::erase_if(m_known, [](HWND dialog) { return !::IsWindow(dialog); });
        const std::vector<HWND> open = OpenDialogs();
        const auto isNew = [this](HWND dialog)
        { return std::find(m_known.begin(), m_known.end(), dialog) == m_known.end(); };
        const auto found = std::find_if(open.begin(), open.end(), isNew);
        if (found == open.end())
            return;
        const HWND dialog = *found;
        m_known.push_back(dialog);
        const Visitor& visitor = m_visitors[m_count++];
        if (m_count == m_visitors.size())
            ::KillTimer(nullptr, m_timer);
        Activate(dialog);
        visitor(*CWnd::FromHandle(dialog));
        if (::IsWindowVisible(dialog) && ::IsWindowEnabled(dialog))
            ::SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    }

    /// That show and let themselves be used.
    static std::vector<HWND> OpenDialogs()
    {
        std::vector<HWND> dialogs = OpenWindows(L"#32770");
        std::erase_if(dialogs, [](HWND dialog) { return !::IsWindowEnabled(dialog); });
        return dialogs;
    }

    inline static ModalVisit* s_current = nullptr;

    std::vector<Visitor> m_visitors;
    std::vector<HWND> m_known; ///< dialogs that were open before, or have been visited
    ModalVisit* m_outer;       ///< the visit that waits, or over whose dialog this one happens
    UINT_PTR m_timer;
    size_t m_count = 0;
};
} // namespace owtest
