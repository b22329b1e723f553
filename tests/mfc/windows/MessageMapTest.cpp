// Message maps: dispatch by signature, reflection before the parent, commands, notifications and ranges.

#include "MemberNames.h"
#include "TestWindows.h"

#include <string>
#include <vector>

namespace
{
constexpr UINT idTaker = 102;   // an object whose _EX handlers answer TRUE
constexpr UINT idSharer = 103;  // an object whose _EX handlers answer FALSE
constexpr UINT idForeign = 104; // no object
constexpr UINT idRangeFirst = 110;
constexpr UINT idRangeLast = 119;
constexpr UINT codeNotify = 0xFFFFFF00u; // NM_ codes are negative
constexpr UINT cmdEx = 40001;
constexpr UINT cmdMenu = 40002;

using Trace = std::vector<std::string>;
Trace trace;

/// Enters a word and its numbers, as "size 2 640 480".
template <class... Numbers>
void Enter(std::string word, Numbers... numbers)
{
    ((word += ' ' + std::to_string(numbers)), ...);
    trace.push_back(word);
}

UINT registeredMessage = ::RegisterWindowMessage(L"DialogControlsOW.Test.Registered");

/// A control that reflects what its parent receives from it: clicks by the _EX form with the given answer,
/// double clicks by the plain form.
class CProbe : public CWnd
{
public:
    explicit CProbe(BOOL answer) : m_answer(answer) {}
    BOOL m_answer;
    HBRUSH m_brush = nullptr;

protected:
    afx_msg BOOL OnReflectedClick()
    {
        Enter("control");
        return m_answer;
    }
    afx_msg void OnReflectedDoubleClick() { Enter("control"); }
    afx_msg BOOL OnReflectedNotify(NMHDR*, LRESULT* result)
    {
        Enter("control");
        *result = 7;
        return m_answer;
    }
    afx_msg HBRUSH CtlColor(CDC*, UINT type)
    {
        Enter("control's colour", type);
        return m_brush;
    }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT item) { Enter("draw", item->itemID); }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT item) { item->itemHeight = 33; }
    afx_msg int VKeyToItem(UINT key, UINT index) { return static_cast<int>(key * 100 + index); }
    afx_msg void HScroll(UINT code, UINT position) { Enter("scroll", code, position); }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return m_answer; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CProbe, CWnd)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &CProbe::OnReflectedClick)
    ON_CONTROL_REFLECT(BN_DOUBLECLICKED, &CProbe::OnReflectedDoubleClick)
    ON_NOTIFY_REFLECT_EX(codeNotify, &CProbe::OnReflectedNotify)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_VKEYTOITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

class CParentBase : public CWnd
{
protected:
    afx_msg void OnBaseClick() { Enter("base"); }
    afx_msg LRESULT OnUser(WPARAM w, LPARAM l) { return static_cast<LRESULT>(w) * 10 + l; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CParentBase, CWnd)
    ON_BN_CLICKED(idForeign, &CParentBase::OnBaseClick)
    ON_MESSAGE(WM_APP + 1, &CParentBase::OnUser)
END_MESSAGE_MAP()

class CParent : public CParentBase
{
public:
    BOOL m_answer = TRUE;
    BOOL m_enabled = TRUE;

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        Enter("OnCommand");
        return CParentBase::OnCommand(wParam, lParam);
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if (static_cast<UINT>(nCode) != CN_UPDATE_COMMAND_UI)
            Enter("OnCmdMsg");
        return CParentBase::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }

protected:
    afx_msg void OnClick() { Enter("parent"); }
    afx_msg void OnRange(UINT id) { Enter("range", id); }
    afx_msg BOOL OnCommandEx(UINT id)
    {
        Enter("ex", id);
        return m_answer;
    }
    afx_msg void OnNotifyPlain(NMHDR*, LRESULT* result)
    {
        Enter("parent");
        *result = 5;
    }
    afx_msg void OnNotifyRange(UINT id, NMHDR*, LRESULT* result)
    {
        Enter("notify range", id);
        *result = 6;
    }
    afx_msg void OnMenuCommand() { Enter("menu"); }
    afx_msg void OnUpdateMenuCommand(CCmdUI* item) { item->Enable(m_enabled); }
    afx_msg LRESULT OnRegistered(WPARAM w, LPARAM) { return static_cast<LRESULT>(w) + 1; }
    afx_msg void OnSize(UINT type, int cx, int cy) { Enter("size", type, cx, cy); }
    afx_msg void OnMouseMove(UINT, CPoint point) { Enter("move", point.x, point.y); }
    afx_msg BOOL OnMouseWheel(UINT, short delta, CPoint point)
    {
        Enter("wheel", delta, point.x, point.y);
        return TRUE;
    }
    afx_msg void OnTimer(UINT_PTR id) { Enter("timer", id); }
    afx_msg void OnMove(int x, int y) { Enter("moved", x, y); }
    afx_msg void OnKeyDown(UINT key, UINT times, UINT flags) { Enter("key", key, times, flags); }
    afx_msg void OnEnterIdle(UINT why, CWnd* who) { Enter("idle", why, who->GetDlgCtrlID()); }
    afx_msg void OnMenuSelect(UINT item, UINT flags, HMENU) { Enter("select", item, flags); }
    afx_msg void OnShowWindow(BOOL show, UINT status) { Enter("show", show, status); }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type)
    {
        Enter("parent's colour", type);
        return CParentBase::OnCtlColor(dc, control, type);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CParent, CParentBase)
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_TIMER()
    ON_WM_MOVE()
    ON_WM_KEYDOWN()
    ON_WM_ENTERIDLE()
    ON_WM_MENUSELECT()
    ON_WM_SHOWWINDOW()
    ON_WM_CTLCOLOR()
    ON_BN_CLICKED(idTaker, &CParent::OnClick)
    ON_BN_CLICKED(idSharer, &CParent::OnClick)
    ON_BN_DOUBLECLICKED(idSharer, &CParent::OnClick)
    ON_CONTROL_RANGE(EN_CHANGE, idRangeFirst, idRangeLast, &CParent::OnRange)
    ON_COMMAND_EX(cmdEx, &CParent::OnCommandEx)
    ON_COMMAND_RANGE(40010, 40019, &CParent::OnRange)
    ON_COMMAND(cmdMenu, &CParent::OnMenuCommand)
    ON_UPDATE_COMMAND_UI(cmdMenu, &CParent::OnUpdateMenuCommand)
    ON_NOTIFY(codeNotify, idTaker, &CParent::OnNotifyPlain)
    ON_NOTIFY(codeNotify, idSharer, &CParent::OnNotifyPlain)
    ON_NOTIFY_RANGE(codeNotify, idRangeFirst, idRangeLast, &CParent::OnNotifyRange)
    ON_REGISTERED_MESSAGE(registeredMessage, &CParent::OnRegistered)
END_MESSAGE_MAP()

class MessageMap : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(CreatePopup(parent));
        ASSERT_TRUE(CreateChild(taker, parent, idTaker));
        ASSERT_TRUE(CreateChild(sharer, parent, idSharer));
        foreign = ::CreateWindow(L"Static", L"", WS_CHILD, 0, 0, 10, 10, parent,
                                 reinterpret_cast<HMENU>(idForeign), nullptr, nullptr);
        trace.clear();
    }

    /// Sends a message to the parent whose long parameter is a structure.
    template <class Structure>
    LRESULT Send(UINT message, WPARAM wParam, Structure& structure)
    {
        return parent.SendMessage(message, wParam, reinterpret_cast<LPARAM>(&structure));
    }

    Trace Click(HWND control, WORD code = BN_CLICKED)
    {
        trace.clear();
        parent.SendMessage(WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(control), code),
                           reinterpret_cast<LPARAM>(control));
        return trace;
    }

    LRESULT Notify(HWND control)
    {
        trace.clear();
        NMHDR header{control, static_cast<UINT_PTR>(::GetDlgCtrlID(control)), codeNotify};
        return Send(WM_NOTIFY, header.idFrom, header);
    }

    CParent parent;
    CProbe taker{TRUE};
    CProbe sharer{FALSE};
    HWND foreign = nullptr;
};

TEST_F(MessageMap, AControlSeesItsCommandBeforeTheParentAndDecidesWhetherThatSeesIt)
{
    EXPECT_EQ(Click(taker), (Trace{"OnCommand", "control"}));
    EXPECT_EQ(Click(sharer), (Trace{"OnCommand", "control", "OnCmdMsg", "parent"}));
    EXPECT_EQ(Click(sharer, BN_DOUBLECLICKED), (Trace{"OnCommand", "control"}))
        << "without _EX it ends there";
    EXPECT_EQ(Click(foreign), (Trace{"OnCommand", "OnCmdMsg", "base"})) << "by the map of the base class";
}

TEST_F(MessageMap, ANotificationIsAnsweredByWhoTookIt)
{
    EXPECT_EQ(Notify(taker), 7);
    EXPECT_EQ(trace, (Trace{"control"}));
    EXPECT_EQ(Notify(sharer), 5);
    EXPECT_EQ(trace, (Trace{"control", "OnCmdMsg", "parent"}));
    EXPECT_EQ(Notify(foreign), 0);
    EXPECT_EQ(trace, (Trace{"OnCmdMsg"}));
}

TEST_F(MessageMap, RangesIncludeBothEndsAndPassTheId)
{
    CWnd first;
    CWnd beyond;
    ASSERT_TRUE(CreateChild(first, parent, idRangeFirst));
    ASSERT_TRUE(CreateChild(beyond, parent, idRangeLast + 1));
    EXPECT_EQ(Notify(first), 6);
    EXPECT_EQ(trace.back(), "notify range 110");
    EXPECT_EQ(Notify(beyond), 0);

    const auto change = [&](UINT id) {
        return parent.SendMessage(WM_COMMAND, MAKEWPARAM(id, EN_CHANGE),
                                  reinterpret_cast<LPARAM>(first.m_hWnd));
    };
    EXPECT_EQ(change(idRangeLast), 1);
    EXPECT_EQ(trace.back(), "range 119");
    EXPECT_EQ(change(idRangeLast + 1), 0);

    parent.SendMessage(WM_COMMAND, 40019);
    EXPECT_EQ(trace.back(), "range 40019");
}

TEST_F(MessageMap, CommandsRunUnlessTheyAreDisabledAndAnExHandlerMayDecline)
{
    EXPECT_TRUE(parent.SendMessage(WM_COMMAND, cmdEx));
    parent.m_answer = FALSE;
    EXPECT_FALSE(parent.SendMessage(WM_COMMAND, cmdEx));
    EXPECT_EQ(trace.back(), "ex 40001");

    parent.SendMessage(WM_COMMAND, cmdMenu);
    EXPECT_EQ(trace.back(), "menu");
    trace.clear();
    parent.m_enabled = FALSE; // an accelerator comes whatever the menu shows
    parent.SendMessage(WM_COMMAND, cmdMenu);
    EXPECT_EQ(trace, (Trace{"OnCommand"}));

    AFX_CMDHANDLERINFO info{}; // which only looks for the handler
    EXPECT_TRUE(parent.OnCmdMsg(cmdMenu, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &parent);
    EXPECT_EQ(trace.back(), "OnCmdMsg");
    EXPECT_FALSE(parent.OnCmdMsg(40099, CN_COMMAND, nullptr, &info));
}

TEST_F(MessageMap, ParametersAreUnpackedWithTheirSignsAndWidths)
{
    EXPECT_EQ(parent.SendMessage(WM_APP + 1, 4, 2), 42);
    EXPECT_EQ(parent.SendMessage(registeredMessage, 8), 9);
    EXPECT_EQ(parent.SendMessage(WM_APP + 2, 4, 2), 0) << "of nobody";
    EXPECT_EQ(parent.SendMessage(::RegisterWindowMessage(L"DialogControlsOW.Test.Other"), 8), 0);
    parent.SendMessage(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(640, 480));
    parent.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(-3, -4));
    parent.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), MAKELPARAM(-1, 5));
    parent.SendMessage(WM_TIMER, UINT_PTR{0x100000001});
    EXPECT_EQ(trace, (Trace{"size 2 640 480", "move -3 -4", "wheel -120 -1 5", "timer 4294967297"}));

    trace.clear();
    parent.SendMessage(WM_MOVE, 0, MAKELPARAM(-5, 6));
    parent.SendMessage(WM_KEYDOWN, 'A', MAKELPARAM(2, 0x11E));
    parent.SendMessage(WM_ENTERIDLE, MSGF_MENU, reinterpret_cast<LPARAM>(taker.m_hWnd));
    parent.SendMessage(WM_MENUSELECT, MAKEWPARAM(7, MF_GRAYED));
    parent.SendMessage(WM_SHOWWINDOW, TRUE, SW_PARENTOPENING);
    EXPECT_EQ(trace, (Trace{"moved -5 6", "key 65 2 286", "idle 2 102", "select 7 1", "show 1 3"}));

    taker.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 40));
    EXPECT_EQ(trace.back(), "show 1 3") << "a wheel that was taken";
    sharer.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 40));
    EXPECT_EQ(trace.back(), "wheel 40 0 0") << "the parent scrolls instead";
}

TEST_F(MessageMap, ColoursComeFromTheControlAndElseFromTheDefault)
{
    CClientDC dc(&parent);
    const auto context = reinterpret_cast<WPARAM>(dc.m_hDC);
    CBrush brush(RGB(1, 2, 3));
    taker.m_brush = brush;
    EXPECT_EQ(parent.SendMessage(WM_CTLCOLORSTATIC, context, reinterpret_cast<LPARAM>(taker.m_hWnd)),
              reinterpret_cast<LRESULT>(brush.m_hObject));
    EXPECT_EQ(trace, (Trace{"parent's colour 6", "control's colour 6"})) << "both are told CTLCOLOR_STATIC";

    const auto control = reinterpret_cast<LPARAM>(sharer.m_hWnd);
    EXPECT_EQ(parent.SendMessage(WM_CTLCOLOREDIT, context, control),
              ::DefWindowProc(parent, WM_CTLCOLOREDIT, context, control))
        << "a null brush leaves the choice to the parent";
    EXPECT_EQ(trace.back(), "control's colour 1");
    parent.SendMessage(WM_CTLCOLORMSGBOX, context, control);
    EXPECT_EQ(trace.back(), "control's colour 0");
}

TEST_F(MessageMap, ItemsKeysAndScrollingAreGivenBackToTheControl)
{
    DRAWITEMSTRUCT draw{};
    draw.hwndItem = taker;
    draw.itemID = 4;
    Send(WM_DRAWITEM, idTaker, draw);
    EXPECT_EQ(trace.back(), "draw 4");

    MEASUREITEMSTRUCT measure{};
    measure.CtlID = idTaker; // the only mark of the control in this structure
    Send(WM_MEASUREITEM, idTaker, measure);
    EXPECT_EQ(measure.itemHeight, 33u);

    const auto control = reinterpret_cast<LPARAM>(taker.m_hWnd);
    EXPECT_EQ(parent.SendMessage(WM_VKEYTOITEM, MAKEWPARAM(3, 7), control), 307);
    parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 12), control);
    EXPECT_EQ(trace.back(), "scroll 5 12");
}

/// Has every window message in its map and no handler of its own.
class CEverything : public CWnd
{
public:
    std::vector<MSG> m_defaults;
    static const AFX_MSGMAP_ENTRY* Entries() { return GetThisMessageMap()->lpEntries; }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_defaults.push_back({m_hWnd, message, wParam, lParam, 0, {}});
        return 1;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CEverything, CWnd)
    OW_WINDOW_MESSAGES
END_MESSAGE_MAP()

TEST_F(MessageMap, AHandlerThatIsNotOverriddenHandsItsMessageOnAsItCame)
{
    CEverything everything;
    ASSERT_TRUE(everything.Attach(foreign)); // its messages do not reach the object by themselves
    const BYTE structure[256] = {};
    for (auto* entry = CEverything::Entries(); entry->nSig != AfxSig_end; ++entry)
    {
        if (entry->nMessage == WM_NCDESTROY)
            continue; // the end of the object
        const UINT message = entry->nMessage == WM_CTLCOLOR ? WM_CTLCOLORDLG : entry->nMessage;
        SCOPED_TRACE(message);
        everything.m_defaults.clear();
        const auto lParam = reinterpret_cast<LPARAM>(structure);
        AfxCallWndProc(&everything, foreign, message, 0x30002, lParam);
        ASSERT_EQ(everything.m_defaults.size(), 1u);
        EXPECT_EQ(everything.m_defaults[0].message, message);
        EXPECT_EQ(everything.m_defaults[0].wParam, WPARAM{0x30002});
        EXPECT_EQ(everything.m_defaults[0].lParam, lParam);
    }
    everything.Detach();
}

TEST_F(MessageMap, BroadcastsOfTheSystemAreHandedDownByTheTopLevelWindowOnly)
{
    struct CListener : CWnd
    {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            Enter("heard", GetDlgCtrlID(), message, wParam, lParam);
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } child, grandChild;
    ASSERT_TRUE(CreateChild(child, parent, 1));
    ASSERT_TRUE(CreateChild(grandChild, child, 2));
    static int foreignHeard;
    foreignHeard = 0;
    const WNDPROC count = [](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return ++foreignHeard; };
    ::SetWindowLongPtr(foreign, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(count));
    for (UINT message : {WM_SYSCOLORCHANGE, WM_SETTINGCHANGE, WM_DISPLAYCHANGE})
    {
        const std::string heard =
            ' ' + std::to_string(message) + (message == WM_SYSCOLORCHANGE ? " 0 0" : " 5 0");
        trace.clear();
        child.SendMessage(message, 5, 0);
        EXPECT_EQ(trace, Trace{"heard 1 " + std::to_string(message) + " 5 0"});
        trace.clear();
        parent.SendMessage(message, message == WM_SYSCOLORCHANGE ? 0 : 5, 0);
        EXPECT_EQ(trace, (Trace{"heard 1" + heard, "heard 2" + heard}));
    }
    EXPECT_EQ(foreignHeard, 0) << "windows with objects only";
    EXPECT_FALSE(child.SendChildNotifyLastMsg()) << "no message that is given back";
}
} // namespace
