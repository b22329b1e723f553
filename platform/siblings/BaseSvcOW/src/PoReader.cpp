#include "PoReader.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <utility>

#include <windows.h>

namespace
{
/// A text of the file, still in UTF-8, and the line on which it begins.
struct SField
{
    std::string bytes;
    int nLine = 0;
};

/// What has been read of the current entry.
struct SEntry
{
    std::optional<SField> context;
    std::optional<SField> text;
    std::optional<SField> plural;
    std::optional<SField> translation;
    bool bFuzzy = false;
};

std::wstring Widen(const SField& field)
{
    const int nBytes = static_cast<int>(field.bytes.size());
    if (nBytes == 0)
        return {};
    const int nLength =
        ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, field.bytes.data(), nBytes, nullptr, 0);
    if (nLength == 0)
        throw SPoError{field.nLine, L"the text is not valid UTF-8"};
    std::wstring wide(nLength, L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, field.bytes.data(), nBytes, wide.data(), nLength);
    return wide;
}

std::string_view TrimBlanks(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r";
    const size_t nFirst = text.find_first_not_of(kBlanks);
    if (nFirst == std::string_view::npos)
        return {};
    return text.substr(nFirst, text.find_last_not_of(kBlanks) - nFirst + 1);
}

/// Turns the inside of a quoted string into its text.
class CUnescaper
{
public:
    CUnescaper(std::string_view source, int nLine) : m_source(source), m_nLine(nLine) {}

    std::string Run()
    {
        std::string text;
        while (m_nPos < m_source.size())
        {
            const char c = m_source[m_nPos++];
            text += c == '\\' ? Escape() : c;
        }
        return text;
    }

private:
    char Escape()
    {
        static const std::map<char, char> kSimple = {
            {'n', '\n'}, {'t', '\t'}, {'r', '\r'}, {'a', '\a'},  {'b', '\b'},
            {'f', '\f'}, {'v', '\v'}, {'"', '"'},  {'\\', '\\'},
        };
        const char c = m_nPos < m_source.size() ? m_source[m_nPos] : '\0';
        if (const auto it = kSimple.find(c); it != kSimple.end())
        {
            ++m_nPos;
            return it->second;
        }
        if (c == 'x')
        {
            ++m_nPos;
            return Number(16, 2);
        }
        return Number(8, 3);
    }

    char Number(int nBase, int nMaxDigits)
    {
        const size_t nStart = m_nPos;
        const size_t nEnd = std::min(m_source.size(), nStart + nMaxDigits);
        int nValue = 0;
        for (; m_nPos < nEnd && DigitValue(m_source[m_nPos]) < nBase; ++m_nPos)
            nValue = nValue * nBase + DigitValue(m_source[m_nPos]);
        if (m_nPos == nStart)
            throw SPoError{m_nLine, L"unknown escape sequence behind \\"};
        if (nValue == 0 || nValue > 255)
            throw SPoError{m_nLine, L"the escape sequence names no character"};
        return static_cast<char>(nValue);
    }

    static int DigitValue(char c)
    {
        if (c >= '0' && c <= '9')
            return c - '0';
        const int nLetter = std::tolower(static_cast<unsigned char>(c));
        return nLetter >= 'a' && nLetter <= 'f' ? nLetter - 'a' + 10 : 99;
    }

    std::string_view m_source;
    size_t m_nPos = 0;
    int m_nLine;
};

class CPoReader
{
public:
    std::vector<SPoMessage> Run(std::string_view bytes)
    {
        constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
        if (bytes.starts_with(kByteOrderMark))
            bytes.remove_prefix(kByteOrderMark.size());
        while (!bytes.empty())
        {
            ++m_nLine;
            const size_t nEnd = std::min(bytes.find('\n'), bytes.size());
            ReadLine(TrimBlanks(bytes.substr(0, nEnd)));
            bytes.remove_prefix(std::min(nEnd + 1, bytes.size()));
        }
        FinishEntry();
        return std::move(m_messages);
    }

private:
    void ReadLine(std::string_view line)
    {
        if (line.empty())
            return;
        if (line.front() == '#')
            ReadComment(line);
        else if (line.front() == '"')
            Continue(line);
        else
            ReadKeyword(line);
    }

    void ReadComment(std::string_view line)
    {
        if (line.starts_with("#~"))
            return;
        if (m_entry.translation) // a comment belongs to the entry behind it
            FinishEntry();
        if (line.starts_with("#,") && line.find("fuzzy") != std::string_view::npos)
            m_entry.bFuzzy = true;
        m_pOpen = nullptr;
    }

    void ReadKeyword(std::string_view line)
    {
        const size_t nQuote = std::min(line.find('"'), line.size());
        const std::string_view keyword = TrimBlanks(line.substr(0, nQuote));
        const std::string_view quoted = line.substr(nQuote);
        if (keyword == "msgctxt")
            BeginContext(quoted);
        else if (keyword == "msgid")
            BeginText(quoted);
        else if (keyword == "msgid_plural")
            BeginDependent(m_entry.plural, quoted);
        else if (keyword == "msgstr" || keyword == "msgstr[0]")
            BeginDependent(m_entry.translation, quoted);
        else if (keyword.starts_with("msgstr[") && keyword.ends_with("]"))
            BeginFurtherPlural(quoted);
        else
            Fail(L"this is neither a keyword, nor a text, nor a comment");
    }

    void BeginContext(std::string_view quoted)
    {
        if (m_entry.text || m_entry.context)
            FinishEntry();
        Begin(m_entry.context, quoted);
    }

    void BeginText(std::string_view quoted)
    {
        if (m_entry.text)
            FinishEntry();
        Begin(m_entry.text, quoted);
    }

    /// A field that has no meaning without the msgid before it.
    void BeginDependent(std::optional<SField>& field, std::string_view quoted)
    {
        if (!m_entry.text)
            Fail(L"there is no msgid before it");
        if (field)
            Fail(L"the keyword stands twice in one entry");
        Begin(field, quoted);
    }

    void Begin(std::optional<SField>& field, std::string_view quoted)
    {
        field = SField{Unquote(quoted), m_nLine};
        m_pOpen = &*field;
    }

    /// Plural forms behind the first are checked and not kept.
    void BeginFurtherPlural(std::string_view quoted)
    {
        if (!m_entry.plural || !m_entry.translation)
            Fail(L"a plural form without msgid_plural and msgstr[0]");
        m_unused = SField{Unquote(quoted), m_nLine};
        m_pOpen = &m_unused;
    }

    void Continue(std::string_view line)
    {
        if (!m_pOpen)
            Fail(L"a text without a keyword before it");
        m_pOpen->bytes += Unquote(line);
    }

    std::string Unquote(std::string_view quoted) const
    {
        if (quoted.empty())
            Fail(L"a text in quotation marks is missing");
        const size_t nEnd = ClosingQuote(quoted);
        if (nEnd == std::string_view::npos)
            Fail(L"the closing quotation mark is missing");
        if (nEnd + 1 != quoted.size())
            Fail(L"something stands behind the closing quotation mark");
        return CUnescaper(quoted.substr(1, nEnd - 1), m_nLine).Run();
    }

    static size_t ClosingQuote(std::string_view quoted)
    {
        for (size_t i = 1; i < quoted.size(); ++i)
        {
            if (quoted[i] == '"')
                return i;
            if (quoted[i] == '\\')
                ++i;
        }
        return std::string_view::npos;
    }

    void FinishEntry()
    {
        const SEntry entry = std::exchange(m_entry, {});
        m_pOpen = nullptr;
        if (!entry.text && !entry.context)
            return;
        if (!entry.text)
            throw SPoError{entry.context->nLine, L"msgctxt without msgid"};
        if (!entry.translation)
            throw SPoError{entry.text->nLine, L"msgid without msgstr"};
        if (entry.text->bytes.empty() && !entry.context)
            CheckHeader(*entry.translation);
        else
            Keep(entry);
    }

    void Keep(const SEntry& entry)
    {
        SPoMessage message;
        if (entry.context)
            message.context = Widen(*entry.context);
        message.text = Widen(*entry.text);
        message.translation = Widen(*entry.translation);

        const auto [it, bNew] = m_lines.try_emplace({message.context, message.text}, entry.text->nLine);
        if (!bNew)
        {
            throw SPoError{entry.text->nLine,
                           L"the text has an entry on line " + std::to_wstring(it->second) + L" already"};
        }
        if (!entry.bFuzzy && !message.translation.empty())
            m_messages.push_back(std::move(message));
    }

    static void CheckHeader(const SField& header)
    {
        constexpr std::string_view kCharset = "charset=";
        const size_t nPos = header.bytes.find(kCharset);
        if (nPos == std::string::npos)
            return;
        const std::string_view rest = std::string_view(header.bytes).substr(nPos + kCharset.size());
        std::string charset(TrimBlanks(rest.substr(0, rest.find('\n'))));
        std::ranges::transform(charset, charset.begin(), [](unsigned char c) { return std::tolower(c); });
        if (charset != "utf-8")
            throw SPoError{header.nLine, L"the character set of a catalogue must be UTF-8"};
    }

    [[noreturn]] void Fail(const wchar_t* pszWhat) const { throw SPoError{m_nLine, pszWhat}; }

    std::vector<SPoMessage> m_messages;
    std::map<std::pair<std::optional<std::wstring>, std::wstring>, int> m_lines; ///< where each text was met
    SEntry m_entry;
    SField m_unused;
    SField* m_pOpen = nullptr; ///< the field that a text on a line of its own continues
    int m_nLine = 0;
};
} // namespace

std::vector<SPoMessage> ReadPoMessages(std::string_view bytes)
{
    return CPoReader().Run(bytes);
}
