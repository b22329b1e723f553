// Exceptions in the macro and the C++ form, across modules, and who deletes them.

#include "Thrown.h"
#include "resource.h"

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

/// Whatever a test throws is to be gone at its end.
struct ExceptionMacros : testing::Test
{
    void TearDown() override { EXPECT_EQ(CountedException::s_alive, 0); }
};

CString MessageOf(CException& e)
{
    TCHAR szMessage[256];
    return e.GetErrorMessage(szMessage, 256) ? szMessage : L"(none)";
}
} // namespace

TEST_F(ExceptionMacros, HandlerMayThrowOnOrThrowAnother)
{
    const auto throwOn = []
    {
        TRY
        {
            ThrowCounted();
        }
        CATCH_ALL(e)
        {
            THROW_LAST();
        }
        END_CATCH_ALL
    };
    EXPECT_EQ(ThrownBy(throwOn), "CException");

    const auto throwAnother = []
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
    };
    EXPECT_EQ(ThrownBy(throwAnother), "CFileException");
}

TEST_F(ExceptionMacros, CatchByClassAlsoInsideAHandlerAndDeleteTheirOwn)
{
    bool innerCaught = false;
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
        CATCH(CFileException, e)
        {
            FAIL();
        }
        AND_CATCH(CException, e)
        {
            innerCaught = true;
            EXPECT_EQ(CountedException::s_alive, 2);
        }
        END_CATCH
        EXPECT_EQ(CountedException::s_alive, 1);
    }
    END_CATCH_ALL
    EXPECT_TRUE(innerCaught);
}

TEST(Exception, TypesAreKnownAcrossModules)
{
    EXPECT_EQ(ThrownBy([] { AfxThrowMemoryException(); }), "CMemoryException");
    EXPECT_EQ(ThrownBy([] { AfxThrowNotSupportedException(); }), "CNotSupportedException");
    EXPECT_EQ(ThrownBy([] { AfxThrowResourceException(); }), "CResourceException");
    EXPECT_EQ(ThrownBy([] { AfxThrowUserException(); }), "CUserException");
    EXPECT_EQ(ThrownBy([] { AfxThrowInvalidArgException(); }), kInvalidArg);
    EXPECT_EQ(ThrownBy([] { AfxThrowFileException(CFileException::endOfFile); }), "CFileException");

    EXPECT_THROW(AfxThrowUserException(), CUserException*) << "by the exact class";
    EXPECT_THROW(AfxThrowUserException(), CSimpleException*) << "by a base";
}

TEST(Exception, MemoryExceptionIsOneObjectForAll)
{
    CException* thrown[2] = {};
    for (CException*& rThrown : thrown)
    {
        try
        {
            CObject::operator new(size_t(1) << 60);
        }
        catch (CMemoryException* e)
        {
            rThrown = e;
            e->Delete();
        }
    }
    ASSERT_NE(thrown[0], nullptr);
    EXPECT_EQ(thrown[0], thrown[1]);
    EXPECT_FALSE(MessageOf(*thrown[0]).IsEmpty()) << "still alive after Delete";
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
}

TEST(Exception, MessagesComeFromResourcesOrAreMissing)
{
    CSimpleException fromResource(FALSE, IDS_GREETING);
    EXPECT_EQ(MessageOf(fromResource), L"Good day");
    CSimpleException missing(FALSE, IDS_NO_SUCH_STRING);
    EXPECT_EQ(MessageOf(missing), L"(none)");
    CException silent(FALSE);
    EXPECT_EQ(MessageOf(silent), L"(none)");
}

TEST(FileException, MessagesNameTheFile)
{
    CFileException e(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND, L"c:\\some\\file.txt");
    EXPECT_GE(MessageOf(e).Find(L"c:\\some\\file.txt"), 0);
    CFileException unnamed(CFileException::diskFull);
    EXPECT_NE(MessageOf(unnamed), MessageOf(e));
    EXPECT_LT(MessageOf(unnamed).Find(L'%'), 0);
    CFileException unknown(99);
    EXPECT_NE(MessageOf(unknown), L"(none)");
}

TEST(FileException, CausesFollowTheErrorCodes)
{
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_FILE_NOT_FOUND), CFileException::fileNotFound);
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_SHARING_VIOLATION), CFileException::sharingViolation);
    EXPECT_EQ(CFileException::OsErrorToException(0x7FFF), CFileException::genericException);
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
