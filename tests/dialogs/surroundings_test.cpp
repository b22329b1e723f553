// What the dialogs that wait for an answer have in common: over which window they stand, whose resources they use,
// and that they give everything back.

#include "BoxParts.h"

#include "Handles.h"

#include <acdocman.h>

#include <stdexcept>

namespace
{
CString s_text; ///< that a dialog asks for

struct Kind
{
    bool takesParent;
    int rounds; ///< after which all handles are there again
    int (*start)(CWnd* parent);
};
const Kind kKinds[] = {
    {false, 12, [](CWnd*) { return COstrelMessageBox::MessageBox(L"", L"", MB_YESNOCANCEL | MB_ICONERROR); }},
    {false, 12, [](CWnd*) { return gfnStartNazivDlg(s_text, L""); }},
    {true, 12, [](CWnd* parent) { return gfnStartNazivComboDlg(s_text, CStringArray(), L"", parent); }},
    {true, 0,
     [](CWnd* parent) // the system's keeps some of its own
     {
         const HWND window = parent ? parent->m_hWnd : reinterpret_cast<HWND>(0x12340);
         return gfnStartTranslatedFileDialog(s_text, TRUE, L"", nullptr, 0, nullptr, window, nullptr);
     }}};
} // namespace

TEST(DialogSurroundings, AreTheParentOrTheWindowInFrontAndInTheEndAsBefore)
{
    const HINSTANCE resources = AfxGetResourceHandle();
    for (const auto& [takesParent, rounds, start] : kKinds)
    {
        OwnerWindow parent, main;
        AfxGetApp()->m_pMainWnd = &main;
        const auto expectOver = [&, start = start](CWnd* given, const CWnd& expected)
        {
            ASSERT_TRUE(owtest::Activate(main));
            main.SetFocus();
            const auto look = [&](CWnd& dialog)
            {
                EXPECT_EQ(dialog.GetWindow(GW_OWNER), &expected);
                EXPECT_FALSE(expected.IsWindowEnabled());
                EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 1);
                EXPECT_NE(AfxGetResourceHandle(), resources);
            };
            owtest::ModalVisit visit(look);
            EXPECT_EQ(start(given), IDCANCEL);
            EXPECT_EQ(visit.Count(), 1);
            EXPECT_TRUE(expected.IsWindowEnabled());
            EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
            EXPECT_EQ(AfxGetResourceHandle(), resources);
        };
        expectOver(nullptr, main);
        expectOver(&parent, takesParent ? parent : main);
        parent.DestroyWindow();
        expectOver(&parent, main); // a parent without a window is none
        const owtest::HandleCount before = owtest::CountHandles();
        for (int i = 0; i < rounds; ++i)
            expectOver(nullptr, main);
        EXPECT_EQ(owtest::CountHandles(), before);
        AfxGetApp()->m_pMainWnd = nullptr;
    }
    EXPECT_EQ(CButtonST().SetIcon(CButtonST::hIconOk), CButtonST::resultOk) << "the shared icons live on";
}

TEST(DialogSurroundings, AreAsBeforeAfterAnException)
{
    struct Thrower : OwnerWindow // breaks out of the message loop
    {
        BOOL PreTranslateMessage(MSG* message) override
        {
            return message->message == WM_APP ? throw std::runtime_error("stop") : FALSE;
        }
    } thrower;
    for (int i = 0; i < 3; ++i) // the fourth one's loop is the system's
    {
        thrower.PostMessage(WM_APP);
        EXPECT_THROW(kKinds[i].start(nullptr), std::runtime_error);
        EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
    }
}
