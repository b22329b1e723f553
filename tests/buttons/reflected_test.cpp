// Buttons that pass their notifications to a handler.

#include <DialogControlsOW.h>

#include "DialogTemplate.h"
#include "Input.h"

#include <gtest/gtest.h>

using Calls = std::vector<std::string>;

namespace
{
constexpr WORD idReflected = 1001, idReflectedST = 1002, idLate = 1003;

/// Writes down each call as "clicked 1001"; of questions for a colour only how many there were.
class RecordingHandler : public CButtonReflectedNotificationHandler
{
public:
    Calls calls;
    int colors = 0;
    HBRUSH hBrush = nullptr; ///< the answer to CtlColor
    Calls Take() { return std::exchange(calls, {}); }

    void Record(const char* what, int nId) { calls.push_back(what + (' ' + std::to_string(nId))); }
    void ButtonReflectedOnClicked(int nId) override { Record("clicked", nId); }
    void ButtonReflectedOnDoubleclicked(int nId) override { Record("doubleclicked", nId); }
    HBRUSH ButtonReflectedOnCtlColor(int, CDC* pDC, unsigned int nCtlColor) override
    {
        colors += pDC && nCtlColor == CTLCOLOR_BTN;
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

class ReflectedDialog : public CDialog
{
public:
    explicit ReflectedDialog(CButtonReflectedNotificationHandler* pHandler = nullptr, DWORD dwStyle = 0)
        : reflected(pHandler), reflectedST(pHandler)
    {
        const auto form = owtest::DialogTemplate(L"Reflected", 120, 60)
                              .Item(L"BUTTON", L"", idReflected, dwStyle | WS_TABSTOP, 4, 4, 60, 14)
                              .Item(L"BUTTON", L"", idReflectedST, dwStyle | WS_TABSTOP, 4, 20, 60, 14);
        EXPECT_TRUE(CreateIndirect(form.get()));
        reflected.SubclassDlgItem(idReflected, this);
        reflectedST.SubclassDlgItem(idReflectedST, this);
        ShowWindow(SW_SHOW);
    }
    ~ReflectedDialog() override
    {
        EXPECT_EQ(heard, 0) << "the notifications do not go on to the dialog";
        DestroyWindow();
    }

    OpenReflected reflected;
    CButtonSTReflected reflectedST;
    int heard = 0; ///< notifications that reached the dialog's map

    void ClickTwiceAndPress()
    {
        EXPECT_TRUE(owtest::Activate(m_hWnd));
        for (CWnd* pButton : {static_cast<CWnd*>(&reflected), static_cast<CWnd*>(&reflectedST)})
        {
            owtest::Click(*pButton);
            owtest::Click(*pButton);
            owtest::Press(VK_SPACE);
        }
    }
    HBRUSH BrushOf(int nId)
    {
        CClientDC dc(this);
        return reinterpret_cast<HBRUSH>(SendMessage(WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                    reinterpret_cast<LPARAM>(GetDlgItem(nId)->m_hWnd)));
    }

protected:
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        heard += nCode == BN_CLICKED || nCode == BN_DOUBLECLICKED;
        return CDialog::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
};

class TellingDialog : public ReflectedDialog, public RecordingHandler
{
    using ReflectedDialog::ReflectedDialog;
};

const Calls kClicks{"clicked 1001", "clicked 1001", "clicked 1001",
                    "clicked 1002", "clicked 1002", "clicked 1002"};
} // namespace

TEST(ReflectedButtons, TellTheirHandlerOrElseTheirParentOrElseNobody)
{
    RecordingHandler handler;
    TellingDialog given(&handler), parent;
    ReflectedDialog nobody;
    for (ReflectedDialog* pDialog :
         {static_cast<ReflectedDialog*>(&given), static_cast<ReflectedDialog*>(&parent), &nobody})
        pDialog->ClickTwiceAndPress();
    EXPECT_EQ(handler.calls, kClicks);
    EXPECT_EQ(given.calls, Calls{}) << "the parent is not asked while there is a handler";
    EXPECT_EQ(parent.calls, kClicks);
    EXPECT_EQ(given.reflected.GetSafeNotificationHandler(), &handler);
    EXPECT_TRUE(parent.reflected.DoesNotificationHandlerExist());
    EXPECT_FALSE(nobody.reflected.DoesNotificationHandlerExist());
}

TEST(ReflectedButtons, TellOfADoubleClickIfTheyHaveItsStyleAndDoNotPaintThemselves)
{
    TellingDialog dialog(nullptr, BS_NOTIFY);
    dialog.ClickTwiceAndPress();
    Calls expected = kClicks;
    expected[1] = "doubleclicked 1001";
    EXPECT_EQ(dialog.calls, expected);
}

TEST(ReflectedButtons, TakeTheHandlersBrushOrElseTheParents)
{
    RecordingHandler handler;
    ReflectedDialog dialog(&handler), nobody;
    CBrush brush(RGB(0, 200, 0));
    for (int nId : {idReflected, idReflectedST})
    {
        const int nAsked = handler.colors;
        handler.hBrush = nullptr;
        EXPECT_EQ(dialog.BrushOf(nId), ::GetSysColorBrush(COLOR_BTNFACE));
        EXPECT_EQ(handler.colors, nAsked + 1);
        EXPECT_EQ(nobody.BrushOf(nId), ::GetSysColorBrush(COLOR_BTNFACE));
        handler.hBrush = brush;
        EXPECT_EQ(dialog.BrushOf(nId), handler.hBrush);
    }
}

TEST(ReflectedButtons, TellThatTheirWindowComesAndGoes)
{
    RecordingHandler handler;
    ReflectedDialog dialog;
    CButtonReflected late(&handler);
    CButtonSTReflected lateST(&handler);
    for (CButton* pButton : {static_cast<CButton*>(&late), static_cast<CButton*>(&lateST)})
    {
        ASSERT_TRUE(pButton->Create(L"Late", WS_CHILD, CRect(0, 0, 9, 9), &dialog, idLate));
        pButton->DestroyWindow();
        EXPECT_EQ(handler.Take(), (Calls{"created 1003", "destroyed 1003"}));
    }
}

TEST(ReflectedButtons, DoNothingOfTheirOwnWhenTheyPaintThemselves)
{
    TellingDialog dialog(nullptr, BS_AUTOCHECKBOX);
    dialog.reflected.SetFocus();
    dialog.SendMessage(WM_COMMAND, idReflectedST, reinterpret_cast<LPARAM>(dialog.reflectedST.m_hWnd));
    EXPECT_EQ(dialog.calls, Calls{"clicked 1002"});
    EXPECT_EQ(dialog.reflectedST.GetCheck(), 0);
    EXPECT_EQ(::GetFocus(), dialog.reflected.m_hWnd);
}
