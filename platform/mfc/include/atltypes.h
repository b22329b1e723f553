#pragma once
#define __ATLTYPES_H__ // asked for by the headers that wizards make
// Size, point and rectangle: the Win32 structures with operators.
//
//     CRect area(10, 10, 110, 60);
//     area.DeflateRect(2, 2);
//     CPoint middle = area.CenterPoint();
//     area += CSize(5, 0);                 // moves by 5 to the right
//
// A rectangle includes its left and top edges and excludes its right and bottom ones. Functions that ask
// about an area (PtInRect, IsRectEmpty, operators & and |) expect a normalized rectangle: left <= right, top
// <= bottom. The classes add no data, so a CRect* serves wherever Win32 wants a RECT*.

#include <windows.h>

class CSize;
class CPoint;
class CRect;

/// A width and a height, or a displacement.
class CSize : public tagSIZE
{
public:
    CSize() noexcept : tagSIZE{0, 0} {}
    CSize(int initCX, int initCY) noexcept : tagSIZE{initCX, initCY} {}
    CSize(SIZE initSize) noexcept : tagSIZE(initSize) {}
    CSize(POINT initPt) noexcept : tagSIZE{initPt.x, initPt.y} {}
    /// Takes the width from the low word and the height from the high word, both signed.
    CSize(DWORD dwSize) noexcept
        : tagSIZE{static_cast<short>(LOWORD(dwSize)), static_cast<short>(HIWORD(dwSize))}
    {
    }

    bool operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    bool operator!=(SIZE size) const noexcept { return cx != size.cx || cy != size.cy; }
    void operator+=(SIZE size) noexcept { SetSize(cx + size.cx, cy + size.cy); }
    void operator-=(SIZE size) noexcept { SetSize(cx - size.cx, cy - size.cy); }
    void SetSize(int CX, int CY) noexcept
    {
        cx = CX;
        cy = CY;
    }

    CSize operator+(SIZE size) const noexcept { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const noexcept { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const noexcept { return CSize(-cx, -cy); }

    CPoint operator+(POINT point) const noexcept;
    CPoint operator-(POINT point) const noexcept;

    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

/// A position.
class CPoint : public tagPOINT
{
public:
    CPoint() noexcept : tagPOINT{0, 0} {}
    CPoint(int initX, int initY) noexcept : tagPOINT{initX, initY} {}
    CPoint(POINT initPt) noexcept : tagPOINT(initPt) {}
    CPoint(SIZE initSize) noexcept : tagPOINT{initSize.cx, initSize.cy} {}
    /// Takes x from the low word and y from the high word, both signed: the form of mouse messages.
    CPoint(LPARAM dwPoint) noexcept
        : tagPOINT{static_cast<short>(LOWORD(dwPoint)), static_cast<short>(HIWORD(dwPoint))}
    {
    }

    void Offset(int xOffset, int yOffset) noexcept { SetPoint(x + xOffset, y + yOffset); }
    void Offset(POINT point) noexcept { Offset(point.x, point.y); }
    void Offset(SIZE size) noexcept { Offset(size.cx, size.cy); }
    void SetPoint(int X, int Y) noexcept
    {
        x = X;
        y = Y;
    }

    bool operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    bool operator!=(POINT point) const noexcept { return x != point.x || y != point.y; }
    void operator+=(SIZE size) noexcept { Offset(size.cx, size.cy); }
    void operator-=(SIZE size) noexcept { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) noexcept { Offset(point.x, point.y); }
    void operator-=(POINT point) noexcept { Offset(-point.x, -point.y); }

    CPoint operator+(SIZE size) const noexcept { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const noexcept { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator-() const noexcept { return CPoint(-x, -y); }
    CPoint operator+(POINT point) const noexcept { return CPoint(x + point.x, y + point.y); }

    /// The displacement from `point` to this one.
    CSize operator-(POINT point) const noexcept { return CSize(x - point.x, y - point.y); }

    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

/// A rectangle.
class CRect : public tagRECT
{
public:
    CRect() noexcept : tagRECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) noexcept : tagRECT{l, t, r, b} {}
    CRect(const RECT& srcRect) noexcept : tagRECT(srcRect) {}
    CRect(LPCRECT lpSrcRect) noexcept : tagRECT(*lpSrcRect) {}
    CRect(POINT point, SIZE size) noexcept : tagRECT{point.x, point.y, point.x + size.cx, point.y + size.cy}
    {
    }
    CRect(POINT topLeft, POINT bottomRight) noexcept
        : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y}
    {
    }

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return CSize(Width(), Height()); }

    /// The corners, to read and to assign.
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(&left); }
    CPoint& BottomRight() noexcept { return *reinterpret_cast<CPoint*>(&right); }
    CPoint TopLeft() const noexcept { return CPoint(left, top); }
    CPoint BottomRight() const noexcept { return CPoint(right, bottom); }
    CPoint CenterPoint() const noexcept { return CPoint((left + right) / 2, (top + bottom) / 2); }

    /// Exchanges left and right: for calls that take the two the other way in a mirrored layout.
    void SwapLeftRight() noexcept { SwapLeftRight(this); }
    static void WINAPI SwapLeftRight(LPRECT lpRect) noexcept
    {
        const LONG left = lpRect->left;
        lpRect->left = lpRect->right;
        lpRect->right = left;
    }

    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    BOOL IsRectEmpty() const noexcept { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const noexcept { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const noexcept { return ::PtInRect(this, point); }

    void SetRect(int x1, int y1, int x2, int y2) noexcept { ::SetRect(this, x1, y1, x2, y2); }
    void SetRect(POINT topLeft, POINT bottomRight) noexcept
    {
        ::SetRect(this, topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
    }
    void SetRectEmpty() noexcept { ::SetRectEmpty(this); }
    void CopyRect(LPCRECT lpSrcRect) noexcept { ::CopyRect(this, lpSrcRect); }
    BOOL EqualRect(LPCRECT lpRect) const noexcept { return ::EqualRect(this, lpRect); }

    /// Moves each edge outward by the amount; a negative one moves it inward.
    void InflateRect(int x, int y) noexcept { ::InflateRect(this, x, y); }
    void InflateRect(SIZE size) noexcept { ::InflateRect(this, size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) noexcept
    {
        InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void InflateRect(int l, int t, int r, int b) noexcept
    {
        left -= l;
        top -= t;
        right += r;
        bottom += b;
    }
    void DeflateRect(int x, int y) noexcept { ::InflateRect(this, -x, -y); }
    void DeflateRect(SIZE size) noexcept { ::InflateRect(this, -size.cx, -size.cy); }
    void DeflateRect(LPCRECT lpRect) noexcept
    {
        DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void DeflateRect(int l, int t, int r, int b) noexcept { InflateRect(-l, -t, -r, -b); }

    void OffsetRect(int x, int y) noexcept { ::OffsetRect(this, x, y); }
    void OffsetRect(SIZE size) noexcept { ::OffsetRect(this, size.cx, size.cy); }
    void OffsetRect(POINT point) noexcept { ::OffsetRect(this, point.x, point.y); }

    /// Exchanges edges that stand the wrong way round.
    void NormalizeRect() noexcept;

    void MoveToY(int y) noexcept { MoveToXY(left, y); }
    void MoveToX(int x) noexcept { MoveToXY(x, top); }
    void MoveToXY(int x, int y) noexcept { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) noexcept { MoveToXY(point.x, point.y); }

    /// Sets this to the common area; FALSE, and empty, if there is none.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept
    {
        return ::IntersectRect(this, lpRect1, lpRect2);
    }
    /// Sets this to the smallest rectangle around both; an empty one does not count.
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept { return ::UnionRect(this, lpRect1, lpRect2); }
    /// Takes the second from the first, where what remains is a rectangle.
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept
    {
        return ::SubtractRect(this, lpRectSrc1, lpRectSrc2);
    }

    void operator=(const RECT& srcRect) noexcept { ::CopyRect(this, &srcRect); }
    bool operator==(const RECT& rect) const noexcept { return ::EqualRect(this, &rect); }
    bool operator!=(const RECT& rect) const noexcept { return !::EqualRect(this, &rect); }

    /// Adding or taking away a point or size moves the rectangle; a rectangle inflates or deflates it edge by
    /// edge. & and | are the common area and the smallest rectangle around both.
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator+=(SIZE size) noexcept { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) noexcept { InflateRect(lpRect); }
    void operator-=(POINT point) noexcept { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) noexcept { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT lpRect) noexcept { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) noexcept { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) noexcept { UnionRect(this, &rect); }

    CRect operator+(POINT point) const noexcept
    {
        return CRect(left + point.x, top + point.y, right + point.x, bottom + point.y);
    }
    CRect operator+(SIZE size) const noexcept { return *this + POINT{size.cx, size.cy}; }
    CRect operator-(POINT point) const noexcept { return *this + POINT{-point.x, -point.y}; }
    CRect operator-(SIZE size) const noexcept { return *this + POINT{-size.cx, -size.cy}; }
    CRect operator+(LPCRECT lpRect) const noexcept;
    CRect operator-(LPCRECT lpRect) const noexcept;
    CRect operator&(const RECT& rect2) const noexcept;
    CRect operator|(const RECT& rect2) const noexcept;

    /// Each edge times `nMultiplier` over `nDivisor`, rounded.
    CRect MulDiv(int nMultiplier, int nDivisor) const noexcept
    {
        return CRect(::MulDiv(left, nMultiplier, nDivisor), ::MulDiv(top, nMultiplier, nDivisor),
                     ::MulDiv(right, nMultiplier, nDivisor), ::MulDiv(bottom, nMultiplier, nDivisor));
    }
};

inline CPoint CSize::operator+(POINT point) const noexcept
{
    return CPoint(cx + point.x, cy + point.y);
}

inline CPoint CSize::operator-(POINT point) const noexcept
{
    return CPoint(cx - point.x, cy - point.y);
}

inline CRect CSize::operator+(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) + *this;
}

inline CRect CSize::operator-(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) - *this;
}

inline CRect CPoint::operator+(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) + *this;
}

inline CRect CPoint::operator-(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) - *this;
}

inline void CRect::NormalizeRect() noexcept
{
    if (left > right)
        SwapLeftRight(this);
    if (top > bottom)
    {
        const LONG upper = bottom;
        bottom = top;
        top = upper;
    }
}

inline CRect CRect::operator+(LPCRECT lpRect) const noexcept
{
    CRect rect(this);
    rect.InflateRect(lpRect);
    return rect;
}

inline CRect CRect::operator-(LPCRECT lpRect) const noexcept
{
    CRect rect(this);
    rect.DeflateRect(lpRect);
    return rect;
}

inline CRect CRect::operator&(const RECT& rect2) const noexcept
{
    CRect rect;
    rect.IntersectRect(this, &rect2);
    return rect;
}

inline CRect CRect::operator|(const RECT& rect2) const noexcept
{
    CRect rect;
    rect.UnionRect(this, &rect2);
    return rect;
}
