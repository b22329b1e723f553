// CFile, CStdioFile and CMemFile: modes, contents, text translation, causes of failures.

#include "Answers.h"

namespace
{
/// Each test has a folder of its own, which goes with it.
class File : public testing::Test
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

    CString m_folder, m_path;
};

template <typename FUNCTION>
int CauseThrownBy(FUNCTION function)
{
    const auto thrown = Thrown(function);
    const auto* const e = DYNAMIC_DOWNCAST(CFileException, thrown.get());
    return e != nullptr ? e->m_cause : CFileException::none;
}

/// Writes, reads, seeks and sets lengths at random, and expects the contents that a string has then.
void ExpectBytesAsInAString(CFile& file)
{
    Dice dice;
    std::string model;
    size_t at = 0;
    for (int round = 0; round < 400; ++round)
    {
        SCOPED_TRACE(round);
        char buffer[64] = {};
        const size_t count = dice(40);
        switch (dice(4))
        {
        case 0:
            std::fill_n(buffer, count, static_cast<char>('a' + round % 26));
            file.Write(buffer, UINT(count));
            if (count > 0) // a gap before it is zero
            {
                model.resize(std::max(model.size(), at + count));
                model.replace(at, count, buffer, count);
            }
            at += count;
            break;
        case 1:
        {
            const size_t left = model.size() - std::min(at, model.size());
            ASSERT_EQ(file.Read(buffer, UINT(count)), std::min(count, left));
            ASSERT_EQ(std::string(buffer, std::min(count, left)), left > 0 ? model.substr(at, count) : "");
            at += std::min(count, left);
            break;
        }
        case 2:
        {
            const LONGLONG target = dice(static_cast<int>(model.size()) + 10);
            const LONGLONG bases[] = {0, LONGLONG(at), LONGLONG(model.size())};
            const UINT from = dice(3);
            ASSERT_EQ(file.Seek(target - bases[from], from), ULONGLONG(target));
            at = size_t(target);
            break;
        }
        default:
            model.resize(std::min<size_t>(at, 200));
            file.SetLength(model.size());
            at = model.size();
            file.SeekToEnd();
        }
        ASSERT_EQ(file.GetPosition(), at);
        file.Seek(0, CFile::current); // between reading and writing, as the run-time library wants it
        ASSERT_EQ(file.GetLength(), model.size());
    }
    EXPECT_EQ(CauseThrownBy([&] { file.Seek(-1, CFile::begin); }), CFileException::badSeek);
    file.SeekToBegin();
    std::string all(model.size(), '?');
    EXPECT_EQ(file.Read(all.data(), UINT(all.size() + 1)), model.size()) << "the rest only";
    EXPECT_EQ(all, model);
}
} // namespace

TEST_F(File, EveryKindReadsWritesSeeksAndMeasuresAlike)
{
    constexpr UINT modes = CFile::modeCreate | CFile::modeReadWrite | CFile::typeBinary;
    CFile plain(m_path, modes);
    ExpectBytesAsInAString(plain);
    plain.Close();
    CStdioFile buffered(m_path, modes);
    ExpectBytesAsInAString(buffered);
    CMemFile memory(16);
    ExpectBytesAsInAString(memory);

    BYTE block[8] = {};
    CMemFile fixed(block, sizeof(block));
    EXPECT_EQ(fixed.GetLength(), 8u);
    fixed.Write("XY", 2);
    EXPECT_EQ(block[0], 'X') << "an attached block stays the caller's";
    fixed.SeekToEnd();
    EXPECT_EQ(CauseThrownBy([&] { fixed.Write("!", 1); }), CFileException::diskFull);
    CMemFile growing(block, sizeof(block), 4);
    growing.Write("12345678", 8);
    growing.Write("9", 1);
    EXPECT_EQ(Told(growing.GetLength(), block[7]), Told(9, BYTE('8'))) << "from there on in its own memory";
}

TEST_F(File, ModesDecideWhatOpeningDoesAndSharingIsExclusiveUnlessSaid)
{
    constexpr UINT open = CFile::modeRead | CFile::shareDenyNone;
    EXPECT_EQ(CauseOfOpen(m_path, CFile::modeRead), CFileException::fileNotFound);
    EXPECT_EQ(CauseOfOpen(m_folder + L"\\none\\x", CFile::modeRead), CFileException::badPath);
    EXPECT_EQ(CauseOfOpen(m_path, CFile::modeCreate | CFile::modeWrite), CFileException::none);
    Write("content");
    {
        CFile keeping(m_path, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeReadWrite);
        keeping.SeekToEnd();
        keeping.Write("!", 1);
        EXPECT_EQ(CauseOfOpen(m_path, open), CFileException::sharingViolation);
    }
    EXPECT_EQ(Bytes(), "content!");
    EXPECT_EQ(CauseOfOpen(m_path, CFile::modeCreate | CFile::modeWrite), CFileException::none);
    EXPECT_EQ(Bytes(), "") << "created anew";
    EXPECT_EQ(CauseOfOpen(m_folder, CFile::modeReadWrite), CFileException::accessDenied) << "a folder";
    EXPECT_EQ(CauseThrownBy([&] { CFile file(m_folder, CFile::modeWrite); }), CFileException::accessDenied);

    CFile sharing(m_path, CFile::modeRead | CFile::shareDenyWrite);
    EXPECT_EQ(CauseOfOpen(m_path, open), CFileException::none);
    EXPECT_EQ(CauseOfOpen(m_path, CFile::modeWrite | CFile::shareDenyNone), CFileException::sharingViolation);
}

TEST_F(File, HandlesAreSharedByDuplicatesAndLeftOpenWhenAttached)
{
    Write("1234");
    {
        CFile file(m_path, CFile::modeRead);
        const std::unique_ptr<CFile> twin(file.Duplicate());
        EXPECT_EQ(twin->GetFilePath(), file.GetFilePath());
        twin->SeekToEnd();
        EXPECT_EQ(file.GetPosition(), 4u);
        file.Abort();
        EXPECT_EQ(Told(file.GetFilePath(), twin->GetLength()), ",4");
        char byte = 0;
        EXPECT_EQ(CauseThrownBy([&] { file.Read(&byte, 1); }), CFileException::invalidFile);
    }
    const HANDLE hFile = CreateFile(m_path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    {
        CFile file(hFile);
        file.Write("abc", 3);
    }
    LARGE_INTEGER size = {};
    EXPECT_TRUE(GetFileSizeEx(hFile, &size));
    EXPECT_EQ(size.QuadPart, 3);
    CFile(hFile).Close();
    EXPECT_FALSE(GetFileSizeEx(hFile, &size));
}

TEST_F(File, KnowsItsNamesAndStatus)
{
    Write("12345");
    CFile file(m_path, CFile::modeRead | CFile::shareDenyNone);
    EXPECT_EQ(Told(file.GetFileName(), file.GetFileTitle()), "data.test.txt,data.test");
    EXPECT_EQ(file.GetFilePath().CompareNoCase(m_path), 0);
    CFileStatus status;
    EXPECT_TRUE(file.GetStatus(status));
    EXPECT_EQ(Told(status.m_size, status.m_attribute & CFile::directory, status.m_szFullName),
              Told(5, 0, m_path));
    EXPECT_TRUE(CFile::GetStatus(m_folder, status));
    EXPECT_EQ(Told(status.m_attribute & CFile::directory, status.m_szFullName),
              Told(CFile::directory, m_folder));
    EXPECT_FALSE(CFile::GetStatus(m_folder + L"\\none", status) || status.m_attribute != 0);
    file.Close();
    const CString other = m_folder + L"\\other";
    CFile::Rename(m_path, other);
    EXPECT_EQ(CauseThrownBy([&] { CFile::Rename(m_path, other); }), CFileException::fileNotFound);
    CFile::Remove(other);
    EXPECT_EQ(CauseThrownBy([&] { CFile::Remove(other); }), CFileException::fileNotFound);
}

TEST_F(File, TextIsStoredInTheAnsiCodePageWithItsLineEndsOrAsItIs)
{
    const WCHAR accents[] = {'a', 0x00E4, 0x0161, 'z', 0};
    const CStringA stored(accents);
    const std::string longLine(3000, 'x');
    const struct
    {
        UINT type;
        CString text;
        std::string bytes;
        std::vector<CString> lines;
    } cases[] = {
        {0, L"first\nsecond\n\nlast", "first\r\nsecond\r\n\r\nlast", {L"first", L"second", L"", L"last"}},
        {CFile::typeText, accents, stored.GetString(), {CString(stored)}},
        {CFile::typeBinary, L"a\nb", std::string("a\0\n\0b\0", 6), {L"a", L"b"}},
        {0, CString(L'x', 3000) + L"\n", longLine + "\r\n", {CString(L'x', 3000)}},
    };
    for (const auto& c : cases)
    {
        CStdioFile writer(m_path, CFile::modeCreate | CFile::modeWrite | c.type);
        writer.WriteString(c.text);
        writer.Close();
        EXPECT_EQ(Bytes(), c.bytes);
        CStdioFile reader(m_path, CFile::modeRead | c.type);
        std::vector<CString> lines;
        for (CString line; reader.ReadString(line);)
            lines.push_back(line);
        EXPECT_EQ(lines, c.lines);
    }
    Write("second\r\n");
    CStdioFile file(m_path, CFile::modeRead); // in pieces of the buffer
    TCHAR buffer[32];
    EXPECT_STREQ(file.ReadString(buffer, 4), L"sec");
    EXPECT_STREQ(file.ReadString(buffer, 32), L"ond\n");
    EXPECT_EQ(file.ReadString(buffer, 32), nullptr);
}

TEST_F(File, FailuresOfTextFilesHaveCauses)
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
