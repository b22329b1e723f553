#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

#include "ModalVisit.h"
#include "Picture.h"

#include <optional>
#include <vector>

namespace
{
constexpr int kBar = 10152;
using Visits = std::vector<std::function<bool(HWND box)>>; ///< false: not yet, call once more

/// Works on the progress box from inside its own loop: a timer of the box calls one visitor after another.
class WorkVisits
{
public:
    explicit WorkVisits(Visits visits)
        : m_hook(::SetWindowsHookEx(WH_CBT, &Watch, nullptr, ::GetCurrentThreadId()))
    {
        s_visits = std::move(visits);
        s_next = 0;
    }
    ~WorkVisits() { ::UnhookWindowsHookEx(m_hook); }
    WorkVisits(const WorkVisits&) = delete;
    WorkVisits& operator=(const WorkVisits&) = delete;

private:
    static LRESULT CALLBACK Watch(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto window = reinterpret_cast<HWND>(wParam);
        if (code == HCBT_ACTIVATE && s_next == 0 && ::GetDlgItem(window, kBar))
            ::SetTimer(window, 1, 400, &Tick);
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static void CALLBACK Tick(HWND box, UINT, UINT_PTR id, DWORD)
    {
        if (s_next == s_visits.size())
            ::KillTimer(box, id);
        else if (s_visits[s_next](box))
            ++s_next;
    }

    inline static Visits s_visits;
    inline static size_t s_next = 0;
    HHOOK m_hook;
};

void Run(CWnd& page, const wchar_t* pszAnswer)
{
    page.SetDlgItemText(IDC_PROGRESS_ANSWER, _T(""));
    owtest::Click(*page.GetDlgItem(IDC_PROGRESS_RUN));
    const auto done = [&] { return !TextOf(page, IDC_PROGRESS_ANSWER).IsEmpty(); };
    Require(owtest::PumpUntil(done, 20000), L"the work does not end");
    Require(TextOf(page, IDC_PROGRESS_ANSWER) == pszAnswer, L"Update does not answer as it should");
}

/// Cancels by mouse and refuses, then by Escape and agrees; with a picture of the box.
void CancelWork(CWnd& page)
{
    std::optional<owtest::ModalVisit> question;
    bool saved = false, refused = false, agreed = false;
    const WorkVisits visits({
        [&](HWND box)
        {
            saved = owtest::SaveWindowPng(box, PicturePath(L"progress_box.png"));
            question.emplace([&](CWnd&) { owtest::Press(VK_ESCAPE); });
            owtest::QueueClick(::GetDlgItem(box, IDCANCEL));
            return true;
        },
        [&](HWND box)
        {
            refused = question->Count() == 1 && ::IsWindowEnabled(box); // the question has gone
            if (!refused)
                return false;
            question.emplace([&](CWnd&) { owtest::Press(VK_RETURN); });
            owtest::QueueKey(VK_ESCAPE);
            return true;
        },
    });
    Run(page, L"false");
    agreed = question && question->Count() == 1;
    Require(saved, L"the picture of the progress box was not written");
    Require(refused && agreed, L"Cancel does not ask");
    Require(TextOf(page, IDC_PROGRESS_REACHED) != _T("100 %"), L"the work was not cancelled");
}

void UseProgress(CWnd& page)
{
    CancelWork(page);
    owtest::Click(*page.GetDlgItem(IDC_PROGRESS_CANCELLABLE));
    owtest::Click(*page.GetDlgItem(IDC_PROGRESS_STEP_10));
    Run(page, L"true");
    Require(TextOf(page, IDC_PROGRESS_REACHED) == _T("100 %"), L"the work is not whole");
}

const PageUse s_use(ePageProgress, &UseProgress);
} // namespace
