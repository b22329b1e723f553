#pragma once
// Sending a control its messages, with the conversions of parameters and answers in one place.
//
//     int CListBox::GetCount() const { return Ask<int>(*this, LB_GETCOUNT); }
//     int CListBox::AddString(LPCTSTR item) { return Ask<int>(*this, LB_ADDSTRING, 0, item); }

#include <afxwin_wnd.h>

#include <type_traits>

/// A number or a pointer as a message parameter.
template <class Param, class Value>
Param ToParam(Value value)
{
    if constexpr (std::is_pointer_v<Value>)
        return reinterpret_cast<Param>(value);
    else
        return static_cast<Param>(value);
}

/// Sends a message to a control and answers what it answers, as a number, a pointer or nothing.
template <class Answer = void, class First = WPARAM, class Second = LPARAM>
Answer Ask(const CWnd& control, UINT message, First first = 0, Second second = 0)
{
    ASSERT(::IsWindow(control.m_hWnd));
    [[maybe_unused]] const LRESULT answer =
        ::SendMessage(control.m_hWnd, message, ToParam<WPARAM>(first), ToParam<LPARAM>(second));
    if constexpr (std::is_pointer_v<Answer>)
        return reinterpret_cast<Answer>(answer);
    else if constexpr (!std::is_void_v<Answer>)
        return static_cast<Answer>(answer);
}
