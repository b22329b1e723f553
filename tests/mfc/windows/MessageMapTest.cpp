// Message maps: dispatch by signature, reflection before the parent, commands, notifications and ranges.

#include "MemberNames.h"
#include "TestWindows.h"

namespace
{
constexpr UINT idTaker = 102;            // an object whose _EX handlers answer TRUE
constexpr UINT idSharer = 103;           // an object whose _EX handlers answer FALSE
constexpr UINT idForeign = 104;          // no object
constexpr UINT codeNotify = 0xFFFFFF00u; // NM_ codes are negative

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
    afx_msg BOOL OnReflectedClick() { return Note("control") && m_answer; }
    afx_msg void OnReflectedDoubleClick() { Note("control"); }
    afx_msg BOOL OnReflectedNotify(NMHDR*, LRESULT* result)
    {
        *result = 7;
        return OnReflectedClick();
    }
    afx_msg HBRUSH CtlColor(CDC*, UINT type) { return Note("own colour", type) ? m_brush : nullptr; }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT item) { Note("draw", item->itemID); }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT item) { item->itemHeight = 33; }
    afx_msg void DeleteItem(LPDELETEITEMSTRUCT item) { Note("delete", item->itemID); }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT item) { return static_cast<int>(item->itemID1) - 9; }
    afx_msg int CharToItem(UINT key, UINT index) { return static_cast<int>(key * 10 + index); }
    afx_msg int VKeyToItem(UINT key, UINT index) { return static_cast<int>(key * 100 + index); }
    afx_msg void HScroll(UINT code, UINT position) { Note("scroll", code, position); }
    afx_msg void VScroll(UINT code, UINT position) { Note("up", code, position); }
    afx_msg void ParentNotify(UINT message, LPARAM) { Note("parent told", message); }
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
    ON_WM_DELETEITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_CHARTOITEM_REFLECT()
    ON_WM_VKEYTOITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_VSCROLL_REFLECT()
    ON_WM_PARENTNOTIFY_REFLECT()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

class CParentBase : public CWnd
{
protected:
    afx_msg void OnBaseClick() { Note("base"); }
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
    BOOL m_answer = TRUE, m_enabled = TRUE;

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        return Note("OnCommand") && CParentBase::OnCommand(wParam, lParam);
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if (static_cast<UINT>(nCode) != CN_UPDATE_COMMAND_UI)
            Note("OnCmdMsg");
        return CParentBase::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }

protected:
    afx_msg void OnClick() { Note("parent"); }
    afx_msg void OnRange(UINT id) { Note("range", id); }
    afx_msg BOOL OnCommandEx(UINT id) { return Note("ex", id) && m_answer; }
    afx_msg void OnNotifyPlain(NMHDR*, LRESULT* result)
    {
        Note("parent");
        *result = 5;
    }
    afx_msg void OnNotifyRange(UINT id, NMHDR*, LRESULT* result)
    {
        Note("notify range", id);
        *result = 6;
    }
    afx_msg void OnUpdateMenuCommand(CCmdUI* item) { item->Enable(m_enabled && item->m_nID == 40002); }
    afx_msg LRESULT OnRegistered(WPARAM w, LPARAM) { return static_cast<LRESULT>(w) + 1; }
    afx_msg void OnSize(UINT type, int cx, int cy) { Note("size", type, cx, cy); }
    afx_msg void OnSizing(UINT side, LPRECT) { Note("sizing", side); }
    afx_msg BOOL OnMouseWheel(UINT, short delta, CPoint point)
    {
        return Note("wheel", delta, point.x, point.y);
    }
    afx_msg void OnTimer(UINT_PTR id) { Note("timer", id); }
    afx_msg void OnEnterIdle(UINT why, CWnd* who) { Note("idle", why, who->GetDlgCtrlID()); }
    afx_msg void OnMenuSelect(UINT item, UINT flags, HMENU) { Note("select", item, flags); }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type)
    {
        Note("parent's colour", type);
        return CParentBase::OnCtlColor(dc, control, type);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CParent, CParentBase)
    ON_WM_SIZE()
    ON_WM_SIZING()
    ON_WM_MOUSEWHEEL()
    ON_WM_TIMER()
    ON_WM_ENTERIDLE()
    ON_WM_MENUSELECT()
    ON_WM_CTLCOLOR()
    ON_BN_CLICKED(idTaker, &CParent::OnClick)
    ON_BN_CLICKED(idSharer, &CParent::OnClick)
    ON_BN_DOUBLECLICKED(idSharer, &CParent::OnClick)
    ON_CONTROL_RANGE(EN_CHANGE, 110, 119, &CParent::OnRange)
    ON_COMMAND_EX(40001, &CParent::OnCommandEx)
    ON_COMMAND_RANGE(40010, 40019, &CParent::OnRange)
    ON_COMMAND(40002, &CParent::OnClick)
    ON_UPDATE_COMMAND_UI(40002, &CParent::OnUpdateMenuCommand)
    ON_NOTIFY(codeNotify, idTaker, &CParent::OnNotifyPlain)
    ON_NOTIFY(codeNotify, idSharer, &CParent::OnNotifyPlain)
    ON_NOTIFY_RANGE(codeNotify, 110, 119, &CParent::OnNotifyRange)
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
        Noted();
    }

    /// What is noted for a message to the parent, and the answer.
    std::string Send(UINT message, WPARAM wParam, LPARAM lParam)
    {
        const LRESULT answer = parent.SendMessage(message, wParam, lParam);
        return Noted() + std::to_string(answer);
    }
    std::string Command(UINT id, WORD code = 0, HWND control = nullptr)
    {
        return Send(WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
    }
    std::string Click(HWND control, WORD code = BN_CLICKED)
    {
        return Command(::GetDlgCtrlID(control), code, control);
    }
    std::string Notify(HWND control)
    {
        NMHDR header{control, static_cast<UINT_PTR>(::GetDlgCtrlID(control)), codeNotify};
        return Send(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    }

    CParent parent;
    CProbe taker{TRUE}, sharer{FALSE};
    HWND foreign = nullptr;
};

TEST_F(MessageMap, AControlSeesItsNotificationsBeforeTheParentAndDecidesWhetherThatSeesThem)
{
    EXPECT_EQ(Click(taker), "OnCommand;control;1");
    EXPECT_EQ(Click(sharer), "OnCommand;control;OnCmdMsg;parent;1");
    EXPECT_EQ(Click(sharer, BN_DOUBLECLICKED), "OnCommand;control;1") << "without _EX it ends there";
    EXPECT_EQ(Click(foreign), "OnCommand;OnCmdMsg;base;1") << "by the map of the base class";
    EXPECT_EQ(Notify(taker), "control;7") << "answered by who took it";
    EXPECT_EQ(Notify(sharer), "control;OnCmdMsg;parent;5");
    EXPECT_EQ(Notify(foreign), "OnCmdMsg;0");
}

TEST_F(MessageMap, RangesIncludeBothEndsAndPassTheId)
{
    CChild first(parent, 110), beyond(parent, 120);
    EXPECT_EQ(Notify(first), "OnCmdMsg;notify range 110;6");
    EXPECT_EQ(Notify(beyond), "OnCmdMsg;0");
    EXPECT_EQ(Command(119, EN_CHANGE, first), "OnCommand;OnCmdMsg;range 119;1");
    EXPECT_EQ(Command(120, EN_CHANGE, first), "OnCommand;OnCmdMsg;0");
    EXPECT_EQ(Command(40019), "OnCommand;OnCmdMsg;range 40019;1");
}

TEST_F(MessageMap, CommandsRunUnlessTheyAreDisabledAndAnExHandlerMayDecline)
{
    EXPECT_EQ(Command(0), "OnCommand;0");
    EXPECT_EQ(Command(40001), "OnCommand;OnCmdMsg;ex 40001;1");
    parent.m_answer = FALSE;
    EXPECT_EQ(Command(40001), "OnCommand;OnCmdMsg;ex 40001;0");
    EXPECT_EQ(Command(40002), "OnCommand;OnCmdMsg;parent;1");
    parent.m_enabled = FALSE; // an accelerator comes whatever the menu shows
    EXPECT_EQ(Command(40002), "OnCommand;1");

    AFX_CMDHANDLERINFO info{}; // which only looks for the handler
    EXPECT_TRUE(parent.OnCmdMsg(40002, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &parent);
    EXPECT_FALSE(parent.OnCmdMsg(40099, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(Noted(), "OnCmdMsg;OnCmdMsg;");
}

TEST_F(MessageMap, ParametersAreUnpackedWithTheirSignsAndWidths)
{
    const auto control = reinterpret_cast<LPARAM>(taker.m_hWnd);
    const UINT otherMessage = ::RegisterWindowMessage(L"DialogControlsOW.Test.Other");
    DRAWITEMSTRUCT draw{ODT_LISTBOX, idTaker, 4, 0, 0, taker, nullptr, {}, 0};
    DELETEITEMSTRUCT gone{ODT_LISTBOX, idTaker, 6, taker, 0};
    COMPAREITEMSTRUCT compare{ODT_LISTBOX, idTaker, taker, 8, 0, 0, 0, 0};
    const struct
    {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        const char* noted;
    } cases[] = {
        {WM_APP + 1, 4, 2, "42"},
        {WM_APP + 2, 4, 2, "0"}, // of nobody
        {registeredMessage, 8, 0, "9"},
        {otherMessage, 8, 0, "0"},
        {WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(640, 480), "size 2 640 480;0"},
        {WM_SIZING, WMSZ_TOP, 0, "sizing 3;1"},
        {WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), MAKELPARAM(-1, -5), "wheel -120 -1 -5;1"},
        {WM_TIMER, UINT_PTR{0x100000001}, 0, "timer 4294967297;0"},
        {WM_ENTERIDLE, MSGF_MENU, control, "idle 2 102;0"},
        {WM_MENUSELECT, MAKEWPARAM(7, MF_GRAYED), 0, "select 7 1;0"},
        // given back to the control
        {WM_DRAWITEM, idTaker, reinterpret_cast<LPARAM>(&draw), "draw 4;0"},
        {WM_DELETEITEM, idTaker, reinterpret_cast<LPARAM>(&gone), "delete 6;0"},
        {WM_COMPAREITEM, idTaker, reinterpret_cast<LPARAM>(&compare), "-1"},
        {WM_CHARTOITEM, MAKEWPARAM(3, 7), control, "37"},
        {WM_VKEYTOITEM, MAKEWPARAM(3, 7), control, "307"},
        {WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 12), control, "scroll 5 12;0"},
        {WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 12), control, "up 5 12;0"},
        {WM_PARENTNOTIFY, WM_CREATE, control, "parent told 1;0"},
        {WM_PARENTNOTIFY, WM_DESTROY, control, "parent told 2;0"},
        {WM_PARENTNOTIFY, WM_LBUTTONDOWN, control, "0"}, // a position and no window
    };
    for (const auto& c : cases)
        EXPECT_EQ(Send(c.message, c.wParam, c.lParam), c.noted) << c.message;

    MEASUREITEMSTRUCT measure{ODT_LISTBOX, idTaker, 0, 0, 0, 0}; // no other mark of the control
    Send(WM_MEASUREITEM, idTaker, reinterpret_cast<LPARAM>(&measure));
    EXPECT_EQ(measure.itemHeight, 33u);
    taker.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 40));
    EXPECT_EQ(Noted(), "") << "a wheel that was taken";
    sharer.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 40));
    EXPECT_EQ(Noted(), "wheel 40 0 0;") << "the parent scrolls instead";
}

TEST_F(MessageMap, ColoursComeFromTheControlAndElseFromTheDefault)
{
    CClientDC dc(&parent);
    const auto context = reinterpret_cast<WPARAM>(dc.m_hDC);
    const auto ask = [&](UINT message, const CWnd& control)
    { return parent.SendMessage(message, context, reinterpret_cast<LPARAM>(control.m_hWnd)); };
    CBrush brush(RGB(1, 2, 3));
    taker.m_brush = brush;
    EXPECT_EQ(ask(WM_CTLCOLORSTATIC, taker), reinterpret_cast<LRESULT>(brush.m_hObject));
    EXPECT_EQ(Noted(), "parent's colour 6;own colour 6;") << "both are told CTLCOLOR_STATIC";
    EXPECT_EQ(ask(WM_CTLCOLOREDIT, sharer),
              ::DefWindowProc(parent, WM_CTLCOLOREDIT, context, reinterpret_cast<LPARAM>(sharer.m_hWnd)))
        << "a null brush leaves the choice to the parent";
    ask(WM_CTLCOLORMSGBOX, sharer);
    EXPECT_EQ(Noted(), "parent's colour 1;own colour 1;parent's colour 0;own colour 0;");
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
        everything.m_defaults.clear();
        const auto lParam = reinterpret_cast<LPARAM>(structure);
        AfxCallWndProc(&everything, foreign, message, 0x30002, lParam);
        ASSERT_EQ(everything.m_defaults.size(), 1u) << message;
        const MSG& handed = everything.m_defaults[0];
        EXPECT_TRUE(handed.message == message && handed.wParam == 0x30002 && handed.lParam == lParam)
            << message;
    }
    everything.Detach();
}

TEST_F(MessageMap, BroadcastsOfTheSystemAreHandedDownByTheTopLevelWindowOnly)
{
    const auto listen = [](int who)
    {
        return [who](UINT message, WPARAM wParam, LPARAM)
        {
            Note("heard", who, message, wParam);
            return std::nullopt;
        };
    };
    CSeenWnd child(listen(1)), grandChild(listen(2));
    ASSERT_TRUE(CreateChild(child, parent, 1));
    ASSERT_TRUE(CreateChild(grandChild, child, 2));
    const WNDPROC count = [](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return Note("foreign"); };
    ::SetWindowLongPtr(foreign, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(count));
    for (UINT message : {WM_SYSCOLORCHANGE, WM_SETTINGCHANGE, WM_DISPLAYCHANGE})
    {
        const std::string number = std::to_string(message);
        const std::string heard = number + (message == WM_SYSCOLORCHANGE ? " 0;" : " 5;");
        Noted();
        child.SendMessage(message, 5, 0);
        EXPECT_EQ(Noted(), "heard 1 " + number + " 5;");
        parent.SendMessage(message, 5, 0);
        EXPECT_EQ(Noted(), "heard 1 " + heard + "heard 2 " + heard) << "windows with objects only";
    }
    EXPECT_FALSE(child.SendChildNotifyLastMsg()) << "no message that is given back";
}
} // namespace
