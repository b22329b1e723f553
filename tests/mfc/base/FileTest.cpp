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
        m_folder.Format(L"%sow-file-test-%u", szFolder, GetCurrentProcessId());
        ASSERT_TRUE(CreateDirectory(m_folder, nullptr));
        m_path = m_folder + L"\\data.test.txt";
    }
    void TearDown() override
    {
        for (LPCTSTR name : {L"\\data.test.txt", L"\\other.txt"})
        {
            DeleteFile(m_folder + name);
        }
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
        {
            return CFileException::none;
        }
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
    EXPECT_EQ(file.GetPosition(), 10u);
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
    file.Flush();

    const std::unique_ptr<CFile> twin(file.Duplicate());
    EXPECT_EQ(twin->GetFilePath(), file.GetFilePath());
    twin->SeekToBegin();
    EXPECT_EQ(file.GetPosition(), 0u) << "both share one position";
    file.Close();
    EXPECT_EQ(twin->GetLength(), 4u);
    EXPECT_EQ(CauseThrownBy([&] { file.Read(buffer, 1); }), CFileException::invalidFile);
}

TEST_F(File, LockedRangesKeepOthersOut)
{
    Write("0123456789");
    CFile first(m_path, CFile::modeReadWrite | CFile::shareDenyNone);
    CFile second(m_path, CFile::modeReadWrite | CFile::shareDenyNone);
    first.LockRange(2, 4);
    EXPECT_EQ(CauseThrownBy([&] { second.LockRange(4, 4); }), CFileException::lockViolation);
    first.UnlockRange(2, 4);
    second.LockRange(4, 4);
    second.UnlockRange(4, 4);
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
    EXPECT_EQ(m_path.CompareNoCase(status.m_szFullName), 0);
    EXPECT_TRUE(CFile::GetStatus(m_folder, status));
    EXPECT_TRUE(status.m_attribute & CFile::directory);
    EXPECT_FALSE(CFile::GetStatus(m_folder + L"\\none", status));
}

TEST_F(File, RenamesAndRemoves)
{
    const CString other = m_folder + L"\\other.txt";
    Write("x");
    CFile::Rename(m_path, other);
    EXPECT_EQ(CauseThrownBy([&] { CFile::Rename(m_path, other); }), CFileException::fileNotFound);
    CFile::Remove(other);
    EXPECT_EQ(CauseThrownBy([&] { CFile::Remove(other); }), CFileException::fileNotFound);
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
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"first");
    TCHAR buffer[32];
    EXPECT_EQ(file.ReadString(buffer, 4), buffer);
    EXPECT_STREQ(buffer, L"sec") << "a long line comes in pieces";
    EXPECT_NE(file.ReadString(buffer, 32), nullptr);
    EXPECT_STREQ(buffer, L"ond\n");
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_TRUE(line.IsEmpty());
    EXPECT_NE(file.ReadString(buffer, 32), nullptr);
    EXPECT_STREQ(buffer, L"last");
    EXPECT_EQ(file.ReadString(buffer, 32), nullptr);
    EXPECT_FALSE(file.ReadString(line));
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
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"b");
}

TEST_F(StdioFile, LongLinesAreReadWhole)
{
    const CString longLine(L'x', 3000);
    {
        CStdioFile file(m_path, CFile::modeCreate | CFile::modeWrite);
        file.WriteString(longLine + L"\nnext\n");
    }
    CStdioFile file(m_path, CFile::modeRead);
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, longLine);
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"next");
    EXPECT_FALSE(file.ReadString(line));
}

TEST_F(StdioFile, SeeksInTheStream)
{
    CStdioFile file(m_path, CFile::modeCreate | CFile::modeReadWrite | CFile::typeBinary);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.GetLength(), 10u);
    EXPECT_EQ(file.Seek(4, CFile::begin), 4u);
    char buffer[2];
    EXPECT_EQ(file.Read(buffer, 2), 2u);
    EXPECT_EQ(buffer[1], '5');
    EXPECT_EQ(file.GetPosition(), 6u);
    file.SetLength(3);
    EXPECT_EQ(file.GetLength(), 3u);
    EXPECT_EQ(ThrownBy([&] { file.LockRange(0, 1); }), "CNotSupportedException");
    EXPECT_EQ(ThrownBy([&] { file.Duplicate(); }), "CNotSupportedException");
    file.Close();
    EXPECT_EQ(Bytes(), "012");
}

TEST_F(StdioFile, FailuresHaveCauses)
{
    CStdioFile file;
    CFileException e;
    EXPECT_FALSE(file.Open(m_path, CFile::modeRead, &e));
    EXPECT_EQ(e.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(CauseThrownBy([&] { CStdioFile missing(m_path, CFile::modeRead); }),
              CFileException::fileNotFound);

    ASSERT_TRUE(file.Open(m_path, CFile::modeCreate | CFile::modeWrite));
    CString line;
    EXPECT_EQ(CauseThrownBy([&] { file.ReadString(line); }), CFileException::genericException);
    file.Close();
    ASSERT_TRUE(file.Open(m_path, CFile::modeRead));
    EXPECT_EQ(CauseThrownBy([&] { file.WriteString(L"x"); }), CFileException::diskFull);
}

TEST(MemFile, GrowsAndIsDetached)
{
    CMemFile file(16);
    const std::string text = "more than sixteen bytes of text";
    file.Write(text.data(), UINT(text.size()));
    EXPECT_EQ(file.GetLength(), text.size());
    file.Seek(40, CFile::begin);
    file.Write("x", 1);
    file.SeekToBegin();
    char buffer[64] = {};
    EXPECT_EQ(file.Read(buffer, 64), 41u);
    EXPECT_EQ(std::string(buffer, text.size()), text);
    EXPECT_EQ(buffer[39], 0) << "a gap is zero";
    EXPECT_EQ(CauseThrownBy([&] { file.Seek(-1, CFile::begin); }), CFileException::badSeek);

    BYTE* const memory = file.Detach();
    EXPECT_EQ(memory[40], 'x');
    EXPECT_EQ(file.GetLength(), 0u);
    free(memory);
}

TEST(MemFile, AttachedBlockStaysTheCallers)
{
    BYTE block[8] = {'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h'};
    CMemFile fixed(block, sizeof(block));
    EXPECT_EQ(fixed.GetLength(), 8u);
    fixed.Write("XY", 2);
    EXPECT_EQ(block[0], 'X');
    fixed.SeekToEnd();
    EXPECT_EQ(CauseThrownBy([&] { fixed.Write("!", 1); }), CFileException::diskFull);

    CMemFile growing;
    growing.Attach(block, sizeof(block), 8);
    EXPECT_EQ(growing.GetLength(), 0u) << "a block that may grow is only a place to write to";
    growing.Write("0123456789", 10);
    EXPECT_EQ(growing.GetLength(), 10u);
    EXPECT_EQ(ThrownBy([&] { growing.Duplicate(); }), "CNotSupportedException");
}
