// GDI objects, device contexts and menus (who owns the handles, and how long objects live); rectangles.

#include "HostWindow.h"

#include "Handles.h"

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
    CBrush brush(RGB(1, 2, 3));
    CFont font;
    font.CreatePointFont(100, L"Liberation Sans");
    EXPECT_EQ(dc.SelectObject(&brush)->m_hObject, ::GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(dc.GetCurrentBrush(), &brush);
    EXPECT_EQ(dc.SelectStockObject(WHITE_BRUSH), &brush);
    EXPECT_EQ(dc.SelectObject(&font)->m_hObject, ::GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(dc.GetCurrentFont(), &font);
    EXPECT_EQ(dc.SelectStockObject(SYSTEM_FONT), &font);
    EXPECT_EQ(dc.GetCurrentBitmap()->m_hObject, ::GetCurrentObject(dc, OBJ_BITMAP));
    EXPECT_EQ(dc.SetBrushOrg(3, 4), CPoint(0, 0));
    EXPECT_EQ(dc.SetBrushOrg(5, 6), CPoint(3, 4));
    EXPECT_EQ(dc.GetBrushOrg(), CPoint(5, 6));

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
    const auto pack = [](auto pair) { return LRESULT(*reinterpret_cast<const LONGLONG*>(&pair)); };
    const auto state = [](const CDC& dc)
    {
        CRect clip;
        dc.GetClipBox(clip);
        XFORM form = {};
        dc.GetWorldTransform(&form);
        const CPoint at = dc.GetCurrentPosition();
        const CPoint corner = dc.GetViewportOrg() + CSize(dc.GetWindowOrg());
        const CSize scale(dc.GetViewportExt().cx * 99 + dc.GetWindowExt().cx, dc.GetLayout());
        return std::tuple(dc.GetBkColor(), dc.GetBkMode(), dc.GetPolyFillMode(), dc.GetROP2(),
                          dc.GetStretchBltMode(), dc.GetTextColor(), dc.GetMapMode(), dc.GetGraphicsMode(),
                          dc.GetArcDirection(), dc.GetTextAlign(), dc.GetTextCharacterExtra(), corner.x,
                          corner.y, scale.cx, scale.cy, clip.left, clip.right, clip.top, form.eDx, form.eM11,
                          at.x, at.y);
    };
    const XFORM twice = {2, 0, 0, 2, 3, 3};
    const POINT points[] = {{7, 8}, {9, 3}, {5, 6}};
    const BYTE lines[] = {PT_MOVETO, PT_LINETO, PT_LINETO};
    CRgn region;
    region.CreateRectRgn(5, 5, 20, 20);
    const struct
    {
        std::function<LRESULT(CDC&)> change;
        LRESULT before; ///< which the call answers, or TRUE
    } cases[] = {
        {[](CDC& dc) { return LRESULT(dc.SetBkColor(1)); }, RGB(255, 255, 255)},
        {[](CDC& dc) { return dc.SetBkMode(TRANSPARENT); }, OPAQUE},
        {[](CDC& dc) { return dc.SetPolyFillMode(WINDING); }, ALTERNATE},
        {[](CDC& dc) { return dc.SetROP2(R2_NOT); }, R2_COPYPEN},
        {[](CDC& dc) { return dc.SetStretchBltMode(COLORONCOLOR); }, BLACKONWHITE},
        {[](CDC& dc) { return LRESULT(dc.SetTextColor(1)); }, 7},
        {[](CDC& dc) { return dc.SetArcDirection(AD_CLOCKWISE); }, AD_COUNTERCLOCKWISE},
        {[](CDC& dc) { return LRESULT(dc.SetTextAlign(TA_LEFT)); }, TA_RIGHT},
        {[](CDC& dc) { return dc.SetTextCharacterExtra(3); }, 2},
        {[&](CDC& dc) { return pack(dc.SetViewportOrg(CPoint(8, 9))); }, pack(CPoint(1, 2))},
        {[&](CDC& dc) { return pack(dc.OffsetViewportOrg(8, 9)); }, pack(CPoint(1, 2))},
        {[&](CDC& dc) { return pack(dc.SetWindowOrg(8, 9)); }, pack(CPoint(3, 4))},
        {[&](CDC& dc) { return pack(dc.OffsetWindowOrg(8, 9)); }, pack(CPoint(3, 4))},
        {[&](CDC& dc) { return pack(dc.SetViewportExt(CSize(8, 9))); }, pack(CSize(10, 20))},
        {[&](CDC& dc) { return pack(dc.ScaleViewportExt(2, 1, 2, 1)); }, pack(CSize(10, 20))},
        {[&](CDC& dc) { return pack(dc.SetWindowExt(8, 9)); }, pack(CSize(30, 40))},
        {[&](CDC& dc) { return pack(dc.ScaleWindowExt(2, 1, 2, 1)); }, pack(CSize(30, 40))},
        {[](CDC& dc) { return dc.SetMapMode(MM_TEXT); }, MM_ANISOTROPIC},
        {[](CDC& dc) { return LRESULT(dc.SetLayout(LAYOUT_RTL)); }, 0},
        {[](CDC& dc) { return LRESULT(dc.SetLayout(0)); }, LAYOUT_RTL},
        {[](CDC& dc) { return dc.SetGraphicsMode(GM_ADVANCED); }, GM_COMPATIBLE},
        {[&](CDC& dc) { return dc.SetWorldTransform(&twice); }, TRUE},
        {[&](CDC& dc) { return dc.ModifyWorldTransform(&twice, MWT_LEFTMULTIPLY); }, TRUE},
        {[&](CDC& dc) { return dc.ModifyWorldTransform(nullptr, MWT_IDENTITY); }, TRUE},
        {[&](CDC& dc) { return pack(dc.MoveTo(5, 6)); }, pack(CPoint(0, 0))},
        {[&](CDC& dc) { return pack(dc.MoveTo(CPoint(6, 7))); }, pack(CPoint(5, 6))},
        {[&](CDC& dc) { return dc.LineTo(CPoint(3, 3)); }, TRUE},
        {[&](CDC& dc) { return dc.PolylineTo(points, 2); }, TRUE},
        {[&](CDC& dc) { return dc.PolyBezierTo(points, 3); }, TRUE},
        {[&](CDC& dc) { return dc.PolyDraw(points, lines, 2); }, TRUE},
        {[&](CDC& dc) { return dc.ArcTo(CRect(0, 0, 20, 20), CPoint(20, 0), CPoint(0, 9)); }, TRUE},
        {[&](CDC& dc) { return dc.AngleArc(20, 20, 10, 0, 90); }, TRUE},
        {[&](CDC& dc) { return dc.SelectClipRgn(&region); }, SIMPLEREGION},
        {[&](CDC& dc) { return dc.OffsetClipRgn(CSize(2, 2)); }, SIMPLEREGION},
        {[&](CDC& dc) { return dc.SelectClipRgn(&region, RGN_OR); }, COMPLEXREGION},
        {[&](CDC& dc) { return dc.IntersectClipRect(CRect(0, 0, 10, 10)); }, SIMPLEREGION},
        {[&](CDC& dc) { return dc.ExcludeClipRect(CRect(0, 0, 9, 40)); }, SIMPLEREGION},
        {[&](CDC& dc) { return dc.SelectClipRgn(nullptr); }, SIMPLEREGION},
        {[&](CDC& dc) {
             return dc.BeginPath() && dc.Rectangle(0, 0, 7, 7) && dc.EndPath() && dc.SelectClipPath(RGN_COPY);
         },
         TRUE},
    };
    MemoryDC output;
    MemoryDC attributes;
    CDC dc;
    dc.SetOutputDC(output);
    dc.SetAttribDC(attributes);
    dc.SetPixel(40, 40, RGB(7, 8, 9));
    EXPECT_EQ(output.GetPixel(40, 40), RGB(7, 8, 9));
    EXPECT_NE(attributes.GetPixel(40, 40), RGB(7, 8, 9));
    for (HDC each : {output.m_hDC, attributes.m_hDC})
    {
        ::SetTextColor(each, 7);
        ::SetTextAlign(each, TA_RIGHT);
        ::SetTextCharacterExtra(each, 2);
        ::SetMapMode(each, MM_ANISOTROPIC);
        ::SetViewportOrgEx(each, 1, 2, nullptr);
        ::SetWindowOrgEx(each, 3, 4, nullptr);
        ::SetViewportExtEx(each, 10, 20, nullptr);
        ::SetWindowExtEx(each, 30, 40, nullptr);
    }
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(1, 2));
    EXPECT_EQ(dc.GetWindowOrg(), CPoint(3, 4));
    EXPECT_EQ(dc.GetViewportExt(), CSize(10, 20));
    EXPECT_EQ(dc.GetWindowExt(), CSize(30, 40));
    attributes.SaveDC();
    EXPECT_FALSE(dc.RestoreDC(-1)) << "the output has no state to go back to";
    for (const auto& c : cases)
    {
        SCOPED_TRACE(&c - cases);
        const bool scales = &c - cases >= 9 && &c - cases < 17; // each of these from the same mapping
        const int saved = scales ? dc.SaveDC() : 0;
        EXPECT_EQ(saved, scales ? -1 : 0)
            << "the contexts count apart: only the last state has a common name";
        const auto was = state(attributes);
        EXPECT_EQ(c.change(dc), c.before);
        EXPECT_NE(state(attributes), was);
        EXPECT_EQ(state(output), state(attributes));
        EXPECT_TRUE(!scales || dc.RestoreDC(saved));
        EXPECT_TRUE(!scales || state(output) == was);
    }
    EXPECT_TRUE(dc.SetTextJustification(3, 1));
    dc.ReleaseOutputDC();
    dc.ReleaseAttribDC();
    EXPECT_EQ(dc.SetTextColor(1), CLR_INVALID) << "without a context";
}

TEST(DeviceContext, HimetricIsHundredthsOfAMillimetreAndFontHeightsAreTenthsOfAPoint)
{
    MemoryDC dc;
    const CSize pixels(dc.GetDeviceCaps(LOGPIXELSX), dc.GetDeviceCaps(LOGPIXELSY));
    for (const auto& [mode, inch, off] : {std::tuple(MM_TEXT, pixels, 0), {MM_LOMETRIC, CSize(254, 254), 30}})
    {
        dc.SetMapMode(mode);
        CSize size(inch);
        dc.LPtoHIMETRIC(&size);
        EXPECT_NEAR(size.cx, 2540, off) << "of which physical modes say themselves how large they are";
        EXPECT_NEAR(size.cy, 2540, off);
        dc.HIMETRICtoLP(&size);
        EXPECT_NEAR(size.cx, inch.cx, off / 10);
        EXPECT_NEAR(size.cy, inch.cy, off / 10);
        EXPECT_EQ(dc.GetMapMode(), mode);
    }
    dc.SetMapMode(MM_TEXT);

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

TEST(Menu, ItemsAreFoundByTheirIdOrPlaceAndBringTheirStates)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(8, 8, 1, 1, nullptr));
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 1, L"one"));
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 2, &bitmap));
    EXPECT_TRUE(menu.InsertMenu(0, MF_BYPOSITION, 3, &bitmap));
    EXPECT_TRUE(menu.InsertMenu(1, MF_BYCOMMAND, 4, L"four"));
    EXPECT_TRUE(menu.ModifyMenu(2, MF_BYCOMMAND, 2, L"two"));
    EXPECT_TRUE(menu.ModifyMenu(3, MF_BYCOMMAND, 3, &bitmap));
    std::vector<UINT> ids;
    for (UINT i = 0; i < menu.GetMenuItemCount(); ++i)
        ids.push_back(menu.GetMenuItemID(static_cast<int>(i)));
    EXPECT_EQ(ids, (std::vector<UINT>{3, 4, 1, 2}));
    TCHAR text[8] = {};
    EXPECT_EQ(menu.GetMenuString(2, text, 8, MF_BYCOMMAND), 3);
    EXPECT_STREQ(text, L"two");
    EXPECT_NE(menu.GetMenuState(3, MF_BYCOMMAND) & MF_BITMAP, 0u);

    EXPECT_EQ(menu.CheckMenuItem(1, MF_CHECKED), UINT{MF_UNCHECKED});
    EXPECT_EQ(menu.CheckMenuItem(1, MF_UNCHECKED), UINT{MF_CHECKED});
    EXPECT_EQ(menu.EnableMenuItem(1, MF_GRAYED), UINT{MF_ENABLED});
    EXPECT_EQ(menu.EnableMenuItem(1, MF_ENABLED), UINT{MF_GRAYED});
    EXPECT_TRUE(menu.CheckMenuRadioItem(1, 2, 2, MF_BYCOMMAND));
    EXPECT_TRUE(menu.SetMenuItemBitmaps(1, MF_BYCOMMAND, &bitmap, nullptr));
    EXPECT_TRUE(menu.SetDefaultItem(3, TRUE));
    EXPECT_EQ(menu.GetDefaultItem(0, TRUE), 3u);
    EXPECT_TRUE(menu.SetMenuContextHelpId(77));
    EXPECT_EQ(menu.GetMenuContextHelpId(), 77u);
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_ID | MIIM_DATA;
    EXPECT_TRUE(menu.GetMenuItemInfo(2, &info, TRUE));
    EXPECT_EQ(info.wID, 1u);
    info.dwItemData = 5;
    EXPECT_TRUE(menu.SetMenuItemInfo(1, &info));
    info.wID = 9;
    EXPECT_TRUE(menu.InsertMenuItem(0, &info, TRUE));
    EXPECT_EQ(menu.GetMenuItemID(0), 9u);
    EXPECT_FALSE(CMenu().LoadMenu(4999));
    EXPECT_TRUE(menu.DestroyMenu());
    EXPECT_FALSE(menu.DestroyMenu());
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
    const CRect& itself = same;
    same &= itself;
    EXPECT_EQ(same, rect) << "an operand may be the target";

    for (CRect turned : {CRect(30, 20, 10, 50), CRect(10, 50, 30, 20), rect})
    {
        turned.NormalizeRect();
        EXPECT_EQ(turned, rect) << "only edges that stand the wrong way round";
    }
    EXPECT_EQ(CPoint(static_cast<LPARAM>(MAKELONG(-3, 7))), CPoint(-3, 7)) << "packed, with their signs";
    EXPECT_EQ(CSize(static_cast<DWORD>(MAKELONG(5, -9))), CSize(5, -9));
}
