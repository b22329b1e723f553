// Buttons that pass their notifications to a handler.

#include "Room.h"

namespace
{
/// Writes down each call as "clicked 1001".
struct RecordingHandler : CButtonReflectedNotificationHandler
{
    void ButtonReflectedOnClicked(int nId) override { Record("clicked", nId); }
    void ButtonReflectedOnDoubleclicked(int nId) override { Record("doubleclicked", nId); }
    HBRUSH ButtonReflectedOnCtlColor(int nId, CDC* pDC, unsigned int nCtlColor) override
    {
        return pDC && nCtlColor == CTLCOLOR_BTN && nId <= 1005 ? hBrush : nullptr;
    }
    void ButtonReflectedOnParentNotify(int nId, unsigned int message, __int64 lParam) override
    {
        EXPECT_EQ(HIWORD(message), ::GetDlgCtrlID(reinterpret_cast<HWND>(lParam)));
        Record(LOWORD(message) == WM_CREATE ? "created" : "destroyed", nId);
    }
    void Record(const char* pszWhat, int nId) { told.push_back(pszWhat + (' ' + std::to_string(nId))); }
    Calls TakeTold() { return std::exchange(told, {}); }

    Calls told;
    HBRUSH hBrush = nullptr;
};

template <class Button>
struct OpenReflected : Button
{
    using Button::Button;
    using Button::DoesNotificationHandlerExist;
    using Button::GetSafeNotificationHandler;
};

/// Buttons of both kinds, with a handler and with none but the dialog itself.
struct ReflectedRoom : Room, RecordingHandler
{
    ReflectedRoom()
    {
        controls = {{&given}, {&own}, {&notified, BS_NOTIFY}, {&givenST}, {&ownST, BS_AUTOCHECKBOX}};
        Open();
    }
    ~ReflectedRoom() override
    {
        EXPECT_EQ(calls, Calls{}) << "the notifications do not go on to the dialog";
        DestroyWindow();
    }

    RecordingHandler handler;
    OpenReflected<CButtonReflected> given{&handler}, own{nullptr}, notified{nullptr};
    OpenReflected<CButtonSTReflected> givenST{&handler}, ownST{nullptr};
};

/// What a parent answers that is asked for what lies behind a button.
HBRUSH BrushOf(const CWnd& button)
{
    CClientDC dc(button.GetParent());
    return reinterpret_cast<HBRUSH>(button.GetParent()->SendMessage(
        WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(button.m_hWnd)));
}
} // namespace

TEST(ReflectedButtons, TellTheirHandlerOrElseTheirParentOrElseNobody)
{
    ReflectedRoom room;
    for (const Room::Control& control : room.controls)
    {
        owtest::DoubleClick(*control.pControl, CPoint(5, 5));
        owtest::Press(VK_SPACE);
    }
    EXPECT_EQ(room.handler.TakeTold(), (Calls{"clicked 1001", "clicked 1001", "clicked 1001", "clicked 1004",
                                              "clicked 1004", "clicked 1004"}));
    EXPECT_EQ(room.TakeTold(),
              (Calls{"clicked 1002", "clicked 1002", "clicked 1002", "clicked 1003", "doubleclicked 1003",
                     "clicked 1003", "clicked 1005", "clicked 1005", "clicked 1005"}))
        << "of double clicks not by a button that paints itself";
    room.own.SetFocus();
    ClickByProgram(room.ownST);
    EXPECT_EQ(room.TakeTold(), Calls{"clicked 1005"});
    EXPECT_EQ(room.ownST.GetCheck(), 0) << "it does nothing of its own";
    EXPECT_EQ(::GetFocus(), room.own.m_hWnd);

    EXPECT_EQ(room.given.GetSafeNotificationHandler(), &room.handler);
    EXPECT_TRUE(room.own.DoesNotificationHandlerExist());
    Lone<OpenReflected<CButtonReflected>> lone(CSize(9, 9));
    ClickByProgram(lone.button);
    EXPECT_FALSE(lone.button.DoesNotificationHandlerExist());
}

TEST(ReflectedButtons, TakeTheHandlersBrushOrElseTheParents)
{
    ReflectedRoom room;
    CBrush brush(kGreen);
    room.handler.hBrush = brush;
    for (const auto& control : room.controls)
    {
        const bool bGiven = control.pControl == &room.given || control.pControl == &room.givenST;
        EXPECT_EQ(BrushOf(*control.pControl), bGiven ? brush : ::GetSysColorBrush(COLOR_BTNFACE));
    }
    const Lone<CButtonSTReflected> lone(CSize(9, 9));
    EXPECT_EQ(BrushOf(lone.button), ::GetSysColorBrush(COLOR_BTNFACE));
}

TEST(ReflectedButtons, TellThatTheirWindowComesAndGoes)
{
    ReflectedRoom room;
    for (CButton* pButton : std::initializer_list<CButton*>{&room.given, &room.givenST})
    {
        pButton->UnsubclassWindow();
        ASSERT_TRUE(pButton->Create(L"Late", WS_CHILD, CRect(0, 0, 9, 9), &room, 1005));
        pButton->DestroyWindow();
        EXPECT_EQ(room.handler.TakeTold(), (Calls{"created 1005", "destroyed 1005"}));
    }
}
