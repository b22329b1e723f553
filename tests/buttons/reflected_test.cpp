// Buttons that pass their notifications to a handler.

#include <DialogControlsOW.h>

#include "DialogTemplate.h"
#include "Input.h"

#include <gtest/gtest.h>

using Calls = std::vector<std::string>;

namespace
{
enum Id : WORD
{
    idPlain = 1001,
    idReflected,
    idReflectedST,
    idLate
};

/// Writes down each call as "clicked 1002"; of questions for a colour only how many there were.
class RecordingHandler : public CButtonReflectedNotificationHandler
{
public:
    Calls calls;
    int colors = 0;
    HBRUSH hBrush = nullptr; ///< the answer to CtlColor
    Calls Take() { return std::exchange(calls, {}); }

    void ButtonReflectedOnClicked(int nId) override { Record("clicked", nId); }
    void ButtonReflectedOnDoubleclicked(int nId) override { Record("doubleclicked", nId); }
    HBRUSH ButtonReflectedOnCtlColor(int, CDC* pDC, unsigned int nCtlColor) override
    {
        colors += pDC && nCtlColor == CTLCOLOR_BTN;
        return hBrush;
    }
    void ButtonReflectedOnParentNotify(int nId, unsigned int message, __int64 lParam) override
    {
        EXPECT_EQ(HIWORD(message), nId);
        EXPECT_EQ(::GetDlgCtrlID(reinterpret_cast<HWND>(lParam)), nId);
        Record(LOWORD(message) == WM_CREATE ? "created" : "destroyed", nId);
    }

private:
    void Record(const std::string& what, int nId) { calls.push_back(what + ' ' + std::to_string(nId)); }
};

/// A button of each class, and one of the system.
class ReflectedDialog : public CDialog
{
public:
    explicit ReflectedDialog(CButtonReflectedNotificationHandler* pHandler = nullptr)
        : reflected(pHandler), reflectedST(pHandler)
    {
    }
    ~ReflectedDialog() override
    {
        EXPECT_EQ(heard, 0) << "the notifications do not go on to the dialog";
        DestroyWindow();
    }

    CButtonReflected reflected;
    CButtonSTReflected reflectedST;
    int heard = 0; ///< notifications that reached the dialog's map

    void Open(DWORD dwType = BS_PUSHBUTTON)
    {
        const auto form = owtest::DialogTemplate(L"Reflected", 120, 60)
                              .Button(L"Plain", idPlain, 4, 4, 60, 14)
                              .Item(L"BUTTON", L"Reflected", idReflected, dwType | WS_TABSTOP, 4, 22, 60, 14)
                              .Item(L"BUTTON", L"ST", idReflectedST, dwType | WS_TABSTOP, 4, 40, 60, 14);
        ASSERT_TRUE(CreateIndirect(form.get()));
        reflected.SubclassDlgItem(idReflected, this);
        reflectedST.SubclassDlgItem(idReflectedST, this);
        ShowWindow(SW_SHOW);
        ASSERT_TRUE(owtest::Activate(m_hWnd));
    }
    void Notify(int nId, int nCode)
    {
        SendMessage(WM_COMMAND, MAKEWPARAM(nId, nCode), reinterpret_cast<LPARAM>(GetDlgItem(nId)->m_hWnd));
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
        heard += nID >= idReflected && (nCode == BN_CLICKED || nCode == BN_DOUBLECLICKED);
        return CDialog::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
};

class TellingDialog : public ReflectedDialog, public RecordingHandler
{
    using ReflectedDialog::ReflectedDialog;
};

void UseAll(ReflectedDialog& dialog)
{
    dialog.Open();
    for (int nId : {idReflected, idReflectedST})
    {
        owtest::Click(*dialog.GetDlgItem(nId));
        owtest::Press(VK_SPACE);
        dialog.Notify(nId, BN_DOUBLECLICKED);
    }
}
const Calls kAll{"clicked 1002", "clicked 1002", "doubleclicked 1002",
                 "clicked 1003", "clicked 1003", "doubleclicked 1003"};
} // namespace

TEST(ReflectedButtons, TellTheirHandlerOrElseTheirParentOrElseNobody)
{
    RecordingHandler handler;
    TellingDialog given(&handler), parent(nullptr);
    UseAll(given);
    EXPECT_EQ(handler.calls, kAll);
    EXPECT_EQ(given.calls, Calls{}) << "the parent is not asked while there is a handler";
    UseAll(parent);
    EXPECT_EQ(parent.calls, kAll);
    ReflectedDialog nobody;
    UseAll(nobody);
}

TEST(ReflectedButtons, TakeTheHandlersBrushOrElseTheParents)
{
    RecordingHandler handler;
    ReflectedDialog dialog(&handler), nobody;
    dialog.Open();
    nobody.Open();
    const HBRUSH hOrdinary = dialog.BrushOf(idPlain);
    for (int nId : {idReflected, idReflectedST})
    {
        CBrush brush(RGB(0, 200, 0));
        handler.colors = 0;
        EXPECT_EQ(dialog.BrushOf(nId), hOrdinary);
        EXPECT_EQ(handler.colors, 1);
        EXPECT_EQ(nobody.BrushOf(nId), hOrdinary);
        handler.hBrush = brush;
        EXPECT_EQ(dialog.BrushOf(nId), handler.hBrush);
        handler.hBrush = nullptr;
    }
}

TEST(ReflectedButtons, TellThatTheirWindowComesAndGoes)
{
    RecordingHandler handler;
    ReflectedDialog dialog;
    dialog.Open();
    CButtonReflected late(&handler);
    CButtonSTReflected lateST(&handler);
    for (CButton* pButton : {static_cast<CButton*>(&late), static_cast<CButton*>(&lateST)})
    {
        ASSERT_TRUE(pButton->Create(L"Late", WS_CHILD, CRect(0, 0, 9, 9), &dialog, idLate));
        pButton->DestroyWindow();
        EXPECT_EQ(handler.Take(), (Calls{"created 1004", "destroyed 1004"}));
    }
}

TEST(ReflectedButtons, TellOfADoubleClickIfTheyHaveItsStyleAndAreNotSelfPainting)
{
    for (DWORD dwType : {BS_PUSHBUTTON, BS_NOTIFY})
    {
        TellingDialog dialog;
        dialog.Open(dwType);
        for (CWnd* pButton : {static_cast<CWnd*>(&dialog.reflected), static_cast<CWnd*>(&dialog.reflectedST)})
        {
            owtest::Click(*pButton);
            owtest::Click(*pButton);
        }
        const char* second = dwType == BS_NOTIFY ? "doubleclicked 1002" : "clicked 1002";
        EXPECT_EQ(dialog.calls, (Calls{"clicked 1002", second, "clicked 1003", "clicked 1003"}));
    }
}

TEST(ReflectedButtons, DoNothingOfTheirOwnWhenTheyAreSelfPainting)
{
    TellingDialog dialog;
    dialog.Open(BS_AUTOCHECKBOX);
    dialog.GetDlgItem(idPlain)->SetFocus();
    dialog.Notify(idReflectedST, BN_CLICKED);
    EXPECT_EQ(dialog.calls, Calls{"clicked 1003"});
    EXPECT_EQ(dialog.reflectedST.GetCheck(), 0);
    EXPECT_EQ(::GetFocus(), dialog.GetDlgItem(idPlain)->m_hWnd);
}
