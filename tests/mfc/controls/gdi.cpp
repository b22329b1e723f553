// GDI objects, device contexts and menus (who owns the handles, and how long objects live); rectangles.

#include "HostWindow.h"

TEST(GdiObject, SelectAnswersTheObjectThatWasSelectedBeforeAndCopiesARegion)
{
    owtest::Surface surface(50, 50);
    CDC& dc = surface.dc();
    CPen red(PS_SOLID, 1, RGB(255, 0, 0)), blue(PS_SOLID, 1, RGB(0, 0, 255));
    CPen* original = dc.SelectObject(&red);
    EXPECT_EQ(original->m_hObject, ::GetStockObject(BLACK_PEN));
    EXPECT_TRUE(dc.SelectObject(&blue) == &red && dc.GetCurrentPen() == &blue &&
                dc.SelectObject(original) == &blue);
    CBrush brush(RGB(1, 2, 3));
    CFont font;
    font.CreatePointFont(100, L"Liberation Sans");
    EXPECT_EQ(dc.SelectObject(&brush)->m_hObject, ::GetStockObject(WHITE_BRUSH));
    EXPECT_TRUE(dc.GetCurrentBrush() == &brush && dc.SelectStockObject(WHITE_BRUSH) == &brush);
    EXPECT_EQ(dc.SelectObject(&font)->m_hObject, ::GetStockObject(SYSTEM_FONT));
    EXPECT_TRUE(dc.GetCurrentFont() == &font && dc.SelectStockObject(SYSTEM_FONT) == &font);

    CRgn region;
    region.CreateRectRgn(10, 10, 20, 20);
    EXPECT_EQ(dc.SelectObject(&region), SIMPLEREGION);
    region.SetRectRgn(CRect(0, 1, 2, 3));
    CRect clip, box;
    dc.GetClipBox(clip);
    region.GetRgnBox(box);
    EXPECT_EQ(Told(clip, box), "10 10 20 20,0 1 2 3");
}

TEST(GdiObject, IsWhatItWasCreatedAs)
{
    owtest::Surface surface(50, 50);
    for (const int unit : {0, 1})
    {
        CFont font;
        LOGFONT log = {};
        surface.dc().SetMapMode(unit == 0 ? MM_TEXT : MM_TWIPS);
        EXPECT_TRUE(font.CreatePointFont(120, L"Liberation Sans", &surface.dc()) &&
                    font.GetLogFont(&log) == sizeof log);
        EXPECT_NEAR(log.lfHeight, unit == 0 ? -16 : -240, unit * 9) << "12 points";
        EXPECT_EQ(log.lfCharSet, DEFAULT_CHARSET);
    }
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&surface.dc(), 9, 5));
    LOGBRUSH cross = {}, pattern = {};
    CBrush(HS_CROSS, RGB(1, 2, 3)).GetLogBrush(&cross);
    CBrush(&bitmap).GetLogBrush(&pattern);
    EXPECT_EQ(Told(cross.lbStyle, cross.lbHatch, cross.lbColor, pattern.lbStyle),
              Told(BS_HATCHED, HS_CROSS, RGB(1, 2, 3), BS_PATTERN));
    constexpr int noPenStyle = 0xFFFF;
    constexpr LOGBRUSH plain = {BS_SOLID, RGB(1, 2, 3), 0};
    CWnd noWindow;
    EXPECT_THROW(CPen(noPenStyle, 1, &plain), CResourceException*);
    EXPECT_THROW(CPaintDC{&noWindow}, CResourceException*);
}

TEST(GdiObject, BelongsToItsObjectWhichItsHandleFindsAndToNoTemporaryOne)
{
    HGDIOBJ owned = nullptr, given = nullptr;
    const void* destroyed = nullptr;
    {
        CBrush brush(RGB(1, 2, 3));
        owned = brush.m_hObject;
        destroyed = &brush;
        CPen detached(PS_SOLID, 3, RGB(1, 2, 3));
        EXPECT_EQ(CPen::FromHandle(detached), &detached);
        given = detached.Detach();
        EXPECT_FALSE(detached.DeleteObject());
    }
    EXPECT_EQ(::GetObjectType(owned), 0u);
    EXPECT_NE(CGdiObject::FromHandle(owned), destroyed) << "the map forgets an object that is gone";
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
    CGdiObject* temporary = CPen::FromHandle(HPEN(given));
    EXPECT_TRUE(temporary->m_hObject == given && CGdiObject::FromHandle(given) == temporary);
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(::GetObjectType(given), DWORD{OBJ_PEN}) << "temporary objects own nothing";
    EXPECT_EQ(CPen::FromHandle(pen), &pen) << "permanent objects stay";
    ::DeleteObject(given);
    EXPECT_EQ(CPen::FromHandle(nullptr)->GetSafeHandle(), nullptr) << "a safe handle may be asked of nobody";

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

TEST(DeviceContext, StateGoesToBothContextsAndOutputToOne)
{
    owtest::Surface output(50, 50), attributes(50, 50);
    for (CDC* each : {&output.dc(), &attributes.dc()})
    {
        each->SetTextColor(7);
        each->SetTextAlign(TA_RIGHT);
        each->SetMapMode(MM_ANISOTROPIC);
        ::SetViewportOrgEx(*each, 1, 2, nullptr);
        ::SetWindowOrgEx(*each, 3, 4, nullptr);
        ::SetViewportExtEx(*each, 10, 20, nullptr);
        ::SetWindowExtEx(*each, 30, 40, nullptr);
    }
    CDC dc;
    dc.SetOutputDC(output.dc());
    dc.SetAttribDC(attributes.dc());
    const auto state = [](const CDC& dc)
    {
        CRect clip;
        dc.GetClipBox(clip);
        XFORM form = {};
        dc.GetWorldTransform(&form);
        const CRect mapping(dc.GetViewportOrg() + CSize(dc.GetWindowOrg()),
                            dc.GetViewportExt() + dc.GetWindowExt() + dc.GetWindowExt());
        const CPoint at = dc.GetCurrentPosition();
        return std::tuple(dc.GetBkColor(), dc.GetBkMode(), dc.GetTextColor(), dc.GetMapMode(),
                          dc.GetGraphicsMode(), dc.GetTextAlign(), dc.GetLayout(), mapping.left, mapping.top,
                          mapping.right, mapping.bottom, clip.left, clip.top, clip.right, form.eDx, form.eM11,
                          at.x, at.y);
    };
    // Each changes the state, and answers what was before or its success.
    auto was = state(attributes.dc());
    const auto changes = [&](auto answer, decltype(answer) before, int atLine = __builtin_LINE())
    {
        const auto now = state(attributes.dc());
        EXPECT_EQ(answer, before) << atLine;
        EXPECT_NE(now, std::exchange(was, now)) << atLine;
        EXPECT_EQ(state(output.dc()), now) << atLine;
    };
    dc.SetPixel(40, 40, RGB(7, 8, 9));
    EXPECT_NE(output.dc().GetPixel(40, 40), attributes.dc().GetPixel(40, 40));
    attributes.dc().SaveDC();
    EXPECT_FALSE(dc.RestoreDC(-1)) << "the output has no state to go back to";
    const int saved = dc.SaveDC();
    EXPECT_EQ(saved, -1) << "the contexts count apart: only the last state has a common name";
    changes(dc.SetViewportOrg(CPoint(8, 9)), CPoint(1, 2));
    changes(dc.OffsetViewportOrg(2, 3), CPoint(8, 9));
    changes(dc.SetWindowOrg(8, 9), CPoint(3, 4));
    changes(dc.SetViewportExt(CSize(8, 9)), CSize(10, 20));
    changes(dc.ScaleViewportExt(2, 1, 3, 1), CSize(8, 9));
    changes(dc.SetWindowExt(8, 9), CSize(30, 40));
    EXPECT_EQ(Told(dc.GetViewportOrg(), dc.GetWindowOrg(), dc.GetViewportExt(), dc.GetWindowExt()),
              "10 12,8 9,16 27,8 9");
    changes(dc.RestoreDC(saved), TRUE);
    changes(dc.SetBkColor(1), RGB(255, 0, 255));
    changes(dc.SetTextAlign(TA_LEFT), UINT{TA_RIGHT});
    changes(dc.SetMapMode(MM_TEXT), MM_ANISOTROPIC);
    changes(dc.SetLayout(LAYOUT_RTL), 0u);
    changes(dc.SetGraphicsMode(GM_ADVANCED), GM_COMPATIBLE);
    constexpr XFORM twice = {2, 0, 0, 2, 3, 3};
    changes(dc.SetWorldTransform(&twice), TRUE);
    changes(dc.ModifyWorldTransform(nullptr, MWT_IDENTITY), TRUE);
    changes(dc.MoveTo(5, 6), CPoint(0, 0));
    changes(dc.LineTo(CPoint(3, 3)), TRUE);
    changes(dc.ArcTo(CRect(0, 0, 20, 20), CPoint(20, 0), CPoint(0, 9)), TRUE);
    CRgn region;
    region.CreateRectRgn(5, 5, 20, 20);
    changes(dc.SelectClipRgn(&region), SIMPLEREGION);
    changes(dc.OffsetClipRgn(CSize(2, 2)), SIMPLEREGION);
    changes(dc.SelectClipRgn(&region, RGN_OR), COMPLEXREGION);
    changes(dc.IntersectClipRect(CRect(0, 0, 10, 10)), SIMPLEREGION);
    changes(dc.ExcludeClipRect(CRect(0, 0, 9, 40)), SIMPLEREGION);
    changes(dc.SelectClipRgn(nullptr), SIMPLEREGION);
    EXPECT_TRUE(dc.BeginPath() && dc.Rectangle(0, 0, 7, 7) && dc.EndPath());
    changes(dc.SelectClipPath(RGN_COPY), TRUE);
    EXPECT_TRUE(dc.SetTextJustification(3, 1));
    dc.ReleaseOutputDC();
    dc.ReleaseAttribDC();
    EXPECT_EQ(dc.SetTextColor(1), CLR_INVALID) << "without a context";
}

TEST(DeviceContext, HimetricIsHundredthsOfAMillimetre)
{
    CClientDC dc(nullptr);
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
}

TEST(Menu, ADestroyedObjectDestroysItsMenuAndASubMenuOnlyPasses)
{
    HMENU owned = nullptr, popupHandle = nullptr;
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreateMenu());
        owned = menu;
        CMenu popup;
        ASSERT_TRUE(popup.CreatePopupMenu());
        popupHandle = popup;
        menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Detach()), L"numbers");
        EXPECT_EQ(menu.GetSubMenu(0)->m_hMenu, popupHandle);
        CMenu::DeleteTempMap();
        EXPECT_TRUE(::IsMenu(popupHandle));
    }
    EXPECT_FALSE(::IsMenu(owned));
    EXPECT_FALSE(::IsMenu(popupHandle)) << "a pop-up goes with the menu that holds it";
    EXPECT_FALSE(CMenu().LoadMenu(4999));
    EXPECT_FALSE(CMenu().DestroyMenu());
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
    EXPECT_TRUE(menu.ModifyMenu(4, MF_BYCOMMAND, 4, &bitmap));
    EXPECT_TRUE(menu.ModifyMenu(2, MF_BYCOMMAND, 2, L"two"));
    std::string items;
    for (UINT id = 0, i = 0; i < menu.GetMenuItemCount(); ++i)
    {
        id = menu.GetMenuItemID(static_cast<int>(i));
        items += std::to_string(id) + ((menu.GetMenuState(id, MF_BYCOMMAND) & MF_BITMAP) != 0 ? "b " : " ");
    }
    EXPECT_EQ(items, "3b 4b 1 2 ");
    TCHAR text[8] = {};
    CString string(L"left over");
    EXPECT_EQ(menu.GetMenuString(2, text, 8, MF_BYCOMMAND), 3);
    EXPECT_EQ(menu.GetMenuString(2, string, MF_BYCOMMAND), 3);
    EXPECT_EQ(Told(text, string), "two,two");
    EXPECT_EQ(menu.GetMenuString(8, string, MF_BYCOMMAND), 0);
    EXPECT_TRUE(string.IsEmpty());
}

TEST(Geometry, OperatorsMoveByPointsAndInflateByRectangles)
{
    const CRect rect(10, 20, 30, 50), by(1, 2, 3, 4);
    EXPECT_EQ(Told(rect + CPoint(1, 2), rect + by, rect - by, rect & CRect(0, 0, 15, 100),
                   rect | CRect(0, 0, 5, 5)),
              "11 22 31 52,9 18 33 54,11 22 27 46,10 20 15 50,0 0 30 50");
    CRect same(rect);
    const CRect& itself = same;
    same &= itself;
    EXPECT_EQ(same, rect) << "an operand may be the target";
    for (CRect turned : {CRect(30, 20, 10, 50), CRect(10, 50, 30, 20), rect})
    {
        turned.NormalizeRect();
        EXPECT_EQ(turned, rect) << "only edges that stand the wrong way round";
    }
    EXPECT_EQ(Told(CPoint(LPARAM(MAKELONG(-3, 7))), CSize(DWORD(MAKELONG(5, -9)))), "-3 7,5 -9");
}
