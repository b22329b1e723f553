#include "MixedFont.h"

#include "MixedFontMarkup.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace
{
/// Gives a device context back as it was found.
class CSavedDC
{
public:
    explicit CSavedDC(CDC& dc) : m_dc(dc), m_nSaved(dc.SaveDC()) {}
    ~CSavedDC() { m_dc.RestoreDC(m_nSaved); }
    CSavedDC(const CSavedDC&) = delete;
    CSavedDC& operator=(const CSavedDC&) = delete;

private:
    CDC& m_dc;
    int m_nSaved;
};

/// A text laid out for a device context: every run with its font, width and base line.
class CMixedLine
{
public:
    CMixedLine(CDC& dc, LPCWSTR pszText) : m_dc(dc), m_pSelected(dc.GetCurrentFont())
    {
        const CSavedDC saved(dc);
        dc.GetTextMetrics(&m_base);
        m_nAscent = m_base.tmAscent;
        m_nDescent = m_base.tmDescent;
        for (SMixedFontRun& run : SplitMixedFontText(pszText))
            Append(run);
    }

    CSize Size() const { return CSize(m_nWidth, m_nAscent + m_nDescent); }

    void Draw(CPoint point) const
    {
        const CSavedDC saved(m_dc); // the runs' fonts leave the context before they are deleted
        if (m_dc.GetBkMode() == OPAQUE)
            m_dc.FillSolidRect(CRect(point, Size()), m_dc.GetBkColor());
        m_dc.SetBkMode(TRANSPARENT);
        m_dc.SetTextAlign(TA_LEFT | TA_BASELINE | TA_NOUPDATECP);
        int x = point.x;
        for (const SPart& part : m_parts)
        {
            m_dc.SelectObject(FontOf(part));
            m_dc.TextOut(x, point.y + m_nAscent + part.nShift, part.text.c_str(), Length(part));
            x += part.nWidth;
        }
    }

private:
    struct SPart
    {
        std::wstring text;
        std::unique_ptr<CFont> pFont; ///< null for the context's own font
        int nWidth;
        int nShift; ///< of the base line, downwards
    };

    static int Length(const SPart& part) { return static_cast<int>(part.text.size()); }

    CFont* FontOf(const SPart& part) const { return part.pFont ? part.pFont.get() : m_pSelected; }

    void Append(SMixedFontRun& run)
    {
        SPart part = {std::move(run.text), MakeFont(run.look), 0, Rounded(run.look.dShift * m_base.tmHeight)};
        m_dc.SelectObject(FontOf(part));
        TEXTMETRIC metrics;
        m_dc.GetTextMetrics(&metrics);
        part.nWidth = m_dc.GetTextExtent(part.text.c_str(), Length(part)).cx;

        m_nWidth += part.nWidth;
        m_nAscent = std::max<int>(m_nAscent, metrics.tmAscent - part.nShift);
        m_nDescent = std::max<int>(m_nDescent, metrics.tmDescent + part.nShift);
        m_parts.push_back(std::move(part));
    }

    /// The context's font, changed as the look says; null if it says nothing.
    std::unique_ptr<CFont> MakeFont(const SMixedFontLook& look) const
    {
        if (look == SMixedFontLook())
            return nullptr;
        LOGFONT logFont = {};
        m_pSelected->GetLogFont(&logFont);
        if (look.bBold)
            logFont.lfWeight = std::max<LONG>(logFont.lfWeight, FW_BOLD);
        if (look.bItalic)
            logFont.lfItalic = TRUE;
        if (look.dScale != 1.0)
        {
            logFont.lfHeight = -Rounded(look.dScale * (m_base.tmHeight - m_base.tmInternalLeading));
            logFont.lfWidth = Rounded(look.dScale * logFont.lfWidth);
        }
        if (!look.face.empty())
        {
            logFont.lfCharSet = DEFAULT_CHARSET; // the face decides, a symbol face too
            lstrcpynW(logFont.lfFaceName, look.face.c_str(), LF_FACESIZE);
        }
        auto pFont = std::make_unique<CFont>();
        pFont->CreateFontIndirect(&logFont);
        return pFont;
    }

    static int Rounded(double dValue) { return static_cast<int>(std::lround(dValue)); }

    CDC& m_dc;
    CFont* m_pSelected;     ///< the context's font
    TEXTMETRIC m_base = {}; ///< its metrics
    std::vector<SPart> m_parts;
    int m_nWidth = 0;
    int m_nAscent = 0;
    int m_nDescent = 0;
};

bool IsEmpty(LPCWSTR pszText)
{
    return !pszText || !*pszText;
}
} // namespace

CSize CMixedFont::GetTextExtent(CDC* pDC, LPCWSTR pszText)
{
    return IsEmpty(pszText) ? CSize(0, 0) : CMixedLine(*pDC, pszText).Size();
}

void CMixedFont::TextOutW(CDC* pDC, CPoint point, LPCWSTR pszText)
{
    if (!IsEmpty(pszText))
        CMixedLine(*pDC, pszText).Draw(point);
}
