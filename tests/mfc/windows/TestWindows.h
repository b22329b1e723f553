#pragma once
// What the tests of this folder share: small windows, and notes of what happened.

#include "Testing.h"

/// Notes a word and its numbers, as "size 2 640 480;". Noted answers all notes and begins anew.
inline std::string s_notes;
template <class... Numbers>
bool Note(const std::string& word, Numbers... numbers)
{
    s_notes += word;
    ((s_notes += ' ' + std::to_string(numbers)), ...);
    s_notes += ';';
    return true;
}
inline std::string Noted()
{
    return std::exchange(s_notes, "");
}

/// A window whose messages a function of the test sees first, and may answer.
struct CSeenWnd : CWnd
{
    using See = std::function<std::optional<LRESULT>(UINT, WPARAM, LPARAM)>;
    See see;

    explicit CSeenWnd(See first = nullptr) : see(std::move(first)) {}
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const auto answer = see ? see(message, wParam, lParam) : std::nullopt;
        return answer ? *answer : CWnd::WindowProc(message, wParam, lParam);
    }
};

/// A hidden top-level window without a frame.
inline BOOL CreatePopup(CWnd& window, CWnd* owner = nullptr, DWORD style = 0)
{
    return window.CreateEx(0, nullptr, L"", WS_POPUP | style, CRect(0, 0, 50, 50), owner, 0);
}

inline BOOL CreateChild(CWnd& child, CWnd& parent, UINT id)
{
    return child.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 20, 20), &parent, id);
}

// Such windows, made at once.
struct CPopup : CWnd
{
    explicit CPopup(CWnd* owner = nullptr, DWORD style = 0) { EXPECT_TRUE(CreatePopup(*this, owner, style)); }
};
struct CChild : CWnd
{
    CChild(CWnd& parent, UINT id) { EXPECT_TRUE(CreateChild(*this, parent, id)); }
};

/// Whether the end of the program was asked for; takes the message out of the queue.
inline bool TakeQuitMessage()
{
    MSG message;
    return ::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE;
}
