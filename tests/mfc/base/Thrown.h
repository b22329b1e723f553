#pragma once
// What a piece of code throws, as the name of the exception's run-time class.

#include <afx.h>

#include <string>

inline constexpr char kInvalidArg[] = "CInvalidArgException";

/// The class name of the MFC exception that the function throws, which is given back; empty for none.
template <typename FUNCTION>
std::string ThrownBy(FUNCTION function)
{
    try
    {
        function();
    }
    catch (CException* e)
    {
        const std::string name = e->GetRuntimeClass()->m_lpszClassName;
        e->Delete();
        return name;
    }
    return {};
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
