#include "MixedFontMarkup.h"

#include <algorithm>

namespace
{
constexpr double kScriptScale = 2.0 / 3.0;
constexpr double kSubscriptShift = 0.20;
constexpr double kSuperscriptShift = -0.33;

void MakeScript(SMixedFontLook& look, double dShift)
{
    look.dShift += dShift * look.dScale;
    look.dScale *= kScriptScale;
}

/// Changes the look as an opening mark says. False if there is no such mark.
bool Open(std::wstring_view mark, SMixedFontLook& look)
{
    if (mark == L"b")
        look.bBold = true;
    else if (mark == L"i")
        look.bItalic = true;
    else if (mark == L"sub")
        MakeScript(look, kSubscriptShift);
    else if (mark == L"sup")
        MakeScript(look, kSuperscriptShift);
    else if (mark.starts_with(L"f ") && mark.size() > 2)
        look.face = mark.substr(2);
    else
        return false;
    return true;
}

class CSplitter
{
public:
    std::vector<SMixedFontRun> Run(std::wstring_view text)
    {
        while (!text.empty())
        {
            if (text.starts_with(L"\\<"))
            {
                Add(L"<");
                text.remove_prefix(2);
            }
            else
            {
                const size_t nMark = text.front() == L'<' ? MarkLength(text) : 0;
                if (nMark == 0)
                    Add(text.substr(0, 1));
                text.remove_prefix(std::max<size_t>(nMark, 1));
            }
        }
        return std::move(m_runs);
    }

private:
    struct SOpenMark
    {
        std::wstring name;
        SMixedFontLook before; ///< the look to go back to
    };

    /// Obeys the mark at the beginning of the text and answers its length; 0 if there is none.
    size_t MarkLength(std::wstring_view text)
    {
        const size_t nEnd = text.find(L'>');
        if (nEnd == std::wstring_view::npos)
            return 0;
        const std::wstring_view mark = text.substr(1, nEnd - 1);
        const bool bObeyed = mark.starts_with(L'/') ? Close(mark.substr(1)) : Begin(mark);
        return bObeyed ? nEnd + 1 : 0;
    }

    bool Begin(std::wstring_view mark)
    {
        const SMixedFontLook before = m_look;
        if (!Open(mark, m_look))
            return false;
        m_open.push_back({std::wstring(mark.substr(0, mark.find(L' '))), before});
        return true;
    }

    bool Close(std::wstring_view name)
    {
        const auto it = std::find_if(m_open.rbegin(), m_open.rend(),
                                     [name](const SOpenMark& mark) { return mark.name == name; });
        if (it == m_open.rend())
            return false;
        m_look = it->before;
        m_open.erase(std::prev(it.base()), m_open.end());
        return true;
    }

    void Add(std::wstring_view text)
    {
        if (m_runs.empty() || m_runs.back().look != m_look)
            m_runs.push_back({std::wstring(), m_look});
        m_runs.back().text += text;
    }

    std::vector<SMixedFontRun> m_runs;
    std::vector<SOpenMark> m_open;
    SMixedFontLook m_look;
};
} // namespace

std::vector<SMixedFontRun> SplitMixedFontText(std::wstring_view text)
{
    return CSplitter().Run(text);
}
