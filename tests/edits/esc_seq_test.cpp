// Boxes for label templates: what their buttons offer, where a code is inserted, what is told and stored.

#include "Boxes.h"

namespace
{
/// Refuses texts with a "!".
struct StrictBox : CEditAcadEscSeqSpecLima
{
    using CEditAcadEscSeqSpecLima::CEditAcadEscSeqSpecLima;
    bool IsTextValid(const CString& strText) const override { return strText.Find(L'!') < 0; }
};

/// A box in front of its button; another one has the focus.
struct EscSeq : Boxes
{
    template <class Box = StrictBox>
    Box& Show(DWORD dwStyle = ES_AUTOHSCROLL, int nButton = kInsert)
    {
        dialog.DestroyWindow();
        m_box = std::make_unique<Box>(&handler, nButton);
        EXPECT_TRUE(dialog.Open());
        m_box->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | dwStyle, CRect(210, 90, 300, 150), &dialog, kFree);
        m_box->SetWindowPos(dialog.GetDlgItem(kGivenUnit), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        handler.Take();
        handler.look = [this] { return ": " + std::string(CStringA(m_box->GetValue())); };
        return static_cast<Box&>(*m_box);
    }
    HWND Button() { return dialog.GetDlgItem(kInsert)->m_hWnd; }
    /// Goes to the box by a click, and then to a place in it.
    void Enter(int nPlace, BOOL bNoScroll = FALSE)
    {
        owtest::Click(*m_box, CPoint(40, 8));
        EXPECT_TRUE(HasFocus(*m_box));
        m_box->SetSel(nPlace, nPlace, bNoScroll);
        handler.Take();
    }
    /// Chooses from the menu of the button with the mouse, or closes it for -1; its labels.
    std::wstring Choose(int nItem)
    {
        std::wstring labels;
        const auto choose = [&](const owtest::OpenMenu& menu)
        {
            for (const std::wstring& label : menu.Labels())
                labels += label + L'\n';
            nItem < 0 ? menu.Press({VK_ESCAPE}) : menu.Click(nItem);
        };
        owtest::MenuVisit visit(choose);
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
    static std::wstring Codes(const CEditEscSeqText& box)
    {
        OCArray<CString> codes, descriptions;
        codes.Add(L"old");
        std::wstring line;
        for (int i = 0, nCount = box.EnumEscSeq(codes, descriptions); i < nCount; ++i)
            line += codes[i] + (gOtLang.Has(descriptions[i]) ? L"" : L" has no words in English ");
        return line;
    }

    std::unique_ptr<CEditEscSeqText> m_box;
};
} // namespace

TEST_F(EscSeq, EachKindOffersItsSequencesInTheLanguageOfTheProgram)
{
    std::optional<owtest::EnglishTexts> english(std::in_place);
    CEditAcadEscSeqSpecStapa member;
    CEditAcadEscSeqSpecLima plate;
    EXPECT_EQ(Codes(CEditAcadEscSeqText()) + L' ' + Codes(member) + L' ' + Codes(plate),
              L"%%c %i%f%m%o%d %i%l%w%h");
    EXPECT_EQ(Codes(CEditAcadEscSeqSpecProizvStapa()), L"%i%f%m%o%d%a%n%k%l%p%s%h");
    member.m_bNoDimensions = plate.m_bNoDimensions = true;
    EXPECT_EQ(Codes(member) + Codes(plate), L"%i%f%m%o%i%h");

    auto& box = Show<CEditAcadEscSeqText>();
    english.reset();
    EXPECT_EQ(Choose(-1), L"%%c - diameter mark\n") << "read once";
    box.UpdateEscSeqList();
    EXPECT_EQ(Choose(-1), L"%%c - oznaka za fi\n");
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
    handler.Take();
    EXPECT_EQ(Insert(2), L"%la%wb");
    EXPECT_EQ(handler.Take(),
              "leave 1010: %lab; enter 1010: %lab; change 1010: %la%wb; change 1010: %la%wb; ");
    EXPECT_EQ(Insert(3), L"%la%w%hb") << "behind the code before";
    owtest::Type(L"x");
    owtest::Press(VK_LEFT, true); // the caret at the left end of a selection, and then at the right one
    EXPECT_EQ(Insert(0), L"%la%w%h%ixb");
    owtest::Press(VK_RIGHT, true);
    dialog.GotoDlgCtrl(CWnd::FromHandle(Button())); // makes it the default button
    m_box->OnTextChosen(kInsert, 0);
    EXPECT_EQ(TextOf(*m_box), L"%la%w%h%ix%ib");
    EXPECT_TRUE(::SendMessage(Button(), WM_GETDLGCODE, 0, 0) & DLGC_UNDEFPUSHBUTTON);
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

TEST_F(EscSeq, NeitherStoresNorOverwritesARefusedTextAndIgnoresWhatItCannotInsert)
{
    auto& box = Show();
    box.SetValue(L"ok");
    box.SetValue(L"no!");
    EXPECT_TRUE(TextOf(box) == L"ok" && box.IsDataCurrentlyInGUIValid());
    box.SafeSetWindowText(L"shown");
    box.OnTextChosen(kInsert, 3);
    EXPECT_STREQ(box.GetValue(), L"%hok") << "what the program showed without storing it does not count";
    Enter(0);
    owtest::Type(L"!");
    box.OnTextChosen(kInsert, 1); // without leaving the box
    EXPECT_EQ(TextOf(box), L"%l!%hok");
    EXPECT_STREQ(box.GetValue(), L"%hok");
    EXPECT_FALSE(box.IsDataCurrentlyInGUIValid() || box.ValidateAndStoreDataFromGUI());
    EXPECT_EQ(Insert(1), L"%h%lok") << "leaving the box took the refused text away";

    auto& other = Show();
    other.SetValue(L"ab");
    for (const auto& [nId, nIndex] : {std::pair(kInsert, -1), {kInsert, 4}, {kPlain, 0}})
        other.OnTextChosen(nId, nIndex);
    other.SetReadOnly();
    other.OnTextChosen(kInsert, 0);
    EXPECT_TRUE(handler.Take().empty() && TextOf(other) == L"ab");
    other.SetReadOnly(FALSE);
    other.OnTextChosen(kInsert, 0);
    EXPECT_EQ(TextOf(other), L"%iab");
    other.SafeSetWindowText(L"new");
    other.SetValue(L"%iab");
    EXPECT_EQ(TextOf(other), L"new");
    other.SetValue(L"%iab", true);
    EXPECT_EQ(TextOf(other), L"%iab");
    dialog.DestroyWindow();
    other.OnTextChosen(kInsert, 0);
    EXPECT_FALSE(other.IsDataCurrentlyInGUIValid() || other.ValidateAndStoreDataFromGUI());
}

TEST_F(EscSeq, EnablesItsButtonWithItselfAndLeavesOthersAlone)
{
    for (const int nButton : {int(kInsert), 0, 1999, int(kFree)})
    {
        auto& box = Show(ES_AUTOHSCROLL | WS_DISABLED, nButton);
        const bool bOwn = nButton == kInsert;
        EXPECT_EQ(CWnd::FromHandlePermanent(Button()) != nullptr, bOwn);
        EXPECT_EQ(!::IsWindowEnabled(Button()), bOwn);
        box.EnableWindow();
        EXPECT_TRUE(::IsWindowEnabled(Button()));
        box.UpdateEscSeqList();
        box.OnTextChosen(0, 0);
        EXPECT_STREQ(box.GetValue(), L"") << "no button inserts anything";
    }
}
