// Extension modules: DLLs that share the program's module state and add their resources to the chain.
// Everything here may run under the loader lock, before AfxWinInit and after AfxWinTerm.

#include <afxwin.h>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : CDynLinkLibrary(state.hModule, state.hResource)
{
    m_bSystem = bSystem;
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
    : m_hModule(hModule), m_hResource(hResource), m_bSystem(FALSE)
{
    auto& chain = AfxGetAppModuleState()->m_libraryList;
    chain.insert(chain.begin(), this);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    std::erase(AfxGetAppModuleState()->m_libraryList, this);
}

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule)
{
    // The module's run-time classes enter the process's class list by themselves as their module is loaded.
    state.bInitialized = TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll)
{
    if (!state.bInitialized)
        return;
    // A copy, because each destructor takes its library out of the chain.
    const auto chain = AfxGetAppModuleState()->m_libraryList;
    for (CDynLinkLibrary* library : chain)
        if (bAll || library->m_hModule == state.hModule)
            delete library;
    state.hResource = nullptr;
    state.bInitialized = FALSE;
}
