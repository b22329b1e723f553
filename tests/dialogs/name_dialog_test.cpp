// The two dialogs that ask for a name, through the functions that open them.

#include <DialogControlsOW.h>

#include "OwnerWindow.h"

#include "EnglishTexts.h"
#include "Handles.h"
#include "ModalVisit.h"

#include <acdocman.h>

#include <gtest/gtest.h>

#include <stdexcept>

using owtest::TextOf;

namespace
{
constexpr int kEdit = 10000, kCombo = 10001;

using Visitor = std::function<void(CWnd&)>;

/// What a starter left behind.
struct Outcome
{
    int result;
    CString name;

    friend bool operator==(const Outcome&, const Outcome&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome)
    {
        return out << outcome.result << " \"" << CStringA(outcome.name).GetString() << '"';
    }
};

CStringArray& Names()
{
    static CStringArray names;
    if (names.IsEmpty())
    {
        for (const wchar_t* name : {L"Walls", L"Axes", L"Columns"})
            names.Add(name);
    }
    return names;
}

template <class Start>
Outcome Visit(Start start, const wchar_t* name, const Visitor& visitor)
{
    owtest::ModalVisit visit(visitor);
    Outcome outcome{0, name};
    outcome.result = start(outcome.name);
    EXPECT_EQ(visit.Count(), 1);
    return outcome;
}

Outcome AskByEdit(const wchar_t* name, const Visitor& visitor, const wchar_t* caption = L"")
{
    return Visit([=](CString& text) { return gfnStartNazivDlg(text, caption); }, name, visitor);
}

Outcome AskByCombo(const wchar_t* name, const Visitor& visitor, const wchar_t* caption = L"",
                   CWnd* parent = nullptr)
{
    return Visit([=](CString& text) { return gfnStartNazivComboDlg(text, Names(), caption, parent); }, name,
                 visitor);
}

/// One of the two dialogs; what both do is tested with both.
struct Kind
{
    const char* name;
    std::function<Outcome(const wchar_t* name, const Visitor& visitor)> ask;
    int box;
    const wchar_t* caption;
    const wchar_t* english;
};

class NameDialog : public testing::TestWithParam<Kind>
{
protected:
    static Outcome Ask(const wchar_t* name, const Visitor& visitor) { return GetParam().ask(name, visitor); }
    static CWnd& Box(CWnd& dialog) { return *dialog.GetDlgItem(GetParam().box); }
    static bool HasFocus(CWnd& box) { return ::GetFocus() == box.m_hWnd || box.IsChild(CWnd::GetFocus()); }
};

INSTANTIATE_TEST_SUITE_P(
    Both, NameDialog,
    testing::Values(Kind{"Edit", [](auto name, auto& visitor) { return AskByEdit(name, visitor); }, kEdit,
                         L"Naziv", L"Name"},
                    Kind{"Combo", [](auto name, auto& visitor) { return AskByCombo(name, visitor); }, kCombo,
                         L"Snimi", L"Save"}),
    [](const auto& info) { return info.param.name; });

void PressEnter(CWnd&)
{
    owtest::Press(VK_RETURN);
}

CComboBox& ComboOf(CWnd& dialog)
{
    return static_cast<CComboBox&>(*dialog.GetDlgItem(kCombo));
}

void PutOnClipboard(const std::wstring& text)
{
    ASSERT_TRUE(::OpenClipboard(nullptr));
    ::EmptyClipboard();
    const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
    memcpy(::GlobalLock(memory), text.c_str(), bytes);
    ::GlobalUnlock(memory);
    ::SetClipboardData(CF_UNICODETEXT, memory);
    ::CloseClipboard();
}
} // namespace

TEST_P(NameDialog, TakesOverANameOnOkAndLeavesItOtherwise)
{
    const auto typing = [](const wchar_t* text, const Visitor& then)
    {
        return [=](CWnd& dialog)
        {
            EXPECT_TRUE(HasFocus(Box(dialog)));
            owtest::Type(text);
            then(dialog);
        };
    };
    const auto clickOn = [](int id) { return [id](CWnd& dialog) { owtest::Click(*dialog.GetDlgItem(id)); }; };
    const Visitor escape = [](CWnd&) { owtest::Press(VK_ESCAPE); };
    const Visitor close = [](CWnd& dialog) { dialog.SendMessage(WM_SYSCOMMAND, SC_CLOSE); };
    const Visitor clear = [](CWnd&)
    {
        owtest::Press(VK_DELETE);
        owtest::Press(VK_RETURN);
    };
    EXPECT_EQ(Ask(L"Roof", PressEnter), (Outcome{IDOK, L"Roof"}));
    EXPECT_EQ(Ask(L"", typing(L"Floor 2", PressEnter)), (Outcome{IDOK, L"Floor 2"})) << "not in the list";
    EXPECT_EQ(Ask(L"Roof", typing(L"Floor", clickOn(IDOK))), (Outcome{IDOK, L"Floor"})) << "typed over";
    EXPECT_EQ(Ask(L"Roof", typing(L"Floor", escape)), (Outcome{IDCANCEL, L"Roof"}));
    EXPECT_EQ(Ask(L"Roof", typing(L"Floor", clickOn(IDCANCEL))), (Outcome{IDCANCEL, L"Roof"}));
    EXPECT_EQ(Ask(L"Roof", typing(L"Floor", close)), (Outcome{IDCANCEL, L"Roof"}));
    EXPECT_EQ(Ask(L"Roof", clear), (Outcome{IDOK, L""})) << "an empty name is a name";
    EXPECT_EQ(Ask(L"", PressEnter), (Outcome{IDOK, L""}));
}

TEST_P(NameDialog, LosesNothingOfALongName)
{
    std::wstring longName;
    while (longName.size() < 40000)
        longName += L"Beam " + std::to_wstring(longName.size()) + L' ';
    EXPECT_EQ(Ask(longName.c_str(), PressEnter), (Outcome{IDOK, longName.c_str()}));

    PutOnClipboard(longName);
    const Outcome pasted = Ask(L"Roof",
                               [](CWnd&)
                               {
                                   owtest::Press('V', false, true);
                                   owtest::Press(VK_RETURN);
                               });
    EXPECT_EQ(pasted, (Outcome{IDOK, longName.c_str()}));

    const std::wstring wide(60, L'W'); // wider than the box
    const Visitor type = [&](CWnd&)
    {
        owtest::Type(wide);
        owtest::Press(VK_RETURN);
    };
    EXPECT_EQ(Ask(L"", type), (Outcome{IDOK, wide.c_str()}));
}

TEST_P(NameDialog, IsInTheLanguageOfTheCatalogueButForWhatTheCallerGave)
{
    std::wstring seen;
    const Visitor look = [&](CWnd& dialog)
    {
        seen = TextOf(dialog) + L'|' + TextOf(*dialog.GetDlgItem(IDOK)) + L'|' +
               TextOf(*dialog.GetDlgItem(IDCANCEL)) + L'|' + TextOf(Box(dialog));
    };
    Ask(L"Naziv", look);
    EXPECT_EQ(seen, GetParam().caption + std::wstring(L"|OK|Cancel|Naziv"));

    const owtest::EnglishTexts english;
    Ask(L"Naziv", look);
    EXPECT_EQ(seen, GetParam().english + std::wstring(L"|OK|Cancel|Naziv"));
    const wchar_t* const caption = L"Ucitaj";
    GetParam().box == kEdit ? AskByEdit(L"", look, caption) : AskByCombo(L"", look, caption);
    EXPECT_EQ(seen, L"Ucitaj|OK|Cancel|");
}

TEST_P(NameDialog, StandsOverTheWindowInFrontWhichWaits)
{
    OwnerWindow owner;
    AfxGetApp()->m_pMainWnd = &owner;
    Ask(L"",
        [&](CWnd& dialog)
        {
            EXPECT_EQ(dialog.GetWindow(GW_OWNER), &owner);
            EXPECT_FALSE(owner.IsWindowEnabled());
        });
    AfxGetApp()->m_pMainWnd = nullptr;
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_P(NameDialog, HasTheHostsResourcesPutBackOnEveryWayOut)
{
    /// Breaks out of the message loop.
    class Thrower : public OwnerWindow
    {
        BOOL PreTranslateMessage(MSG* message) override
        {
            return message->message == WM_APP ? throw std::runtime_error("stop") : FALSE;
        }
    };
    AcApDocManager& host = *acDocManagerPtr();
    const HINSTANCE before = AfxGetResourceHandle();
    const auto expectPutBack = [&]
    {
        EXPECT_EQ(host.resourceHandleDepth(), 0);
        EXPECT_EQ(AfxGetResourceHandle(), before);
    };
    Ask(L"", [&](CWnd&) { EXPECT_EQ(host.resourceHandleDepth(), 1); });
    expectPutBack();
    Thrower thrower;
    thrower.PostMessage(WM_APP);
    CString name;
    if (GetParam().box == kEdit)
        EXPECT_THROW(gfnStartNazivDlg(name, L""), std::runtime_error);
    else
        EXPECT_THROW(gfnStartNazivComboDlg(name, Names(), L"", nullptr), std::runtime_error);
    expectPutBack();
}

TEST_P(NameDialog, KeepsNothing)
{
    const auto round = [] { Ask(L"Roof", [](CWnd& dialog) { dialog.UpdateWindow(); }); };
    round();
    const owtest::HandleCount before = owtest::CountHandles();
    for (int i = 0; i < 30; ++i)
        round();
    EXPECT_EQ(owtest::CountHandles(), before);
}

TEST(NameComboDialog, ListsTheNamesAsGivenAndTakesThePickedOne)
{
    const Visitor pick = [](CWnd& dialog)
    {
        CComboBox& combo = ComboOf(dialog);
        std::wstring listed;
        for (int i = 0; i < combo.GetCount(); ++i)
        {
            CString entry;
            combo.GetLBText(i, entry);
            listed += entry + L'|';
        }
        EXPECT_EQ(listed, L"Walls|Axes|Columns|");
        EXPECT_EQ(combo.GetCurSel(), CB_ERR) << "the name was set before the list was filled";
        owtest::Press(VK_DOWN);
        owtest::Press(VK_DOWN);
        owtest::Press(VK_RETURN);
    };
    EXPECT_EQ(AskByCombo(L"Roof", pick), (Outcome{IDOK, L"Axes"}));
}

TEST(NameComboDialog, StandsOverTheParentThatItWasGiven)
{
    OwnerWindow owner;
    AskByCombo(
        L"", [&](CWnd& dialog) { EXPECT_EQ(dialog.GetWindow(GW_OWNER), &owner); }, L"", &owner);
    owner.DestroyWindow();
    AskByCombo(
        L"", [&](CWnd& dialog) { EXPECT_EQ(dialog.GetWindow(GW_OWNER), nullptr); }, L"", &owner);
}

// ---- Templates ------------------------------------------------------------------------------------------

namespace
{
constexpr wchar_t kButton[] = L"#128", kEditClass[] = L"#129", kComboClass[] = L"#133";

struct Item
{
    int id;
    const wchar_t* windowClass; ///< by number
    const wchar_t* text;
    DWORD style;
    CRect place; ///< dialog units: left, top, width, height
};

struct Template
{
    int id;
    const wchar_t* caption;
    CSize size; ///< dialog units
    std::vector<Item> items;
};

/// The items of a name dialog, which differ in the last one.
std::vector<Item> NameItems(const Item& box)
{
    return {{1, kButton, L"OK", 0x50010001, {36, 72, 54, 16}},
            {2, kButton, L"Cancel", 0x50010000, {95, 72, 54, 16}},
            {-1, kButton, L"", 0x50000007, {7, 3, 172, 63}},
            box};
}

const Template kTemplates[] = {
    {10075, L"Naziv", {186, 95}, NameItems({kEdit, kEditClass, L"", 0x50810080, {15, 30, 156, 12}})},
    {10076, L"Snimi", {186, 95}, NameItems({kCombo, kComboClass, L"", 0x50210002, {15, 30, 156, 30}})},
    {10036,
     L"",
     {186, 46},
     {{1, kButton, L"OK", 0x50010001, {39, 25, 50, 14}},
      {2, kButton, L"Cancel", 0x50010000, {95, 25, 50, 14}},
      {10038, kEditClass, L"", 0x50810080, {7, 7, 172, 14}}}},
};

/// Walks through the extended form of a dialog template.
class TemplateReader
{
public:
    explicit TemplateReader(const void* begin) : m_at(static_cast<const BYTE*>(begin)), m_begin(m_at) {}

    template <class T>
    T Read()
    {
        T value;
        memcpy(&value, m_at, sizeof value);
        m_at += sizeof value;
        return value;
    }
    /// A text, or "#" and the number that stands in its place.
    std::wstring Text()
    {
        const auto* text = reinterpret_cast<const wchar_t*>(m_at);
        if (*text == 0xFFFF)
        {
            m_at += 2 * sizeof(wchar_t);
            return L'#' + std::to_wstring(text[1]);
        }
        const std::wstring result(text);
        m_at += (result.size() + 1) * sizeof(wchar_t);
        return result;
    }
    CRect Place()
    {
        const auto left = Read<short>(), top = Read<short>(), width = Read<short>(), height = Read<short>();
        return CRect(left, top, width, height);
    }
    void Align() { m_at += -(m_at - m_begin) & 3; }

private:
    const BYTE* m_at;
    const BYTE* m_begin;
};

} // namespace

TEST(NameDialogTemplates, AreThoseThatClientsKnow)
{
    const HMODULE library = ::GetModuleHandleW(L"DialogControlsOW.dll");
    for (const Template& expected : kTemplates)
    {
        SCOPED_TRACE(expected.id);
        const HRSRC found = ::FindResourceW(library, MAKEINTRESOURCEW(expected.id), RT_DIALOG);
        ASSERT_NE(found, nullptr);
        TemplateReader reader(::LockResource(::LoadResource(library, found)));
        EXPECT_EQ(reader.Read<DWORD>(), 0xFFFF0001u);
        reader.Read<DWORD>(); // help id
        reader.Read<DWORD>(); // extended style
        EXPECT_EQ(reader.Read<DWORD>(), 0x80C800C0u);
        ASSERT_EQ(reader.Read<WORD>(), expected.items.size());
        EXPECT_EQ(reader.Place(), CRect(CPoint(0, 0), CPoint(expected.size)));
        EXPECT_EQ(reader.Text(), L"") << "menu";
        EXPECT_EQ(reader.Text(), L"") << "class";
        EXPECT_EQ(reader.Text(), expected.caption);
        EXPECT_EQ(reader.Read<WORD>(), 8);
        reader.Read<DWORD>(); // weight, slope and character set
        EXPECT_EQ(reader.Text(), L"Tahoma");
        for (const Item& item : expected.items)
        {
            SCOPED_TRACE(item.id);
            reader.Align();
            reader.Read<DWORD>();
            reader.Read<DWORD>();
            EXPECT_EQ(reader.Read<DWORD>(), item.style);
            EXPECT_EQ(reader.Place(), item.place);
            EXPECT_EQ(reader.Read<int>(), item.id);
            EXPECT_EQ(reader.Text(), item.windowClass);
            EXPECT_EQ(reader.Text(), item.text);
            reader.Read<WORD>(); // no creation data
        }
    }
}
