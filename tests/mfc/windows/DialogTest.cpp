// Dialogs: results, the owner's state, keys, modeless life, handles.

#include "TestWindows.h"

#include <afxpriv.h>

#include "DialogTemplate.h"
#include "Handles.h"
#include "Input.h"

#include <functional>
#include <utility>

namespace
{
constexpr UINT idEdit = 201;
constexpr UINT idMemo = 202;

owtest::DialogTemplate Form()
{
    return owtest::DialogTemplate(L"Form", 120, 60)
        .Edit(idEdit, 4, 4, 100, 12)
        .DefaultButton(L"OK", IDOK, 4, 40, 40, 14)
        .Button(L"Cancel", IDCANCEL, 48, 40, 40, 14);
}

/// A form that the system refuses to make.
owtest::DialogTemplate BrokenForm()
{
    return owtest::DialogTemplate(L"", 50, 50).Item(L"NoSuchClass", L"", 1, 0, 0, 0, 10, 10);
}

/// A dialog with one text; shown as a modal one, it does something as soon as it waits for its user.
class CTextDialog : public CDialog
{
public:
    using Action = std::function<void(CTextDialog&)>;

    CTextDialog() = default;
    CTextDialog(const owtest::DialogTemplate& form, Action action, CWnd* parent) : m_action(std::move(action))
    {
        InitModalIndirect(form.get(), parent);
    }

    Action m_onInit;
    CString m_text;
    int m_shortest = 0; ///< characters below which the text is refused
    int m_changesHeard = 0;
    BOOL m_ownerEnabled = FALSE; ///< when the window is destroyed

    BOOL DestroyWindow() override
    {
        m_ownerEnabled = ::IsWindowEnabled(::GetWindow(m_hWnd, GW_OWNER));
        return CDialog::DestroyWindow();
    }

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        if (m_onInit)
            m_onInit(*this);
        return TRUE;
    }

    void DoDataExchange(CDataExchange* exchange) override
    {
        const HWND edit = exchange->PrepareEditCtrl(idEdit);
        if (!exchange->m_bSaveAndValidate)
        {
            ::SetWindowText(edit, m_text);
            if (m_text == L"no value")
                exchange->Fail();
            return;
        }
        GetDlgItemText(idEdit, m_text);
        if (m_text.GetLength() < m_shortest)
            exchange->Fail();
    }

    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM)
    {
        if (const Action action = std::exchange(m_action, nullptr))
            action(*this);
        return FALSE;
    }
    afx_msg void OnChange() { ++m_changesHeard; }
    DECLARE_MESSAGE_MAP()

private:
    Action m_action;
};

BEGIN_MESSAGE_MAP(CTextDialog, CDialog)
    ON_MESSAGE(WM_KICKIDLE, &CTextDialog::OnKickIdle)
    ON_EN_CHANGE(idEdit, &CTextDialog::OnChange)
END_MESSAGE_MAP()

/// An owner that notes the commands which come to it.
class COwner : public CWnd
{
public:
    UINT m_command = 0;

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if (nCode == CN_COMMAND)
            m_command = nID;
        return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
};

struct Dialog : testing::Test
{
    void SetUp() override
    {
        ASSERT_TRUE(owner.CreateEx(0, nullptr, L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                   CRect(50, 50, 450, 350), nullptr, 0));
    }

    COwner owner;
    const owtest::DialogTemplate form = Form();
};

struct ModalDialog : Dialog
{
    void TearDown() override { EXPECT_TRUE(owner.IsWindowEnabled()) << "after the dialog"; }

    INT_PTR Show(CTextDialog::Action action, CWnd* parent = nullptr)
    {
        return CTextDialog(form, std::move(action), parent ? parent : &owner).DoModal();
    }
};

TEST_F(ModalDialog, AnswersHowItEnded)
{
    const struct
    {
        CTextDialog::Action action;
        INT_PTR result;
        LPCTSTR text;
    } cases[] = {
        {[](CTextDialog& self) { self.EndDialog(17); }, 17, L"before"},
        {[](CTextDialog& self) { self.DestroyWindow(); }, -1, L"before"},
        {[](CTextDialog&) { owtest::Press(VK_RETURN); }, IDOK, L"abc"},
        {[](CTextDialog&) { owtest::Press(VK_ESCAPE); }, IDCANCEL, L"before"},
        {[](CTextDialog&) { ::PostQuitMessage(5); }, -1, L"before"},
    };
    for (const auto& c : cases)
    {
        CTextDialog dialog(
            form,
            [&](CTextDialog& self)
            {
                EXPECT_FALSE(owner.IsWindowEnabled());
                EXPECT_TRUE(self.IsWindowVisible());
                ASSERT_TRUE(owtest::Activate(self));
                owtest::Type(L"abc");
                c.action(self);
            },
            &owner);
        dialog.m_text = L"before";
        EXPECT_EQ(dialog.DoModal(), c.result);
        EXPECT_EQ(dialog.m_text, c.text);
        EXPECT_EQ(dialog.m_hWnd, nullptr);
        EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);
        EXPECT_TRUE(owner.IsWindowEnabled());
    }
    EXPECT_TRUE(TakeQuitMessage()) << "passed on to the loop outside";
}

TEST_F(ModalDialog, LeavesAnOwnerDisabledAndAnotherWindowActiveThatWereSoBefore)
{
    CWnd other;
    ASSERT_TRUE(CreatePopup(other, nullptr, WS_VISIBLE));
    const auto leave = [&](CTextDialog& self)
    {
        other.SetActiveWindow();
        self.EndDialog(1);
    };
    EXPECT_EQ(Show(leave), 1);
    EXPECT_EQ(::GetActiveWindow(), other.m_hWnd);

    owner.EnableWindow(FALSE);
    EXPECT_EQ(Show([](CTextDialog& self) { self.EndDialog(1); }), 1);
    EXPECT_FALSE(owner.IsWindowEnabled());
    owner.EnableWindow(TRUE);
}

TEST_F(ModalDialog, IsOwnedByTheTopLevelWindowOfAChildAndNestsWithEachOwnerDisabled)
{
    CWnd child;
    ASSERT_TRUE(CreateChild(child, owner, 1));
    const auto showInner = [&](CTextDialog& outer)
    {
        EXPECT_EQ(::GetWindow(outer, GW_OWNER), owner.m_hWnd);
        const auto lookAround = [&](CTextDialog& inner)
        {
            EXPECT_FALSE(outer.IsWindowEnabled());
            EXPECT_FALSE(owner.IsWindowEnabled());
            inner.EndDialog(2);
        };
        EXPECT_EQ(Show(lookAround, &outer), 2);
        EXPECT_TRUE(outer.IsWindowEnabled());
        EXPECT_FALSE(owner.IsWindowEnabled());
        outer.EndDialog(1);
    };
    EXPECT_EQ(Show(showInner, &child), 1);
}

TEST_F(ModalDialog, StaysOpenWhenAValueIsRefused)
{
    CTextDialog dialog(
        form,
        [](CTextDialog& self)
        {
            ASSERT_TRUE(owtest::Activate(self));
            self.GetDlgItem(IDOK)->SetFocus();
            self.SendMessage(WM_COMMAND, IDOK);
            EXPECT_TRUE(self.ContinueModal());
            EXPECT_EQ(::GetFocus(), ::GetDlgItem(self, idEdit)) << "the refused control";
            self.SetDlgItemText(idEdit, L"long enough");
            self.SendMessage(WM_COMMAND, IDOK);
        },
        &owner);
    dialog.m_shortest = 3;
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_text, L"long enough");
    EXPECT_TRUE(dialog.m_ownerEnabled) << "another program would come to the front";
}

TEST_F(ModalDialog, EscapeInAMultilineEditCancelsAsElsewhere)
{
    const auto withoutCancel = owtest::DialogTemplate(L"Form", 120, 60)
                                   .Edit(idEdit, 4, 4, 100, 12)
                                   .Edit(idMemo, 4, 20, 100, 30, ES_MULTILINE | ES_WANTRETURN);
    const auto escape = [](CTextDialog& self)
    {
        ASSERT_TRUE(owtest::Activate(self));
        self.GetDlgItem(idMemo)->SetFocus();
        owtest::Press(VK_ESCAPE);
    };
    EXPECT_EQ(CTextDialog(withoutCancel, escape, &owner).DoModal(), IDCANCEL);
}

TEST_F(ModalDialog, MayEndBeforeItIsShownOrNeverBegin)
{
    CTextDialog dialog(
        form, [](CTextDialog&) { ADD_FAILURE() << "it waits for its user"; }, &owner);
    dialog.m_onInit = [](CTextDialog& self) { self.EndDialog(23); };
    EXPECT_EQ(dialog.DoModal(), 23);
    EXPECT_EQ(dialog.m_hWnd, nullptr);

    dialog.m_onInit = nullptr;
    dialog.m_text = L"no value";
    EXPECT_EQ(dialog.DoModal(), -1);

    EXPECT_EQ(CDialog(4999u, &owner).DoModal(), -1);
    EXPECT_EQ(CDialog(L"no_such_dialog", &owner).DoModal(), -1);
    EXPECT_EQ(CTextDialog(BrokenForm(), nullptr, &owner).DoModal(), -1);
}

TEST_F(ModalDialog, LeavesNothingBehind)
{
    const auto open = [&](int times)
    {
        for (; times > 0; --times)
        {
            Show([](CTextDialog& self) { self.EndDialog(IDOK); });
            AfxGetThread()->OnIdle(1); // where temporary objects go
        }
        return owtest::CountHandles();
    };
    const owtest::HandleCount before = open(3);
    const owtest::HandleCount after = open(20);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_EQ(after.gdi, before.gdi);
}

/// Deletes itself with its window, and is counted.
class CModelessDialog : public CDialog
{
public:
    explicit CModelessDialog(int& alive) : m_alive(alive) { ++m_alive; }
    ~CModelessDialog() override { --m_alive; }

protected:
    void OnCancel() override { DestroyWindow(); }
    void PostNcDestroy() override { delete this; }
    int& m_alive;
};

TEST_F(Dialog, AModelessOneLivesBesideTheOthersAndDeletesItself)
{
    int alive = 0;
    auto* const dialog = new CModelessDialog(alive);
    ASSERT_TRUE(dialog->CreateIndirect(form.get(), &owner));
    dialog->ShowWindow(SW_SHOW);
    EXPECT_TRUE(owner.IsWindowEnabled());
    ASSERT_TRUE(owtest::Activate(*dialog));
    owtest::Press(VK_TAB); // by PreTranslateMessage
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(*dialog, IDOK));
    owtest::Press(VK_ESCAPE);
    EXPECT_EQ(alive, 0);
}

/// Goes in its OnInitDialog; its memory is spoilt, so that a later look at the object is noticed.
class CShortDialog : public CModelessDialog
{
public:
    using CModelessDialog::CModelessDialog;
    static void* operator new(size_t size) { return ::operator new(size); }
    static void operator delete(void* memory)
    {
        std::fill_n(static_cast<volatile BYTE*>(memory), sizeof(CShortDialog), BYTE{0xDD});
        ::operator delete(memory);
    }

protected:
    BOOL OnInitDialog() override { return DestroyWindow(); }
};

TEST_F(Dialog, AModelessOneMayDeleteItselfWhileItIsInitialisedOrCannotBeMade)
{
    int alive = 0;
    EXPECT_FALSE((new CShortDialog(alive))->CreateIndirect(form.get()));
    EXPECT_EQ(alive, 0);
    const auto broken = BrokenForm();
    EXPECT_FALSE((new CModelessDialog(alive))->CreateIndirect(broken.get()));
    EXPECT_EQ(alive, 0);
}

TEST_F(Dialog, IsCentredUnlessItsTemplateOrItsStartPlacesIt)
{
    CRect ownerRect;
    owner.GetWindowRect(&ownerRect);
    const auto isCentred = [&](const owtest::DialogTemplate& shown, CTextDialog::Action onInit)
    {
        CRect rect;
        const auto look = [&](CTextDialog& self)
        {
            self.GetWindowRect(&rect);
            self.EndDialog(1);
        };
        CTextDialog dialog(shown, look, &owner);
        dialog.m_onInit = std::move(onInit);
        dialog.DoModal();
        const CSize off = rect.CenterPoint() - ownerRect.CenterPoint();
        return abs(off.cx) <= 1 && abs(off.cy) <= 1;
    };
    EXPECT_TRUE(isCentred(form, nullptr));
    EXPECT_FALSE(isCentred(Form().Style(WS_POPUP | WS_CAPTION | DS_ABSALIGN).Position(2, 2), nullptr));
    EXPECT_FALSE(isCentred(form, [](CTextDialog& self) { self.MoveWindow(0, 0, 100, 100); }));
}

TEST_F(Dialog, HandsCommandsOfTheProgramToItsOwnerAndDoesNotHearItsOwnDataExchange)
{
    CTextDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form.get(), &owner));
    dialog.SendMessage(WM_COMMAND, 0x8001);
    EXPECT_EQ(owner.m_command, 0x8001u);
    owner.m_command = 0;
    dialog.SendMessage(WM_COMMAND, idMemo);
    EXPECT_EQ(owner.m_command, 0u) << "an id of the dialog's own";

    dialog.m_text = L"from the member";
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.m_changesHeard, 0);
    dialog.SetDlgItemText(idEdit, L"by the program");
    EXPECT_EQ(dialog.m_changesHeard, 1);
}

TEST(ModalLoop, IdleTimeIsCountedUntilItIsDeclinedAndBeginsAnewWithAMessage)
{
    struct CParentWnd : CWnd
    {
        int m_idle = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            m_idle += message == WM_ENTERIDLE && wParam == MSGF_DIALOGBOX;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } owner;
    struct CModalWnd : CWnd
    {
        std::vector<LPARAM> m_kicks;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_KICKIDLE)
                return CWnd::WindowProc(message, wParam, lParam);
            m_kicks.push_back(lParam);
            if (m_kicks.size() == 2)
                PostMessage(WM_APP);
            if (m_kicks.size() == 4)
                EndModalLoop(17);
            return lParam < 1; // once more
        }
    } window;
    ASSERT_TRUE(CreatePopup(owner));
    ASSERT_TRUE(CreatePopup(window, &owner));
    EXPECT_EQ(window.RunModalLoop(MLF_SHOWONIDLE), 17);
    EXPECT_EQ(window.m_kicks, (std::vector<LPARAM>{0, 1, 0, 1}));
    EXPECT_EQ(owner.m_idle, 2) << "told once for each idle time";
    EXPECT_TRUE(window.IsWindowVisible());

    window.ShowWindow(SW_HIDE);
    window.PostMessage(WM_CLOSE); // which ends the loop with the window
    EXPECT_EQ(window.RunModalLoop(MLF_NOIDLEMSG | MLF_NOKICKIDLE), 17);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.m_kicks.size(), 4u);
    EXPECT_EQ(owner.m_idle, 2);
}
} // namespace
