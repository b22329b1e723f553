// The base of the text boxes: reports, keys, flags, cursor, creation.

#include "EditsDialog.h"

#include "Input.h"

#include <gtest/gtest.h>

using Calls = std::vector<std::string>;

namespace
{
class EditBox : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dialog.Create(IDD_EDITS));
        ASSERT_TRUE(owtest::Activate(m_dialog));
        owtest::Click(m_dialog.second);
        ASSERT_TRUE(owtest::PumpUntil([&] { return m_dialog.HasFocus(IDC_SECOND); }));
        m_handler.Take();
    }
    void TearDown() override { m_dialog.DestroyWindow(); }

    bool FocusArrives(int nId)
    {
        return owtest::PumpUntil([&] { return m_dialog.HasFocus(nId); });
    }

    RecordingHandler m_handler;
    EditsDialog m_dialog{&m_handler};
};

/// A dialog that implements the interface itself.
class TellingDialog : public EditsDialog, public RecordingHandler
{
public:
    explicit TellingDialog(CEditNNotificationHandler* pHandler) : EditsDialog(pHandler) {}
};
} // namespace

TEST_F(EditBox, ReportsEachKeystrokeAndKeepsItFromTheDialog)
{
    owtest::Type(L"ab");
    EXPECT_EQ(m_handler.Take(), (Calls{"change 1002", "change 1002"}));
    EXPECT_EQ(m_dialog.Text(IDC_SECOND), L"ab");

    owtest::Press(VK_LEFT);
    EXPECT_EQ(m_handler.Take(), Calls{}) << "the text is as it was";
}

TEST_F(EditBox, TabAndEnterGoForwardAndShiftTabGoesBack)
{
    owtest::Press(VK_TAB, true);
    EXPECT_TRUE(FocusArrives(IDC_FIRST));
    EXPECT_EQ(m_handler.Take(), (Calls{"leave 1002", "enter 1001"}));

    owtest::Press(VK_TAB);
    EXPECT_TRUE(FocusArrives(IDC_SECOND));
    owtest::Press(VK_RETURN);
    EXPECT_TRUE(FocusArrives(IDC_READONLY));
    EXPECT_EQ(m_dialog.oks, 0) << "Enter does not press the default button";
    EXPECT_EQ(m_dialog.Text(IDC_SECOND), L"") << "none of these keys leaves a character";

    owtest::Press(VK_TAB);
    EXPECT_TRUE(FocusArrives(IDOK)) << "a read-only box is a focus stop, too";
}

TEST_F(EditBox, EscapeCancelsTheDialogFromInside)
{
    owtest::Press(VK_ESCAPE);
    EXPECT_TRUE(owtest::PumpUntil([&] { return m_dialog.cancels == 1; }));
    EXPECT_TRUE(m_dialog.HasFocus(IDC_SECOND));
}

TEST_F(EditBox, KnowsWhetherItChangedSinceItWasEntered)
{
    EXPECT_FALSE(m_dialog.second.HasChangedSinceLastSetFocus());
    owtest::Type(L"a");
    EXPECT_TRUE(m_dialog.second.HasChangedSinceLastSetFocus());
    owtest::Press(VK_TAB);
    ASSERT_TRUE(FocusArrives(IDC_READONLY));
    EXPECT_TRUE(m_dialog.second.HasChangedSinceLastSetFocus()) << "may be asked when the focus has left";
    owtest::Press(VK_TAB, true);
    ASSERT_TRUE(FocusArrives(IDC_SECOND));
    EXPECT_FALSE(m_dialog.second.HasChangedSinceLastSetFocus());
}

TEST_F(EditBox, ATextThatTheProgramSetsIsSilentOnlyIfSetTheSafeWay)
{
    m_dialog.second.SafeSetWindowText(L"quiet");
    EXPECT_EQ(m_handler.Take(), Calls{});
    EXPECT_FALSE(m_dialog.second.HasChangedSinceLastSetFocus());

    m_dialog.second.SetWindowText(L"loud");
    EXPECT_EQ(m_handler.Take(), Calls{"change 1002"});
    EXPECT_TRUE(m_dialog.second.HasChangedSinceLastSetFocus());

    m_dialog.second.SetAnsiInterface(true);
    m_dialog.second.SafeSetWindowText(L"\u0160rafura \u010d");
    EXPECT_EQ(m_handler.Take(), Calls{});
    EXPECT_EQ(m_dialog.Text(IDC_SECOND), L"\u0160rafura \u010d") << "the texts stay wide";
}

TEST_F(EditBox, ShowsTheIBeamUnlessItIsReadOnly)
{
    const auto cursorOver = [](CEditN& box) {
        ::SetCursor(nullptr);
        const LRESULT answer =
            box.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(box.m_hWnd), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return answer == 1 && ::GetCursor() == ::LoadCursor(nullptr, IDC_IBEAM);
    };
    EXPECT_FALSE(m_dialog.second.IsReadOnly());
    EXPECT_TRUE(cursorOver(m_dialog.second));
    EXPECT_TRUE(m_dialog.readOnly.IsReadOnly());
    EXPECT_FALSE(cursorOver(m_dialog.readOnly));
}

TEST_F(EditBox, TakesTheKeysBeforeTheDialogDoes)
{
    EXPECT_TRUE(m_dialog.second.SendMessage(WM_GETDLGCODE) & DLGC_WANTALLKEYS);
    EXPECT_TRUE(m_dialog.second.SendMessage(WM_GETDLGCODE) & DLGC_HASSETSEL) << "what an edit answers stays";
}

TEST(EditBoxHandler, IsTheParentWhereNoneWasGiven)
{
    TellingDialog dialog(nullptr);
    ASSERT_TRUE(dialog.Create(IDD_EDITS));
    dialog.Take();
    dialog.second.SetWindowText(L"x");
    EXPECT_EQ(dialog.Take(), Calls{"change 1002"});
    dialog.DestroyWindow();

    RecordingHandler given;
    TellingDialog bypassed(&given);
    ASSERT_TRUE(bypassed.Create(IDD_EDITS));
    given.Take();
    bypassed.second.SetWindowText(L"x");
    EXPECT_EQ(given.Take(), Calls{"change 1002"});
    EXPECT_EQ(bypassed.Take(), Calls{}) << "a handler that was given takes precedence";
    bypassed.DestroyWindow();
}

TEST(EditBoxHandler, MayBeMissing)
{
    EditsDialog dialog(nullptr);
    ASSERT_TRUE(dialog.Create(IDD_EDITS));
    dialog.second.SetWindowText(L"x");
    EXPECT_TRUE(dialog.second.HasChangedSinceLastSetFocus());
    dialog.DestroyWindow();
}

TEST(EditBoxCreation, RunsItsHandlerOnceOnEitherPath)
{
    EditsDialog dialog(nullptr);
    ASSERT_TRUE(dialog.Create(IDD_EDITS));
    EXPECT_EQ(dialog.first.updates, 1);
    EXPECT_EQ(dialog.Text(IDC_FIRST), L"7 pcs");

    RecordingHandler handler;
    CountBox created(&handler);
    ASSERT_TRUE(created.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &dialog, IDC_CREATED));
    EXPECT_EQ(created.updates, 1);
    EXPECT_EQ(dialog.Text(IDC_CREATED), L"7 pcs");
    EXPECT_EQ(handler.calls, Calls{}) << "the first text is not reported";
    created.DestroyWindow();

    CountBox failed(nullptr);
    EXPECT_FALSE(failed.Create(WS_CHILD, CRect(0, 0, 50, 20), CWnd::FromHandle(reinterpret_cast<HWND>(0x1235)), 1));
    ASSERT_TRUE(failed.Create(WS_CHILD, CRect(0, 0, 50, 20), &dialog, IDC_CREATED)) << "it may be tried again";
    EXPECT_EQ(failed.updates, 1);
    failed.DestroyWindow();
    EXPECT_EQ(failed.updates, 1);
    dialog.DestroyWindow();
}

TEST(EditBoxModal, EscapeEndsAModalDialogAndEnterDoesNot)
{
    class ModalDialog : public EditsDialog
    {
    public:
        ModalDialog() : EditsDialog(nullptr) {}
        void OnOK() override { CDialog::OnOK(); }
        void OnCancel() override { CDialog::OnCancel(); }
        BOOL OnInitDialog() override
        {
            EditsDialog::OnInitDialog();
            PostMessage(WM_APP);
            return TRUE;
        }
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP)
            {
                owtest::Activate(m_hWnd);
                owtest::Press(VK_RETURN);
                enterMoved = owtest::PumpUntil([&] { return HasFocus(IDC_SECOND); });
                owtest::Press(VK_ESCAPE);
            }
            return EditsDialog::WindowProc(message, wParam, lParam);
        }
        bool enterMoved = false;
    };
    ModalDialog dialog;
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_TRUE(dialog.enterMoved);
}
