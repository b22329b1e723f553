#pragma once
// What the tests of MFC share: dice for random sequences, and what calls answer or throw, as text.

#include <afx.h>
#include <atltypes.h>

#include "Testing.h"

/// The same numbers in every run.
class Dice
{
public:
    /// A number from 0 on below `sides`.
    int operator()(int sides) { return static_cast<int>(m_engine() % static_cast<unsigned>(sides)); }
    /// Up to `longest` of few letters, so that parts of texts are found in others.
    CString Text(int longest)
    {
        CString text;
        for (int n = (*this)(longest + 1); n > 0; --n)
            text += static_cast<WCHAR>(L'a' + (*this)(3));
        return text;
    }

private:
    std::mt19937 m_engine;
};

inline constexpr char kInvalidArg[] = "CInvalidArgException";

/// The MFC exception that the function throws, which goes with the answer; null for none.
template <typename FUNCTION>
std::shared_ptr<CException> Thrown(FUNCTION function)
{
    try
    {
        function();
    }
    catch (CException* e)
    {
        return {e, [](CException* thrown) { thrown->Delete(); }};
    }
    return nullptr;
}

/// The class name of the exception; empty for none.
template <typename FUNCTION>
std::string ThrownBy(FUNCTION function)
{
    const auto e = Thrown(function);
    return e ? e->GetRuntimeClass()->m_lpszClassName : "";
}

/// Whether the call answers an argument with MFC's exception. A debug build stops at the argument before that, so
/// that it makes no call.
template <typename FUNCTION>
bool RefusesArgument([[maybe_unused]] FUNCTION function)
{
#ifdef _DEBUG
    return true;
#else
    return ThrownBy(function) == kInvalidArg;
#endif
}

/// Several answers as one text: Told(list.GetCount(), list.GetText(0)) is "3,beam".
template <class... Values>
std::string Told(const Values&... values)
{
    std::ostringstream text;
    const char* separator = "";
    const auto put = [&]<class Value>(const Value& value)
    {
        text << std::exchange(separator, ",");
        if constexpr (std::is_same_v<Value, CString>)
            text << CStringA(value.GetString(), value.GetLength()).GetString();
        else if constexpr (std::is_convertible_v<Value, LPCWSTR>)
            text << CStringA(value).GetString();
        else if constexpr (std::is_base_of_v<POINT, Value>)
            text << value.x << ' ' << value.y;
        else if constexpr (std::is_base_of_v<SIZE, Value>)
            text << value.cx << ' ' << value.cy;
        else if constexpr (std::is_base_of_v<RECT, Value>)
            text << value.left << ' ' << value.top << ' ' << value.right << ' ' << value.bottom;
        else if constexpr (std::is_integral_v<Value>)
            text << +value;
        else
            text << value;
    };
    (put(values), ...);
    return text.str();
}
