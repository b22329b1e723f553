// Exceptions in the macro and the C++ form, across modules, and who deletes them.

#include "Thrown.h"
#include "resource.h"

#include <afxcoll.h>

#include <gtest/gtest.h>

namespace
{
/// An exception that counts its like.
class CountedException : public CException
{
public:
    CountedException() { ++s_alive; }
    ~CountedException() override { --s_alive; }

    static inline int s_alive = 0;
};

[[noreturn]] void ThrowCounted()
{
    throw new CountedException;
}

CString MessageOf(CException& e)
{
    TCHAR szMessage[256];
    return e.GetErrorMessage(szMessage, 256) ? szMessage : L"(none)";
}
} // namespace

TEST(Exception, MacrosDeleteWhatTheyCatch)
{
    bool caught = false;
    TRY
    {
        ThrowCounted();
    }
    CATCH(CFileException, e)
    {
        FAIL();
    }
    AND_CATCH(CException, e)
    {
        caught = true;
        EXPECT_EQ(CountedException::s_alive, 1);
    }
    END_CATCH
    EXPECT_TRUE(caught);
    EXPECT_EQ(CountedException::s_alive, 0);

    TRY
    {
        ThrowCounted();
    }
    CATCH(CFileException, e)
    {
        FAIL();
    }
    AND_CATCH_ALL(e)
    {
        EXPECT_EQ(CountedException::s_alive, 1);
    }
    END_CATCH_ALL
    EXPECT_EQ(CountedException::s_alive, 0);
}

TEST(Exception, ThrowLastHandsTheExceptionOn)
{
    int handlers = 0;
    TRY{TRY{ThrowCounted();
}
CATCH_ALL(e)
{
    ++handlers;
    THROW_LAST();
}
END_CATCH_ALL
}
CATCH_ALL(e)
{
    ++handlers;
    EXPECT_EQ(CountedException::s_alive, 1);
}
END_CATCH_ALL
EXPECT_EQ(handlers, 2);
EXPECT_EQ(CountedException::s_alive, 0);
}

TEST(Exception, AnotherExceptionMayLeaveAHandler)
{
    EXPECT_EQ(ThrownBy(
                  []
                  {
                      TRY
                      {
                          ThrowCounted();
                      }
                      CATCH_ALL(e)
                      {
                          THROW(new CFileException(CFileException::diskFull));
                      }
                      END_CATCH_ALL
                  }),
              "CFileException");
    EXPECT_EQ(CountedException::s_alive, 0);
}

TEST(Exception, HandlersInsideAHandlerKeepTheirOwn)
{
    TRY
    {
        ThrowCounted();
    }
    CATCH_ALL(outer)
    {
        TRY
        {
            ThrowCounted();
        }
        CATCH_ALL(inner)
        {
            EXPECT_EQ(CountedException::s_alive, 2);
        }
        END_CATCH_ALL
        EXPECT_EQ(CountedException::s_alive, 1);
    }
    END_CATCH_ALL
    EXPECT_EQ(CountedException::s_alive, 0);
}

TEST(Exception, PlainHandlersDeleteThemselves)
{
    try
    {
        ThrowCounted();
    }
    catch (CException* e)
    {
        e->Delete();
    }
    EXPECT_EQ(CountedException::s_alive, 0);

    CException onStack(FALSE);
    onStack.Delete(); // not its own to delete
}

TEST(Exception, TypesAreKnownAcrossModules)
{
    EXPECT_EQ(ThrownBy([] { AfxThrowMemoryException(); }), "CMemoryException");
    EXPECT_EQ(ThrownBy([] { AfxThrowNotSupportedException(); }), "CNotSupportedException");
    EXPECT_EQ(ThrownBy([] { AfxThrowResourceException(); }), "CResourceException");
    EXPECT_EQ(ThrownBy([] { AfxThrowUserException(); }), "CUserException");
    EXPECT_EQ(ThrownBy([] { AfxThrowInvalidArgException(); }), "CInvalidArgException");
    EXPECT_EQ(ThrownBy([] { AfxThrowFileException(CFileException::endOfFile); }), "CFileException");

    // By the exact class, by a base, and by dynamic_cast.
    EXPECT_THROW(AfxThrowUserException(), CUserException*);
    EXPECT_THROW(AfxThrowUserException(), CSimpleException*);
    try
    {
        AfxThrowResourceException();
    }
    catch (CException* e)
    {
        EXPECT_NE(dynamic_cast<CResourceException*>(e), nullptr);
        EXPECT_EQ(dynamic_cast<CMemoryException*>(e), nullptr);
        EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CSimpleException)));
    }
}

TEST(Exception, MemoryExceptionIsOneObjectForAll)
{
    CException* thrown[2] = {};
    for (CException*& rThrown : thrown)
    {
        try
        {
            AfxThrowMemoryException();
        }
        catch (CMemoryException* e)
        {
            rThrown = e;
            e->Delete();
        }
    }
    EXPECT_EQ(thrown[0], thrown[1]);
    EXPECT_FALSE(MessageOf(*thrown[0]).IsEmpty()) << "still alive after Delete";
}

TEST(Exception, HeapThatIsUsedUpIsAMemoryException)
{
    EXPECT_EQ(ThrownBy(
                  []
                  {
                      CTypedPtrArray<CPtrArray, void*> blocks;
                      blocks.SetSize(INT_PTR(1) << 55);
                  }),
              "CMemoryException");
    EXPECT_EQ(ThrownBy([] { CObject::operator new(size_t(1) << 60); }), "CMemoryException");
}

TEST(Exception, MessagesAreCutToTheBuffer)
{
    CMemoryException memory(FALSE);
    const CString full = MessageOf(memory);
    EXPECT_GT(full.GetLength(), 5);
    TCHAR szShort[5];
    UINT nHelp = 77;
    EXPECT_TRUE(memory.GetErrorMessage(szShort, 5, &nHelp));
    EXPECT_EQ(full.Left(4), szShort);
    EXPECT_EQ(nHelp, 0u);

    CSimpleException fromResource(FALSE, IDS_GREETING);
    EXPECT_EQ(MessageOf(fromResource), L"Good day");
    CSimpleException missing(FALSE, IDS_NO_SUCH_STRING);
    EXPECT_EQ(MessageOf(missing), L"(none)");
    CException silent(FALSE);
    EXPECT_EQ(MessageOf(silent), L"(none)");
}

TEST(Exception, FileMessagesNameTheFile)
{
    CFileException e(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND, L"c:\\some\\file.txt");
    EXPECT_GE(MessageOf(e).Find(L"c:\\some\\file.txt"), 0);
    CFileException unnamed(CFileException::diskFull);
    EXPECT_NE(MessageOf(unnamed), MessageOf(e));
    EXPECT_LT(MessageOf(unnamed).Find(L'%'), 0);
    CFileException unknown(99);
    EXPECT_NE(MessageOf(unknown), L"(none)");
}

TEST(Exception, CausesFollowTheErrorCodes)
{
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_FILE_NOT_FOUND), CFileException::fileNotFound);
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_PATH_NOT_FOUND), CFileException::badPath);
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_SHARING_VIOLATION), CFileException::sharingViolation);
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_DISK_FULL), CFileException::diskFull);
    EXPECT_EQ(CFileException::OsErrorToException(0x7FFF), CFileException::genericException);
    EXPECT_EQ(CFileException::ErrnoToException(ENOENT), CFileException::fileNotFound);
    EXPECT_EQ(CFileException::ErrnoToException(EACCES), CFileException::accessDenied);

    try
    {
        CFileException::ThrowOsError(ERROR_ACCESS_DENIED, L"name");
        FAIL();
    }
    catch (CFileException* e)
    {
        EXPECT_EQ(e->m_cause, CFileException::accessDenied);
        EXPECT_EQ(e->m_lOsError, ERROR_ACCESS_DENIED);
        EXPECT_STREQ(e->m_strFileName, L"name");
        e->Delete();
    }
    EXPECT_EQ(ThrownBy([] { CFileException::ThrowOsError(0); }), "") << "no error is no exception";
}
