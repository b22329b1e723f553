// The font group: reports of each control, classes of fonts and the check boxes, no record, windows that come again.

#include "GroupDialog.h"

namespace
{
constexpr WORD idFont = 101, idHeight = 102, idColor = 103, idCheck1 = 104, idCheck2 = 105, idCheck3 = 106,
               idApply = 107, idElsewhere = 108;

class FontGroup : public ::testing::Test, public GroupDialog, public AFontCtrlGroupNotificationHandler
{
protected:
    void SetUp() override
    {
        Reopen();
        ASSERT_GT(Combo().GetCount(), 3);
        record = {FontOfRow(1), 0.0035, 30, 1, 0, 1, eFontTrueType};
        group.SetFontSource(&record);
    }
    void Reopen()
    {
        constexpr DWORD kFontStyle = CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | CBS_SORT;
        owtest::DialogTemplate form(L"Font", 200, 130);
        form.Item(L"COMBOBOX", L"", idFont, kFontStyle | WS_TABSTOP, 4, 4, 120, 90);
        form.Edit(idHeight, 4, 24, 30, 12).Button(L"", idColor, 4, 40, 40, 14);
        for (const WORD id : {idCheck1, idCheck2, idCheck3})
            form.Button(L"", id, 50 * (id - idCheck1), 58, 40, 10, BS_AUTOCHECKBOX);
        ASSERT_TRUE(Open(form.Button(L"Apply", idApply, 4, 100, 40, 16).Edit(idElsewhere, 100, 100, 40, 12)));
        EXPECT_EQ(group.OnInitDialog(), 1);
    }
    void DoDataExchange(CDataExchange* pDX) override { group.DoDataExchange(pDX); }
    void OnFontGroupChanged(CFontCtrlGroup* pGroup, epgFont* pFont) override
    {
        EXPECT_TRUE(pGroup == &group && pFont == &record);
        calls += Text(*pFont);
    }
    void OnFontGroupButton(CFontCtrlGroup* pGroup, epgFont* pFont) override
    {
        calls += "apply ";
        OnFontGroupChanged(pGroup, pFont);
    }
    CComboBox& Combo() { return static_cast<CComboBox&>((*this)[idFont]); }
    CString FontOfRow(int nRow)
    {
        CString strName;
        Combo().GetLBText(nRow, strName);
        return strName;
    }
    /// "F2" for the font of row 2.
    std::string NameOf(const CString& strFont)
    {
        const int nRow = m_hWnd ? Combo().FindStringExact(-1, strFont) : -1;
        return nRow < 0 ? std::string(CStringA(strFont)) : 'F' + std::to_string(nRow);
    }
    /// "name millimetres colour check boxes class"
    std::string Text(const epgFont& font)
    {
        CStringA strText;
        strText.Format("%s %.2f %d %d%d%d %d; ", NameOf(font.strName).c_str(), font.dHeight * 1000,
                       font.nColor, font.nCheck1, font.nCheck2, font.nCheck3, font.eClass);
        return strText.GetString();
    }
    /// What was told since the last time, each with its record; then the font, height, boxes and colour's number seen.
    std::string State() override
    {
        std::string state = std::exchange(calls, {}) + NameOf(owtest::TextOf(Combo()).c_str()) + ' ' +
                            Seen({idHeight, idCheck1, idCheck2, idCheck3});
        for (int id = 11000; id < 11200; ++id)
            if (GetDlgItem(id) && ::iswdigit(owtest::TextOf((*this)[id])[0]))
                state += ' ' + Seen({id});
        return state;
    }
    void Choose(int nRow)
    {
        Combo().SetCurSel(nRow - 1);
        Press(idFont, VK_DOWN);
    }
    /// By the mouse: with the mouse over it, Wine's spin steps down once more 0.3 s after an arrow key.
    void PressSpin()
    {
        const HWND hSpin = ::FindWindowEx(m_hWnd, nullptr, UPDOWN_CLASS, nullptr);
        CRect rect;
        ::GetClientRect(hSpin, rect);
        owtest::Click(hSpin, CPoint(rect.Width() / 2, rect.Height() / 4));
    }
    /// Types a number into the host's dialog, if it opens. Whether it does.
    bool ChooseColor(const wchar_t* pszNumber)
    {
        const owtest::ModalVisit visit([=](CWnd&) { owtest::Type(pszNumber), owtest::Press(VK_RETURN); });
        Click(idColor);
        return visit.Count() == 1;
    }

    CFontCtrlGroup group{idFont, idHeight, idColor, idCheck1, idCheck2, idCheck3, idApply, this};
    epgFont record;
    std::string calls;
};
} // namespace

// Only another class touches the check boxes, and nothing but the user their fields.
TEST_F(FontGroup, StoresEachChangeOfTheUserAndThenTellsIt)
{
    const auto otherClass = [&] { group.OnFontSelected(idFont, L"romans", eFontSHX); };
    Play({
        {[&] { Choose(2); }, "F2 3.50 30 101 0; F2 3.5 1 0 - 30"},
        {[&] { TypeInto(idHeight, L"7"); }, "F2 7 1 0 - 30"},
        {[&] { Click(idElsewhere); }, "F2 7.00 30 101 0; F2 7.0 1 0 - 30"}, // the edit is left
        {[&] { PressSpin(); }, "F2 7.50 30 101 0; F2 7.5 1 0 - 30"},        // at once
        {[&] { Click(idElsewhere); }, "F2 7.50 30 101 0; F2 7.5 1 0 - 30"}, // changed or not
        {[&] { ChooseColor(L"142"); }, "F2 7.50 142 101 0; F2 7.5 1 0 - 142"},
        {[&] { Click(idCheck1); }, "F2 7.50 142 001 0; F2 7.5 0 0 - 142"},
        {[&] { Press(idCheck2, VK_SPACE); }, "F2 7.50 142 011 0; F2 7.5 0 1 - 142"},
        {[&] { Click(idApply); }, "apply F2 7.50 142 011 0; F2 7.5 0 1 - 142"},
        {otherClass, "romans 7.50 142 011 1; F2 7.5 0- 0- - 142"},
        {[&] { group.OnButtonClicked(idCheck3); }, "romans 7.50 142 010 1; F2 7.5 0- 0- - 142"},
        {[&] { Choose(3); }, "F3 7.50 142 010 0; F3 7.5 0 0 - 142"}, // clear all the same
        {[&] { Click(idCheck1); }, "F3 7.50 142 110 0; F3 7.5 1 0 - 142"},
        {[&] { (*this)[idCheck1].EnableWindow(FALSE); }, "F3 7.5 1- 0 - 142"}, // by the dialog itself
        {otherClass, "romans 7.50 142 110 1; F3 7.5 1- 0 - 142"},
        {[&] { group.OnButtonClicked(idElsewhere); }, "F3 7.5 1- 0 - 142"},
    });
    EXPECT_TRUE(owtest::TextOf((*this)[idApply]).empty() && ShowsPicture(idApply)) << "its icon";
    struct FontList : CFontSelectionComboBox
    {
        using CFontSelectionComboBox::s_hIconSHX;
    };
    EXPECT_TRUE(FontList::s_hIconSHX) << "those of the list are loaded";
}

TEST_F(FontGroup, ShowsARecordAndTellsNobody)
{
    EXPECT_EQ(State(), "F1 3.5 1 0 - 30") << "the third never shows";
    EXPECT_EQ(IsDlgButtonChecked(idCheck3), 1u) << "but follows its field";
    const CString strLarge = FontOfRow(2).MakeUpper();
    const std::pair<epgFont, const char*> records[] = {
        {{L"No such font", 0.0125, 7, 0, -1, 1, eFontTrueType}, "F1 12.5 0 1 - 7"}, // the selection stays
        {{strLarge, 0.0004, 7, 1, 1, 1, eFontTrueType}, "F2 1.0 1 1 - 7"},
        {{strLarge, 0.3, 8, 1, 1, 1, eFontSHX}, "F2 20.0 0- 0- - 8"}};
    for (const auto& [record, shown] : records)
    {
        epgFont font = record;
        group.SetFontSource(&font);
        EXPECT_EQ(State(), shown);
        EXPECT_EQ(Text(font), Text(record)) << "not written";
        EXPECT_EQ(IsDlgButtonChecked(idCheck3) == 1, font.nCheck3 && font.eClass == eFontTrueType);
    }
}

TEST_F(FontGroup, WithoutARecordStoresNothingAndCallsNobody)
{
    Play({{[&] { group.SetFontSource(nullptr); }, "F1 3.5 1 0 - 30"},
          {[&] { RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN); },
           "F1 3.5 1 0 - 30"},
          {[&] { EXPECT_FALSE(ChooseColor(L"9")); }, "F1 3.5 1 0 - 30"}, // the button opens nothing
          {[&] { Choose(2); }, "F2 3.5 1 0 - 30"},
          {[&] { TypeInto(idHeight, L"7"); }, "F2 7 1 0 - 30"},
          {[&] { PressSpin(); }, "F2 7.5 1 0 - 30"},
          {[&] { Click(idCheck1); }, "F2 7.5 0 0 - 30"},
          {[&] { group.OnAcadColorChosen(idColor, 9); }, "F2 7.5 0 0 - 30"}});
    EXPECT_EQ(Text(record), "F1 3.50 30 101 0; ");
}

TEST_F(FontGroup, ComesBackWithTheNextWindowAndNeedsNoWindowAndNoHandler)
{
    record.dHeight = 0.00354;
    DestroyWindow();
    group.SetFontSource(&record); // before there are controls
    group.OnFontSelected(idFont, record.strName, eFontTrueType);
    Reopen();
    calls.clear();
    EXPECT_EQ(State(), "F1 3.5 1 0 - 30");
    PressSpin();
    EXPECT_EQ(Text(record), "F1 4.00 30 101 0; ");
    group.SetFontSource(nullptr);
    Reopen();
    EXPECT_EQ(Seen({idCheck1, idCheck2, idCheck3}), "1 0 -") << "without a record, too";

    CFontCtrlGroup lost(idFont, 999, 999, 999, 999, 999, 999, nullptr);
    lost.SetFontSource(&record);
    lost.OnFontSelected(idFont, L"romans", eFontSHX);
    EXPECT_TRUE(lost.OnInitDialog() == 1 && record.eClass == eFontSHX);
}
