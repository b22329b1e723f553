// OLE for the length of a thread.

#include <afxdisp.h>

#include "threadstate.h"

namespace
{
void AFXAPI TermWithThread(BOOL, BOOL)
{
    AfxOleTerm();
}
} // namespace

BOOL AFXAPI AfxOleInit()
{
    CThreadState& state = GetThreadState();
    CWinThread* const thread = AfxGetThread();
    ASSERT(!state.oleInitialized && thread != nullptr); // once for each thread, which it ends with
    if (!state.oleInitialized && thread != nullptr && SUCCEEDED(::OleInitialize(nullptr)))
    {
        state.oleInitialized = true;
        thread->m_lpfnOleTermOrFreeLib = &TermWithThread;
    }
    return state.oleInitialized;
}

void AFXAPI AfxOleTerm(BOOL bJustRevoke)
{
    if (!bJustRevoke && std::exchange(GetThreadState().oleInitialized, false))
        ::OleUninitialize();
}

void AFX_CDECL AfxEnableControlContainer(COccManager* pOccManager)
{
    ASSERT(pOccManager == nullptr); // there are no ActiveX controls that it could make
    (void)pOccManager;
}
