#include <afxwin.h>

#include "cells/PlainLine.h"

#include <algorithm>

namespace
{
/// The formats whose text is one line at a place that its extent alone decides.
constexpr UINT kPlainFormat =
    DT_CENTER | DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS;

/// Characters that each stand by themselves, one behind the other: Latin, Greek and Cyrillic letters, digits
/// and signs. No accents to be put over another, nothing that is joined or written from the right, no control
/// characters and no soft hyphen.
bool IsPlain(wchar_t ch)
{
    constexpr wchar_t kSoftHyphen = 0xAD;
    return (ch >= L' ' && ch < 0x7F) || (ch >= 0xA0 && ch < 0x300 && ch != kSoftHyphen) ||
           (ch >= 0x370 && ch < 0x483);
}

/// The length of a text of plain characters, or -1.
int PlainLength(LPCWSTR pszText)
{
    int nLength = 0;
    for (; pszText[nLength]; ++nLength)
        if (!IsPlain(pszText[nLength]))
            return -1;
    return nLength;
}

/// A line and where each of its characters ends.
class CMeasuredLine
{
public:
    static constexpr int kMostChars = 256; ///< more do not show in a cell

    bool Measure(HDC hDC, LPCWSTR pszText, int nLength)
    {
        m_pszText = pszText;
        m_nLength = nLength;
        return ::GetTextExtentExPointW(hDC, pszText, nLength, 0, nullptr, m_ends, &m_size);
    }

    const SIZE& Size() const { return m_size; }

    /// Puts three points in place of its end, as DrawText does. False if not even two characters and the points
    /// fit: what is to be done then, DrawText knows.
    bool Shorten(HDC hDC, int nWidth)
    {
        SIZE dots;
        if (!::GetTextExtentPoint32W(hDC, L"...", kDots, &dots))
            return false;
        const int nKept = static_cast<int>(
            std::upper_bound(m_ends, m_ends + m_nLength, nWidth - static_cast<int>(dots.cx)) - m_ends);
        if (nKept <= 1 || nKept == kMostChars)
            return false;
        std::copy_n(m_pszText, nKept, m_shortened);
        std::fill_n(m_shortened + nKept, kDots, L'.');
        m_pszText = m_shortened;
        m_nLength = nKept + kDots;
        m_size.cx = m_ends[nKept - 1] + dots.cx;
        return true;
    }

    /// The ends are not for drawing: hinted glyphs may stand a pixel from where they are measured.
    void Draw(HDC hDC, CPoint at, const CRect& rectClip) const
    {
        ::ExtTextOutW(hDC, at.x, at.y, ETO_CLIPPED | ETO_IGNORELANGUAGE, &rectClip, m_pszText,
                      static_cast<UINT>(m_nLength), nullptr);
    }

private:
    static constexpr int kDots = 3;

    LPCWSTR m_pszText = nullptr;
    int m_nLength = 0;
    SIZE m_size{};
    int m_ends[kMostChars];
    wchar_t m_shortened[kMostChars + kDots];
};

/// Where a line begins in a rectangle.
CPoint PlaceOf(const SIZE& size, const CRect& rect, UINT nFormat)
{
    CPoint at = rect.TopLeft();
    if (nFormat & DT_RIGHT)
        at.x = rect.right - size.cx;
    else if (nFormat & DT_CENTER)
        at.x = (rect.left + rect.right - size.cx) / 2;
    if (nFormat & DT_VCENTER)
        at.y = rect.top + rect.Height() / 2 - size.cy / 2;
    return at;
}
} // namespace

bool gfnDrawPlainLine(CDC& dc, LPCWSTR pszText, const CRect& rect, UINT nFormat)
{
    const HDC hDC = dc.m_hDC;
    if ((nFormat & ~kPlainFormat) || !(nFormat & DT_SINGLELINE) || ::GetTextAlign(hDC) != TA_LEFT)
        return false;
    const int nLength = PlainLength(pszText);
    if (nLength <= 0)
        return nLength == 0;
    CMeasuredLine line;
    const bool bAll = nLength <= CMeasuredLine::kMostChars;
    if (!line.Measure(hDC, pszText, bAll ? nLength : CMeasuredLine::kMostChars))
        return false;
    const bool bShorten = (nFormat & DT_END_ELLIPSIS) && line.Size().cx > rect.Width();
    if (bShorten ? !line.Shorten(hDC, rect.Width()) : !bAll)
        return false;
    line.Draw(hDC, PlaceOf(line.Size(), rect, nFormat), rect);
    return true;
}
