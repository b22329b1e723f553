#pragma once
// What a piece of code throws, as the name of the exception's run-time class.

#include <afx.h>

#include "Testing.h"

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
