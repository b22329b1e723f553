// The base of the text boxes: reports, keys, flags, cursor, creation.

#include "EditsDialog.h"

#include "ModalVisit.h"

#include <tuple>

namespace
{
class EditBox : public Edits
{
protected:
    EditBox() : Edits(IDC_SECOND) {}
    CEditN& box = m_dialog.second;
};

/// A dialog that implements the interface itself.
class TellingDialog : public EditsDialog, public RecordingHandler
{
public:
    explicit TellingDialog(CEditNNotificationHandler* pHandler) : EditsDialog(pHandler) {}
};
} // namespace

TEST_F(EditBox, ReportsEachChangeOfTheText)
{
    owtest::Type(L"ab");
    owtest::Press(VK_LEFT);
    EXPECT_EQ(m_handler.Take(), Calls(2, "change 1002"));
    EXPECT_EQ(m_dialog.Text(IDC_SECOND), L"ab");
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

    EXPECT_TRUE(box.SendMessage(WM_GETDLGCODE) & DLGC_WANTALLKEYS) << "the keys come to the box first";
    EXPECT_TRUE(box.SendMessage(WM_GETDLGCODE) & DLGC_HASSETSEL) << "what an edit answers stays";
}

TEST_F(EditBox, KnowsWhetherItChangedSinceItWasEntered)
{
    EXPECT_FALSE(box.HasChangedSinceLastSetFocus());
    owtest::Type(L"a");
    EXPECT_TRUE(box.HasChangedSinceLastSetFocus());
    owtest::Press(VK_TAB);
    ASSERT_TRUE(FocusArrives(IDC_READONLY));
    EXPECT_TRUE(box.HasChangedSinceLastSetFocus()) << "may be asked when the focus has left";
    owtest::Press(VK_TAB, true);
    ASSERT_TRUE(FocusArrives(IDC_SECOND));
    EXPECT_FALSE(box.HasChangedSinceLastSetFocus());
}

TEST_F(EditBox, ATextThatTheProgramSetsIsSilentOnlyIfSetTheSafeWay)
{
    box.SafeSetWindowText(L"quiet");
    EXPECT_EQ(m_handler.Take(), Calls{});
    EXPECT_FALSE(box.HasChangedSinceLastSetFocus());

    box.SetWindowText(L"loud");
    EXPECT_EQ(m_handler.Take(), Calls{"change 1002"});
    EXPECT_TRUE(box.HasChangedSinceLastSetFocus());

    box.SetAnsiInterface(true);
    box.SafeSetWindowText(L"\u0160rafura \u010d");
    EXPECT_EQ(m_handler.Take(), Calls{});
    EXPECT_EQ(m_dialog.Text(IDC_SECOND), L"\u0160rafura \u010d") << "the texts stay wide";
}

TEST_F(EditBox, ShowsTheIBeamUnlessItIsReadOnly)
{
    const std::tuple<CEditN*, int, LPCTSTR> cases[] = {
        {&box, HTCLIENT, IDC_IBEAM}, {&box, HTBORDER, IDC_IBEAM}, {&m_dialog.readOnly, HTCLIENT, IDC_ARROW}};
    for (const auto& [pBox, nHitTest, pszCursor] : cases)
    {
        ::SetCursor(nullptr);
        EXPECT_TRUE(pBox->SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(pBox->m_hWnd),
                                      MAKELPARAM(nHitTest, WM_MOUSEMOVE)));
        EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, pszCursor)) << nHitTest;
    }
    EXPECT_TRUE(m_dialog.readOnly.IsReadOnly());
}

TEST_F(EditBox, StaysSilentBehindANestedWriteAndAnException)
{
    class CNesting : public CEditN
    {
    public:
        using CEditN::CEditN;
        bool nest = false;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_SETTEXT && std::exchange(nest, false))
                SafeSetWindowText(L"inner");
            return CEditN::WindowProc(message, wParam, lParam);
        }
    };
    box.UnsubclassWindow();
    CNesting nesting(&m_handler);
    ASSERT_TRUE(nesting.SubclassDlgItem(IDC_SECOND, &m_dialog));
    nesting.nest = true;
    nesting.SafeSetWindowText(L"outer");
    EXPECT_EQ(m_handler.Take(), Calls{}) << "the outer write is still silent when the inner one is done";
    nesting.SetWindowText(L"loud");
    EXPECT_EQ(m_handler.Take(), Calls{"change 1002"});
}

TEST(EditBoxHandler, IsTheParentWhereNoneWasGiven)
{
    RecordingHandler given;
    for (RecordingHandler* pGiven : {static_cast<RecordingHandler*>(nullptr), &given})
    {
        TellingDialog dialog(pGiven);
        ASSERT_TRUE(dialog.Create(IDD_EDITS));
        given.Take();
        dialog.Take();
        dialog.second.SetWindowText(L"x");
        EXPECT_EQ(given.Take().size(), pGiven ? 1u : 0u);
        EXPECT_EQ(dialog.Take().size(), pGiven ? 0u : 1u);
        dialog.DestroyWindow();
    }

    EditsDialog silent(nullptr);
    ASSERT_TRUE(silent.Create(IDD_EDITS));
    silent.second.SetWindowText(L"x");
    EXPECT_TRUE(silent.second.HasChangedSinceLastSetFocus());
    silent.DestroyWindow();
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
    EXPECT_FALSE(
        failed.Create(WS_CHILD, CRect(0, 0, 50, 20), CWnd::FromHandle(reinterpret_cast<HWND>(0x1235)), 1));
    ASSERT_TRUE(failed.Create(WS_CHILD, CRect(0, 0, 50, 20), &dialog, IDC_CREATED))
        << "it may be tried again";
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

    protected:
        void OnOK() override { CDialog::OnOK(); }
        void OnCancel() override { CDialog::OnCancel(); }
    };
    ModalDialog dialog;
    owtest::ModalVisit visit(
        [&](CWnd&)
        {
            owtest::Press(VK_RETURN);
            EXPECT_TRUE(owtest::PumpUntil([&] { return dialog.HasFocus(IDC_SECOND); }));
            owtest::Press(VK_ESCAPE);
            EXPECT_FALSE(::IsWindowVisible(dialog));
        });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}
