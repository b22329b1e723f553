#include "MixedFont.h"

#include "MixedFontMarkup.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>
#include <optional>

namespace
{
/// The fonts of the last few looks. Making one anew for every part of every text would cost more than all the rest.
/// Process-wide and unguarded, like all painting: only the thread of the dialogs asks.
class CFontStore
{
public:
    ~CFontStore()
    {
        for (SMade& made : m_made)
            ::DeleteObject(made.hFont);
    }

    /// Good until as many others have been asked for as the store holds.
    HFONT Get(const LOGFONT& logFont)
    {
        for (const SMade& made : m_made)
        {
            if (made.hFont && memcmp(&made.logFont, &logFont, sizeof logFont) == 0)
                return made.hFont;
        }
        SMade& made = m_made[m_nNext];
        m_nNext = (m_nNext + 1) % std::size(m_made);
        ::DeleteObject(made.hFont);
        made = {logFont, ::CreateFontIndirect(&logFont)};
        return made.hFont;
    }

private:
    struct SMade
    {
        LOGFONT logFont;
        HFONT hFont; ///< null while the place is free
    };
    SMade m_made[8] = {};
    size_t m_nNext = 0;
};

CFontStore s_fonts;

/// Gives a context its font and text alignment back. SaveDC and RestoreDC would give back ten times as much, and
/// take longer than a text does.
class CTextScope
{
public:
    explicit CTextScope(CDC& dc)
        : m_dc(dc), m_hFont(::GetCurrentObject(dc.m_hAttribDC, OBJ_FONT)), m_nAlign(dc.GetTextAlign())
    {
    }
    ~CTextScope()
    {
        Select(m_hFont);
        m_dc.SetTextAlign(m_nAlign);
    }
    CTextScope(const CTextScope&) = delete;
    CTextScope& operator=(const CTextScope&) = delete;

    /// Choosing a font costs, also the one that is there.
    void Select(HGDIOBJ hFont)
    {
        if (::GetCurrentObject(m_dc.m_hAttribDC, OBJ_FONT) == hFont)
            return;
        ::SelectObject(m_dc.m_hAttribDC, hFont);
        if (m_dc.m_hDC != m_dc.m_hAttribDC)
            ::SelectObject(m_dc.m_hDC, hFont);
    }

private:
    CDC& m_dc;
    HGDIOBJ m_hFont;
    UINT m_nAlign;
};

/// What a layout goes by beside the text: the context's font, and how large it comes out on the device.
struct SMixedBase
{
    explicit SMixedBase(CDC& dc) : hFont(::GetCurrentObject(dc.m_hAttribDC, OBJ_FONT))
    {
        ::GetObjectW(hFont, sizeof logFont, &logFont);
        dc.GetTextMetrics(&metrics);
        nExtra = dc.GetTextCharacterExtra();
    }

    bool LooksLike(const SMixedBase& other) const
    {
        return memcmp(&logFont, &other.logFont, sizeof logFont) == 0 &&
               memcmp(&metrics, &other.metrics, sizeof metrics) == 0 && nExtra == other.nExtra;
    }

    HGDIOBJ hFont; ///< only good while the context holds it
    LOGFONT logFont = {};
    TEXTMETRIC metrics = {};
    int nExtra;
};

/// A text laid out: every run with its font, width and base line.
class CMixedLayout
{
public:
    CMixedLayout(CDC& dc, const SMixedBase& base, LPCWSTR pszText)
        : m_base(base), m_nAscent(base.metrics.tmAscent), m_nDescent(base.metrics.tmDescent)
    {
        CTextScope scope(dc);
        for (SMixedFontRun& run : SplitMixedFontText(pszText))
            Append(dc, scope, run);
    }

    const SMixedBase& Base() const { return m_base; }

    CSize Size() const { return CSize(m_nWidth, m_nAscent + m_nDescent); }

    void Draw(CDC& dc, CPoint point, HGDIOBJ hBaseFont) const
    {
        const int nMode = dc.GetBkMode();
        if (nMode == OPAQUE)
            FillBackground(dc, CRect(point, Size()));
        CTextScope scope(dc);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextAlign(TA_LEFT | TA_BASELINE | TA_NOUPDATECP);
        int x = point.x;
        for (const SPart& part : m_parts)
        {
            scope.Select(FontOf(part, hBaseFont));
            dc.TextOut(x, point.y + m_nAscent + part.nShift, part.text.c_str(), Length(part));
            x += part.nWidth;
        }
        dc.SetBkMode(nMode);
    }

private:
    struct SPart
    {
        std::wstring text;
        std::optional<LOGFONT> font; ///< none for the context's own
        int nWidth;
        int nShift; ///< of the base line, downwards
    };

    static int Length(const SPart& part) { return static_cast<int>(part.text.size()); }

    static HGDIOBJ FontOf(const SPart& part, HGDIOBJ hBaseFont)
    {
        return part.font ? s_fonts.Get(*part.font) : hBaseFont;
    }

    static void FillBackground(CDC& dc, const CRect& rect)
    {
        CBrush brush(dc.GetBkColor());
        dc.FillRect(rect, &brush);
    }

    void Append(CDC& dc, CTextScope& scope, SMixedFontRun& run)
    {
        const int nShift = Rounded(run.look.dShift * m_base.metrics.tmHeight);
        SPart part = {std::move(run.text), FontFor(run.look), 0, nShift};
        scope.Select(FontOf(part, m_base.hFont));
        TEXTMETRIC metrics;
        dc.GetTextMetrics(&metrics);
        part.nWidth = dc.GetTextExtent(part.text.c_str(), Length(part)).cx;

        m_nWidth += part.nWidth;
        m_nAscent = std::max<int>(m_nAscent, metrics.tmAscent - part.nShift);
        m_nDescent = std::max<int>(m_nDescent, metrics.tmDescent + part.nShift);
        m_parts.push_back(std::move(part));
    }

    /// The context's font, changed as the look says; none if it says nothing.
    std::optional<LOGFONT> FontFor(const SMixedFontLook& look) const
    {
        if (look == SMixedFontLook())
            return std::nullopt;
        LOGFONT logFont = m_base.logFont;
        if (look.bBold)
            logFont.lfWeight = std::max<LONG>(logFont.lfWeight, FW_BOLD);
        if (look.bItalic)
            logFont.lfItalic = TRUE;
        if (look.dScale != 1.0)
        {
            const int nSize = m_base.metrics.tmHeight - m_base.metrics.tmInternalLeading;
            logFont.lfHeight = -Rounded(look.dScale * nSize);
            logFont.lfWidth = Rounded(look.dScale * logFont.lfWidth);
        }
        if (!look.face.empty())
        {
            logFont.lfCharSet = DEFAULT_CHARSET; // the face decides, a symbol face too
            lstrcpynW(logFont.lfFaceName, look.face.c_str(), LF_FACESIZE);
        }
        return logFont;
    }

    static int Rounded(double dValue) { return static_cast<int>(std::lround(dValue)); }

    SMixedBase m_base;
    std::vector<SPart> m_parts;
    int m_nWidth = 0;
    int m_nAscent;
    int m_nDescent;
};

/// The layouts of the texts that were asked for. A text is measured before it is drawn, and a window's texts are
/// drawn again and again: choosing the fonts just to measure would take longer than all the rest.
class CLayoutStore
{
public:
    /// Good until the next call.
    const CMixedLayout& Get(CDC& dc, const SMixedBase& base, LPCWSTR pszText)
    {
        const auto found = m_layouts.find(std::wstring_view(pszText));
        if (found != m_layouts.end() && found->second.Base().LooksLike(base))
            return found->second;
        if (m_layouts.size() == kMost)
            m_layouts.clear();
        return m_layouts.insert_or_assign(pszText, CMixedLayout(dc, base, pszText)).first->second;
    }

private:
    static constexpr size_t kMost = 1000; ///< about half a megabyte
    std::map<std::wstring, CMixedLayout, std::less<>> m_layouts;
};

CLayoutStore s_layouts;

bool IsEmpty(LPCWSTR pszText)
{
    return !pszText || !*pszText;
}
} // namespace

CSize CMixedFont::GetTextExtent(CDC* pDC, LPCWSTR pszText)
{
    return IsEmpty(pszText) ? CSize(0, 0) : s_layouts.Get(*pDC, SMixedBase(*pDC), pszText).Size();
}

void CMixedFont::TextOutW(CDC* pDC, CPoint point, LPCWSTR pszText)
{
    if (IsEmpty(pszText))
        return;
    const SMixedBase base(*pDC);
    s_layouts.Get(*pDC, base, pszText).Draw(*pDC, point, base.hFont);
}
