// CFile, CStdioFile and CMemFile: modes, contents, text translation, causes of failures.

#include "Thrown.h"

#include <afx.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace
{
/// Each test has a folder of its own, which goes with it.
class FileTest : public testing::Test
{
protected:
    void SetUp() override
    {
        TCHAR szFolder[MAX_PATH];
        GetTempPath(MAX_PATH, szFolder);
        // The time keeps it apart from what a run that crashed may have left under the same process number.
        m_folder.Format(L"%sow-file-test-%u-%I64u", szFolder, GetCurrentProcessId(), GetTickCount64());
        ASSERT_TRUE(CreateDirectory(m_folder, nullptr));
        m_path = m_folder + L"\\data.test.txt";
    }
    void TearDown() override
    {
        DeleteFile(m_path);
        EXPECT_TRUE(RemoveDirectory(m_folder)) << "a file is still open";
    }

    void Write(const std::string& bytes)
    {
        CFile file(m_path, CFile::modeCreate | CFile::modeWrite);
        file.Write(bytes.data(), UINT(bytes.size()));
    }
    std::string Bytes()
    {
        CFile file(m_path, CFile::modeRead);
        std::string bytes(size_t(file.GetLength()), '\0');
        EXPECT_EQ(file.Read(bytes.data(), UINT(bytes.size())), bytes.size());
        return bytes;
    }
    /// The cause of a failure to open, or none.
    int CauseOfOpen(LPCTSTR path, UINT flags)
    {
        CFile file;
        CFileException e;
        if (file.Open(path, flags, &e))
            return CFileException::none;
        EXPECT_EQ(file.m_hFile, CFile::hFileNull);
        EXPECT_STREQ(e.m_strFileName, path);
        return e.m_cause;
    }

    CString m_folder;
    CString m_path;
};

typedef FileTest File;
typedef FileTest StdioFile;

template <typename FUNCTION>
int CauseThrownBy(FUNCTION function)
{
    try
    {
        function();
    }
    catch (CFileException* e)
    {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return CFileException::none;
}
} // namespace

TEST_F(File, ModesDecideWhatOpeningDoes)
{
    EXPECT_EQ(CauseOfOpen(m_path, CFile::modeRead), CFileException::fileNotFound);
    EXPECT_EQ(CauseOfOpen(m_folder + L"\\none\\x", CFile::modeRead), CFileException::badPath);
    EXPECT_EQ(CauseOfOpen(m_path, CFile::modeCreate | CFile::modeWrite), CFileException::none);
    Write("content");
    {
        CFile keeping(m_path, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeReadWrite);
        EXPECT_EQ(keeping.GetLength(), 7u);
        keeping.SeekToEnd();
        keeping.Write("!", 1);
    }
    EXPECT_EQ(Bytes(), "content!");
    EXPECT_EQ(CauseOfOpen(m_path, CFile::modeCreate | CFile::modeWrite), CFileException::none);
    EXPECT_EQ(Bytes(), "") << "created anew";

    EXPECT_EQ(CauseOfOpen(m_folder, CFile::modeReadWrite), CFileException::accessDenied) << "a folder";
    EXPECT_EQ(CauseThrownBy([&] { CFile file(m_folder, CFile::modeWrite); }), CFileException::accessDenied);
}

TEST_F(File, SharingIsExclusiveUnlessSaid)
{
    Write("x");
    {
        CFile exclusive(m_path, CFile::modeRead);
        EXPECT_EQ(CauseOfOpen(m_path, CFile::modeRead | CFile::shareDenyNone),
                  CFileException::sharingViolation);
    }
    CFile sharing(m_path, CFile::modeRead | CFile::shareDenyWrite);
    EXPECT_EQ(CauseOfOpen(m_path, CFile::modeRead | CFile::shareDenyNone), CFileException::none);
    EXPECT_EQ(CauseOfOpen(m_path, CFile::modeWrite | CFile::shareDenyNone), CFileException::sharingViolation);
}

TEST_F(File, ReadsWritesAndSeeks)
{
    CFile file(m_path, CFile::modeCreate | CFile::modeReadWrite);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.Seek(-3, CFile::end), 7u);
    char buffer[10] = {};
    EXPECT_EQ(file.Read(buffer, 10), 3u) << "the rest only";
    EXPECT_STREQ(buffer, "789");
    EXPECT_EQ(file.Read(buffer, 10), 0u);
    file.SeekToBegin();
    EXPECT_EQ(file.Seek(2, CFile::current), 2u);
    file.SetLength(4);
    EXPECT_EQ(file.GetLength(), 4u);
    EXPECT_EQ(CauseThrownBy([&] { file.Seek(-1, CFile::begin); }), CFileException::badSeek);
}

TEST_F(File, DuplicateSharesThePositionAndOutlivesTheFirst)
{
    Write("1234");
    CFile file(m_path, CFile::modeRead);
    const std::unique_ptr<CFile> twin(file.Duplicate());
    EXPECT_EQ(twin->GetFilePath(), file.GetFilePath());
    twin->SeekToEnd();
    EXPECT_EQ(file.GetPosition(), 4u);
    file.Close();
    EXPECT_EQ(twin->GetLength(), 4u);
    char byte = 0;
    EXPECT_EQ(CauseThrownBy([&] { file.Read(&byte, 1); }), CFileException::invalidFile);
}

TEST_F(File, KnowsItsNamesAndStatus)
{
    Write("12345");
    CFile file(m_path, CFile::modeRead | CFile::shareDenyNone);
    EXPECT_EQ(file.GetFileName(), L"data.test.txt");
    EXPECT_EQ(file.GetFileTitle(), L"data.test");
    EXPECT_EQ(file.GetFilePath().CompareNoCase(m_path), 0);

    CFileStatus status;
    EXPECT_TRUE(file.GetStatus(status));
    EXPECT_EQ(status.m_size, 5u);
    EXPECT_TRUE(CFile::GetStatus(m_folder, status));
    EXPECT_TRUE(status.m_attribute & CFile::directory);
    EXPECT_FALSE(CFile::GetStatus(m_folder + L"\\none", status));
}

TEST_F(File, AttachedHandleStaysOpen)
{
    const HANDLE hFile = CreateFile(m_path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    {
        CFile file(hFile);
        file.Write("abc", 3);
    }
    LARGE_INTEGER size = {};
    EXPECT_TRUE(GetFileSizeEx(hFile, &size));
    EXPECT_EQ(size.QuadPart, 3);
    CFile file(hFile);
    file.Close();
    EXPECT_FALSE(GetFileSizeEx(hFile, &size));
}

TEST_F(StdioFile, TextModeTranslatesLineEnds)
{
    {
        CStdioFile file(m_path, CFile::modeCreate | CFile::modeWrite | CFile::typeText);
        file.WriteString(L"first\nsecond\n");
        file.WriteString(L"\nlast");
    }
    EXPECT_EQ(Bytes(), "first\r\nsecond\r\n\r\nlast");

    CStdioFile file(m_path, CFile::modeRead | CFile::typeText);
    CString line;
    for (LPCTSTR expected : {L"first", L"second", L"", L"last"})
    {
        EXPECT_TRUE(file.ReadString(line));
        EXPECT_EQ(line, expected);
    }
    EXPECT_FALSE(file.ReadString(line));
}

TEST_F(StdioFile, LinesComeInPiecesOfTheBufferAndWholeAsAString)
{
    const CString longLine(L'x', 3000);
    {
        CStdioFile file(m_path, CFile::modeCreate | CFile::modeWrite);
        file.WriteString(L"second\n" + longLine + L"\n");
    }
    CStdioFile file(m_path, CFile::modeRead);
    TCHAR buffer[32];
    EXPECT_EQ(file.ReadString(buffer, 4), buffer);
    EXPECT_STREQ(buffer, L"sec");
    EXPECT_NE(file.ReadString(buffer, 32), nullptr);
    EXPECT_STREQ(buffer, L"ond\n");
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, longLine);
    EXPECT_EQ(file.ReadString(buffer, 32), nullptr);
}

TEST_F(StdioFile, TextIsStoredInTheAnsiCodePage)
{
    const WCHAR text[] = {'a', 0x00E4, 0x0161, 'z', 0};
    const CStringA expected(text);
    {
        CStdioFile file(m_path, CFile::modeCreate | CFile::modeWrite);
        file.WriteString(text);
    }
    EXPECT_EQ(Bytes(), expected.GetString());
    CStdioFile file(m_path, CFile::modeRead);
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, CString(expected));
}

TEST_F(StdioFile, BinaryModeStoresTextAsItIs)
{
    {
        CStdioFile file(m_path, CFile::modeCreate | CFile::modeWrite | CFile::typeBinary);
        file.WriteString(L"a\nb");
    }
    EXPECT_EQ(Bytes(), std::string("a\0\n\0b\0", 6));
    CStdioFile file(m_path, CFile::modeRead | CFile::typeBinary);
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"a");
}

TEST_F(StdioFile, SeeksAndMeasuresWhatIsStillInItsBuffer)
{
    CStdioFile file(m_path, CFile::modeCreate | CFile::modeReadWrite | CFile::typeBinary);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.GetLength(), 10u);
    EXPECT_EQ(file.Seek(4, CFile::begin), 4u);
    char buffer[2];
    EXPECT_EQ(file.Read(buffer, 2), 2u);
    EXPECT_EQ(buffer[1], '5');
    file.SetLength(3);
    file.Close();
    EXPECT_EQ(Bytes(), "012");
}

TEST_F(StdioFile, FailuresHaveCauses)
{
    CStdioFile file;
    EXPECT_FALSE(file.Open(m_path, CFile::modeRead));
    EXPECT_EQ(CauseThrownBy([&] { CStdioFile missing(m_path, CFile::modeRead); }),
              CFileException::fileNotFound);

    ASSERT_TRUE(file.Open(m_path, CFile::modeCreate | CFile::modeWrite));
    EXPECT_EQ(ThrownBy([&] { file.Duplicate(); }), "CNotSupportedException");
    CString line;
    EXPECT_EQ(CauseThrownBy([&] { file.ReadString(line); }), CFileException::genericException);
    file.Close();
    ASSERT_TRUE(file.Open(m_path, CFile::modeRead));
    EXPECT_EQ(CauseThrownBy([&] { file.WriteString(L"x"); }), CFileException::diskFull);
}

TEST(MemFile, GrowsWithZeroesInTheGaps)
{
    CMemFile file(16);
    const std::string text = "more than sixteen bytes of text";
    file.Write(text.data(), UINT(text.size()));
    file.Seek(40, CFile::begin);
    file.Write("x", 1);
    file.SeekToBegin();
    char buffer[64] = {};
    EXPECT_EQ(file.Read(buffer, 64), 41u);
    EXPECT_EQ(std::string(buffer, text.size()), text);
    EXPECT_EQ(buffer[39], 0);
    EXPECT_EQ(CauseThrownBy([&] { file.Seek(-1, CFile::begin); }), CFileException::badSeek);
}

TEST(MemFile, AttachedBlockStaysTheCallersAndIsFull)
{
    BYTE block[8] = {};
    CMemFile fixed(block, sizeof(block));
    EXPECT_EQ(fixed.GetLength(), 8u);
    fixed.Write("XY", 2);
    EXPECT_EQ(block[0], 'X');
    fixed.SeekToEnd();
    EXPECT_EQ(CauseThrownBy([&] { fixed.Write("!", 1); }), CFileException::diskFull);
}
