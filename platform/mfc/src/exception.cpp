// CException, the simple exceptions, and the chain of handlers behind the CATCH macros.

#include <afxwin.h>

#include "messages.h"

// ---------------------------------------------------------------------------------------------------------
// CException

IMPLEMENT_DYNAMIC(CException, CObject)

CException::CException() : CException(TRUE)
{
}

CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete)
{
}

CException::~CException() = default;

void CException::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    if (lpszError != nullptr && nMaxError > 0)
        lpszError[0] = 0;
    return FALSE;
}

int CException::ReportError(UINT nType, UINT nMessageID)
{
    TCHAR szError[512];
    UINT nHelpContext = 0;
    if (GetErrorMessage(szError, UINT(_countof(szError)), &nHelpContext))
        return AfxMessageBox(szError, nType, nHelpContext);
    if (nMessageID != 0)
        return AfxMessageBox(nMessageID, nType, nHelpContext);
    return AfxMessageBox(AfxFindMessage(AFX_IDP_NO_ERROR_AVAILABLE), nType, nHelpContext);
}

// ---------------------------------------------------------------------------------------------------------
// CSimpleException

IMPLEMENT_DYNAMIC(CSimpleException, CException)

CSimpleException::CSimpleException() : CSimpleException(TRUE)
{
}

CSimpleException::CSimpleException(BOOL bAutoDelete) : CSimpleException(bAutoDelete, 0)
{
}

CSimpleException::CSimpleException(BOOL bAutoDelete, UINT nResourceID)
    : CException(bAutoDelete), m_bInitialized(FALSE), m_bLoaded(FALSE), m_szMessage{},
      m_nResourceID(nResourceID)
{
}

CSimpleException::~CSimpleException() = default;

void CSimpleException::InitString()
{
    m_bInitialized = TRUE;
    if (const LPCTSTR lpszText = AfxFindMessage(m_nResourceID))
    {
        lstrcpyn(m_szMessage, lpszText, int(_countof(m_szMessage)));
        m_bLoaded = TRUE;
    }
    else if (m_nResourceID != 0)
    {
        m_bLoaded = AfxLoadString(m_nResourceID, m_szMessage, UINT(_countof(m_szMessage))) != 0;
    }
}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    if (!m_bInitialized)
        InitString();
    CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
    if (m_bLoaded && lpszError != nullptr && nMaxError > 0)
        lstrcpyn(lpszError, m_szMessage, int(nMaxError));
    return m_bLoaded;
}

// clang-format off
#define AFX_IMPLEMENT_SIMPLE_EXCEPTION(class_name, nMessageID)                                      \
    IMPLEMENT_DYNAMIC(class_name, CSimpleException)                                                 \
    class_name::class_name() : CSimpleException(TRUE, nMessageID) {}                                \
    class_name::class_name(BOOL bAutoDelete) : CSimpleException(bAutoDelete, nMessageID) {}         \
    class_name::class_name(BOOL bAutoDelete, UINT nResourceID)                                      \
        : CSimpleException(bAutoDelete, nResourceID) {}                                             \
    class_name::~class_name() = default;

AFX_IMPLEMENT_SIMPLE_EXCEPTION(CMemoryException, AFX_IDS_MEMORY_EXCEPTION)
AFX_IMPLEMENT_SIMPLE_EXCEPTION(CNotSupportedException, AFX_IDS_NOT_SUPPORTED_EXCEPTION)
AFX_IMPLEMENT_SIMPLE_EXCEPTION(CResourceException, AFX_IDS_RESOURCE_EXCEPTION)
AFX_IMPLEMENT_SIMPLE_EXCEPTION(CUserException, AFX_IDS_USER_EXCEPTION)
AFX_IMPLEMENT_SIMPLE_EXCEPTION(CInvalidArgException, AFX_IDS_INVALID_ARG_EXCEPTION)
// clang-format on

// ---------------------------------------------------------------------------------------------------------
// Throwing

namespace
{
/// Throws the one object of its class, which lives as long as the library.
template <typename EXCEPTION>
[[noreturn]] void ThrowStatic()
{
    static EXCEPTION exception(FALSE);
    throw &exception;
}
} // namespace

void AFXAPI AfxThrowMemoryException()
{
    ThrowStatic<CMemoryException>();
}

void AFXAPI AfxThrowNotSupportedException()
{
    ThrowStatic<CNotSupportedException>();
}

void AFXAPI AfxThrowResourceException()
{
    ThrowStatic<CResourceException>();
}

void AFXAPI AfxThrowUserException()
{
    ThrowStatic<CUserException>();
}

void AFXAPI AfxThrowInvalidArgException()
{
    ThrowStatic<CInvalidArgException>();
}

// ---------------------------------------------------------------------------------------------------------
// Handlers

static thread_local AFX_EXCEPTION_LINK* pTopLink = nullptr;

AFX_EXCEPTION_LINK::AFX_EXCEPTION_LINK() : m_pLinkPrev(pTopLink), m_pException(nullptr)
{
    pTopLink = this;
}

AFX_EXCEPTION_LINK::~AFX_EXCEPTION_LINK()
{
    pTopLink = m_pLinkPrev;
    if (m_pException != nullptr)
        m_pException->Delete();
}

void AFXAPI AfxThrowLastCleanup()
{
    AFX_EXCEPTION_LINK* pLink = pTopLink;
    while (pLink != nullptr && pLink->m_pException == nullptr)
        pLink = pLink->m_pLinkPrev;
    if (pLink != nullptr)
        pLink->m_pException = nullptr;
}
