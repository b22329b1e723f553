// Dialogs: results, the owner's state, keys, modeless life, handles.

#include <afxpriv.h>

#include "DialogTemplate.h"
#include "Handles.h"
#include "Input.h"

#include <gtest/gtest.h>

#include <functional>

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

/// A modal dialog that does something as soon as it waits for its user.
class CActionDialog : public CDialog
{
public:
    CActionDialog(const owtest::DialogTemplate& form, std::function<void(CActionDialog&)> action,
                  CWnd* parent = nullptr)
        : m_action(std::move(action))
    {
        InitModalIndirect(form.get(), parent);
    }

    std::function<void(CActionDialog&)> m_onInit;
    CString m_text;
    int m_shortest = 0; ///< characters below which the text is refused

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
            return;
        }
        GetDlgItemText(idEdit, m_text);
        if (m_text.GetLength() < m_shortest)
            exchange->Fail();
    }

    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM)
    {
        if (const auto action = std::exchange(m_action, nullptr))
            action(*this);
        return FALSE;
    }
    DECLARE_MESSAGE_MAP()

private:
    std::function<void(CActionDialog&)> m_action;
};

// clang-format off
BEGIN_MESSAGE_MAP(CActionDialog, CDialog)
    ON_MESSAGE(WM_KICKIDLE, &CActionDialog::OnKickIdle)
END_MESSAGE_MAP()
// clang-format on

BOOL CreateOwner(CWnd& owner)
{
    return owner.CreateEx(0, nullptr, L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 450, 350),
                          nullptr, 0);
}

TEST(ModalDialog, DisablesItsOwnerWhileItIsOpen)
{
    CWnd owner;
    ASSERT_TRUE(CreateOwner(owner));
    const auto form = Form();
    bool enabledDuring = true;
    bool visibleDuring = false;
    CActionDialog dialog(
        form,
        [&](CActionDialog& self)
        {
            enabledDuring = owner.IsWindowEnabled();
            visibleDuring = self.IsWindowVisible();
            EXPECT_EQ(::GetWindow(self, GW_OWNER), owner.m_hWnd);
            self.EndDialog(17);
        },
        &owner);
    EXPECT_EQ(dialog.DoModal(), 17);
    EXPECT_FALSE(enabledDuring);
    EXPECT_TRUE(visibleDuring);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);
}

TEST(ModalDialog, LeavesAnOwnerDisabledThatWasSoBefore)
{
    CWnd owner;
    ASSERT_TRUE(CreateOwner(owner));
    owner.EnableWindow(FALSE);
    const auto form = Form();
    CActionDialog dialog(
        form, [](CActionDialog& self) { self.EndDialog(1); }, &owner);
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_FALSE(owner.IsWindowEnabled());
}

TEST(ModalDialog, IsOwnedByTheTopLevelWindowOfAChild)
{
    CWnd owner;
    CWnd child;
    ASSERT_TRUE(CreateOwner(owner));
    ASSERT_TRUE(child.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &owner, 1));
    const auto form = Form();
    CActionDialog dialog(
        form,
        [&](CActionDialog& self)
        {
            EXPECT_EQ(::GetWindow(self, GW_OWNER), owner.m_hWnd);
            EXPECT_FALSE(owner.IsWindowEnabled());
            self.EndDialog(1);
        },
        &child);
    dialog.DoModal();
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, EnterSavesAndEscapeCancels)
{
    const auto form = Form();
    CActionDialog confirmed(form,
                            [](CActionDialog& self)
                            {
                                ASSERT_TRUE(owtest::Activate(self));
                                owtest::Type(L"abc");
                                owtest::Press(VK_RETURN);
                            });
    EXPECT_EQ(confirmed.DoModal(), IDOK);
    EXPECT_EQ(confirmed.m_text, L"abc");

    CActionDialog cancelled(form,
                            [](CActionDialog& self)
                            {
                                ASSERT_TRUE(owtest::Activate(self));
                                owtest::Type(L"abc");
                                owtest::Press(VK_ESCAPE);
                            });
    cancelled.m_text = L"kept";
    EXPECT_EQ(cancelled.DoModal(), IDCANCEL);
    EXPECT_EQ(cancelled.m_text, L"kept");
}

TEST(ModalDialog, StaysOpenWhenAValueIsRefused)
{
    const auto form = Form();
    CActionDialog dialog(form,
                         [](CActionDialog& self)
                         {
                             ASSERT_TRUE(owtest::Activate(self));
                             self.GetDlgItem(IDOK)->SetFocus();
                             self.SendMessage(WM_COMMAND, IDOK);
                             EXPECT_TRUE(self.ContinueModal());
                             EXPECT_EQ(::GetFocus(), ::GetDlgItem(self, idEdit)); // the refused control
                             self.SetDlgItemText(idEdit, L"long enough");
                             self.SendMessage(WM_COMMAND, IDOK);
                         });
    dialog.m_shortest = 3;
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_text, L"long enough");
}

TEST(ModalDialog, EscapeInAMultilineEditCancelsAsElsewhere)
{
    auto form = owtest::DialogTemplate(L"Form", 120, 60)
                    .Edit(idEdit, 4, 4, 100, 12)
                    .Edit(idMemo, 4, 20, 100, 30, ES_MULTILINE | ES_WANTRETURN);
    CActionDialog dialog(form,
                         [](CActionDialog& self)
                         {
                             ASSERT_TRUE(owtest::Activate(self));
                             self.GetDlgItem(idMemo)->SetFocus();
                             owtest::Press(VK_ESCAPE);
                         });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL); // there is no Cancel button at all
}

TEST(ModalDialog, MayEndBeforeItIsShown)
{
    CWnd owner;
    ASSERT_TRUE(CreateOwner(owner));
    const auto form = Form();
    bool ran = false;
    CActionDialog dialog(
        form, [&](CActionDialog&) { ran = true; }, &owner);
    dialog.m_onInit = [](CActionDialog& self) { self.EndDialog(23); };
    EXPECT_EQ(dialog.DoModal(), 23);
    EXPECT_FALSE(ran);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModalDialog, MayBeDestroyedFromWithin)
{
    CWnd owner;
    ASSERT_TRUE(CreateOwner(owner));
    const auto form = Form();
    CActionDialog dialog(
        form, [](CActionDialog& self) { self.DestroyWindow(); }, &owner);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, AMissingTemplateAnswersMinusOne)
{
    CWnd owner;
    ASSERT_TRUE(CreateOwner(owner));
    CDialog byId(4999u, &owner);
    EXPECT_EQ(byId.DoModal(), -1);
    CDialog byName(L"no_such_dialog", &owner);
    EXPECT_EQ(byName.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());

    const auto form = owtest::DialogTemplate(L"", 50, 50).Item(L"NoSuchClass", L"", 1, 0, 0, 0, 10, 10);
    CDialog unknownControl;
    unknownControl.InitModalIndirect(form.get(), &owner);
    EXPECT_EQ(unknownControl.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, AQuitMessageEndsTheLoopAndIsPassedOn)
{
    const auto form = Form();
    CActionDialog dialog(form, [](CActionDialog&) { ::PostQuitMessage(5); });
    EXPECT_EQ(dialog.DoModal(), -1);
    MSG message;
    EXPECT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST(ModalDialog, NestsWithEachOwnerDisabled)
{
    CWnd owner;
    ASSERT_TRUE(CreateOwner(owner));
    const auto form = Form();
    INT_PTR innerResult = 0;
    CActionDialog outer(
        form,
        [&](CActionDialog& self)
        {
            CActionDialog inner(
                form,
                [&](CActionDialog& innermost)
                {
                    EXPECT_FALSE(self.IsWindowEnabled());
                    EXPECT_FALSE(owner.IsWindowEnabled());
                    innermost.EndDialog(2);
                },
                &self);
            innerResult = inner.DoModal();
            EXPECT_TRUE(self.IsWindowEnabled());
            EXPECT_FALSE(owner.IsWindowEnabled());
            self.EndDialog(1);
        },
        &owner);
    EXPECT_EQ(outer.DoModal(), 1);
    EXPECT_EQ(innerResult, 2);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, LeavesNothingBehindAfterAHundredTimes)
{
    const auto form = Form();
    const auto open = [&form]
    {
        CActionDialog dialog(form, [](CActionDialog& self) { self.EndDialog(IDOK); });
        dialog.DoModal();
        AfxGetThread()->OnIdle(1);
    };
    for (int warmUp = 0; warmUp < 3; ++warmUp)
        open();
    const owtest::HandleCount before = owtest::CountHandles();
    for (int round = 0; round < 100; ++round)
        open();
    const owtest::HandleCount after = owtest::CountHandles();
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_EQ(after.gdi, before.gdi);
}

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

TEST(ModelessDialog, LivesBesideTheOthersAndDeletesItself)
{
    int alive = 0;
    CWnd owner;
    ASSERT_TRUE(CreateOwner(owner));
    const auto form = Form();
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

TEST(ModelessDialog, ATemplateThatCannotBeMadeDeletesTheObjectAsAnEndWould)
{
    int alive = 0;
    const auto form = owtest::DialogTemplate(L"", 50, 50).Item(L"NoSuchClass", L"", 1, 0, 0, 0, 10, 10);
    EXPECT_FALSE((new CModelessDialog(alive))->CreateIndirect(form.get()));
    EXPECT_EQ(alive, 0);
}

TEST(Dialog, IsCentredUnlessItsTemplateOrItsStartPlacesIt)
{
    CWnd owner;
    ASSERT_TRUE(CreateOwner(owner));
    CRect ownerRect;
    owner.GetWindowRect(&ownerRect);
    const auto centreOf = [&](const owtest::DialogTemplate& form, std::function<void(CActionDialog&)> onInit)
    {
        CPoint centre(0, 0);
        CActionDialog dialog(
            form,
            [&](CActionDialog& self)
            {
                CRect rect;
                self.GetWindowRect(&rect);
                centre = rect.CenterPoint();
                self.EndDialog(1);
            },
            &owner);
        dialog.m_onInit = std::move(onInit);
        dialog.DoModal();
        return centre;
    };
    const auto isNear = [](CPoint a, CPoint b) { return abs(a.x - b.x) <= 1 && abs(a.y - b.y) <= 1; };

    EXPECT_TRUE(isNear(centreOf(Form(), nullptr), ownerRect.CenterPoint()));
    EXPECT_FALSE(isNear(centreOf(Form().Style(WS_POPUP | WS_CAPTION | DS_ABSALIGN).Position(2, 2), nullptr),
                        ownerRect.CenterPoint()));
    EXPECT_FALSE(isNear(centreOf(Form(), [](CActionDialog& self) { self.MoveWindow(0, 0, 100, 100); }),
                        ownerRect.CenterPoint()));
}

TEST(Dialog, HandsCommandsOfTheProgramToItsOwner)
{
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
    } owner;
    ASSERT_TRUE(CreateOwner(owner));
    const auto form = Form();
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form.get(), &owner));
    dialog.SendMessage(WM_COMMAND, 0x8001);
    EXPECT_EQ(owner.m_command, 0x8001u);
    owner.m_command = 0;
    dialog.SendMessage(WM_COMMAND, idEdit); // an id of the dialog's own
    EXPECT_EQ(owner.m_command, 0u);
}

/// Hears the edit control change.
class CHearingDialog : public CDialog
{
public:
    int m_heard = 0;
    CString m_text = L"from the member";

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        const HWND edit = exchange->PrepareEditCtrl(idEdit);
        if (!exchange->m_bSaveAndValidate)
            ::SetWindowText(edit, m_text);
    }
    afx_msg void OnChange() { ++m_heard; }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CHearingDialog, CDialog)
    ON_EN_CHANGE(idEdit, &CHearingDialog::OnChange)
END_MESSAGE_MAP()
// clang-format on

TEST(Dialog, DoesNotHearItsOwnDataExchange)
{
    const auto form = Form();
    CHearingDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form.get()));
    dialog.UpdateData(FALSE);
    EXPECT_EQ(dialog.m_heard, 0);
    dialog.SetDlgItemText(idEdit, L"by the program");
    EXPECT_EQ(dialog.m_heard, 1);
}
} // namespace
