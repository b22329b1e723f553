// Module state and thread state.

#include "threadstate.h"

namespace
{
/// Each message asks, and the system's own slot is found sooner than a thread_local variable.
DWORD Slot()
{
    static const DWORD slot = ::TlsAlloc();
    return slot;
}
} // namespace

CThreadState& GetThreadState()
{
    const DWORD error = ::GetLastError(); // which finding the slot's value clears
    auto* state = static_cast<CThreadState*>(::TlsGetValue(Slot()));
    if (state == nullptr)
    {
        state = new CThreadState;
        ::TlsSetValue(Slot(), state);
    }
    ::SetLastError(error);
    return *state;
}

// Whoever still asks at the end of the thread gets a new state.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID)
{
    if (reason == DLL_THREAD_DETACH)
    {
        delete static_cast<CThreadState*>(::TlsGetValue(Slot()));
        ::TlsSetValue(Slot(), nullptr);
    }
    return TRUE;
}

namespace
{
AFX_MODULE_STATE MakeProcessState()
{
    AFX_MODULE_STATE state;
    state.m_hCurrentInstanceHandle = ::GetModuleHandle(nullptr);
    state.m_hCurrentResourceHandle = state.m_hCurrentInstanceHandle;
    return state;
}
} // namespace

AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState()
{
    // Never destroyed: extension modules ask for it while the process ends, after the library's own statics.
    static AFX_MODULE_STATE* const state = new AFX_MODULE_STATE(MakeProcessState());
    return state;
}

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState()
{
    return AfxGetAppModuleState();
}

AFX_MODULE_STATE* AFXAPI AfxGetModuleState()
{
    AFX_MODULE_STATE* const inForce = GetThreadState().moduleState;
    return inForce != nullptr ? inForce : AfxGetAppModuleState();
}

AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState)
{
    AFX_MODULE_STATE* const previous = AfxGetModuleState();
    GetThreadState().moduleState = pNewState;
    return previous;
}

AFX_MODULE_THREAD_STATE* AFXAPI AfxGetModuleThreadState()
{
    return &GetThreadState().moduleThreadState;
}
