// Combo boxes: reports, keys, the width of the list.

#include <DialogControlsOW.h>

#include "DialogTemplate.h"
#include "Input.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

using Calls = std::vector<std::string>;

namespace
{
enum Id : WORD
{
    idBefore = 1001,
    idExt,
    idReflected, ///< with an edit part
    idAfter
};

constexpr wchar_t kLong[] = L"Stahlbetonkonsolen mit hochliegender Last am Rand";

/// Writes down each call as "dropdown 1003"; a selection as "select 1002: 0".
class RecordingHandler : public AExtComboBoxNotificationHandler, public CComboBoxReflectedNotificationHandler
{
public:
    Calls calls;
    Calls Take() { return std::exchange(calls, {}); }

    void OnExtComboBoxSelChanged(int nId, int nSel) override
    {
        Record("select", nId);
        calls.back() += ": " + std::to_string(nSel);
    }
    void ComboBoxReflectedOnEditchange(int nId) override { Record("editchange", nId); }
    void ComboBoxReflectedOnCloseup(int nId) override { Record("closeup", nId); }
    void ComboBoxReflectedOnDblclk(int nId) override { Record("dblclk", nId); }
    void ComboBoxReflectedOnDropdown(int nId) override { Record("dropdown", nId); }
    void ComboBoxReflectedOnEditupdate(int nId) override { Record("editupdate", nId); }
    void ComboBoxReflectedOnErrspace(int nId) override { Record("errspace", nId); }
    void ComboBoxReflectedOnKillfocus(int nId) override { Record("killfocus", nId); }
    void ComboBoxReflectedOnSelchange(int nId) override { Record("selchange", nId); }
    void ComboBoxReflectedOnSelendcancel(int nId) override { Record("selendcancel", nId); }
    void ComboBoxReflectedOnSelendok(int nId) override { Record("selendok", nId); }
    void ComboBoxReflectedOnSetfocus(int nId) override { Record("setfocus", nId); }

private:
    void Record(const char* what, int nId) { calls.push_back(what + (' ' + std::to_string(nId))); }
};

/// Counts how often it is asked for the text of an entry.
class AskedComboBox : public CExtComboBox
{
public:
    using CExtComboBox::CExtComboBox;
    int texts = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        texts += message == CB_GETLBTEXT;
        return CExtComboBox::WindowProc(message, wParam, lParam);
    }
};

class CombosDialog : public CDialog
{
public:
    explicit CombosDialog(RecordingHandler* pHandler) : ext(pHandler), reflected(pHandler) {}

    AskedComboBox ext;
    CComboBoxReflected reflected;
    int oks = 0;
    int cancels = 0;
    int commands = 0; ///< notifications that the combo boxes let through

    bool Open()
    {
        const auto form =
            owtest::DialogTemplate(L"Combos", 160, 100)
                .Edit(idBefore, 4, 4, 60, 12, ES_AUTOHSCROLL | WS_TABSTOP)
                .Item(L"COMBOBOX", L"", idExt, CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, 4, 20, 60, 80)
                .Item(L"COMBOBOX", L"", idReflected, CBS_DROPDOWN | WS_TABSTOP, 4, 40, 60, 80)
                .Edit(idAfter, 4, 60, 60, 12, ES_AUTOHSCROLL | WS_TABSTOP)
                .DefaultButton(L"OK", IDOK, 100, 4, 40, 14);
        return CreateIndirect(form.get()) && owtest::Activate(m_hWnd);
    }
    bool HasFocus(int nId) const
    {
        const CWnd& control = *GetDlgItem(nId);
        return ::GetFocus() == control.m_hWnd || control.IsChild(CWnd::GetFocus());
    }
    void Notify(const CComboBox& combo, int nCode)
    {
        SendMessage(WM_COMMAND, MAKEWPARAM(combo.GetDlgCtrlID(), nCode),
                    reinterpret_cast<LPARAM>(combo.m_hWnd));
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Control(pDX, idExt, ext);
        DDX_Control(pDX, idReflected, reflected);
    }
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        for (const wchar_t* entry : {L"S235", L"S275", L"S355"})
        {
            ext.AddString(entry);
            reflected.AddString(entry);
        }
        ext.SetCurSel(0);
        ShowWindow(SW_SHOW);
        return TRUE;
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        const BOOL handled = CDialog::OnCommand(wParam, lParam);
        const bool bExtPasses = HIWORD(wParam) != CBN_SELCHANGE && HIWORD(wParam) != CBN_DROPDOWN;
        commands += !handled && (LOWORD(wParam) == idReflected || (LOWORD(wParam) == idExt && !bExtPasses));
        return handled;
    }
    void OnOK() override { ++oks; }
    void OnCancel() override { ++cancels; }
};

/// A dialog that implements the interface itself.
class TellingDialog : public CombosDialog, public RecordingHandler
{
public:
    using CombosDialog::CombosDialog;
};

class Combos : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dialog.Open());
        owtest::MoveTo(m_dialog, CPoint(1, 1)); // a list that opens under the mouse takes the row below it
        Enter(idExt);
    }
    void TearDown() override
    {
        EXPECT_EQ(m_dialog.commands, 0) << "the dialog hears of nothing";
        m_dialog.DestroyWindow();
    }
    void Enter(int nId)
    {
        m_dialog.GetDlgItem(nId)->SetFocus();
        ASSERT_TRUE(FocusArrives(nId));
        m_handler.Take();
    }
    bool FocusArrives(int nId)
    {
        return owtest::PumpUntil([&] { return m_dialog.HasFocus(nId); });
    }
    void OpenList()
    {
        owtest::Press(VK_F4);
        ASSERT_TRUE(owtest::PumpUntil([&] { return m_ext.GetDroppedState() != FALSE; }));
    }
    HWND List()
    {
        COMBOBOXINFO info{};
        info.cbSize = sizeof(info);
        m_ext.GetComboBoxInfo(&info);
        return info.hwndList;
    }
    int WidthWantedFor(const wchar_t* pszText)
    {
        CClientDC dc(&m_ext);
        dc.SelectObject(m_ext.GetFont());
        return dc.GetTextExtent(pszText).cx + ::GetSystemMetrics(SM_CXVSCROLL) + dc.GetTextExtent(L"0").cx;
    }

    RecordingHandler m_handler;
    CombosDialog m_dialog{&m_handler};
    AskedComboBox& m_ext = m_dialog.ext;
};
} // namespace

TEST_F(Combos, TabEnterAndEscapeAreThoseOfTheTextBoxesAlsoOverAnOpenList)
{
    m_ext.AddString(L"\tindented"); // which a Tab that comes through as a character would choose
    for (bool bOpen : {false, true})
    {
        for (const auto& [key, bShift, nTarget] : {std::tuple(VK_TAB, false, idReflected),
                                                   {VK_TAB, true, idBefore},
                                                   {VK_RETURN, false, idReflected}})
        {
            Enter(idExt);
            if (bOpen)
                OpenList();
            owtest::Press(static_cast<WORD>(key), bShift);
            EXPECT_TRUE(FocusArrives(nTarget)) << key << ' ' << bOpen;
            EXPECT_FALSE(m_ext.GetDroppedState());
            EXPECT_EQ(m_ext.GetCurSel(), 0);
        }
        Enter(idExt);
        if (bOpen)
            OpenList();
        m_dialog.cancels = 0;
        owtest::Press(VK_ESCAPE);
        EXPECT_TRUE(owtest::PumpUntil([&] { return m_dialog.cancels == 1; }));
        EXPECT_EQ(m_ext.GetDroppedState() != FALSE, bOpen) << "the key is not the list's";
    }
    EXPECT_EQ(m_dialog.oks, 0) << "Enter does not press the default button";
}

TEST_F(Combos, ASelectionIsReportedAtEachStepOfTheKeysAndOnceByMouse)
{
    owtest::Press(VK_DOWN);
    owtest::Press(VK_DOWN);
    owtest::Press(VK_UP);
    EXPECT_EQ(m_handler.Take(), (Calls{"select 1002: 1", "select 1002: 2", "select 1002: 1"}));

    owtest::Click(m_ext);
    owtest::Click(List(), CPoint(10, 2 * m_ext.GetItemHeight(0) + 5));
    EXPECT_EQ(m_handler.Take(), (Calls{"select 1002: 2"}));

    m_ext.SetCurSel(-1);
    EXPECT_EQ(m_handler.Take(), Calls{}) << "the program's own choice is silent";
    m_dialog.Notify(m_ext, CBN_SELCHANGE);
    EXPECT_EQ(m_handler.Take(), Calls{"select 1002: -1"});
}

TEST_F(Combos, TheListGrowsToItsLongestEntryAndNeverShrinks)
{
    CRect control;
    m_ext.GetWindowRect(control);
    OpenList();
    EXPECT_EQ(m_ext.GetDroppedWidth(), control.Width()) << "short entries need no more";
    m_ext.ShowDropDown(FALSE);

    LOGFONT logFont{};
    m_ext.GetFont()->GetLogFont(&logFont);
    logFont.lfHeight *= 2;
    CFont large;
    large.CreateFontIndirect(&logFont);
    m_ext.SetFont(&large);
    m_ext.AddString(kLong);
    m_ext.texts = 0;
    OpenList();
    EXPECT_EQ(m_ext.texts, m_ext.GetCount()) << "each entry is read once";
    CRect list;
    ::GetWindowRect(List(), list);
    EXPECT_EQ(m_ext.GetDroppedWidth(), WidthWantedFor(kLong));
    EXPECT_GE(list.Width(), WidthWantedFor(kLong)) << "the list that opens is the wide one already";
    m_ext.ShowDropDown(FALSE);

    m_ext.ResetContent();
    OpenList();
    EXPECT_EQ(m_ext.GetDroppedWidth(), WidthWantedFor(kLong)) << "it stays, with no entries, too";
    CRect after;
    m_ext.GetWindowRect(after);
    EXPECT_EQ(after.Width(), control.Width());
    m_dialog.DestroyWindow(); // before the font goes
}

TEST_F(Combos, TheReflectedOnePassesOnEachNotification)
{
    const std::pair<int, const char*> notifications[] = {
        {CBN_EDITCHANGE, "editchange 1003"}, {CBN_CLOSEUP, "closeup 1003"},
        {CBN_DBLCLK, "dblclk 1003"},         {CBN_DROPDOWN, "dropdown 1003"},
        {CBN_EDITUPDATE, "editupdate 1003"}, {CBN_ERRSPACE, "errspace 1003"},
        {CBN_KILLFOCUS, "killfocus 1003"},   {CBN_SELCHANGE, "selchange 1003"},
        {CBN_SELENDOK, "selendok 1003"},     {CBN_SELENDCANCEL, "selendcancel 1003"},
        {CBN_SETFOCUS, "setfocus 1003"},
    };
    for (const auto& [nCode, call] : notifications)
    {
        m_dialog.Notify(m_dialog.reflected, nCode);
        EXPECT_EQ(m_handler.Take(), Calls{call});
    }
}

TEST_F(Combos, TheReflectedOneTellsOfTypingAndChoosing)
{
    Enter(idReflected);
    owtest::Type(L"S");
    EXPECT_EQ(m_handler.Take(), (Calls{"editupdate 1003", "editchange 1003"}));
    owtest::Press(VK_F4);
    owtest::Press(VK_DOWN);
    owtest::Press(VK_RETURN);
    const Calls calls = m_handler.Take();
    for (const char* call : {"dropdown 1003", "selchange 1003", "selendok 1003", "closeup 1003"})
        EXPECT_NE(std::find(calls.begin(), calls.end(), call), calls.end()) << call;
}

TEST(ComboHandler, OfTheReflectedOneIsTheParentWhereNoneWasGiven)
{
    RecordingHandler given;
    for (RecordingHandler* pGiven : {static_cast<RecordingHandler*>(nullptr), &given})
    {
        TellingDialog dialog(pGiven);
        ASSERT_TRUE(dialog.Open());
        dialog.Take();
        given.Take();
        dialog.Notify(dialog.reflected, CBN_SELCHANGE);
        if (!pGiven)
            dialog.Notify(dialog.ext, CBN_SELCHANGE); // has only the handler that it was given
        const Calls wanted{"selchange 1003"};
        EXPECT_EQ(dialog.Take(), pGiven ? Calls{} : wanted);
        EXPECT_EQ(given.Take(), pGiven ? wanted : Calls{}) << "a handler that was given takes precedence";
        dialog.DestroyWindow();
    }

    CombosDialog silent(nullptr);
    ASSERT_TRUE(silent.Open());
    silent.Notify(silent.reflected, CBN_SELCHANGE);
    EXPECT_EQ(silent.commands, 0);
    silent.DestroyWindow();
}
