// Module state and thread state.

#include "threadstate.h"

CThreadState& GetThreadState()
{
    static thread_local CThreadState state;
    return state;
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
