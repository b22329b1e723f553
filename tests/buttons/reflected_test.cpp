// Buttons that pass their notifications to a handler.

#include "Room.h"

namespace
{
template <class Button>
struct OpenReflected : Button
{
    using Button::Button, Button::DoesNotificationHandlerExist, Button::GetSafeNotificationHandler;
};

/// Buttons of both kinds, with a handler and with none but the dialog itself.
class ReflectedButtons : public InRoom
{
protected:
    ReflectedButtons()
    {
        m_room.controls = {
            {&m_given}, {&m_own}, {&m_notified, BS_NOTIFY}, {&m_givenST}, {&m_ownST, BS_AUTOCHECKBOX}};
    }
    /// What a parent answers that is asked for what lies behind a button.
    static HBRUSH BrushOf(const CWnd& button)
    {
        CClientDC dc(button.GetParent());
        return reinterpret_cast<HBRUSH>(button.GetParent()->SendMessage(
            WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(button.m_hWnd)));
    }

    Room m_handler;
    OpenReflected<CButtonReflected> m_given{&m_handler}, m_own{nullptr}, m_notified{nullptr};
    OpenReflected<CButtonSTReflected> m_givenST{&m_handler}, m_ownST{nullptr};
};
} // namespace

TEST_F(ReflectedButtons, TellTheirHandlerOrElseTheirParentOrElseNobody)
{
    const auto clicked = [](const std::string& id, const char* pszSecond) {
        return Calls{"clicked " + id, pszSecond + id, "clicked " + id};
    };
    for (const Room::Control& control : m_room.controls)
    {
        owtest::DoubleClick(*control.pControl, CPoint(5, 5));
        owtest::Press(VK_SPACE);
        const bool bGiven = control.pControl == &m_given || control.pControl == &m_givenST;
        const bool bTwice = control.pControl == &m_notified; // not a button that paints itself
        EXPECT_EQ((bGiven ? m_handler : m_room).Take(),
                  clicked(std::to_string(control.pControl->GetDlgCtrlID()), bTwice ? "twice " : "clicked "));
    }
    m_own.SetFocus();
    ClickByProgram(m_ownST);
    EXPECT_EQ(m_room.Take(), Calls{"clicked 1005"}) << "and the dialog itself hears nothing";
    EXPECT_EQ(m_handler.Take(), Calls{});
    EXPECT_EQ(m_ownST.GetCheck(), 0) << "it does nothing of its own";
    EXPECT_EQ(::GetFocus(), m_own.m_hWnd);

    EXPECT_EQ(m_given.GetSafeNotificationHandler(), &m_handler);
    EXPECT_TRUE(m_own.DoesNotificationHandlerExist());
    Lone<OpenReflected<CButtonReflected>> lone(CSize(9, 9));
    ClickByProgram(lone.button);
    EXPECT_FALSE(lone.button.DoesNotificationHandlerExist());
}

TEST_F(ReflectedButtons, AskForABrushOrElseTakeTheParentsAndTellThatTheirWindowComesAndGoes)
{
    CBrush brush(kGreen);
    m_handler.hBrush = brush;
    const Lone<CButtonSTReflected> lone(CSize(9, 9));
    const CWnd* const buttons[] = {&m_given, &m_own, &m_givenST, &m_ownST, &lone.button};
    for (const CWnd* pButton : buttons)
        EXPECT_EQ(BrushOf(*pButton),
                  pButton == &m_given || pButton == &m_givenST ? brush : ::GetSysColorBrush(COLOR_BTNFACE));
    for (CButton* pButton : std::initializer_list<CButton*>{&m_given, &m_givenST})
    {
        pButton->UnsubclassWindow();
        ASSERT_TRUE(pButton->Create(L"Late", WS_CHILD, CRect(0, 0, 9, 9), &m_room, 1005));
        pButton->DestroyWindow();
        EXPECT_EQ(m_handler.Take(), (Calls{"created 1005", "destroyed 1005"}));
    }
}
