#pragma once
// Several answers as one text: Told(list.GetCount(), list.GetText(0)) is "3,beam".

#include <atltypes.h>

#include "Testing.h"

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
