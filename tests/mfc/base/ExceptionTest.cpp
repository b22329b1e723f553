// Exceptions in the macro and the C++ form, across modules, who deletes them and what they say; failed
// assertions.

#include "Answers.h"
#include "resource.h"

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

/// Throws, and from the handler again: the same one, or another.
void ThrowFromHandler(CException* another){TRY{ThrowCounted();
} // namespace
CATCH_ALL(e)
{
    if (another != nullptr)
        THROW(another);
    THROW_LAST();
}
END_CATCH_ALL
}

CString MessageOf(CException& e)
{
    TCHAR szMessage[256] = L"left over";
    return e.GetErrorMessage(szMessage, 256) ? szMessage : L"(none)" + CString(szMessage);
}
} // namespace

TEST(ExceptionMacros, CatchByClassAndDeleteTheirOwn)
{
    EXPECT_EQ(ThrownBy([] { ThrowFromHandler(nullptr); }), "CException");
    EXPECT_EQ(ThrownBy([] { ThrowFromHandler(new CFileException); }), "CFileException");

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
    EXPECT_EQ(CountedException::s_alive, 0);
}

TEST(Exception, TypesAreKnownAcrossModules)
{
    EXPECT_EQ(ThrownBy([] { AfxThrowNotSupportedException(); }), "CNotSupportedException");
    EXPECT_THROW(AfxThrowUserException(), CUserException*) << "by the exact class";
    EXPECT_THROW(AfxThrowUserException(), CSimpleException*) << "by a base";

    const auto ask = [] { CObject::operator new(size_t(1) << 60); };
    EXPECT_EQ(ThrownBy(ask), "CMemoryException");
    CException* const e = Thrown(ask).get();
    EXPECT_EQ(Thrown(ask).get(), e) << "one object for all";
    EXPECT_FALSE(MessageOf(*e).IsEmpty()) << "still alive";
}

TEST(Exception, MessagesComeFromResourcesAndAreCutToTheBuffer)
{
    CMemoryException memory(FALSE);
    CFileException file(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND, L"c:\\some\\file.txt");
    for (CException* e : {static_cast<CException*>(&memory), static_cast<CException*>(&file)})
    {
        const CString full = MessageOf(*e);
        EXPECT_GT(full.GetLength(), 5);
        TCHAR szShort[5] = {};
        UINT nHelp = 77;
        EXPECT_FALSE(e->GetErrorMessage(szShort, 0) && e == &file);
        EXPECT_TRUE(e->GetErrorMessage(szShort, 5, &nHelp));
        EXPECT_EQ(full.Left(4), szShort);
        EXPECT_EQ(nHelp, 0u);
    }
    CSimpleException fromResource(FALSE, IDS_GREETING), missing(FALSE, IDS_NO_SUCH_STRING);
    CException silent(FALSE);
    EXPECT_EQ(MessageOf(fromResource), L"Good day");
    EXPECT_EQ(MessageOf(missing) + MessageOf(silent), L"(none)(none)");

    CFileException unknown(99);
    EXPECT_GE(MessageOf(file).Find(L"c:\\some\\file.txt"), 0);
    for (const int cause : {CFileException::none, CFileException::diskFull, CFileException::endOfFile})
    {
        CFileException unnamed(cause);
        EXPECT_TRUE(MessageOf(unnamed) != MessageOf(unknown) && MessageOf(unnamed).Find(L'%') < 0) << cause;
    }
}

TEST(Exception, FileExceptionsKnowTheCauseOfAnError)
{
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_FILE_NOT_FOUND), CFileException::fileNotFound);
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_SHARING_VIOLATION), CFileException::sharingViolation);
    EXPECT_EQ(CFileException::OsErrorToException(0x7FFF), CFileException::genericException);
    EXPECT_EQ(CFileException::ErrnoToException(EACCES), CFileException::accessDenied);
    for (const auto& fails : {+[] { CFileException::ThrowOsError(ERROR_ACCESS_DENIED, L"name"); },
                              +[]
                              {
                                  _doserrno = ERROR_ACCESS_DENIED;
                                  CFileException::ThrowErrno(EACCES, L"name");
                              }})
    {
        const auto thrown = Thrown(fails);
        const auto* const denied = DYNAMIC_DOWNCAST(CFileException, thrown.get());
        ASSERT_NE(denied, nullptr);
        EXPECT_EQ(denied->m_cause, CFileException::accessDenied);
        EXPECT_EQ(denied->m_lOsError, ERROR_ACCESS_DENIED);
        EXPECT_STREQ(denied->m_strFileName, L"name");
    }
    const auto none = [] { CFileException::ThrowOsError(0), CFileException::ThrowErrno(0); };
    EXPECT_EQ(ThrownBy(none), "") << "no error is no exception";
}

TEST(Exception, ReportsItsMessageOrTheGivenOneOrThatThereIsNone)
{
    const auto textShown = [](CException& e, UINT given)
    {
        CString text;
        owtest::ModalVisit visit(
            [&](CWnd& box)
            {
                constexpr int messageId = 0xFFFF;
                box.GetDlgItemText(messageId, text);
                EXPECT_EQ(owtest::TextOf(box), AfxGetAppName());
                box.SendMessage(WM_COMMAND, IDOK);
            });
        EXPECT_EQ(e.ReportError(MB_OK, given), IDOK);
        return text;
    };
    CFileException named(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND, L"missing.txt");
    EXPECT_GE(textShown(named, IDS_GREETING).Find(L"missing.txt"), 0);
    CException silent(FALSE);
    EXPECT_EQ(textShown(silent, IDS_GREETING), L"Good day");
    EXPECT_FALSE(textShown(silent, 0).IsEmpty());
}

OW_CHILD_SCENARIO(failed_assertion)
{
    int evaluated = 0;
    VERIFY(++evaluated == 2); // which is evaluated in every build
    ASSERT(++evaluated == 1);
    std::printf("went on after %d\n", evaluated);
}

TEST(Assertion, BreaksInDebugBuildsOnly)
{
    const owtest::ChildResult result = owtest::RunChild("failed_assertion");
    ASSERT_TRUE(result.started);
#ifdef _DEBUG
    constexpr bool debug = true;
#else
    constexpr bool debug = false;
#endif
    EXPECT_EQ(result.brokeIntoDebugger, debug);
    EXPECT_NE(result.output.find(debug ? "went on after 2" : "went on after 1"), std::string::npos);
}
