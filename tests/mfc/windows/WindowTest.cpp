// CWnd and its handle: creation, subclassing, handle maps, the end of windows, exceptions in handlers, calls.

#include "TestWindows.h"

namespace
{
/// Notes the stations of a window's life.
class CLifeWnd : public CSeenWnd
{
public:
    using CSeenWnd::CSeenWnd;
    void PreSubclassWindow() override
    {
        Note("attached");
        EXPECT_EQ(FromHandlePermanent(m_hWnd), this);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_CREATE)
            Note("made");
        return CSeenWnd::WindowProc(message, wParam, lParam);
    }

protected:
    void PostNcDestroy() override { Note("gone"); }
};

HWND MakeStatic(HWND parent = nullptr)
{
    return ::CreateWindow(L"Static", L"", parent != nullptr ? WS_CHILD : WS_POPUP, 0, 0, 10, 10, parent,
                          nullptr, nullptr, nullptr);
}

WNDPROC ProcedureOf(HWND window)
{
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtr(window, GWLP_WNDPROC));
}

TEST(Window, ACreatedWindowBelongsToTheObjectFromItsFirstMessageOn)
{
    Noted();
    CLifeWnd window;
    ASSERT_TRUE(CreatePopup(window));
    EXPECT_EQ(Noted(), "attached;made;");
    EXPECT_EQ(CWnd::FromHandle(window.m_hWnd), &window);
    EXPECT_EQ(ProcedureOf(window), AfxGetAfxWndProc());
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_FALSE(window.DestroyWindow());
    EXPECT_EQ(Noted(), "gone;");

    const HWND handle = CPopup(); // which goes, and takes its window along
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(Window, ACreationThatFailsLeavesNoHandle)
{
    Noted();
    for (const bool throws : {false, true})
    {
        CLifeWnd window(
            [=](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT>
            {
                if (message != WM_CREATE)
                    return std::nullopt;
                if (throws)
                    AfxThrowResourceException();
                return -1;
            });
        EXPECT_FALSE(CreatePopup(window));
        EXPECT_EQ(window.m_hWnd, nullptr);
        EXPECT_EQ(Noted(), "attached;made;gone;");
    }
    CLifeWnd unknownClass; // the system refuses before it makes anything
    EXPECT_FALSE(unknownClass.CreateEx(0, L"no such class", L"", WS_POPUP, CRect(0, 0, 1, 1), nullptr, 0));
    EXPECT_NE(::GetLastError(), 0u) << "the reason is still there to be asked for";
    EXPECT_EQ(Noted(), "gone;");
    CLifeWnd next; // which must not be taken for one of those
    EXPECT_TRUE(CreatePopup(next));
    EXPECT_EQ(Noted(), "attached;made;");
}

TEST(Window, SubclassingTakesTheProcedureAndGivesItBack)
{
    Noted();
    const HWND handle = MakeStatic();
    const WNDPROC original = ProcedureOf(handle);
    CLifeWnd window;
    ASSERT_TRUE(window.SubclassWindow(handle));
    EXPECT_NE(ProcedureOf(handle), original);
    window.SetWindowText(L"through the old procedure");
    EXPECT_EQ(window.GetWindowTextLength(), 25);
    EXPECT_EQ(window.UnsubclassWindow(), handle);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(ProcedureOf(handle), original);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    ::DestroyWindow(handle);
    EXPECT_EQ(Noted(), "attached;") << "it was its window no more";

    CPopup parent;
    for (int round = 0; round < 2; ++round) // one that dies releases its object for another
    {
        ASSERT_TRUE(window.SubclassWindow(MakeStatic(parent)));
        ::DestroyWindow(window.m_hWnd);
        EXPECT_EQ(window.m_hWnd, nullptr);
        EXPECT_EQ(Noted(), "attached;gone;");
    }
    EXPECT_FALSE(window.SubclassDlgItem(999, &parent) || window.SubclassWindow(nullptr));
}

TEST(Window, AHandlerMayThrowOrDestroyItsWindow)
{
    CLifeWnd window;
    window.see = [&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT>
    {
        if (message == WM_APP + 1)
            AfxThrowUserException(); // reported already: no message box
        if (message != WM_APP)
            return std::nullopt;
        window.DestroyWindow();
        return window.m_hWnd == nullptr ? 77 : 0;
    };
    ASSERT_TRUE(CreatePopup(window));
    EXPECT_EQ(window.SendMessage(WM_APP + 1), 0) << "the exception stops at the procedure";
    EXPECT_TRUE(::IsWindow(window));
    EXPECT_EQ(::SendMessage(window.m_hWnd, WM_APP, 0, 0), 77);
}

TEST(HandleMap, AForeignHandleHasATemporaryObjectUntilIdleTimeUnlessItIsAttached)
{
    const HWND foreign = MakeStatic();
    CWnd* const temporary = CWnd::FromHandle(foreign);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(foreign), nullptr);
    AfxLockTempMaps(); // as a nested loop does
    AfxGetThread()->OnIdle(1);
    EXPECT_EQ(CWnd::FromHandle(foreign), temporary);
    EXPECT_EQ(temporary->m_hWnd, foreign);
    EXPECT_FALSE(AfxUnlockTempMaps());
    AfxGetThread()->OnIdle(1);
    EXPECT_TRUE(::IsWindow(foreign)); // the object did not own it

    const WNDPROC original = ProcedureOf(foreign);
    CWnd window;
    ASSERT_TRUE(window.Attach(foreign));
    AfxGetThread()->OnIdle(1);
    EXPECT_EQ(CWnd::FromHandlePermanent(foreign), &window);
    EXPECT_EQ(ProcedureOf(foreign), original) << "it takes no messages";
    CWnd* seen = &window;
    std::thread([&] { seen = CWnd::FromHandlePermanent(foreign); }).join();
    EXPECT_EQ(seen, nullptr) << "a map belongs to its thread";
    EXPECT_EQ(seen->GetSafeHwnd(), nullptr);
    EXPECT_EQ(window.Detach(), foreign);
    EXPECT_EQ(CWnd::FromHandlePermanent(foreign), nullptr);
    ::DestroyWindow(foreign);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
}

/// Notes its name where it is asked, and may take the message.
struct CWalker : CWnd
{
    explicit CWalker(std::string name) : m_name(std::move(name)) {}
    BOOL PreTranslateMessage(MSG*) override { return Note(m_name) && m_take; }
    std::string m_name;
    bool m_take = false;
};

TEST(PreTranslate, WalksFromTheTargetToTheTopAndStopsAtTheFirstTaker)
{
    CWalker top("top"), middle("middle"), inner("inner"), main("main");
    ASSERT_TRUE(CreatePopup(top));
    ASSERT_TRUE(CreateChild(middle, top, 1));
    ASSERT_TRUE(CreateChild(inner, middle, 1));
    ASSERT_TRUE(CreatePopup(main));
    MSG message{};
    message.hwnd = MakeStatic(inner); // without an object: the walk begins at its parent
    message.message = WM_KEYDOWN;
    Noted();
    EXPECT_FALSE(AfxPreTranslateMessage(&message));
    EXPECT_EQ(Noted(), "inner;middle;top;");
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(middle, &message));
    EXPECT_EQ(Noted(), "inner;middle;") << "a walk may end early";
    AfxGetThread()->m_pMainWnd = &main;
    EXPECT_FALSE(AfxPreTranslateMessage(&message));
    EXPECT_EQ(Noted(), "inner;middle;top;main;") << "the main window beside them comes last";
    AfxGetThread()->m_pMainWnd = nullptr;
    middle.m_take = true;
    EXPECT_TRUE(AfxPreTranslateMessage(&message));
    EXPECT_EQ(Noted(), "inner;middle;");
}

TEST(RelatedWindows, OwnersAndDescendants)
{
    CPopup owner, popup(&owner);
    CChild child(popup, 5), grandChild(child, 6), inner(child, 5);
    EXPECT_EQ(popup.GetDescendantWindow(5, TRUE), &inner) << "which is meant, and not the control around it";
    EXPECT_EQ(grandChild.GetTopLevelParent(), &owner);
    EXPECT_EQ(popup.GetTopLevelOwner(), &owner);
    EXPECT_EQ(grandChild.GetParentOwner(), &popup);
    EXPECT_EQ(popup.GetDescendantWindow(6, TRUE), &grandChild);
    EXPECT_EQ(child.GetOwner(), &popup);
    EXPECT_EQ(CWnd::GetSafeOwner(&grandChild), &popup) << "a child cannot own a dialog";
    HWND top = nullptr;
    EXPECT_EQ(CWnd::GetSafeOwner(&grandChild, &top), &popup);
    EXPECT_TRUE(top == owner.m_hWnd && !owner.IsWindowEnabled()) << "who is to be enabled again";
}

TEST(Window, CentresOverItsOwnerAndStaysOnTheScreen)
{
    CPopup owner(nullptr, WS_VISIBLE), popup(&owner);
    CChild child(popup, 1);
    const auto placeOf = [](CWnd& window)
    {
        CRect place;
        window.CenterWindow();
        window.GetWindowRect(&place);
        return place;
    };
    CRect screen;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &screen, 0);
    popup.MoveWindow(0, 0, 50, 30);
    owner.MoveWindow(100, 100, 200, 100);
    EXPECT_EQ(placeOf(popup), CRect(175, 135, 225, 165));
    owner.MoveWindow(screen.right - 60, screen.bottom - 30, 200, 100);
    EXPECT_EQ(placeOf(popup).BottomRight(), screen.BottomRight());
    owner.MoveWindow(-150, -80, 200, 100);
    EXPECT_EQ(placeOf(popup), CRect(0, 0, 50, 30));
    EXPECT_EQ(placeOf(child), CRect(15, 5, 35, 25)) << "over its parent";
    owner.ShowWindow(SW_HIDE);
    EXPECT_EQ(placeOf(popup).CenterPoint(), screen.CenterPoint()) << "an owner that does not show is none";
}

TEST(Window, PushButtonsWithoutAHandlerAreDisabledWhichTakesTheFocusFromThemAndNoOtherControl)
{
    const std::tuple<LPCTSTR, DWORD, bool> cases[] = {
        {L"Button", BS_PUSHBUTTON, false},     {L"Button", BS_AUTOCHECKBOX, true},
        {L"Button", BS_AUTO3STATE, true},      {L"Button", BS_GROUPBOX, true},
        {L"Button", BS_AUTORADIOBUTTON, true}, {L"Edit", 0, true},
    };
    CSeenWnd window(
        [](UINT message, WPARAM wParam, LPARAM)
        {
            if (message == WM_NEXTDLGCTL)
                Note("next", wParam);
            return std::nullopt;
        });
    ASSERT_TRUE(CreatePopup(window, nullptr, WS_VISIBLE));
    Noted();
    for (const auto& [className, style, enabled] : cases)
    {
        CWnd control;
        ASSERT_TRUE(control.Create(className, L"", WS_CHILD | WS_VISIBLE | style, CRect(), &window, 300));
        control.SetFocus();
        window.UpdateDialogControls(&window, TRUE);
        EXPECT_EQ(control.IsWindowEnabled() != FALSE, enabled) << style;
        EXPECT_EQ(Noted(), enabled ? "" : "next 0;");
    }
}

/// A visible window with a button and scroll bars: its own, or in their place a control.
class CFormWnd : public CSeenWnd
{
public:
    CFormWnd()
    {
        EXPECT_TRUE(CreateEx(0, nullptr, L"form of the calls",
                             WS_POPUP | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL, CRect(40, 40, 240, 140),
                             nullptr, 0));
        m_button.Create(L"button", WS_CHILD | WS_VISIBLE, CRect(0, 40, 80, 60), this, 3);
        m_bar.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, CRect(0, 60, 80, 70), this, 4);
    }
    CScrollBar* GetScrollBarCtrl(int) const override
    {
        return m_barCounts ? const_cast<CScrollBar*>(&m_bar) : nullptr;
    }

    CButton m_button;
    CScrollBar m_bar;
    bool m_barCounts = false;
};

TEST(Window, CallsOnItsPlaceAndItsNeighbours)
{
    CFormWnd form;
    CRect area(0, 0, 10, 10);
    form.ClientToScreen(area);
    EXPECT_EQ(area, CRect(40, 40, 50, 50));
    form.ScreenToClient(area);
    form.m_button.MapWindowPoints(&form, area);
    EXPECT_EQ(area, CRect(0, 40, 10, 50));
    CString text(L"before");
    EXPECT_EQ(form.GetDlgItemText(99, text), 0);
    EXPECT_TRUE(text.IsEmpty()) << "of an item that is none";
    form.MoveWindow(CRect(50, 60, 260, 170));
    EXPECT_TRUE(form.ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED));
    EXPECT_FALSE(form.ModifyStyleEx(0, WS_EX_CLIENTEDGE));
    CRect client;
    form.GetClientRect(&client);
    EXPECT_LT(client.Width(), 210 - 2) << "the frame was changed at once";
    EXPECT_TRUE(CWnd::ModifyStyle(form, 0, WS_DISABLED, 0));
    EXPECT_TRUE(form.ModifyStyle(WS_DISABLED, 0));
    EXPECT_TRUE(form.IsWindowEnabled());
    CRect outside(area), border(area);
    form.CalcWindowRect(outside, CWnd::adjustOutside);
    form.CalcWindowRect(border);
    EXPECT_EQ(border, area);
    EXPECT_EQ(outside, area + CRect(2, 2, 2, 2)) << "the edge";
}

TEST(Window, CallsOnItsScrollBarsGoToAControlThatStandsForThem)
{
    CFormWnd form;
    form.m_bar.SetScrollRange(0, 1);
    for (const bool control : {false, true})
    {
        form.m_barCounts = control;
        int lowest = 0, highest = 0;
        form.SetScrollRange(SB_HORZ, -3, 50);
        form.GetScrollRange(SB_HORZ, &lowest, &highest);
        EXPECT_EQ(lowest * 100 + highest, -250);
        form.SetScrollPos(SB_HORZ, 9);
        EXPECT_EQ(form.SetScrollPos(SB_HORZ, 10), 9);
        EXPECT_EQ(form.GetScrollPos(SB_HORZ), 10);
        EXPECT_EQ(form.m_bar.GetScrollPos(), control ? 10 : 0);
        EXPECT_EQ(form.GetScrollLimit(SB_HORZ), 50);
        SCROLLINFO info = {};
        info.fMask = SIF_PAGE;
        info.nPage = 11;
        EXPECT_TRUE(form.SetScrollInfo(SB_HORZ, &info));
        info = {};
        EXPECT_TRUE(form.GetScrollInfo(SB_HORZ, &info, SIF_PAGE | SIF_POS));
        EXPECT_EQ(info.nPage + info.nPos, 21u);
        EXPECT_EQ(info.nMax, 0) << "not asked for";
        EXPECT_EQ(form.GetScrollLimit(SB_HORZ), 40);
        form.ShowScrollBar(SB_HORZ, FALSE);
        form.EnableScrollBarCtrl(SB_BOTH, FALSE);
        EXPECT_EQ(form.GetStyle() & WS_HSCROLL, 0u);
        EXPECT_EQ(form.m_bar.IsWindowVisible() == FALSE, control);
        EXPECT_EQ(form.m_bar.IsWindowEnabled() == FALSE, control);
    }
}
} // namespace
