// Resource handles and the search along the chain of extension modules.

#include <afxwin.h>

namespace
{
constexpr UINT stringsInBlock = 16; ///< string resources are stored by blocks of this many

/// The first module of the chain that satisfies the condition; the current resource handle when none does.
template <class Condition>
HINSTANCE FindInChain(Condition hasResource)
{
    const AFX_MODULE_STATE* const state = AfxGetModuleState();
    if (hasResource(state->m_hCurrentResourceHandle))
        return state->m_hCurrentResourceHandle;
    for (const BOOL system : {FALSE, TRUE})
        for (const CDynLinkLibrary* library : state->m_libraryList)
            if (library->m_bSystem == system && library->m_hResource != nullptr &&
                hasResource(library->m_hResource))
                return library->m_hResource;
    return state->m_hCurrentResourceHandle;
}

/// Whether the string stands in its block. A block holds sixteen counted strings, of which any may be empty.
bool HasString(HINSTANCE module, UINT id)
{
    const HRSRC found = ::FindResource(module, MAKEINTRESOURCE(id / stringsInBlock + 1), RT_STRING);
    const HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    const auto* text = static_cast<const WORD*>(loaded != nullptr ? ::LockResource(loaded) : nullptr);
    if (text == nullptr)
        return false;
    for (UINT index = id % stringsInBlock; index > 0; --index)
        text += *text + 1;
    return *text != 0;
}
} // namespace

HINSTANCE AFXAPI AfxGetInstanceHandle()
{
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AFXAPI AfxGetResourceHandle()
{
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource)
{
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType)
{
    return FindInChain([=](HINSTANCE module)
                       { return ::FindResource(module, lpszName, lpszType) != nullptr; });
}

HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID)
{
    return FindInChain([=](HINSTANCE module) { return HasString(module, nID); });
}

int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf)
{
    const int length =
        ::LoadString(AfxFindStringResourceHandle(nIDS), nIDS, lpszBuf, static_cast<int>(nMaxBuf));
    if (length == 0 && nMaxBuf > 0)
        lpszBuf[0] = L'\0';
    return length;
}
