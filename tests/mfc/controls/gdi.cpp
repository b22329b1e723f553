// GDI objects, device contexts and menus (who owns the handles, and how long objects live); rectangles.

#include "HostWindow.h"

#include "Handles.h"

#include <gtest/gtest.h>

namespace
{
/// A memory context with a bitmap of its own.
class MemoryDC : public CDC
{
public:
    MemoryDC()
    {
        CreateCompatibleDC(nullptr);
        CClientDC screen(nullptr);
        m_bitmap.CreateCompatibleBitmap(&screen, 50, 50);
        m_before = SelectObject(&m_bitmap)->m_hObject;
    }
    ~MemoryDC() override { ::SelectObject(m_hDC, m_before); }

private:
    CBitmap m_bitmap;
    HGDIOBJ m_before = nullptr;
};
} // namespace

TEST(GdiObject, SelectAnswersTheObjectThatWasSelectedBeforeAndCopiesARegion)
{
    MemoryDC dc;
    CPen red(PS_SOLID, 1, RGB(255, 0, 0));
    CPen blue(PS_SOLID, 1, RGB(0, 0, 255));
    CPen* original = dc.SelectObject(&red);
    EXPECT_EQ(original->m_hObject, ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(dc.SelectObject(&blue), &red);
    EXPECT_EQ(dc.GetCurrentPen(), &blue);
    EXPECT_EQ(dc.SelectObject(original), &blue);

    CRgn region;
    region.CreateRectRgn(10, 10, 20, 20);
    EXPECT_EQ(dc.SelectObject(&region), SIMPLEREGION);
    region.SetRectRgn(0, 0, 1, 1);
    CRect box;
    dc.GetClipBox(box);
    EXPECT_EQ(box, CRect(10, 10, 20, 20));
}

TEST(GdiObject, DestructionDestroysWhatIsAttachedAndSparesWhatIsDetached)
{
    HGDIOBJ owned = nullptr;
    HGDIOBJ given = nullptr;
    const void* destroyed = nullptr;
    {
        CBrush brush(RGB(1, 2, 3));
        owned = brush.m_hObject;
        destroyed = &brush;
        CFont font;
        ASSERT_TRUE(font.CreatePointFont(100, L"Liberation Sans"));
        given = font.Detach();
        EXPECT_FALSE(font.DeleteObject());
    }
    EXPECT_EQ(::GetObjectType(owned), 0u);
    EXPECT_NE(CGdiObject::FromHandle(owned), destroyed) << "the map forgets an object that is gone";
    EXPECT_EQ(::GetObjectType(given), static_cast<DWORD>(OBJ_FONT));
    ::DeleteObject(given);
}

TEST(GdiObject, ConstructorsThrowAResourceExceptionOnFailure)
{
    constexpr int noPenStyle = 0xFFFF;
    const LOGBRUSH hollow = {BS_HOLLOW, 0, 0};
    CWnd noWindow;
    EXPECT_THROW(CPen(noPenStyle, 1, &hollow), CResourceException*);
    EXPECT_THROW(CPaintDC{&noWindow}, CResourceException*);
}

TEST(GdiObject, FromHandleFindsThePermanentObjectAndMakesOneTemporaryObjectForEachOther)
{
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
    EXPECT_EQ(CPen::FromHandle(pen), &pen);
    EXPECT_EQ(CPen::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CPen::FromHandle(nullptr)->GetSafeHandle(), nullptr) << "a safe handle may be asked of nobody";
    const HPEN plain = ::CreatePen(PS_SOLID, 3, 0);
    CPen* temporary = CPen::FromHandle(plain);
    EXPECT_EQ(temporary->m_hObject, plain);
    EXPECT_EQ(CPen::FromHandle(plain), temporary);
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(::GetObjectType(plain), static_cast<DWORD>(OBJ_PEN)) << "temporary objects own nothing";
    EXPECT_EQ(CPen::FromHandle(pen), &pen) << "permanent objects stay";
    ::DeleteObject(plain);

    AfxLockTempMaps(); // temporary objects are given back with the last lock
    AfxLockTempMaps();
    const size_t before = owtest::CountHeapBytes();
    for (INT_PTR handle = 1; handle <= 5000; ++handle)
        CGdiObject::FromHandle(reinterpret_cast<HGDIOBJ>(handle * 4));
    AfxUnlockTempMaps();
    const size_t locked = owtest::CountHeapBytes();
    EXPECT_GT(locked, before + 5000 * sizeof(CGdiObject));
    AfxUnlockTempMaps();
    EXPECT_LT(owtest::CountHeapBytes(), locked - 5000 * sizeof(CGdiObject));
}

TEST(GdiObject, RoundsLeaveNothingBehind)
{
    const auto round = []
    {
        MemoryDC dc;
        CPen pen(PS_SOLID, 1, RGB(1, 1, 1));
        CBrush brush(HS_CROSS, RGB(2, 2, 2));
        CFont font;
        font.CreatePointFont(90, L"Liberation Sans", &dc);
        CRgn region;
        region.CreateEllipticRgn(0, 0, 20, 20);
        const int saved = dc.SaveDC();
        dc.SelectObject(&pen);
        dc.SelectObject(&brush);
        dc.SelectObject(&font);
        dc.SelectObject(&region);
        dc.Rectangle(0, 0, 30, 30);
        dc.DrawDragRect(CRect(0, 0, 20, 20), CSize(2, 2), CRect(5, 5, 25, 25), CSize(2, 2));
        dc.RestoreDC(saved);
        CClientDC screen(nullptr);
    };
    round();
    CGdiObject::DeleteTempMap();
    const int before = owtest::CountHandles().gdi;
    for (int i = 0; i < 100; ++i)
        round();
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(owtest::CountHandles().gdi, before);
}

TEST(DeviceContext, StateGoesToBothContextsAndOutputToOne)
{
    MemoryDC output;
    MemoryDC attributes;
    CDC dc;
    dc.SetOutputDC(output);
    dc.SetAttribDC(attributes);
    dc.SetTextColor(RGB(4, 5, 6));
    dc.SetPixel(3, 3, RGB(7, 8, 9));
    EXPECT_EQ(output.GetTextColor(), RGB(4, 5, 6));
    EXPECT_EQ(attributes.GetTextColor(), RGB(4, 5, 6));
    EXPECT_EQ(output.GetPixel(3, 3), RGB(7, 8, 9));
    EXPECT_NE(attributes.GetPixel(3, 3), RGB(7, 8, 9));
    EXPECT_EQ(dc.SaveDC(), -1) << "the contexts count apart, so only the last state has a common name";
    EXPECT_TRUE(dc.RestoreDC(-1));
    dc.ReleaseOutputDC();
    dc.ReleaseAttribDC();
}

TEST(DeviceContext, HimetricIsHundredthsOfAMillimetreAndFontHeightsAreTenthsOfAPoint)
{
    MemoryDC dc;
    CSize inch(dc.GetDeviceCaps(LOGPIXELSX), dc.GetDeviceCaps(LOGPIXELSY));
    dc.DPtoHIMETRIC(&inch);
    EXPECT_EQ(inch, CSize(2540, 2540));

    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, L"Liberation Sans", &dc));
    LOGFONT log = {};
    font.GetLogFont(&log);
    EXPECT_EQ(log.lfHeight, -::MulDiv(12, dc.GetDeviceCaps(LOGPIXELSY), 72));
}

TEST(Menu, ADestroyedObjectDestroysItsMenuAndASubMenuOnlyPasses)
{
    HMENU owned = nullptr;
    HMENU popupHandle = nullptr;
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreateMenu());
        owned = menu;
        CMenu popup;
        ASSERT_TRUE(popup.CreatePopupMenu());
        popup.AppendMenu(MF_STRING, 7, L"seven");
        popupHandle = popup;
        menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Detach()), L"numbers");

        CMenu* inside = menu.GetSubMenu(0);
        EXPECT_EQ(inside->m_hMenu, popupHandle);
        EXPECT_EQ(menu.GetSubMenu(0), inside);
        CString text(L"left over");
        EXPECT_EQ(inside->GetMenuString(7, text, MF_BYCOMMAND), 5);
        EXPECT_EQ(text, L"seven");
        EXPECT_EQ(inside->GetMenuString(8, text, MF_BYCOMMAND), 0);
        EXPECT_TRUE(text.IsEmpty());

        CMenu::DeleteTempMap();
        EXPECT_TRUE(::IsMenu(popupHandle));
    }
    EXPECT_FALSE(::IsMenu(owned));
    EXPECT_FALSE(::IsMenu(popupHandle)) << "a pop-up goes with the menu that holds it";
}

TEST(Geometry, OperatorsMoveByPointsAndInflateByRectangles)
{
    const CRect rect(10, 20, 30, 50);
    EXPECT_EQ(rect + CPoint(1, 2), CRect(11, 22, 31, 52));
    EXPECT_EQ(rect + CRect(1, 2, 3, 4), CRect(9, 18, 33, 54));
    EXPECT_EQ(rect - CRect(1, 2, 3, 4), CRect(11, 22, 27, 46));
    EXPECT_EQ(rect & CRect(0, 0, 15, 100), CRect(10, 20, 15, 50));
    EXPECT_EQ(rect | CRect(0, 0, 5, 5), CRect(0, 0, 30, 50));
    CRect same(rect);
    same &= same;
    EXPECT_EQ(same, rect) << "an operand may be the target";

    for (CRect turned : {CRect(30, 20, 10, 50), CRect(10, 50, 30, 20), rect})
    {
        turned.NormalizeRect();
        EXPECT_EQ(turned, rect) << "only edges that stand the wrong way round";
    }
    EXPECT_EQ(CPoint(static_cast<LPARAM>(MAKELONG(-3, 7))), CPoint(-3, 7)) << "packed, with their signs";
    EXPECT_EQ(CSize(static_cast<DWORD>(MAKELONG(5, -9))), CSize(5, -9));
}
