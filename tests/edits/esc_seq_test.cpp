// Boxes for label templates: what their buttons offer, where a code is inserted, what is told and stored.

#include "EditsDialog.h"

#include "DialogTemplate.h"
#include "MenuVisit.h"

#include <Translator.h>

#include <memory>

namespace
{
enum
{
    IDC_BOX = 1001,
    IDC_INSERT,
    IDC_NEXT
};

/// Refuses texts with a "!".
class StrictBox : public CEditAcadEscSeqSpecLima
{
public:
    using CEditAcadEscSeqSpecLima::CEditAcadEscSeqSpecLima;
    bool IsTextValid(const CString& strText) const override { return strText.Find(L'!') < 0; }
};

/// A box, its button, and a plain box behind them.
class EscSeq : public ::testing::Test
{
protected:
    EscSeq()
    {
        m_handler.look = [this] { return ": " + std::string(CStringA(m_box->GetValue())); };
    }
    ~EscSeq() override { m_dialog.DestroyWindow(); }

    template <class Box>
    Box& Show(DWORD dwStyle = ES_AUTOHSCROLL, int nButton = IDC_INSERT,
              const std::function<void(Box&)>& prepare = {})
    {
        auto box = std::make_unique<Box>(&m_handler, nButton);
        Box& shown = *box;
        if (prepare)
            prepare(shown);
        m_dialog.DestroyWindow();
        m_box = std::move(box);
        const auto form = owtest::DialogTemplate(L"Labels", 160, 90)
                              .Edit(IDC_BOX, 4, 4, 80, 40, dwStyle)
                              .Button(L"Insert", IDC_INSERT, 90, 4, 50, 14)
                              .Edit(IDC_NEXT, 4, 50, 80, 14);
        EXPECT_TRUE(m_dialog.CreateIndirect(form.get(), nullptr));
        EXPECT_TRUE(m_box->SubclassDlgItem(IDC_BOX, &m_dialog));
        m_dialog.ShowWindow(SW_SHOW);
        EXPECT_TRUE(owtest::Activate(m_dialog));
        m_dialog.GetDlgItem(IDC_NEXT)->SetFocus();
        m_handler.Take();
        return shown;
    }
    HWND Button() { return m_dialog.GetDlgItem(IDC_INSERT)->m_hWnd; }
    void Enter()
    {
        owtest::Click(*m_box, CPoint(40, 8));
        EXPECT_TRUE(owtest::PumpUntil([&] { return ::GetFocus() == m_box->m_hWnd; }));
    }
    /// Chooses from the menu of the button with the mouse.
    void Insert(int nItem)
    {
        owtest::MenuVisit visit([&](const owtest::OpenMenu& menu) { menu.Click(nItem); });
        owtest::Click(Button());
        EXPECT_EQ(visit.Count(), 1);
        EXPECT_EQ(::GetFocus(), m_box->m_hWnd);
    }
    std::wstring Menu()
    {
        std::wstring labels;
        owtest::MenuVisit visit(
            [&](const owtest::OpenMenu& menu)
            {
                for (int i = 0; i < menu.Count(); ++i)
                    labels += menu.Text(i) + L'\n';
                menu.Press(VK_ESCAPE);
            });
        owtest::Click(Button());
        return labels;
    }
    std::wstring Text() { return owtest::TextOf(*m_box); }

    RecordingHandler m_handler;
    std::unique_ptr<CEditEscSeqText> m_box;
    CDialog m_dialog;
};

std::wstring Codes(const CEditEscSeqText& box)
{
    OCArray<CString> codes, descriptions;
    codes.Add(L"old");
    descriptions.Add(L"old");
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

// ---- What is offered --------------------------------------------------------------------------------------

TEST_F(EscSeq, EachKindOffersItsSequencesInTheLanguageOfTheProgram)
{
    ASSERT_TRUE(gOtLang.Load(L"locale\\en.po"));
    CEditAcadEscSeqSpecStapa member;
    CEditAcadEscSeqSpecLima plate;
    EXPECT_EQ(Codes(CEditAcadEscSeqText()), L"%%c");
    EXPECT_EQ(Codes(member), L"%i%f%m%o%d");
    EXPECT_EQ(Codes(plate), L"%i%l%w%h");
    EXPECT_EQ(Codes(CEditAcadEscSeqSpecProizvStapa()), L"%i%f%m%o%d%a%n%k%l%p%s%h");
    EXPECT_EQ(Codes(CEditEscSeqText(nullptr, 0)), L"");
    member.m_bNoDimensions = plate.m_bNoDimensions = true;
    EXPECT_EQ(Codes(member), L"%i%f%m%o");
    EXPECT_EQ(Codes(plate), L"%i%h");

    auto& box = Show<CEditAcadEscSeqSpecLima>(0, IDC_INSERT, [](auto& lima) { lima.m_bNoDimensions = true; });
    EXPECT_EQ(Menu(), L"%i - dimension symbol\n%h - plate thickness\n");
    gOtLang.Unload();
    box.m_bNoDimensions = false;
    EXPECT_EQ(Menu(), L"%i - dimension symbol\n%h - plate thickness\n") << "read once";
    box.UpdateEscSeqList();
    EXPECT_EQ(Menu(), L"%i - simbol za kotu\n%l - duzina lima\n%w - sirina lima\n%h - debljina lima\n");
    Show<CEditEscSeqText>();
    owtest::Click(Button());
    EXPECT_EQ(::GetFocus(), Button()) << "an empty list opens no menu";
}

// ---- Insertion --------------------------------------------------------------------------------------------

TEST_F(EscSeq, InsertsWhereTheCaretWasAndTellsTwice)
{
    Show<CEditAcadEscSeqSpecLima>();
    Insert(1);
    EXPECT_EQ(Text(), L"%l") << "never focused: at the beginning";
    Enter();
    owtest::Type(L"ab");
    owtest::Press(VK_LEFT);
    m_handler.Take();
    Insert(2);
    EXPECT_EQ(m_handler.Take(),
              (Calls{"leave 1001: %lab", "enter 1001: %lab", "change 1001: %la%wb", "change 1001: %la%wb"}));
    EXPECT_TRUE(m_box->HasChangedSinceLastSetFocus());
    Insert(3);
    owtest::Type(L"x");
    EXPECT_EQ(Text(), L"%la%w%hxb") << "behind the code before";
    EXPECT_STREQ(m_box->GetValue(), L"%la%w%hxb");

    owtest::Press(VK_LEFT, true); // the caret at the left end of the selection, then at the right one
    Insert(0);
    EXPECT_EQ(Text(), L"%la%w%h%ixb");
    owtest::Press(VK_RIGHT, true);
    Insert(0);
    EXPECT_EQ(Text(), L"%la%w%h%ix%ib");
}

TEST_F(EscSeq, WorksByKeysAlone)
{
    Show<CEditAcadEscSeqSpecLima>();
    Enter();
    owtest::Type(L"ab");
    for (const WORD last : {VK_ESCAPE, VK_RETURN})
    {
        owtest::MenuVisit visit(
            [&](const owtest::OpenMenu& menu)
            {
                menu.Press(VK_DOWN);
                menu.Press(last);
            });
        m_box->SetFocus();
        m_box->SetSel(1, 1);
        owtest::Press(VK_TAB);
        ASSERT_TRUE(owtest::PumpUntil([&] { return ::GetFocus() == Button(); }));
        owtest::Press(VK_SPACE);
        EXPECT_EQ(Text(), last == VK_ESCAPE ? L"ab" : L"a%ib");
        EXPECT_EQ(::GetFocus(), last == VK_ESCAPE ? Button() : m_box->m_hWnd);
        EXPECT_EQ((::SendMessage(Button(), WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0, last == VK_ESCAPE)
            << "the mark of the default button goes with the focus";
    }
}

TEST_F(EscSeq, FindsItsPlaceInLongAndInManyLines)
{
    Show<CEditAcadEscSeqSpecLima>(ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL);
    m_box->SetLimitText(200000);
    for (const CString& strFirst : {CString(L"a long first line\r\nx"), CString(L'-', 70000) + L"\r\n"})
    {
        m_box->SetValue(strFirst + L"yz");
        Enter();
        const int nPlace = strFirst.GetLength() + 1;
        m_box->SetSel(nPlace, nPlace);
        Insert(3);
        EXPECT_STREQ(m_box->GetValue().Mid(strFirst.GetLength()), L"y%hz");
        m_box->SetSel(3, 3, TRUE); // the caret is out of sight
        Insert(3);
        EXPECT_STREQ(m_box->GetValue().Mid(3, 2), L"%h");
    }
}

TEST_F(EscSeq, ARefusedTextIsNotStoredAndNotOverwritten)
{
    auto& box = Show<StrictBox>();
    box.SetValue(L"ok");
    box.SetValue(L"no!");
    EXPECT_EQ(Text(), L"ok");
    Enter();
    owtest::Type(L"!");
    EXPECT_FALSE(box.IsDataCurrentlyInGUIValid());
    box.OnTextChosen(IDC_INSERT, 1); // without leaving the box
    EXPECT_EQ(Text(), L"%lok!");
    EXPECT_STREQ(box.GetValue(), L"ok");
    Insert(1);
    EXPECT_EQ(Text(), L"ok%l") << "leaving the box took the refused text away";
    box.SafeSetWindowText(L"shown");
    box.OnTextChosen(IDC_INSERT, 3);
    EXPECT_EQ(Text(), L"ok%h%l") << "what the program showed without storing it does not count";
}

TEST_F(EscSeq, IgnoresWhatItCannotInsert)
{
    auto& box = Show<CEditAcadEscSeqSpecLima>();
    box.SetValue(L"ab");
    for (const auto& [nId, nIndex] :
         {std::pair<int, int>(IDC_INSERT, -1), {IDC_INSERT, 4}, {IDC_NEXT, 0}, {0, 0}})
        box.OnTextChosen(nId, nIndex);
    box.SetReadOnly();
    box.OnTextChosen(IDC_INSERT, 0);
    EXPECT_EQ(m_handler.Take(), Calls{});
    EXPECT_EQ(Text(), L"ab");
    box.SetReadOnly(FALSE);
    box.SetAnsiInterface(true);
    box.OnTextChosen(IDC_INSERT, 0);
    EXPECT_EQ(Text(), L"%iab");

    m_dialog.DestroyWindow();
    box.OnTextChosen(IDC_INSERT, 0);
    EXPECT_FALSE(box.IsDataCurrentlyInGUIValid());
    EXPECT_FALSE(box.ValidateAndStoreDataFromGUI());
    EXPECT_STREQ(box.GetValue(), L"%iab");
}

// ---- The box and its button -------------------------------------------------------------------------------

TEST_F(EscSeq, TheButtonIsEnabledWithItsBox)
{
    auto& box = Show<CEditAcadEscSeqText>(WS_DISABLED);
    EXPECT_FALSE(::IsWindowEnabled(Button()));
    box.EnableWindow();
    EXPECT_TRUE(::IsWindowEnabled(Button()));
    box.EnableWindow(FALSE);
    EXPECT_FALSE(::IsWindowEnabled(Button()));
}

TEST_F(EscSeq, WithoutAButtonItIsAPlainBox)
{
    for (const int nButton : {0, 1999, static_cast<int>(IDC_BOX)})
    {
        auto& box = Show<CEditAcadEscSeqText>(ES_AUTOHSCROLL, nButton);
        EXPECT_EQ(CWnd::FromHandlePermanent(Button()), nullptr);
        Enter();
        owtest::Type(L"ab");
        EXPECT_STREQ(box.GetValue(), L"ab");
        box.EnableWindow(FALSE);
        EXPECT_TRUE(::IsWindowEnabled(Button()));
    }
}

TEST_F(EscSeq, MayBeMadeByCreateAndMoreThanOnce)
{
    Show<CEditAcadEscSeqText>(ES_AUTOHSCROLL, 0);
    CEditAcadEscSeqText box(nullptr, IDC_INSERT);
    box.SetValue(L"ab");
    for (int i = 0; i < 2; ++i)
    {
        ASSERT_TRUE(box.Create(WS_CHILD | WS_VISIBLE, CRect(0, 150, 90, 170), &m_dialog, 1010));
        EXPECT_EQ(owtest::TextOf(box), L"ab");
        box.SetFocus();
        box.SetSel(2, 2);
        if (i == 0)
            m_dialog.GetDlgItem(IDC_NEXT)->SetFocus();
        else
            box.OnTextChosen(IDC_INSERT, 0);
        EXPECT_STREQ(box.GetValue(), i == 0 ? L"ab" : L"%%cab") << "a new window has had no caret yet";
        box.DestroyWindow();
    }
}
