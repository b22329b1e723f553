// Message maps: dispatch by signature, reflection before the parent, commands, notifications and ranges.

#include <afxwin.h>
#include <afxpriv.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
constexpr UINT idPlain = 101;   // reflected by ON_CONTROL_REFLECT, which ends the routing
constexpr UINT idTaker = 102;   // reflected by the _EX form, answers TRUE
constexpr UINT idSharer = 103;  // reflected by the _EX form, answers FALSE
constexpr UINT idForeign = 104; // no object
constexpr UINT idRangeFirst = 110;
constexpr UINT idRangeLast = 119;
constexpr UINT codeNotify = 0xFFFFFF00u; // NM_ codes are negative

using Trace = std::vector<std::string>;
Trace trace;

UINT registeredMessage = ::RegisterWindowMessage(L"DialogControlsOW.Test.Registered");

/// A control that reflects what its parent receives from it. `answer` is that of its _EX handlers.
class CProbe : public CWnd
{
public:
    explicit CProbe(BOOL answer = TRUE) : m_answer(answer) {}
    BOOL m_answer;
    HBRUSH m_brush = nullptr;
    int m_mapped = 0;

protected:
    afx_msg BOOL OnReflectedClick()
    {
        trace.push_back("control");
        return m_answer;
    }
    afx_msg BOOL OnReflectedNotify(NMHDR*, LRESULT* result)
    {
        trace.push_back("control");
        *result = 7;
        return m_answer;
    }
    afx_msg HBRUSH CtlColor(CDC*, UINT type)
    {
        m_mapped = static_cast<int>(type);
        return m_brush;
    }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT item) { trace.push_back("draw " + std::to_string(item->itemID)); }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT item) { item->itemHeight = 33; }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT item) { return item->itemData1 < item->itemData2 ? -1 : 1; }
    afx_msg void DeleteItem(LPDELETEITEMSTRUCT) { trace.push_back("delete"); }
    afx_msg int VKeyToItem(UINT key, UINT index) { return static_cast<int>(key * 100 + index); }
    afx_msg void HScroll(UINT code, UINT position)
    {
        trace.push_back("scroll " + std::to_string(code) + " " + std::to_string(position));
    }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CProbe, CWnd)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &CProbe::OnReflectedClick)
    ON_NOTIFY_REFLECT_EX(codeNotify, &CProbe::OnReflectedNotify)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_DELETEITEM_REFLECT()
    ON_WM_VKEYTOITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
END_MESSAGE_MAP()
// clang-format on

class CPlainProbe : public CWnd
{
protected:
    afx_msg void OnReflectedClick() { trace.push_back("control"); }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CPlainProbe, CWnd)
    ON_CONTROL_REFLECT(BN_CLICKED, &CPlainProbe::OnReflectedClick)
END_MESSAGE_MAP()
// clang-format on

class CParentBase : public CWnd
{
protected:
    afx_msg void OnBaseClick() { trace.push_back("base"); }
    afx_msg LRESULT OnUser(WPARAM w, LPARAM l) { return static_cast<LRESULT>(w) * 10 + l; }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CParentBase, CWnd)
    ON_BN_CLICKED(idForeign, &CParentBase::OnBaseClick)
    ON_MESSAGE(WM_APP + 1, &CParentBase::OnUser)
END_MESSAGE_MAP()
// clang-format on

class CParent : public CParentBase
{
public:
    BOOL m_answer = TRUE;
    BOOL m_enabled = TRUE;
    UINT m_sizeType = 99;
    CSize m_size{0, 0};
    CPoint m_mouse{0, 0};
    short m_wheel = 0;
    UINT_PTR m_timer = 0;
    int m_colorType = -1;

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        trace.push_back("OnCommand");
        return CParentBase::OnCommand(wParam, lParam);
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if (static_cast<UINT>(nCode) != CN_UPDATE_COMMAND_UI)
            trace.push_back("OnCmdMsg");
        return CParentBase::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }

protected:
    afx_msg void OnClick() { trace.push_back("parent"); }
    afx_msg void OnRange(UINT id) { trace.push_back("range " + std::to_string(id)); }
    afx_msg BOOL OnCommandEx(UINT id)
    {
        trace.push_back("ex " + std::to_string(id));
        return m_answer;
    }
    afx_msg void OnNotifyPlain(NMHDR*, LRESULT* result)
    {
        trace.push_back("parent");
        *result = 5;
    }
    afx_msg void OnNotifyRange(UINT id, NMHDR*, LRESULT* result)
    {
        trace.push_back("notify range " + std::to_string(id));
        *result = 6;
    }
    afx_msg void OnMenuCommand() { trace.push_back("menu"); }
    afx_msg void OnUpdateMenuCommand(CCmdUI* item) { item->Enable(m_enabled); }
    afx_msg LRESULT OnRegistered(WPARAM w, LPARAM) { return static_cast<LRESULT>(w) + 1; }
    afx_msg void OnSize(UINT type, int cx, int cy)
    {
        m_sizeType = type;
        m_size = CSize(cx, cy);
    }
    afx_msg void OnMouseMove(UINT, CPoint point) { m_mouse = point; }
    afx_msg BOOL OnMouseWheel(UINT, short delta, CPoint point)
    {
        m_wheel = delta;
        m_mouse = point;
        return TRUE;
    }
    afx_msg void OnTimer(UINT_PTR id) { m_timer = id; }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type)
    {
        m_colorType = static_cast<int>(type);
        return CParentBase::OnCtlColor(dc, control, type);
    }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CParent, CParentBase)
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_TIMER()
    ON_WM_CTLCOLOR()
    ON_BN_CLICKED(idPlain, &CParent::OnClick)
    ON_BN_CLICKED(idTaker, &CParent::OnClick)
    ON_BN_CLICKED(idSharer, &CParent::OnClick)
    ON_CONTROL_RANGE(EN_CHANGE, idRangeFirst, idRangeLast, &CParent::OnRange)
    ON_COMMAND_EX(40001, &CParent::OnCommandEx)
    ON_COMMAND_RANGE(40010, 40019, &CParent::OnRange)
    ON_COMMAND(40002, &CParent::OnMenuCommand)
    ON_UPDATE_COMMAND_UI(40002, &CParent::OnUpdateMenuCommand)
    ON_NOTIFY(codeNotify, idTaker, &CParent::OnNotifyPlain)
    ON_NOTIFY(codeNotify, idSharer, &CParent::OnNotifyPlain)
    ON_NOTIFY_RANGE(codeNotify, idRangeFirst, idRangeLast, &CParent::OnNotifyRange)
    ON_REGISTERED_MESSAGE(registeredMessage, &CParent::OnRegistered)
END_MESSAGE_MAP()
// clang-format on

class MessageMap : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(
            parent.CreateEx(0, nullptr, L"parent", WS_OVERLAPPEDWINDOW, CRect(0, 0, 200, 100), nullptr, 0));
        MakeChild(plain, idPlain);
        MakeChild(taker, idTaker);
        MakeChild(sharer, idSharer);
        foreign = ::CreateWindow(L"Static", L"", WS_CHILD, 0, 0, 10, 10, parent,
                                 reinterpret_cast<HMENU>(idForeign), nullptr, nullptr);
        trace.clear();
    }

    void MakeChild(CWnd& child, UINT id)
    {
        ASSERT_TRUE(child.Create(L"Static", L"", WS_CHILD, CRect(0, 0, 10, 10), &parent, id));
    }

    Trace Click(HWND control)
    {
        trace.clear();
        parent.SendMessage(WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(control), BN_CLICKED),
                           reinterpret_cast<LPARAM>(control));
        return trace;
    }

    LRESULT Notify(HWND control)
    {
        trace.clear();
        NMHDR header{control, static_cast<UINT_PTR>(::GetDlgCtrlID(control)), codeNotify};
        return parent.SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    }

    CParent parent;
    CPlainProbe plain;
    CProbe taker{TRUE};
    CProbe sharer{FALSE};
    HWND foreign = nullptr;
};

TEST_F(MessageMap, AControlSeesItsCommandBeforeTheParentAndDecidesWhetherThatSeesIt)
{
    EXPECT_EQ(Click(plain), (Trace{"OnCommand", "control"}));
    EXPECT_EQ(Click(taker), (Trace{"OnCommand", "control"}));
    EXPECT_EQ(Click(sharer), (Trace{"OnCommand", "control", "OnCmdMsg", "parent"}));
    EXPECT_EQ(Click(foreign), (Trace{"OnCommand", "OnCmdMsg", "base"})); // by the map of the base class
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
    MakeChild(first, idRangeFirst);
    MakeChild(beyond, idRangeLast + 1);
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

TEST_F(MessageMap, AnExHandlerThatAnswersFalseLeavesTheCommandUnhandled)
{
    EXPECT_TRUE(parent.SendMessage(WM_COMMAND, 40001));
    parent.m_answer = FALSE;
    EXPECT_FALSE(parent.SendMessage(WM_COMMAND, 40001));
    EXPECT_EQ(trace.back(), "ex 40001");
}

TEST_F(MessageMap, ADisabledCommandDoesNotRun)
{
    parent.m_enabled = FALSE; // an accelerator comes whatever the menu shows
    parent.SendMessage(WM_COMMAND, 40002);
    EXPECT_EQ(trace, (Trace{"OnCommand"}));
    parent.m_enabled = TRUE;
    parent.SendMessage(WM_COMMAND, 40002);
    EXPECT_EQ(trace.back(), "menu");
}

TEST_F(MessageMap, LookingForAHandlerDoesNotRunIt)
{
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(parent.OnCmdMsg(40002, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &parent);
    EXPECT_EQ(trace, (Trace{"OnCmdMsg"}));
    EXPECT_FALSE(parent.OnCmdMsg(40099, CN_COMMAND, nullptr, &info));
}

TEST_F(MessageMap, MessagesOfTheProgramReachTheirHandlers)
{
    EXPECT_EQ(parent.SendMessage(WM_APP + 1, 4, 2), 42);
    EXPECT_EQ(parent.SendMessage(registeredMessage, 8), 9);
    EXPECT_EQ(parent.SendMessage(WM_APP + 2, 4, 2), 0);
    EXPECT_EQ(parent.SendMessage(::RegisterWindowMessage(L"DialogControlsOW.Test.Other"), 8), 0);
}

TEST_F(MessageMap, ParametersAreUnpackedWithTheirSigns)
{
    parent.SendMessage(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(640, 480));
    EXPECT_EQ(parent.m_sizeType, UINT{SIZE_MAXIMIZED});
    EXPECT_EQ(parent.m_size, CSize(640, 480));

    parent.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(-3, -4));
    EXPECT_EQ(parent.m_mouse, CPoint(-3, -4));

    parent.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), MAKELPARAM(-1, 5));
    EXPECT_EQ(parent.m_wheel, -WHEEL_DELTA);
    EXPECT_EQ(parent.m_mouse, CPoint(-1, 5));

    const UINT_PTR wide = 0x100000001ull;
    parent.SendMessage(WM_TIMER, wide);
    EXPECT_EQ(parent.m_timer, wide);
}

TEST_F(MessageMap, ColoursComeFromTheControlAndElseFromTheDefault)
{
    CClientDC dc(&parent);
    const auto ask = [&](UINT message, CWnd& control)
    {
        return reinterpret_cast<HBRUSH>(parent.SendMessage(message, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                           reinterpret_cast<LPARAM>(control.m_hWnd)));
    };
    CBrush brush(RGB(1, 2, 3));
    taker.m_brush = brush;
    EXPECT_EQ(ask(WM_CTLCOLORSTATIC, taker), static_cast<HBRUSH>(brush));
    EXPECT_EQ(parent.m_colorType, CTLCOLOR_STATIC); // the parent's handler asks the control
    EXPECT_EQ(taker.m_mapped, CTLCOLOR_STATIC);

    const auto inherited =
        reinterpret_cast<HBRUSH>(::DefWindowProc(parent, WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                 reinterpret_cast<LPARAM>(sharer.m_hWnd)));
    EXPECT_EQ(ask(WM_CTLCOLOREDIT, sharer), inherited); // a null brush leaves the choice to the parent
    EXPECT_EQ(sharer.m_mapped, CTLCOLOR_EDIT);
}

TEST_F(MessageMap, OwnerDrawnItemsAreGivenBackToTheControl)
{
    DRAWITEMSTRUCT draw{};
    draw.hwndItem = taker;
    draw.itemID = 4;
    parent.SendMessage(WM_DRAWITEM, idTaker, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(trace.back(), "draw 4");

    MEASUREITEMSTRUCT measure{};
    measure.CtlID = idTaker; // the only mark of the control in this structure
    parent.SendMessage(WM_MEASUREITEM, idTaker, reinterpret_cast<LPARAM>(&measure));
    EXPECT_EQ(measure.itemHeight, 33u);

    COMPAREITEMSTRUCT compare{};
    compare.hwndItem = taker;
    compare.itemData1 = 1;
    compare.itemData2 = 2;
    EXPECT_EQ(parent.SendMessage(WM_COMPAREITEM, idTaker, reinterpret_cast<LPARAM>(&compare)), -1);

    DELETEITEMSTRUCT gone{};
    gone.hwndItem = taker;
    parent.SendMessage(WM_DELETEITEM, idTaker, reinterpret_cast<LPARAM>(&gone));
    EXPECT_EQ(trace.back(), "delete");
}

TEST_F(MessageMap, KeysAndScrollingAreGivenBackToTheControl)
{
    const auto control = reinterpret_cast<LPARAM>(taker.m_hWnd);
    EXPECT_EQ(parent.SendMessage(WM_VKEYTOITEM, MAKEWPARAM(3, 7), control), 307);
    parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 12), control);
    EXPECT_EQ(trace.back(), "scroll 5 12");
}

template <class Payload>
class CTemplateWnd : public CWnd
{
public:
    Payload m_payload{};

protected:
    afx_msg LRESULT OnPayload(WPARAM w, LPARAM)
    {
        m_payload = static_cast<Payload>(w);
        return 1;
    }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_TEMPLATE_MESSAGE_MAP(CTemplateWnd, Payload, CWnd)
    ON_MESSAGE(WM_APP, &CTemplateWnd<Payload>::OnPayload)
END_MESSAGE_MAP()
    // clang-format on

    TEST(TemplateMessageMap, BelongsToEachInstance)
{
    CTemplateWnd<char> window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 1, 1), nullptr, 0));
    EXPECT_EQ(window.SendMessage(WM_APP, 'x'), 1);
    EXPECT_EQ(window.m_payload, 'x');
}
} // namespace
