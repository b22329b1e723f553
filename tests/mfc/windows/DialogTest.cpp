// Dialogs: results, the owner's state, keys, modeless life.

#include "TestWindows.h"

#include <afxpriv.h>

namespace
{
constexpr UINT idEdit = 201;

owtest::DialogTemplate Form()
{
    return owtest::DialogTemplate(L"Form", 120, 60)
        .Edit(idEdit, 4, 4, 100, 12)
        .DefaultButton(L"OK", IDOK, 4, 40, 40, 14)
        .Button(L"Cancel", IDCANCEL, 48, 40, 40, 14);
}

/// Templates of an empty dialog, of one whose window cannot be made, and of one whose control cannot.
struct CBareTemplate
{
    DLGTEMPLATE head{WS_POPUP, 0, 0, 0, 0, 50, 50};
    wchar_t menu[1]{}, windowClass[8]{L"#32770"}, title[1]{};
};
const CBareTemplate kEmpty, kNoWindow{.windowClass = L"Unknown"};
const auto kNoControl = owtest::DialogTemplate(L"", 50, 50).Item(L"NoSuchClass", L"", 1, 0, 0, 0, 10, 10);

/// A dialog with one text, which does something as soon as it waits for its user.
class CTextDialog : public CDialog
{
public:
    using Action = std::function<void(CTextDialog&)>;

    CTextDialog() = default;
    CTextDialog(LPCDLGTEMPLATE form, Action action, CWnd* parent) : m_action(std::move(action))
    {
        EXPECT_TRUE(InitModalIndirect(form, parent));
    }

    Action m_onInit;
    CString m_text;
    int m_shortest = 0;          ///< characters below which the text is refused
    BOOL m_ownerEnabled = FALSE; ///< when the window was destroyed
    CRect m_place;               ///< then, too

    BOOL DestroyWindow() override
    {
        if (m_hWnd != nullptr)
        {
            m_ownerEnabled = ::IsWindowEnabled(::GetWindow(m_hWnd, GW_OWNER));
            GetWindowRect(&m_place);
        }
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
        if (exchange->m_bSaveAndValidate)
            GetDlgItemText(idEdit, m_text);
        else
            ::SetWindowText(edit, m_text);
        if (exchange->m_bSaveAndValidate ? m_text.GetLength() < m_shortest : m_text == L"no value")
            exchange->Fail();
    }
    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM)
    {
        if (const Action action = std::exchange(m_action, nullptr))
            action(*this);
        return FALSE;
    }
    afx_msg void OnChange() { Note("change"); }
    DECLARE_MESSAGE_MAP()

private:
    Action m_action;
};

BEGIN_MESSAGE_MAP(CTextDialog, CDialog)
    ON_MESSAGE(WM_KICKIDLE, &CTextDialog::OnKickIdle)
    ON_EN_CHANGE(idEdit, &CTextDialog::OnChange)
END_MESSAGE_MAP()

struct Dialog : testing::Test
{
    void SetUp() override
    {
        ASSERT_TRUE(owner.CreateEx(0, nullptr, L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                   CRect(50, 50, 450, 350), nullptr, 0));
    }
    void TearDown() override { EXPECT_TRUE(owner.IsWindowEnabled()) << "after the dialog"; }

    INT_PTR Show(CTextDialog::Action action, CWnd* parent = nullptr)
    {
        return CTextDialog(form.get(), std::move(action), parent ? parent : &owner).DoModal();
    }

    /// Notes the commands which come to it.
    struct : CWnd
    {
        BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
        {
            if (nCode == CN_COMMAND)
                Note("owner", nID);
            return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
        }
    } owner;
    const owtest::DialogTemplate form = Form();
};

const CTextDialog::Action kEnd = [](CTextDialog& self) { self.EndDialog(17); };

TEST_F(Dialog, AnswersHowItEnded)
{
    const struct
    {
        CTextDialog::Action action;
        INT_PTR result;
        LPCTSTR text;
    } cases[] = {
        {kEnd, 17, L"before"},
        {[](CTextDialog& self) { self.DestroyWindow(); }, -1, L"before"},
        {[](CTextDialog&) { owtest::Press(VK_RETURN); }, IDOK, L"abc"},
        {[](CTextDialog&) { owtest::Press(VK_ESCAPE); }, IDCANCEL, L"before"},
        {[](CTextDialog&) { ::PostQuitMessage(5); }, -1, L"before"},
    };
    for (const auto& c : cases)
    {
        const auto act = [&](CTextDialog& self)
        {
            EXPECT_TRUE(!owner.IsWindowEnabled() && self.IsWindowVisible());
            ASSERT_TRUE(owtest::Activate(self));
            owtest::Type(L"abc");
            c.action(self);
        };
        CTextDialog dialog(form.get(), act, &owner);
        dialog.m_text = L"before";
        EXPECT_EQ(dialog.DoModal(), c.result);
        EXPECT_EQ(dialog.m_text, c.text);
        EXPECT_EQ(dialog.m_hWnd, nullptr);
        EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);
        EXPECT_TRUE(owner.IsWindowEnabled());
    }
    EXPECT_TRUE(TakeQuitMessage()) << "passed on to the loop outside";
}

TEST_F(Dialog, LeavesAnOwnerDisabledAndAnotherWindowActiveThatWereSoBefore)
{
    CPopup other(nullptr, WS_VISIBLE);
    Show(
        [&](CTextDialog& self)
        {
            other.SetActiveWindow();
            kEnd(self);
        });
    EXPECT_EQ(::GetActiveWindow(), other.m_hWnd);
    owner.EnableWindow(FALSE);
    Show(kEnd);
    EXPECT_FALSE(owner.IsWindowEnabled());
    owner.EnableWindow(TRUE);
}

TEST_F(Dialog, IsOwnedByTheTopLevelWindowOfAChildAndNestsWithEachOwnerDisabled)
{
    CChild child(owner, 1);
    const auto showInner = [&](CTextDialog& outer)
    {
        EXPECT_EQ(::GetWindow(outer, GW_OWNER), owner.m_hWnd);
        Show(
            [&](CTextDialog& inner)
            {
                EXPECT_FALSE(outer.IsWindowEnabled() || owner.IsWindowEnabled());
                kEnd(inner);
            },
            &outer);
        EXPECT_TRUE(outer.IsWindowEnabled() && !owner.IsWindowEnabled());
        outer.EndDialog(1);
    };
    EXPECT_EQ(Show(showInner, &child), 1);
}

TEST_F(Dialog, StaysOpenWhenAValueIsRefused)
{
    const auto confirmTwice = [](CTextDialog& self)
    {
        self.SendMessage(WM_COMMAND, IDOK);
        EXPECT_TRUE(self.ContinueModal());
        self.SetDlgItemText(idEdit, L"long enough");
        self.SendMessage(WM_COMMAND, IDOK);
    };
    CTextDialog dialog(form.get(), confirmTwice, &owner);
    dialog.m_shortest = 3;
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_text, L"long enough");
    EXPECT_TRUE(dialog.m_ownerEnabled) << "another program would come to the front";
}

TEST_F(Dialog, EscapeInAMultilineEditCancelsUnlessTheButtonIsDisabled)
{
    auto memo = owtest::DialogTemplate(L"Memo", 120, 60).Edit(idEdit, 4, 4, 100, 30, ES_MULTILINE);
    for (const INT_PTR result : {IDCANCEL, 17})
    {
        const auto escape = [&](CTextDialog& self)
        {
            CSeenWnd keeper(
                [](UINT message, WPARAM, LPARAM) {
                    return message == WM_GETDLGCODE ? std::optional<LRESULT>(DLGC_WANTALLKEYS) : std::nullopt;
                });
            ASSERT_TRUE(CreateChild(keeper, self, 1));
            MSG kept{keeper, WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
            self.PreTranslateMessage(&kept);
            EXPECT_TRUE(self.ContinueModal()) << "by a control that wants all keys";
            MSG key{self.GetDlgItem(idEdit)->m_hWnd, WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
            self.PreTranslateMessage(&key);
            EXPECT_EQ(self.ContinueModal() != FALSE, result == 17);
            self.EndDialog(static_cast<int>(result));
        };
        EXPECT_EQ(CTextDialog(memo.get(), escape, &owner).DoModal(), result);
        memo.Button(L"Cancel", IDCANCEL, 48, 40, 40, 14, WS_DISABLED);
    }
}

TEST_F(Dialog, MayEndBeforeItIsShownOrNeverBegin)
{
    const auto waits = [](CTextDialog&) { ADD_FAILURE() << "it waits for its user"; };
    CTextDialog dialog(form.get(), waits, &owner);
    dialog.m_onInit = kEnd;
    EXPECT_EQ(dialog.DoModal(), 17);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    dialog.m_onInit = nullptr;
    dialog.m_text = L"no value";
    EXPECT_EQ(dialog.DoModal(), -1);
    CTextDialog modeless;
    modeless.m_onInit = kEnd;
    EXPECT_FALSE(modeless.CreateIndirect(form.get(), &owner));
    EXPECT_EQ(modeless.m_hWnd, nullptr);
    struct : CDialog
    {
        BOOL OnInitDialog() override
        {
            EndDialog(5);
            return TRUE;
        }
    } fromMemory;
    const HGLOBAL memory = ::GlobalAlloc(GMEM_FIXED, sizeof kEmpty);
    memcpy(memory, &kEmpty, sizeof kEmpty);
    EXPECT_TRUE(fromMemory.InitModalIndirect(memory, &owner));
    EXPECT_EQ(fromMemory.DoModal(), 5);
    EXPECT_FALSE(fromMemory.CreateIndirect(memory)) << "it ends at once again";
    ::GlobalFree(memory);

    EXPECT_EQ(CDialog(4999u, &owner).DoModal(), -1);
    EXPECT_EQ(CDialog(L"no_such_dialog", &owner).DoModal(), -1);
    EXPECT_EQ(CTextDialog(kNoControl.get(), nullptr, &owner).DoModal(), -1);
}

/// Goes in its OnInitDialog and deletes itself with its window; it is counted, and its memory is spoilt, so that a
/// later look at the object is noticed.
class CShortDialog : public CDialog
{
public:
    static inline int s_alive = 0;
    CShortDialog() { ++s_alive; }
    ~CShortDialog() override { --s_alive; }
    static void* operator new(size_t size) { return ::operator new(size); }
    static void operator delete(void* memory)
    {
        std::fill_n(static_cast<volatile BYTE*>(memory), sizeof(CShortDialog), BYTE{0xDD});
        ::operator delete(memory);
    }

protected:
    BOOL OnInitDialog() override { return DestroyWindow(); }
    void PostNcDestroy() override { delete this; }
};

TEST_F(Dialog, AModelessOneMayDeleteItselfWhileItIsMadeOrBecauseItCannotBe)
{
    for (const LPCDLGTEMPLATE shown : {form.get(), kNoControl.get(), &kNoWindow.head})
        EXPECT_FALSE((new CShortDialog)->CreateIndirect(shown));
    EXPECT_EQ(CShortDialog::s_alive, 0);
}

TEST_F(Dialog, IsCentredUnlessItsTemplateOrItsStartPlacesIt)
{
    CRect ownerRect;
    owner.GetWindowRect(&ownerRect);
    const auto isCentred = [&](const owtest::DialogTemplate& shown, CTextDialog::Action onInit)
    {
        CTextDialog dialog(shown.get(), kEnd, &owner);
        dialog.m_onInit = std::move(onInit);
        dialog.DoModal();
        const CSize off = dialog.m_place.CenterPoint() - ownerRect.CenterPoint();
        return abs(off.cx) <= 1 && abs(off.cy) <= 1;
    };
    EXPECT_TRUE(isCentred(form, nullptr));
    EXPECT_FALSE(isCentred(Form().Style(WS_POPUP | WS_CAPTION | DS_ABSALIGN), nullptr));
    EXPECT_FALSE(isCentred(form, [](CTextDialog& self) { self.MoveWindow(0, 0, 100, 100); }));
}

TEST_F(Dialog, HandsCommandsOfTheProgramToItsOwnerAndDoesNotHearItsOwnDataExchange)
{
    CTextDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form.get(), &owner));
    Noted();
    for (const UINT id :
         {0x8000u, 0x7FFFu, 0xEFFFu, 0xF000u}) // the two others are the dialog's and the system's
        dialog.SendMessage(WM_COMMAND, id);
    EXPECT_EQ(Noted(), "owner 32768;owner 61439;");
    dialog.m_text = L"from the member";
    dialog.UpdateData(FALSE);
    EXPECT_EQ(Noted(), "");
    dialog.SetDlgItemText(idEdit, L"by the program");
    EXPECT_EQ(Noted(), "change;");
}

TEST(ModalLoop, IdleTimeIsCountedUntilItIsDeclinedAndBeginsAnewWithAMessage)
{
    CSeenWnd owner, window;
    std::vector<LPARAM> kicks;
    owner.see = [&](UINT message, WPARAM wParam, LPARAM)
    {
        if (message == WM_ENTERIDLE)
            Note("idle", wParam);
        return std::nullopt;
    };
    window.see = [&](UINT message, WPARAM, LPARAM count) -> std::optional<LRESULT>
    {
        if (message != WM_KICKIDLE)
            return std::nullopt;
        kicks.push_back(count);
        if (kicks.size() == 2)
            window.PostMessage(WM_APP);
        if (kicks.size() == 4)
            window.EndModalLoop(17);
        return count < 1; // once more
    };
    ASSERT_TRUE(CreatePopup(owner));
    ASSERT_TRUE(CreatePopup(window, &owner));
    Noted();
    EXPECT_EQ(window.RunModalLoop(MLF_SHOWONIDLE), 17);
    EXPECT_EQ(kicks, (std::vector<LPARAM>{0, 1, 0, 1}));
    EXPECT_EQ(Noted(), "idle 0;idle 0;") << "told once for each idle time";
    EXPECT_TRUE(window.IsWindowVisible());

    window.ShowWindow(SW_HIDE);
    window.PostMessage(WM_CLOSE); // which ends the loop with the window
    EXPECT_EQ(window.RunModalLoop(MLF_NOIDLEMSG | MLF_NOKICKIDLE), 17);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(kicks.size(), 4u);
    EXPECT_EQ(Noted(), "");
}

TEST(ModalLoop, AnAltKeyShowsAWindowThatHasNotBeenIdleYet)
{
    CSeenWnd window;
    int rounds = 0; // of a queue that is never empty
    window.see = [&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT>
    {
        if (message == WM_APP)
            window.PostMessage(WM_APP);
        if (message == WM_APP && (window.IsWindowVisible() || ++rounds == 100))
            window.EndModalLoop(rounds);
        return std::nullopt;
    };
    ASSERT_TRUE(CreatePopup(window));
    window.PostMessage(WM_APP);
    window.PostMessage(WM_SYSKEYDOWN, 'Q');
    EXPECT_EQ(window.RunModalLoop(MLF_SHOWONIDLE), 1);
}
} // namespace
