// Boxes for label templates: what their buttons offer, where a code is inserted, what is told and stored.

#include "Boxes.h"

#include "EnglishTexts.h"
#include "MenuVisit.h"
#include "SubLanguage.h"

#include <memory>
#include <optional>

namespace
{
constexpr int kBox = 1001, kButton = 1002, kNext = 1003;

/// Refuses texts with a "!".
struct StrictBox : CEditAcadEscSeqSpecLima
{
    using CEditAcadEscSeqSpecLima::CEditAcadEscSeqSpecLima;
    bool IsTextValid(const CString& strText) const override { return strText.Find(L'!') < 0; }
};

/// A box, its button, and a plain box behind them, which has the focus.
class EscSeq : public ::testing::Test
{
protected:
    ~EscSeq() override { m_dialog.DestroyWindow(); }

    template <class Box = StrictBox>
    Box& Show(DWORD dwStyle = ES_AUTOHSCROLL, int nButton = kButton, bool bNoDimensions = false)
    {
        m_dialog.DestroyWindow();
        auto box = std::make_unique<Box>(&m_handler, nButton);
        Box& shown = *box;
        m_box = std::move(box);
        if constexpr (requires { shown.m_bNoDimensions; })
            shown.m_bNoDimensions = bNoDimensions;
        const auto form = owtest::DialogTemplate(L"Labels", 160, 90)
                              .Edit(kBox, 4, 4, 80, 40, dwStyle)
                              .Button(L"Insert", kButton, 90, 4, 50, 14)
                              .Edit(kNext, 4, 50, 80, 14);
        EXPECT_TRUE(m_dialog.CreateIndirect(form.get()) && m_box->SubclassDlgItem(kBox, &m_dialog));
        m_dialog.ShowWindow(SW_SHOW);
        EXPECT_TRUE(owtest::Activate(m_dialog));
        m_dialog.GetDlgItem(kNext)->SetFocus();
        m_handler.Take();
        m_handler.look = [this] { return ": " + std::string(CStringA(m_box->GetValue())); };
        return shown;
    }
    HWND Button() { return m_dialog.GetDlgItem(kButton)->m_hWnd; }
    /// Goes to the box by a click, and then to a place in it.
    void Enter(int nPlace, BOOL bNoScroll = FALSE)
    {
        owtest::Click(*m_box, CPoint(40, 8));
        EXPECT_TRUE(owtest::PumpUntil([&] { return ::GetFocus() == m_box->m_hWnd; }));
        m_box->SetSel(nPlace, nPlace, bNoScroll);
    }
    /// Chooses from the menu of the button with the mouse, or closes it for -1; its labels.
    std::wstring Choose(int nItem)
    {
        std::wstring labels;
        owtest::MenuVisit visit(
            [&](const owtest::OpenMenu& menu)
            {
                for (const std::wstring& label : menu.Labels())
                    labels += label + L'\n';
                nItem < 0 ? menu.Press({VK_ESCAPE}) : menu.Click(nItem);
            });
        owtest::Click(Button());
        EXPECT_EQ(visit.Count(), 1);
        return labels;
    }
    /// The text after a choice.
    CString Insert(int nItem)
    {
        Choose(nItem);
        EXPECT_EQ(::GetFocus(), m_box->m_hWnd);
        EXPECT_EQ(TextOf(*m_box), m_box->GetValue().GetString());
        return m_box->GetValue();
    }

    Recorder m_handler;
    std::unique_ptr<CEditEscSeqText> m_box;
    CDialog m_dialog;
};

std::wstring Codes(const CEditEscSeqText& box)
{
    OCArray<CString> codes, descriptions;
    codes.Add(L"old");
    const int nCount = box.EnumEscSeq(codes, descriptions);
    EXPECT_TRUE(codes.GetSize() == nCount && descriptions.GetSize() == nCount);
    std::wstring line;
    for (int i = 0; i < nCount; ++i)
    {
        line += codes[i];
        EXPECT_TRUE(gOtLang.Has(descriptions[i])) << CStringA(descriptions[i]).GetString();
    }
    return line;
}
} // namespace

TEST_F(EscSeq, EachKindOffersItsSequencesInTheLanguageOfTheProgram)
{
    std::optional<owtest::EnglishTexts> english(std::in_place);
    CEditAcadEscSeqSpecStapa member;
    CEditAcadEscSeqSpecLima plate;
    EXPECT_EQ(Codes(CEditAcadEscSeqText()), L"%%c");
    EXPECT_EQ(Codes(member), L"%i%f%m%o%d");
    EXPECT_EQ(Codes(plate), L"%i%l%w%h");
    EXPECT_EQ(Codes(CEditAcadEscSeqSpecProizvStapa()), L"%i%f%m%o%d%a%n%k%l%p%s%h");
    EXPECT_EQ(Codes(CEditEscSeqText(nullptr, 0)), L"");
    member.m_bNoDimensions = plate.m_bNoDimensions = true;
    EXPECT_EQ(Codes(member) + Codes(plate), L"%i%f%m%o%i%h");

    auto& box = Show<CEditAcadEscSeqSpecLima>(0, kButton, true);
    EXPECT_EQ(Choose(-1), L"%i - dimension symbol\n%h - plate thickness\n");
    english.reset();
    box.m_bNoDimensions = false;
    EXPECT_EQ(Choose(-1), L"%i - dimension symbol\n%h - plate thickness\n") << "read once";
    box.UpdateEscSeqList();
    EXPECT_EQ(Choose(-1), L"%i - simbol za kotu\n%l - duzina lima\n%w - sirina lima\n%h - debljina lima\n");
    Show<CEditEscSeqText>();
    owtest::Click(Button());
    EXPECT_EQ(::GetFocus(), Button()) << "an empty list opens no menu";
}

TEST_F(EscSeq, InsertsWhereTheCaretWasAndTellsTwice)
{
    Show();
    EXPECT_EQ(Insert(1), L"%l") << "never focused: at the beginning";
    Enter(2);
    owtest::Type(L"ab");
    owtest::Press(VK_LEFT);
    m_handler.Take();
    EXPECT_EQ(Insert(2), L"%la%wb");
    EXPECT_EQ(m_handler.Take(),
              "leave 1001: %lab; enter 1001: %lab; change 1001: %la%wb; change 1001: %la%wb; ");
    EXPECT_EQ(Insert(3), L"%la%w%hb") << "behind the code before";
    owtest::Type(L"x");
    owtest::Press(VK_LEFT, true); // the caret at the left end of a selection, and then at the right one
    EXPECT_EQ(Insert(0), L"%la%w%h%ixb");
    owtest::Press(VK_RIGHT, true);
    EXPECT_EQ(Insert(0), L"%la%w%h%ix%ib");
    ::SendMessage(Button(), WM_COMMAND, 0xFFFF, 0);
    EXPECT_STREQ(m_box->GetValue(), L"%la%w%h%ix%i%ib") << "a command behind the list: what was chosen last";
}

TEST_F(EscSeq, WorksByKeysAlone)
{
    Show().SetValue(L"ab");
    m_box->SetFocus();
    m_box->SetSel(1, 1);
    owtest::Press(VK_TAB);
    ASSERT_TRUE(owtest::PumpUntil([&] { return ::GetFocus() == Button(); }));
    const auto isDefault = [&] { return ::SendMessage(Button(), WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON; };
    EXPECT_TRUE(isDefault());
    owtest::MenuVisit visit([&](const owtest::OpenMenu& menu) { menu.Press({VK_DOWN, VK_RETURN}); });
    owtest::Press(VK_SPACE);
    EXPECT_STREQ(m_box->GetValue(), L"a%ib");
    EXPECT_EQ(::GetFocus(), m_box->m_hWnd);
    EXPECT_FALSE(isDefault()) << "the default button is where the focus is";
}

TEST_F(EscSeq, FindsItsPlaceInLongTextsAndInManyLines)
{
    Show(ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL);
    for (const CString& strFirst : {CString(L"a long first line\r\nx"), CString(L'-', 70000) + L"\r\n"})
    {
        const int nFirst = strFirst.GetLength();
        m_box->SetValue(strFirst + L"yz");
        Enter(nFirst + 1);
        EXPECT_EQ(Insert(3).Mid(nFirst), L"y%hz");
        Enter(3, TRUE); // out of sight
        EXPECT_EQ(Insert(3).Mid(3, 2), L"%h");
    }
}

TEST_F(EscSeq, NeitherStoresNorOverwritesARefusedText)
{
    auto& box = Show();
    box.SetValue(L"ok");
    box.SetValue(L"no!");
    EXPECT_EQ(TextOf(box), L"ok");
    EXPECT_TRUE(box.IsDataCurrentlyInGUIValid());
    box.SafeSetWindowText(L"shown");
    box.OnTextChosen(kButton, 3);
    EXPECT_STREQ(box.GetValue(), L"%hok") << "what the program showed without storing it does not count";
    Enter(0);
    owtest::Type(L"!");
    box.OnTextChosen(kButton, 1); // without leaving the box
    EXPECT_EQ(TextOf(box), L"%l!%hok");
    EXPECT_STREQ(box.GetValue(), L"%hok");
    EXPECT_FALSE(box.IsDataCurrentlyInGUIValid() || box.ValidateAndStoreDataFromGUI());
    EXPECT_EQ(Insert(1), L"%h%lok") << "leaving the box took the refused text away";
    EXPECT_TRUE(box.ValidateAndStoreDataFromGUI());

    const owtest::SubLanguage greek(LANG_GREEK);
    CEditCtrlAnsiMsgHook hook;
    ASSERT_EQ(hook.HookWindow(&Show()), 1);
    Enter(0);
    owtest::Type(L"abcdef!");
    EXPECT_STREQ(m_box->GetValue(), L"abcdef") << "all of it also under a hook, which hands out the half";
    EXPECT_FALSE(m_box->IsDataCurrentlyInGUIValid());
    m_box->OnTextChosen(kButton, 0);
    EXPECT_EQ(gfnWholeText(*m_box), L"%iabcdef!");
}

TEST_F(EscSeq, IgnoresWhatItCannotInsert)
{
    auto& box = Show();
    box.SetValue(L"ab");
    for (const auto& [nId, nIndex] : {std::pair(kButton, -1), {kButton, 4}, {kNext, 0}})
        box.OnTextChosen(nId, nIndex);
    box.SetReadOnly();
    box.OnTextChosen(kButton, 0);
    EXPECT_EQ(m_handler.Take(), "");
    EXPECT_EQ(TextOf(box), L"ab");
    box.SetReadOnly(FALSE);
    box.SetAnsiInterface(true);
    box.OnTextChosen(kButton, 0);
    EXPECT_EQ(TextOf(box), L"%iab");
    for (const bool bForce : {false, true})
    {
        box.SafeSetWindowText(L"new");
        box.SetValue(L"%iab", bForce);
        EXPECT_EQ(TextOf(box), bForce ? L"%iab" : L"new");
    }
    m_dialog.DestroyWindow();
    box.OnTextChosen(kButton, 0);
    EXPECT_FALSE(box.IsDataCurrentlyInGUIValid() || box.ValidateAndStoreDataFromGUI());
    EXPECT_STREQ(box.GetValue(), L"%iab");
}

TEST_F(EscSeq, EnablesItsButtonWithItselfAndLeavesOthersAlone)
{
    for (const int nButton : {kButton, 0, 1999, kBox})
    {
        auto& box = Show(ES_AUTOHSCROLL | WS_DISABLED, nButton);
        const bool bOwn = nButton == kButton;
        EXPECT_EQ(CWnd::FromHandlePermanent(Button()) != nullptr, bOwn);
        EXPECT_EQ(!::IsWindowEnabled(Button()), bOwn);
        box.EnableWindow();
        EXPECT_TRUE(::IsWindowEnabled(Button()));
        box.UpdateEscSeqList();
        box.OnTextChosen(0, 0);
        Enter(0);
        owtest::Type(L"ab");
        EXPECT_STREQ(box.GetValue(), L"ab");
        box.EnableWindow(FALSE);
        EXPECT_EQ(!::IsWindowEnabled(Button()), bOwn);
    }
}

TEST_F(EscSeq, MayBeMadeByCreateAndMoreThanOnce)
{
    Show(ES_AUTOHSCROLL, 0);
    CEditAcadEscSeqText box(nullptr, kButton);
    box.SetValue(L"ab");
    for (const bool bAgain : {false, true})
    {
        ASSERT_TRUE(box.Create(WS_CHILD | WS_VISIBLE, CRect(0, 150, 90, 170), &m_dialog, 1010));
        if (bAgain)
            box.OnTextChosen(kButton, 0);
        box.SetFocus();
        box.SetSel(2, 2);
        m_dialog.GetDlgItem(kNext)->SetFocus();
        box.DestroyWindow();
    }
    EXPECT_STREQ(box.GetValue(), L"%%cab") << "a new window has had no caret yet";
}
