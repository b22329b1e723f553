#include <afxwin.h>

#include "dialogs/SingleThreadProgress.h"

#include "dialogs/DlgSingleThreadProgress.h"
#include "module/HostResourceScope.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <utility>

namespace
{
constexpr COLORREF kBarColor = 0x404040;

/// Puts the middle of a window onto that of another one.
void CenterOn(CWnd& window, HWND hOther)
{
    CRect rect, rectOther;
    window.GetWindowRect(rect);
    ::GetWindowRect(hOther, rectOther);
    window.MoveWindow((rectOther.left + rectOther.right) / 2 - rect.Width() / 2,
                      (rectOther.top + rectOther.bottom) / 2 - rect.Height() / 2, rect.Width(), rect.Height(),
                      FALSE);
}

/// Through the dialog's own translation first, without which neither Tab, Enter nor Escape would reach it.
void Dispatch(CWnd& dialog, MSG& msg)
{
    if (CWnd::WalkPreTranslateTree(dialog, &msg))
        return;
    ::TranslateMessage(&msg);
    ::DispatchMessage(&msg);
}
} // namespace

CSingleThreadProgress::CSingleThreadProgress(CString strTitle, HWND hParent, bool bCancellable)
    : m_strTitle(std::move(strTitle)), m_bCancellable(bCancellable), m_pDialog(nullptr)
{
    const CHostResourceScope resources;
    m_pDialog = new CDlgSingleThreadProgress(*this, hParent, m_strTitle, bCancellable);
    if (m_pDialog->MakeWindow())
        Show(hParent);
    else
        delete std::exchange(m_pDialog, nullptr); // null already if it has deleted itself
}

CSingleThreadProgress::~CSingleThreadProgress()
{
    if (!m_pDialog)
        return;
    const CHostResourceScope resources;
    m_pDialog->DestroyWindow();
}

void CSingleThreadProgress::SetStep(int nStep)
{
    m_nStep = std::max(1, std::abs(std::max(nStep, -INT_MAX)));
}

bool CSingleThreadProgress::Update(int nPos)
{
    if (nPos / m_nStep != m_nLast / m_nStep && m_pDialog)
    {
        CString strText;
        strText.Format(L"%d %%", nPos);
        m_pDialog->Bar().Show(nPos, strText);
    }
    m_nLast = nPos;
    return !m_bCancellable || DispatchPendingWindowMessages();
}

bool CSingleThreadProgress::DispatchPendingWindowMessages()
{
    MSG msg;
    while (m_pDialog && ::PeekMessage(&msg, m_pDialog->m_hWnd, 0, 0, PM_REMOVE))
    {
        if (msg.message == WM_QUIT) // comes with every filter, and is the application's
        {
            ::PostQuitMessage(static_cast<int>(msg.wParam));
            break;
        }
        Dispatch(*m_pDialog, msg);
        if (IsCancelled())
            break;
    }
    return !IsCancelled();
}

/// Places, shows and paints the box.
void CSingleThreadProgress::Show(HWND hParent)
{
    if (::IsWindow(hParent))
        CenterOn(*m_pDialog, hParent);
    m_pDialog->ShowWindow(SW_SHOW);
    m_pDialog->UpdateWindow(); // a box that dispatches nothing has no other chance

    CProgressCtrlEx& bar = m_pDialog->Bar();
    bar.SetRange(0, 100);
    bar.SetColor(kBarColor);
    bar.SetPos(0);
    Update(0);
    if (m_pDialog)
        bar.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

bool CSingleThreadProgress::IsCancelled() const
{
    return m_pDialog ? m_pDialog->IsCancelled() : m_bCancelled;
}

void CSingleThreadProgress::DialogGone()
{
    m_bCancelled = m_pDialog->IsCancelled();
    m_pDialog = nullptr;
}
