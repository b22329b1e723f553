#include <afxwin.h>

#include "buttons/DropButton.h"

#include "module/GdiScope.h"

namespace
{
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

void DrawRow(CDC& dc, int fromX, int toX, int y)
{
    dc.MoveTo(fromX, y);
    dc.LineTo(toX, y);
}
} // namespace

void gfnBecomePushButton(CButton& button)
{
    button.SendMessage(BM_SETSTYLE, BS_PUSHBUTTON);
}

bool gfnIsHeldChoice(const MSG& msg)
{
    constexpr LPARAM kWasDown = KF_REPEAT << 16;
    const bool bChoice = msg.wParam == VK_SPACE || msg.wParam == VK_RETURN;
    return msg.message == WM_KEYDOWN && bChoice && (msg.lParam & kWasDown) != 0;
}

CRect gfnDropFace(const CRect& rect, BOOL bPressed)
{
    return bPressed ? rect + CPoint(1, 1) : rect;
}

// Half-way down is counted from the button's origin: the top of the face has no part in it.
void gfnDrawDropArrow(CDC& dc, const CRect& face, BOOL bDisabled)
{
    const int right = face.right;
    const int middle = face.bottom / 2;
    CPen pen(PS_SOLID, 1, bDisabled ? ::GetSysColor(COLOR_BTNSHADOW) : kBlack);
    const CGdiSelection selection(dc, pen);
    DrawRow(dc, right - 6, right - 11, middle - 1);
    DrawRow(dc, right - 7, right - 10, middle);
    if (!bDisabled)
    {
        dc.SetPixelV(right - 8, middle + 1, kBlack);
        return;
    }
    for (const int step : {0, 1, 2}) // a light right edge makes it look engraved
        dc.SetPixelV(right - 6 - step, middle - 1 + step, kWhite);
}

CRect gfnDropPictureArea(const CRect& face)
{
    return CRect(face.left + 5, face.top + 5, face.right - 14, face.bottom - 5);
}
