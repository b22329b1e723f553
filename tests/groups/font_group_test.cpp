// The font group: reports of each control, classes of fonts and the check boxes, no record, windows that come again.

#include "GroupDialog.h"

#include "ModalVisit.h"

#include <cmath>
#include <set>

namespace
{
constexpr WORD idFont = 101, idHeight = 102, idColor = 103, idCheck1 = 104, idCheck2 = 105, idCheck3 = 106,
               idApply = 107, idElsewhere = 108;
using Calls = std::vector<std::wstring>;

/// "name, millimetres, colour, check boxes, class"
std::wstring Text(const epgFont& font)
{
    CString strText;
    strText.Format(L"%s, %.2f, %d, %d%d%d, %d", font.strName.GetString(), font.dHeight * 1000, font.nColor,
                   font.nCheck1, font.nCheck2, font.nCheck3, font.eClass);
    return strText.GetString();
}

class FontDialog : public GroupDialog, public AFontCtrlGroupNotificationHandler
{
public:
    CFontCtrlGroup group{idFont, idHeight, idColor, idCheck1, idCheck2, idCheck3, idApply, this};
    epgFont record;
    Calls calls; ///< the record at each, with "apply" in front for the button
    Calls Take() { return std::exchange(calls, {}); }

    bool Open()
    {
        constexpr DWORD kFontStyle = CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | CBS_SORT;
        owtest::DialogTemplate form(L"Font", 200, 130);
        form.Item(L"COMBOBOX", L"", idFont, kFontStyle | WS_TABSTOP, 4, 4, 120, 90)
            .Edit(idHeight, 4, 24, 30, 12);
        form.Item(L"BUTTON", L"", idColor, WS_TABSTOP, 4, 40, 40, 14);
        for (const WORD id : {idCheck1, idCheck2, idCheck3})
            form.Item(L"BUTTON", L"x", id, BS_AUTOCHECKBOX | WS_TABSTOP, 4, 58 + 12 * (id - idCheck1), 40,
                      10);
        form.Button(L"Apply", idApply, 4, 100, 40, 16).Edit(idElsewhere, 100, 100, 40, 12);
        return GroupDialog::Open(form);
    }
    CComboBox& Combo() { return static_cast<CComboBox&>((*this)[idFont]); }
    std::wstring FontOfRow(int nRow)
    {
        CString strName;
        Combo().GetLBText(nRow, strName);
        return strName.GetString();
    }
    /// The user chooses a row by keys.
    void Choose(int nRow)
    {
        Combo().SetCurSel(nRow - 1);
        Press(idFont, VK_DOWN);
    }
    void TypeHeight(const wchar_t* pszText)
    {
        TypeInto(idHeight, pszText);
        Click(idElsewhere);
    }
    void PressSpin(bool bUp)
    {
        const HWND hSpin = ::FindWindowEx(m_hWnd, nullptr, UPDOWN_CLASS, nullptr);
        CRect rect;
        ::GetClientRect(hSpin, rect);
        owtest::Click(hSpin, CPoint(rect.Width() / 2, rect.Height() * (bUp ? 1 : 3) / 4));
    }
    /// Whether the host's dialog opens; the colour is typed into it.
    bool ChooseColor(const wchar_t* pszNumber)
    {
        const owtest::ModalVisit visit([=](CWnd&) { owtest::Type(pszNumber), owtest::Press(VK_RETURN); });
        Click(idColor);
        return visit.Count() == 1;
    }
    /// What the visible check boxes show, each with a sign: whether it is enabled.
    std::string Boxes()
    {
        std::string text;
        for (const int id : {idCheck1, idCheck2, idCheck3})
            if ((*this)[id].IsWindowVisible())
                text += std::to_string(IsDlgButtonChecked(id)) + ((*this)[id].IsWindowEnabled() ? "+" : "-");
        return text;
    }
    /// "font, height, colour's number"
    std::wstring Seen()
    {
        std::wstring number;
        for (int id = 11000; id < 11200; ++id)
            if (CWnd* pOwn = GetDlgItem(id); pOwn && ::iswdigit(owtest::TextOf(*pOwn)[0]))
                number = owtest::TextOf(*pOwn);
        return TextOf(idFont) + L", " + TextOf(idHeight) + L", " + number;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override { group.DoDataExchange(pDX); }
    BOOL OnInitDialog() override { return CDialog::OnInitDialog() && group.OnInitDialog() == 1; }
    void OnFontGroupChanged(CFontCtrlGroup* pGroup, epgFont* pFont) override { Note(L"", pGroup, pFont); }
    void OnFontGroupButton(CFontCtrlGroup* pGroup, epgFont* pFont) override
    {
        Note(L"apply ", pGroup, pFont);
    }

private:
    void Note(const std::wstring& what, CFontCtrlGroup* pGroup, epgFont* pFont)
    {
        EXPECT_TRUE(pGroup == &group && pFont == &record);
        calls.push_back(what + Text(*pFont));
    }
};

class FontGroup : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dialog.Open());
        ASSERT_GT(dialog.Combo().GetCount(), 3);
        record = expected = {dialog.FontOfRow(1).c_str(), 0.0035, 30, 1, 0, 1, eFontTrueType};
        group.SetFontSource(&record);
    }
    /// Expects that only this has changed in the record since the last time, and that it was told once.
    template <class Value>
    void ExpectChange(Value epgFont::*field, Value value)
    {
        expected.*field = value;
        EXPECT_EQ(dialog.Take(), Calls{Text(expected)});
    }

    FontDialog dialog;
    CFontCtrlGroup& group = dialog.group;
    epgFont& record = dialog.record;
    epgFont expected; ///< what the record should hold
};
} // namespace

TEST_F(FontGroup, StoresEachChangeOfTheUserAndThenTellsIt)
{
    dialog.Choose(2);
    ExpectChange(&epgFont::strName, CString(dialog.FontOfRow(2).c_str()));
    dialog.TypeHeight(L"7");
    ExpectChange(&epgFont::dHeight, 0.007); // not before the edit is left
    dialog.PressSpin(true);
    ExpectChange(&epgFont::dHeight, 0.0075); // at once
    dialog.Press(idHeight, VK_DOWN);
    ExpectChange(&epgFont::dHeight, 0.007);
    dialog[idColor].SetFocus();
    dialog.Take(); // the edit is left
    EXPECT_TRUE(dialog.ChooseColor(L"142"));
    ExpectChange(&epgFont::nColor, 142);
    dialog.Click(idCheck1);
    ExpectChange(&epgFont::nCheck1, 0);
    dialog.Press(idCheck2, VK_SPACE);
    ExpectChange(&epgFont::nCheck2, 1);
    dialog[idCheck3].SendMessage(BM_SETCHECK, 0);
    group.OnButtonClicked(idCheck3); // it never shows, and works
    ExpectChange(&epgFont::nCheck3, 0);
    EXPECT_EQ(dialog.Seen(), dialog.FontOfRow(2) + L", 7.0, 142");
    dialog.Click(idApply);
    EXPECT_EQ(dialog.Take(), Calls{L"apply " + Text(expected)}) << "nothing is stored";
    EXPECT_EQ(dialog.TextOf(idApply), L"") << "an icon in place of the text";

    group.OnFontSelected(idElsewhere, L"x", eFontSHX);
    group.OnEditNKillFocus(idElsewhere);
    group.OnAcadColorChosen(idElsewhere, 1);
    group.OnButtonClicked(idElsewhere);
    EXPECT_EQ(dialog.Take(), Calls{});
    EXPECT_EQ(Text(record), Text(expected));
}

TEST_F(FontGroup, ShowsARecordAndTellsNobody)
{
    EXPECT_EQ(dialog.Seen(), dialog.FontOfRow(1) + L", 3.5, 30");
    EXPECT_EQ(dialog.Boxes(), "1+0+") << "the third never shows";
    EXPECT_EQ(dialog.IsDlgButtonChecked(idCheck3), 1u) << "but follows its field";
    epgFont other{L"No such font", 0.0125, 7, 0, -1, 1, eFontTrueType};
    group.SetFontSource(&other);
    EXPECT_EQ(dialog.Seen(), dialog.FontOfRow(1) + L", 12.5, 7") << "the selection stays";
    EXPECT_EQ(dialog.Boxes(), "0+1+");
    EXPECT_EQ(Text(other), L"No such font, 12.50, 7, 0-11, 0");
    other.strName = CString(dialog.FontOfRow(2).c_str()).MakeUpper();
    for (const auto& [dHeight, seen] : {std::pair(0.0004, L"1.0"), {0.3, L"20.0"}, {NAN, L"nan"}})
    {
        other.dHeight = dHeight;
        group.SetFontSource(&other);
        EXPECT_EQ(dialog.Seen(), dialog.FontOfRow(2) + L", " + seen + L", 7");
    }
    EXPECT_TRUE(std::isnan(other.dHeight)) << "not written";
    EXPECT_EQ(dialog.Take(), Calls{});
}

TEST_F(FontGroup, KeepsATypedHeightWithinTheLimits)
{
    for (const auto& [pszText, dHeight] :
         {std::pair(L"0.4", 0.001), {L"99", 0.02}, {L"x", 0.02}, {L"2.25", 0.00225}})
    {
        dialog.TypeHeight(pszText);
        EXPECT_DOUBLE_EQ(record.dHeight, dHeight) << pszText;
        EXPECT_EQ(dialog.Take().size(), 1u) << "each time the edit is left";
    }
    dialog.TypeHeight(L"19.8");
    dialog.PressSpin(true);
    dialog.PressSpin(true); // at the end of the range
    EXPECT_DOUBLE_EQ(record.dHeight, 0.02);
    dialog.PressSpin(false);
    EXPECT_DOUBLE_EQ(record.dHeight, 0.0195);
}

TEST_F(FontGroup, OnlyAnotherClassTouchesTheCheckBoxesAndNeverTheirFields)
{
    dialog.Choose(2);
    EXPECT_EQ(dialog.Boxes(), "1+0+") << "the same class";
    group.OnFontSelected(idFont, L"romans", eFontSHX);
    EXPECT_EQ(dialog.Boxes(), "0-0-");
    EXPECT_EQ(Text(record), L"romans, 3.50, 30, 101, 1");
    dialog.Click(idCheck1);
    dialog.Choose(3);
    EXPECT_EQ(dialog.Boxes(), "0+0+") << "clear, whatever the record says";
    EXPECT_EQ(Text(record), dialog.FontOfRow(3) + L", 3.50, 30, 101, 0");
    dialog.Click(idCheck2);
    EXPECT_EQ(record.nCheck2, 1);

    record.eClass = eFontSHX;
    group.SetFontSource(&record);
    EXPECT_EQ(dialog.Boxes(), "0-0-");
    EXPECT_FALSE(dialog[idCheck3].IsWindowEnabled());
    EXPECT_EQ(dialog.IsDlgButtonChecked(idCheck3), 0u);
    EXPECT_EQ(record.nCheck1 + record.nCheck2 + record.nCheck3, 3);
}

TEST_F(FontGroup, WithoutARecordStoresNothingAndCallsNobody)
{
    const std::wstring before = Text(record), seen = dialog.Seen();
    group.SetFontSource(nullptr);
    EXPECT_EQ(dialog.Seen(), seen);
    dialog.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    EXPECT_FALSE(dialog.ChooseColor(L"9")) << "the button opens nothing";
    dialog.Choose(2);
    dialog.TypeHeight(L"7");
    dialog.PressSpin(true);
    for (const int id : {idCheck1, idCheck2, idApply})
        dialog.Click(id);
    group.OnAcadColorChosen(idColor, 9);
    EXPECT_EQ(Text(record), before);
    EXPECT_EQ(dialog.Take(), Calls{});
    EXPECT_EQ(dialog.Boxes(), "0+1+") << "the controls work";
}

TEST_F(FontGroup, ComesBackWithTheNextWindow)
{
    record.dHeight = 0.00354;
    dialog.DestroyWindow();
    group.SetFontSource(&record); // before there are controls
    group.OnFontSelected(idFont, record.strName, eFontTrueType);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(dialog.Seen(), dialog.FontOfRow(1) + L", 3.5, 30");
    EXPECT_EQ(dialog.Boxes(), "1+0+");
    dialog.PressSpin(true);
    EXPECT_EQ(Text(record), dialog.FontOfRow(1) + L", 4.00, 30, 101, 0");
    dialog.Press(idCheck2, VK_TAB);
    group.SetFontSource(nullptr);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(dialog.Boxes(), "1+0+") << "the third never shows, without a record, too";
    EXPECT_FALSE(dialog[idApply].SendMessage(WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON) << "it begins anew";
}

TEST_F(FontGroup, NeedsItsControlsAndNoHandler)
{
    CDataExchange exchange(&dialog, FALSE);
    CFontCtrlGroup lost(idElsewhere, 999, 999, 999, 999, 999, 999, nullptr);
    EXPECT_THROW(lost.DoDataExchange(&exchange), CNotSupportedException*);
    lost.SetFontSource(&record);
    lost.OnFontSelected(idElsewhere, L"romans", eFontSHX);
    lost.OnButtonClicked(999);
    EXPECT_EQ(record.eClass, eFontSHX);
    EXPECT_EQ(lost.OnInitDialog(), 1);

    struct CDerived : CFontCtrlGroup
    {
        using CFontCtrlGroup::CFontCtrlGroup;
        void OnEditNKillFocus(int nId) override { nLeft = nId; }
        int nLeft = 0;
    } derived(1, 2, 3, 4, 5, 6, 7, nullptr);
    derived.OnEditDWRSpinDeltaPos(2);
    EXPECT_EQ(derived.nLeft, 2) << "a spin is a leaving, for derived classes as well";
}

TEST(FontGroupIds, TwoOfThreeComeBack)
{
    ResourceIdPool& pool = ResourceIdPool::Object();
    unsigned int ids[3];
    for (unsigned int& id : ids)
        id = pool.AcquireId();
    for (const int i : {2, 1, 0}) // the first is on top again
        pool.ReleaseId(ids[i]);
    CFontCtrlGroup(1, 2, 3, 4, 5, 6, 7, nullptr);
    const unsigned int next[] = {pool.AcquireId(), pool.AcquireId(), pool.AcquireId()};
    EXPECT_EQ(std::set(next, next + 2), std::set(ids, ids + 2)) << "those of the spin and the unit";
    EXPECT_NE(next[2], ids[2]) << "that of the colour's number is gone for good";
    for (const unsigned int id : next)
        pool.ReleaseId(id);
}
