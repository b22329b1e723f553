#pragma once
#define __AFX_H__ // asked for by the headers that wizards make
// The base of the class library: run-time class information, diagnostics, exceptions, files.

#include "afxver_.h"

#include <windows.h>
#include <tchar.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "afxstr.h"

class CArchive;
class CDumpContext;
class CObject;
class CException;
class CFileException;

/// A place in a list or map. Null is the end.
struct __POSITION
{
};
typedef __POSITION* POSITION;
#define BEFORE_START_POSITION ((POSITION)-1L)

// ---------------------------------------------------------------------------------------------------------
// Diagnostics
//
// In a debug build (_DEBUG) a failed ASSERT reports file and line, on standard error and the debugger's
// output where the program has a standard error, else in a message box, and then breaks. In a release build
// ASSERT does not evaluate its argument; VERIFY does, and ignores the value.

#define THIS_FILE __FILE__
#define DEBUG_NEW new

AFX_CORE_API void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine);
AFX_CORE_API BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);
AFX_CORE_API void AFXAPI AfxDebugBreak();
AFX_CORE_API void AFXAPI AfxDump(const CObject* pOb);

/// Whether a block of memory, or a text with its terminator, can be read (and, for a block, written).
AFX_CORE_API BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite = TRUE);
AFX_CORE_API BOOL AFXAPI AfxIsValidString(LPCWSTR lpsz, int nLength = -1);
AFX_CORE_API BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength = -1);

AFX_CORE_API void AFX_CDECL AfxTraceVarArgs(LPCWSTR lpszFormat, ...);
AFX_CORE_API void AFX_CDECL AfxTraceVarArgs(LPCSTR lpszFormat, ...);

/// Writes a formatted line to the debugger's output. CString arguments may be passed directly.
template <typename CH, typename... ARGS>
inline void AFX_CDECL AfxTrace(const CH* lpszFormat, ARGS... args)
{
    AfxTraceVarArgs(lpszFormat, AfxVarArg(args)...);
}

#ifdef _DEBUG
#define TRACE(...) ::AfxTrace(__VA_ARGS__)
#define ASSERT(f) ((void)((f) || !::AfxAssertFailedLine(THIS_FILE, __LINE__) || (::AfxDebugBreak(), 0)))
#define VERIFY(f) ASSERT(f)
#define ASSERT_VALID(pOb) (::AfxAssertValidObject(pOb, THIS_FILE, __LINE__))
#define DEBUG_ONLY(f) (f)
#else
#define TRACE(...) ((void)0)
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define ASSERT_VALID(pOb) ((void)0)
#define DEBUG_ONLY(f) ((void)0)
#endif

#define TRACE0(sz) TRACE(_T("%s"), _T(sz))
#define TRACE1(sz, p1) TRACE(_T(sz), p1)
#define TRACE2(sz, p1, p2) TRACE(_T(sz), p1, p2)
#define TRACE3(sz, p1, p2, p3) TRACE(_T(sz), p1, p2, p3)

#define ASSERT_POINTER(p, type) ASSERT(((p) != nullptr) && ::AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_NULL_OR_POINTER(p, type)                                                                      \
    ASSERT(((p) == nullptr) || ::AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))

#define ASSUME(cond) ASSERT(cond)
#define AFXASSUME(cond) ASSUME(cond)

// A condition that is checked in every build: it asserts, and throws in a release build.
#define ENSURE_THROW(cond, exception)                                                                        \
    do                                                                                                       \
    {                                                                                                        \
        const bool afxConditionHolds = !!(cond);                                                             \
        ASSERT(afxConditionHolds);                                                                           \
        if (!afxConditionHolds)                                                                              \
            exception;                                                                                       \
    } while (false)
#define ENSURE(cond) ENSURE_THROW(cond, ::AfxThrowInvalidArgException())
#define ENSURE_ARG(cond) ENSURE_THROW(cond, ::AfxThrowInvalidArgException())
#define ENSURE_VALID_THROW(pOb, exception)                                                                   \
    do                                                                                                       \
    {                                                                                                        \
        ASSERT_VALID(pOb);                                                                                   \
        if (!(pOb))                                                                                          \
            exception;                                                                                       \
    } while (false)
#define ENSURE_VALID(pOb) ENSURE_VALID_THROW(pOb, ::AfxThrowInvalidArgException())

// ---------------------------------------------------------------------------------------------------------
// Run-time class information

/// Describes a class: one constant for each class that declares it, linked into the class list of the process
/// as long as its module is loaded.
struct AFX_CORE_CLASS CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;
    CObject*(PASCAL* m_pfnCreateObject)();         ///< null: objects cannot be made by class
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();   ///< answers null for CObject
    mutable CRuntimeClass* m_pNextClass = nullptr; ///< link of the class list

    /// A new object, which the caller owns. Null if the class is not dynamically creatable, if no class of
    /// that name is loaded, or if its constructor threw an MFC exception.
    CObject* CreateObject();
    static CObject* PASCAL CreateObject(LPCSTR lpszClassName);
    static CObject* PASCAL CreateObject(LPCWSTR lpszClassName);

    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    /// The class of that name in any loaded module, or null.
    static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);
    static CRuntimeClass* PASCAL FromName(LPCWSTR lpszClassName);
};

/// Enters a class in the class list when its module is loaded and takes it out when the module goes.
struct AFX_CORE_CLASS AFX_CLASSINIT
{
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass);
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    CRuntimeClass* m_pClass;
};

AFX_CORE_API void AFXAPI AfxClassInit(CRuntimeClass* pNewClass);
AFX_CORE_API void AFXAPI AfxClassTerm(CRuntimeClass* pOldClass);

/// The root of the class hierarchy. Objects are not copied unless a class says how.
class AFX_CORE_CLASS CObject
{
public:
    virtual CRuntimeClass* GetRuntimeClass() const { return GetThisClass(); }
    virtual ~CObject() {}

    /// Throws CMemoryException when there is no memory.
    void* PASCAL operator new(size_t nSize);
    void* PASCAL operator new(size_t, void* p) noexcept { return p; }
    void PASCAL operator delete(void* p);
    void PASCAL operator delete(void*, void*) {}

    BOOL IsKindOf(const CRuntimeClass* pClass) const { return GetRuntimeClass()->IsDerivedFrom(pClass); }

    /// Objects of these classes are not archived; the base does nothing.
    virtual void Serialize(CArchive& ar);
    BOOL IsSerializable() const { return GetRuntimeClass()->m_wSchema != 0xFFFF; }

    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;

    static const CRuntimeClass classCObject;
    static CRuntimeClass* PASCAL GetThisClass() { return const_cast<CRuntimeClass*>(&classCObject); }
    static CRuntimeClass* PASCAL _GetBaseClass() { return nullptr; }

protected:
    CObject() {}

private:
    CObject(const CObject& objectSrc);
    void operator=(const CObject& objectSrc);
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                                                                          \
protected:                                                                                                   \
    static CRuntimeClass* PASCAL _GetBaseClass();                                                            \
                                                                                                             \
public:                                                                                                      \
    static const CRuntimeClass class##class_name;                                                            \
    static CRuntimeClass* PASCAL GetThisClass();                                                             \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                        \
    DECLARE_DYNAMIC(class_name)                                                                              \
    static CObject* PASCAL CreateObject();

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                                 \
    CRuntimeClass* PASCAL class_name::_GetBaseClass()                                                        \
    {                                                                                                        \
        return RUNTIME_CLASS(base_class_name);                                                               \
    }                                                                                                        \
    const CRuntimeClass class_name::class##class_name = {#class_name, sizeof(class_name), wSchema, pfnNew,   \
                                                         &class_name::_GetBaseClass};                        \
    CRuntimeClass* PASCAL class_name::GetThisClass()                                                         \
    {                                                                                                        \
        return const_cast<CRuntimeClass*>(&class_name::class##class_name);                                   \
    }                                                                                                        \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                       \
    {                                                                                                        \
        return GetThisClass();                                                                               \
    }                                                                                                        \
    static const AFX_CLASSINIT _init_##class_name(RUNTIME_CLASS(class_name));

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                     \
    CObject* PASCAL class_name::CreateObject()                                                               \
    {                                                                                                        \
        return new class_name;                                                                               \
    }                                                                                                        \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

/// The dynamic cast answers null for an object of another class; the static one asserts in a debug build.
AFX_CORE_API CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
AFX_CORE_API CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject);

inline const CObject* AfxDynamicDownCast(CRuntimeClass* pClass, const CObject* pObject)
{
    return AfxDynamicDownCast(pClass, const_cast<CObject*>(pObject));
}

#define DYNAMIC_DOWNCAST(class_name, object)                                                                 \
    ((class_name*)::AfxDynamicDownCast(RUNTIME_CLASS(class_name), object))
#ifdef _DEBUG
#define STATIC_DOWNCAST(class_name, object)                                                                  \
    ((class_name*)::AfxStaticDownCast(RUNTIME_CLASS(class_name), object))
#else
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))
#endif

// ---------------------------------------------------------------------------------------------------------
// Exceptions
//
// MFC exceptions are thrown and caught by pointer. Who handles one calls Delete on it; the CATCH macros do so
// themselves at END_CATCH. The ready-made ones thrown by AfxThrowMemoryException and its kin are static
// objects, for which Delete does nothing, so that throwing needs no memory.

class AFX_CORE_CLASS CException : public CObject
{
    DECLARE_DYNAMIC(CException)

public:
    CException();
    explicit CException(BOOL bAutoDelete);
    ~CException() override;

    /// Gives the exception back; it must not be used afterwards.
    void Delete();

    /// Puts a message of at most nMaxError characters with its terminator into lpszError. FALSE, and an
    /// empty message, if there is none.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr);

    /// Shows the message, or the string resource nMessageID if there is none, and answers what
    /// AfxMessageBox answered.
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

    BOOL m_bAutoDelete;
};

/// An exception whose message is a string resource, loaded when it is first asked for.
class AFX_CORE_CLASS CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)

public:
    CSimpleException();
    explicit CSimpleException(BOOL bAutoDelete);
    CSimpleException(BOOL bAutoDelete, UINT nResourceID);
    ~CSimpleException() override;

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) override;

    void InitString();

protected:
    BOOL m_bInitialized;
    BOOL m_bLoaded;
    TCHAR m_szMessage[128];
    UINT m_nResourceID;
};

#define AFX_DECLARE_SIMPLE_EXCEPTION(class_name)                                                             \
    class AFX_CORE_CLASS class_name : public CSimpleException                                                \
    {                                                                                                        \
        DECLARE_DYNAMIC(class_name)                                                                          \
                                                                                                             \
    public:                                                                                                  \
        class_name();                                                                                        \
        explicit class_name(BOOL bAutoDelete);                                                               \
        class_name(BOOL bAutoDelete, UINT nResourceID);                                                      \
        ~class_name() override;                                                                              \
    };

AFX_DECLARE_SIMPLE_EXCEPTION(CMemoryException)
AFX_DECLARE_SIMPLE_EXCEPTION(CNotSupportedException)
AFX_DECLARE_SIMPLE_EXCEPTION(CResourceException)
AFX_DECLARE_SIMPLE_EXCEPTION(CUserException)
AFX_DECLARE_SIMPLE_EXCEPTION(CInvalidArgException)
#undef AFX_DECLARE_SIMPLE_EXCEPTION

/// A file operation that failed: why (m_cause), the system's own code, and the file.
class AFX_CORE_CLASS CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)

public:
    enum
    {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    CFileException(int cause = CFileException::none, LONG lOsError = -1, LPCTSTR lpszArchiveName = nullptr);
    ~CFileException() override;

    static int PASCAL OsErrorToException(LONG lOsError);
    static int PASCAL ErrnoToException(int nErrno);
    static void PASCAL ThrowOsError(LONG lOsError, LPCTSTR lpszFileName = nullptr);
    static void PASCAL ThrowErrno(int nErrno, LPCTSTR lpszFileName = nullptr);

    void Dump(CDumpContext& dc) const override;
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) override;

    int m_cause;
    LONG m_lOsError; ///< GetLastError's or errno's value, or -1
    CString m_strFileName;
};

[[noreturn]] AFX_CORE_API void AFXAPI AfxThrowMemoryException();
[[noreturn]] AFX_CORE_API void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] AFX_CORE_API void AFXAPI AfxThrowResourceException();
[[noreturn]] AFX_CORE_API void AFXAPI AfxThrowUserException();
[[noreturn]] AFX_CORE_API void AFXAPI AfxThrowInvalidArgException();
[[noreturn]] AFX_CORE_API void AFXAPI AfxThrowFileException(int cause, LONG lOsError = -1,
                                                            LPCTSTR lpszFileName = nullptr);

/// Ends the process at once.
[[noreturn]] AFX_CORE_API void AFXAPI AfxAbort();

/// Holds the exception that a CATCH block handles and deletes it at the end of the block. The links of a
/// thread form a chain, so that THROW_LAST finds the exception which it hands on.
struct AFX_CORE_CLASS AFX_EXCEPTION_LINK
{
    AFX_EXCEPTION_LINK();
    ~AFX_EXCEPTION_LINK();
    AFX_EXCEPTION_LINK(const AFX_EXCEPTION_LINK&) = delete;
    AFX_EXCEPTION_LINK& operator=(const AFX_EXCEPTION_LINK&) = delete;

    AFX_EXCEPTION_LINK* m_pLinkPrev;
    CException* m_pException;
};

/// Takes the exception that is being handled out of its link's care, before it is thrown on.
AFX_CORE_API void AFXAPI AfxThrowLastCleanup();

// clang-format off
#define TRY { AFX_EXCEPTION_LINK _afxExceptionLink; try {

#define CATCH(class_name, e) } catch (class_name* e) \
    { ASSERT(e->IsKindOf(RUNTIME_CLASS(class_name))); _afxExceptionLink.m_pException = e;
#define AND_CATCH(class_name, e) CATCH(class_name, e)
#define END_CATCH } }

#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) CATCH(CException, e)
#define END_CATCH_ALL } }

#define END_TRY } catch (CException* e) { _afxExceptionLink.m_pException = e; } }

#define THROW(e) throw e
#define THROW_LAST() (::AfxThrowLastCleanup(), throw)
// clang-format on

// ---------------------------------------------------------------------------------------------------------
// Files

/// What CFile::GetStatus answers. Times are not part of it.
struct CFileStatus
{
    ULONGLONG m_size;              ///< bytes
    BYTE m_attribute;              ///< CFile::Attribute values, or-ed
    BYTE _m_padding;               ///< unused
    TCHAR m_szFullName[_MAX_PATH]; ///< absolute path
};

/// A binary file over a system handle. The object owns the handle if it opened it itself. Failures throw
/// CFileException.
class AFX_CORE_CLASS CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)

public:
    enum OpenFlags
    {
        modeRead = 0x00000,
        modeWrite = 0x00001,
        modeReadWrite = 0x00002,
        shareCompat = 0x00000,
        shareExclusive = 0x00010,
        shareDenyWrite = 0x00020,
        shareDenyRead = 0x00030,
        shareDenyNone = 0x00040,
        modeNoInherit = 0x00080,
        modeCreate = 0x01000,
        modeNoTruncate = 0x02000,
        typeText = 0x04000, ///< CStdioFile only
        typeBinary = 0x08000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000,
    };

    enum Attribute
    {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20
    };

    enum SeekPosition
    {
        begin = 0x0,
        current = 0x1,
        end = 0x2
    };

    static const HANDLE hFileNull;

    CFile();
    CFile(HANDLE hFile); ///< closed by Close, but not by the destructor
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    ~CFile() override;

    operator HANDLE() const { return m_hFile; }

    /// FALSE on failure, told in pError if that is given.
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);

    /// A second object over the same open file. The caller owns it.
    virtual CFile* Duplicate() const;

    virtual ULONGLONG GetPosition() const;
    BOOL GetStatus(CFileStatus& rStatus) const;
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const;
    virtual CString GetFilePath() const { return m_strFileName; }
    virtual void SetFilePath(LPCTSTR lpszNewName) { m_strFileName = lpszNewName; }

    static void PASCAL Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName);
    static void PASCAL Remove(LPCTSTR lpszFileName);
    static BOOL PASCAL GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus);

    ULONGLONG SeekToEnd() { return Seek(0, end); }
    void SeekToBegin() { Seek(0, begin); }
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    virtual void SetLength(ULONGLONG dwNewLen);
    virtual ULONGLONG GetLength() const;

    /// Read answers the number of bytes read, which is less than nCount at the end of the file.
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);

    /// Abort closes and reports no failure; Close and Flush throw.
    virtual void Abort();
    virtual void Flush();
    virtual void Close();

    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

    HANDLE m_hFile;

protected:
    BOOL m_bCloseOnDelete;
    CString m_strFileName; ///< absolute path
};

/// A buffered file over a run-time library stream. In text mode, the default, strings are stored in the ANSI
/// code page and a line feed as carriage return and line feed. With typeBinary they are stored as they are, in
/// UTF-16.
class AFX_CORE_CLASS CStdioFile : public CFile
{
    DECLARE_DYNAMIC(CStdioFile)

public:
    CStdioFile();
    CStdioFile(FILE* pOpenStream); ///< in text mode; closed by Close, but not by the destructor
    CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    ~CStdioFile() override;

    virtual void WriteString(LPCTSTR lpsz);

    /// The first form reads up to nMax - 1 characters, keeps the line feed, and answers null at the end of
    /// the file. The second reads a whole line, drops the line feed, and answers FALSE at the end.
    virtual LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    virtual BOOL ReadString(CString& rString);

    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    void SetLength(ULONGLONG dwNewLen) override;
    void Abort() override;
    void Flush() override;
    void Close() override;

    /// Not supported for a stream: these throw CNotSupportedException.
    CFile* Duplicate() const override { AfxThrowNotSupportedException(); }
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;

    void Dump(CDumpContext& dc) const override;

    FILE* m_pStream;

private:
    BOOL m_bBinary;
    TCHAR m_chPending; ///< the second half of a character that was read, or 0

    void WriteBytes(const void* lpBuf, UINT nCount, int causeOfFailure);
    bool ReadCharacter(TCHAR& ch);
    bool ReadAnsiCharacter(TCHAR& ch);
};

/// A file in memory, which grows in steps of nGrowBytes. With nGrowBytes 0 an attached block does not grow.
class AFX_CORE_CLASS CMemFile : public CFile
{
    DECLARE_DYNAMIC(CMemFile)

public:
    CMemFile(UINT nGrowBytes = 1024);
    CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    ~CMemFile() override { CMemFile::Close(); }

    /// An attached block stays the caller's. A detached one becomes the caller's, who frees it with free().
    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    BYTE* Detach();

    ULONGLONG GetPosition() const override { return m_nPosition; }
    BOOL GetStatus(CFileStatus& rStatus) const;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    void SetLength(ULONGLONG dwNewLen) override;
    ULONGLONG GetLength() const override { return m_nFileSize; }
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    void Abort() override { CMemFile::Close(); }
    void Flush() override;
    void Close() override;

    /// Not supported in memory: these throw CNotSupportedException.
    CFile* Duplicate() const override { AfxThrowNotSupportedException(); }
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;

    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

protected:
    /// The memory that the file lives in; a derived class may take it from elsewhere.
    virtual BYTE* Alloc(SIZE_T nBytes) { return static_cast<BYTE*>(malloc(nBytes)); }
    virtual BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes) { return static_cast<BYTE*>(realloc(lpMem, nBytes)); }
    virtual BYTE* Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes);
    virtual void Free(BYTE* lpMem) { free(lpMem); }
    virtual void GrowFile(SIZE_T dwNewLen);

    SIZE_T m_nGrowBytes;
    SIZE_T m_nPosition;
    SIZE_T m_nBufferSize;
    SIZE_T m_nFileSize;
    BYTE* m_lpBuffer;
    BOOL m_bAutoDelete;
};

// ---------------------------------------------------------------------------------------------------------
// Diagnostic dumps

/// A stream for the state of objects: to a file, or without one to the debugger's output.
class AFX_CORE_CLASS CDumpContext
{
public:
    CDumpContext(CFile* pFile = nullptr); ///< not owned
    CDumpContext(const CDumpContext&) = delete;
    void operator=(const CDumpContext&) = delete;

    /// How far to follow an object's own objects: 0 stays with the object.
    int GetDepth() const { return m_nDepth; }
    void SetDepth(int nNewDepth) { m_nDepth = nNewDepth; }

    CDumpContext& operator<<(LPCSTR lpsz);
    CDumpContext& operator<<(LPCWSTR lpsz);
    CDumpContext& operator<<(const void* lp);
    CDumpContext& operator<<(const CObject* pOb) { return pOb != nullptr ? *this << *pOb : *this << L"NULL"; }
    CDumpContext& operator<<(const CObject& ob);
    CDumpContext& operator<<(BYTE by) { return *this << UINT(by); }
    CDumpContext& operator<<(WORD w) { return *this << UINT(w); }
    CDumpContext& operator<<(int n) { return *this << LONGLONG(n); }
    CDumpContext& operator<<(UINT u) { return *this << ULONGLONG(u); }
    CDumpContext& operator<<(LONG l) { return *this << LONGLONG(l); }
    CDumpContext& operator<<(DWORD dw) { return *this << ULONGLONG(dw); }
    CDumpContext& operator<<(LONGLONG n);
    CDumpContext& operator<<(ULONGLONG n);
    CDumpContext& operator<<(double d);
    CDumpContext& operator<<(float f) { return *this << double(f); }
    CDumpContext& DumpAsHex(ULONGLONG n);
    CDumpContext& DumpAsHex(LONGLONG n) { return DumpAsHex(ULONGLONG(n)); }
    CDumpContext& DumpAsHex(UINT u) { return DumpAsHex(ULONGLONG(u)); }
    CDumpContext& DumpAsHex(int n) { return DumpAsHex(UINT(n)); }
    CDumpContext& DumpAsHex(DWORD dw) { return DumpAsHex(UINT(dw)); }
    CDumpContext& DumpAsHex(LONG l) { return DumpAsHex(UINT(l)); }
    CDumpContext& DumpAsHex(WORD w) { return DumpAsHex(UINT(w)); }
    CDumpContext& DumpAsHex(BYTE by) { return DumpAsHex(UINT(by)); }
    CDumpContext& operator<<(HWND h) { return *this << static_cast<const void*>(h); }
    CDumpContext& operator<<(HDC h) { return *this << static_cast<const void*>(h); }
    CDumpContext& operator<<(HMENU h) { return *this << static_cast<const void*>(h); }

    /// Lines of nWidth bytes in hexadecimal, each begun with the text lpszLine.
    void HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth);
    void Flush();

    CFile* m_pFile;

private:
    int m_nDepth;

    void OutputString(LPCWSTR lpsz);
};

extern AFX_CORE_DATA CDumpContext afxDump;

// ---------------------------------------------------------------------------------------------------------
// Texts

/// The part of a text between the separators iSubString - 1 and iSubString. FALSE, and an empty string, if
/// there are not that many.
AFX_CORE_API BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString,
                                             TCHAR chSep = '\n');

/// Replaces %1, %2, ... (%A for the tenth) in a text or string resource by the given texts.
AFX_CORE_API void AFXAPI AfxFormatStrings(CString& rString, LPCTSTR lpszFormat, LPCTSTR const* rglpsz,
                                          int nString);
AFX_CORE_API void AFXAPI AfxFormatStrings(CString& rString, UINT nIDS, LPCTSTR const* rglpsz, int nString);
AFX_CORE_API void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1);
AFX_CORE_API void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2);
