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
    Room m_handler;
    OpenReflected<CButtonReflected> m_given{&m_handler}, m_own{nullptr}, m_notified{nullptr};
    CButtonSTReflected m_givenST{&m_handler}, m_ownST{nullptr};
};
} // namespace

TEST_F(ReflectedButtons, TellTheirHandlerOrElseTheirParentOrElseNobody)
{
    for (const Room::Control& control : m_room.controls)
    {
        owtest::DoubleClick(*control.pControl, CPoint(5, 5));
        owtest::Press(VK_SPACE);
    }
    EXPECT_EQ(m_handler.Take(),
              "clicked 1001; clicked 1001; clicked 1001; clicked 1004; clicked 1004; clicked 1004; ");
    EXPECT_EQ(m_room.Take(), "clicked 1002; clicked 1002; clicked 1002; "
                             "clicked 1003; twice 1003; clicked 1003; " // not one that paints itself
                             "clicked 1005; clicked 1005; clicked 1005; ");
    m_own.SetFocus();
    ClickByProgram(m_ownST);
    EXPECT_EQ(m_room.Take(), "clicked 1005; ");
    EXPECT_TRUE(m_ownST.GetCheck() == 0 && ::GetFocus() == m_own.m_hWnd) << "it does nothing of its own";

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
    for (const CWnd* pButton :
         std::initializer_list<const CWnd*>{&m_given, &m_own, &m_givenST, &m_ownST, &lone.button})
    {
        CClientDC dc(pButton->GetParent());
        const LRESULT hAnswer = pButton->GetParent()->SendMessage(
            WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(pButton->m_hWnd));
        const bool bGiven = pButton == &m_given || pButton == &m_givenST;
        EXPECT_EQ(reinterpret_cast<HBRUSH>(hAnswer), bGiven ? brush : ::GetSysColorBrush(COLOR_BTNFACE));
    }
    for (CButton* pButton : std::initializer_list<CButton*>{&m_given, &m_givenST})
    {
        pButton->UnsubclassWindow();
        ASSERT_TRUE(pButton->Create(L"Late", WS_CHILD, CRect(0, 0, 9, 9), &m_room, 1005));
        pButton->DestroyWindow();
        EXPECT_EQ(m_handler.Take(), "created 1005; destroyed 1005; ");
    }
}
