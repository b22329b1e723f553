// Buttons that pass their notifications to a handler.

#include "Room.h"

namespace
{
/// Writes down each call as "clicked 1001"; of questions for a colour only how many there were.
class RecordingHandler : public CButtonReflectedNotificationHandler
{
public:
    Calls told;
    int colors = 0;
    HBRUSH hBrush = nullptr; ///< the answer to CtlColor

    void Record(const char* what, int nId) { told.push_back(what + (' ' + std::to_string(nId))); }
    void ButtonReflectedOnClicked(int nId) override { Record("clicked", nId); }
    void ButtonReflectedOnDoubleclicked(int nId) override { Record("doubleclicked", nId); }
    HBRUSH ButtonReflectedOnCtlColor(int nId, CDC* pDC, unsigned int nCtlColor) override
    {
        colors += pDC && nCtlColor == CTLCOLOR_BTN && nId <= 1002;
        return hBrush;
    }
    void ButtonReflectedOnParentNotify(int nId, unsigned int message, __int64 lParam) override
    {
        EXPECT_EQ(HIWORD(message), ::GetDlgCtrlID(reinterpret_cast<HWND>(lParam)));
        Record(LOWORD(message) == WM_CREATE ? "created" : "destroyed", nId);
    }
};

struct OpenReflected : CButtonReflected
{
    using CButtonReflected::CButtonReflected;
    using CButtonReflected::DoesNotificationHandlerExist;
    using CButtonReflected::GetSafeNotificationHandler;
};

/// One button of each kind.
struct ReflectedRoom : Room
{
    explicit ReflectedRoom(CButtonReflectedNotificationHandler* pHandler, DWORD dwStyle = BS_PUSHBUTTON)
        : reflected(pHandler), reflectedST(pHandler)
    {
        controls = {{&reflected, dwStyle}, {&reflectedST, dwStyle}};
        Room::Open();
    }
    ~ReflectedRoom() override
    {
        EXPECT_EQ(calls, Calls{}) << "the notifications do not go on to the dialog";
        DestroyWindow();
    }
    void ClickTwiceAndPress()
    {
        EXPECT_TRUE(owtest::Activate(m_hWnd));
        for (CWnd* pButton : {static_cast<CWnd*>(&reflected), static_cast<CWnd*>(&reflectedST)})
        {
            owtest::DoubleClick(*pButton, CPoint(5, 5));
            owtest::Press(VK_SPACE);
        }
    }
    HBRUSH BrushOf(const CWnd& button)
    {
        CClientDC dc(this);
        return reinterpret_cast<HBRUSH>(SendMessage(WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                    reinterpret_cast<LPARAM>(button.m_hWnd)));
    }

    OpenReflected reflected;
    CButtonSTReflected reflectedST;
};

struct TellingRoom : ReflectedRoom, RecordingHandler
{
    using ReflectedRoom::ReflectedRoom;
};

const Calls kClicks{"clicked 1001", "clicked 1001", "clicked 1001",
                    "clicked 1002", "clicked 1002", "clicked 1002"};
} // namespace

TEST(ReflectedButtons, TellTheirHandlerOrElseTheirParentOrElseNobody)
{
    RecordingHandler handler;
    TellingRoom given(&handler), parent(nullptr), notified(nullptr, BS_NOTIFY);
    ReflectedRoom nobody(nullptr);
    for (ReflectedRoom* pRoom : {static_cast<ReflectedRoom*>(&given), static_cast<ReflectedRoom*>(&parent),
                                 static_cast<ReflectedRoom*>(&notified), &nobody})
        pRoom->ClickTwiceAndPress();
    EXPECT_EQ(handler.told, kClicks);
    EXPECT_EQ(given.told, Calls{}) << "the parent is not asked while there is a handler";
    EXPECT_EQ(parent.told, kClicks);
    Calls withDoubleClick = kClicks;
    withDoubleClick[1] = "doubleclicked 1001";
    EXPECT_EQ(notified.told, withDoubleClick) << "not of a button that paints itself";
    EXPECT_EQ(given.reflected.GetSafeNotificationHandler(), &handler);
    EXPECT_TRUE(parent.reflected.DoesNotificationHandlerExist());
    EXPECT_FALSE(nobody.reflected.DoesNotificationHandlerExist());
}

TEST(ReflectedButtons, TakeTheHandlersBrushOrElseTheParents)
{
    RecordingHandler handler;
    ReflectedRoom room(&handler), nobody(nullptr);
    CBrush brush(kGreen);
    for (const HBRUSH hBrush : {static_cast<HBRUSH>(nullptr), static_cast<HBRUSH>(brush)})
        for (CWnd* pButton : {static_cast<CWnd*>(&room.reflected), static_cast<CWnd*>(&room.reflectedST)})
        {
            const int nAsked = handler.colors;
            handler.hBrush = hBrush;
            EXPECT_EQ(room.BrushOf(*pButton), hBrush ? hBrush : ::GetSysColorBrush(COLOR_BTNFACE));
            EXPECT_EQ(handler.colors, nAsked + 1);
        }
    EXPECT_EQ(nobody.BrushOf(nobody.reflectedST), ::GetSysColorBrush(COLOR_BTNFACE));
}

TEST(ReflectedButtons, TellThatTheirWindowComesAndGoes)
{
    RecordingHandler handler;
    ReflectedRoom room(nullptr);
    CButtonReflected late(&handler);
    CButtonSTReflected lateST(&handler);
    for (CButton* pButton : {static_cast<CButton*>(&late), static_cast<CButton*>(&lateST)})
    {
        ASSERT_TRUE(pButton->Create(L"Late", WS_CHILD, CRect(0, 0, 9, 9), &room, 1003));
        pButton->DestroyWindow();
        EXPECT_EQ(std::exchange(handler.told, {}), (Calls{"created 1003", "destroyed 1003"}));
    }
}

TEST(ReflectedButtons, DoNothingOfTheirOwnWhenTheyPaintThemselves)
{
    TellingRoom room(nullptr, BS_AUTOCHECKBOX);
    room.reflected.SetFocus();
    room.SendMessage(WM_COMMAND, 1002, reinterpret_cast<LPARAM>(room.reflectedST.m_hWnd));
    EXPECT_EQ(room.told, Calls{"clicked 1002"});
    EXPECT_EQ(room.reflectedST.GetCheck(), 0);
    EXPECT_EQ(::GetFocus(), room.reflected.m_hWnd);
}
