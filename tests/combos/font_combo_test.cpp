// The font combo box: what its list holds, what it reports, the pixels of its rows, and what becomes of its records.

#include <DialogControlsOW.h>

#include "DialogTemplate.h"
#include "FatalReport.h"
#include "Handles.h"
#include "Input.h"
#include "Picture.h"

#include <acdocman.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace
{
using Combo = CFontSelectionComboBox;

constexpr WORD kBefore = 1001, kFont = 1002, kAfter = 1003;
constexpr DWORD kStyle =
    WS_CHILD | WS_VISIBLE | WS_TABSTOP | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | CBS_SORT;
constexpr wchar_t kFile[] = L"only a file", kNoFont[] = L"No such font";

/// The system's fonts, each once.
std::vector<CString> TrueTypeFonts()
{
    CFontManager manager;
    manager.Initialize(CWindowDC(nullptr));
    std::vector<CString> names;
    for (int i = 0; i < manager.Count(); ++i)
        names.push_back(manager.Name(i));
    return names;
}

/// A font combo box between two edits. The dialog writes down each call as "1002 Arial 0".
class FontDialog : public CDialog, public AFontSelectionNotificationHandler
{
public:
    Combo combo{this};
    int cancels = 0;
    std::vector<std::wstring> calls;

    bool Open()
    {
        const auto form = owtest::DialogTemplate(L"Fonts", 160, 100)
                              .Edit(kBefore, 4, 4, 60, 12, WS_TABSTOP)
                              .Item(L"COMBOBOX", L"", kFont, kStyle, 4, 20, 60, 80)
                              .Edit(kAfter, 4, 60, 60, 12, WS_TABSTOP);
        return CreateIndirect(form.get()) && (ShowWindow(SW_SHOW), owtest::Activate(m_hWnd));
    }
    void OnFontSelected(int nId, const CString& strFont, EFontClass eClass) override
    {
        calls.push_back(std::to_wstring(nId) + L' ' + strFont.GetString() + L' ' + std::to_wstring(eClass));
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, kFont, combo); }
    void OnCancel() override { ++cancels; }
};

/// A combo box for which one of the system's fonts is an SHX font, as is a file of its own; no icons are loaded.
class FontCombo : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_GT(m_fonts.size(), 3u);
        const auto directory = std::filesystem::temp_directory_path() / L"font_combo_test";
        std::filesystem::create_directories(directory);
        for (const wchar_t* name : {m_shx.GetString(), kFile})
            std::ofstream(directory / (name + std::wstring(L".shx"))) << "shapes";
        CStringArray directories;
        directories.Add(directory.c_str());
        gFontManager.SetSHXDirectories(directories);
        gFontManager.Initialize(CWindowDC(nullptr));
        std::filesystem::remove_all(directory);
        Combo::s_hIconTTF = Combo::s_hIconSHX = nullptr;
        Combo::s_szIconTTF = Combo::s_szIconSHX = CSize(0, 0);
        ASSERT_TRUE(m_dialog.Open());
        m_combo.AddString(kFile);
        m_combo.AddString(kNoFont);
    }
    void TearDown() override { m_dialog.DestroyWindow(); }
    int RowOf(const wchar_t* name) { return m_combo.FindStringExact(-1, name); }

    /// Whether a row looks as it should: a text of 9 points behind the icon, which may be null.
    bool LooksLike(const wchar_t* name, const CString& text, UINT state, COLORREF back, COLORREF color,
                   HICON icon = nullptr)
    {
        owtest::Surface seen(200, 20), wanted(200, 20);
        CDC& dc = wanted.dc();
        CRect rect(3, 1, 190, 19);
        const auto row = static_cast<UINT>(RowOf(name));
        DRAWITEMSTRUCT item{ODT_COMBOBOX, kFont, row, ODA_DRAWENTIRE, state, m_combo, seen.dc(), rect, 0};
        m_combo.DrawItem(&item);
        dc.FillSolidRect(rect, back);
        if (icon)
            dc.DrawState(rect.TopLeft(), CSize(16, 16), icon, DSS_NORMAL, static_cast<CBrush*>(nullptr));
        CFont font;
        font.CreatePointFont(90, name, &dc);
        CFont* old = dc.SelectObject(&font);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(color);
        rect.left += icon ? 20 : 4;
        dc.DrawText(text, rect, DT_SINGLELINE | DT_VCENTER);
        dc.SelectObject(old);
        return seen == wanted;
    }

    const std::vector<CString> m_fonts = TrueTypeFonts();
    const CString m_shx = m_fonts[1], m_ttf = m_fonts[2];
    FontDialog m_dialog;
    Combo& m_combo = m_dialog.combo;
};
} // namespace

TEST_F(FontCombo, ListsEachTrueTypeFontOnceWithItsRecord)
{
    m_combo.InitFonts();
    EXPECT_EQ(m_combo.GetCount(), static_cast<int>(m_fonts.size()));
    for (const CString& font : m_fonts)
    {
        const auto* record = static_cast<const LOGFONT*>(m_combo.GetItemDataPtr(RowOf(font)));
        EXPECT_EQ(record->lfFaceName, font);
        EXPECT_GT(record->lfHeight, 0);
        EXPECT_GT(record->lfWeight, 0);
        EXPECT_EQ(*reinterpret_cast<const int*>(record + 1), gFontManager.Find(font));
    }
    const LOGFONT other{};
    for (int type : {RASTER_FONTTYPE, DEVICE_FONTTYPE, TRUETYPE_FONTTYPE | DEVICE_FONTTYPE})
        EXPECT_EQ(Combo::EnumFontProc(&other, nullptr, type, reinterpret_cast<LPARAM>(&m_combo)), 1);
    EXPECT_EQ(m_combo.GetCount(), static_cast<int>(m_fonts.size()));
}

TEST_F(FontCombo, AddsEachTrueTypeFontThatACallerEnumerates)
{
    LOGFONT font{};
    font.lfWeight = 123;
    ::lstrcpy(font.lfFaceName, m_shx);
    const auto combo = reinterpret_cast<LPARAM>(&m_combo);
    EXPECT_EQ(Combo::EnumFontProc(&font, nullptr, TRUETYPE_FONTTYPE, combo), 1);
    EXPECT_EQ(Combo::EnumFontProc(&font, nullptr, TRUETYPE_FONTTYPE, combo), 1) << "the same name, too";
    EXPECT_EQ(m_combo.GetCount(), static_cast<int>(m_fonts.size()) + 4) << "with the two of the caller";
    int own = 0;
    for (int row = RowOf(m_shx); own < 2 && row < RowOf(m_shx) + 3; ++row)
        own += static_cast<const LOGFONT*>(m_combo.GetItemDataPtr(row))->lfWeight == 123;
    EXPECT_EQ(own, 2) << "each with its record";
}

TEST_F(FontCombo, OneThatIsMadePostsAMessageThatItDoesNotHandle)
{
    Combo plain;
    ASSERT_TRUE(plain.Create(kStyle, CRect(0, 0, 90, 90), &m_dialog, 1));
    for (int round = 0; round < 2; ++round)
    {
        MSG msg;
        EXPECT_TRUE(::PeekMessage(&msg, plain, 1147, 1147, PM_NOREMOVE));
        owtest::Pump();
        EXPECT_EQ(plain.GetCount(), 0);
        plain.FillFonts();
    }
    plain.InitFonts();
    EXPECT_GT(plain.GetCount(), 0);
    m_dialog.SendMessage(WM_COMMAND, MAKEWPARAM(1, CBN_SELCHANGE), LPARAM(plain.m_hWnd)); // nobody to tell
    m_dialog.DestroyWindow();
}

TEST_F(FontCombo, TellsTheSelectedFontAndItsClass)
{
    LOGFONT font{};
    EFontClass fontClass = eFontSHX;
    CString name = L"as it was";
    EXPECT_EQ(m_combo.GetSelFont(font, fontClass), -1);
    EXPECT_FALSE(m_combo.GetSelection(name, fontClass));
    EXPECT_EQ(font.lfFaceName[0], 0);
    EXPECT_EQ(name, L"as it was");
    EXPECT_EQ(fontClass, eFontSHX);
    const CString known[] = {m_fonts[0], m_ttf, m_shx, kNoFont, kFile}; // the first row is the first font
    for (const CString& wanted : known)
    {
        EXPECT_TRUE(m_combo.SetSelection(CString(wanted).MakeUpper()));
        EXPECT_TRUE(m_combo.GetSelection(name, fontClass));
        EXPECT_EQ(name, wanted);
        EXPECT_EQ(fontClass, wanted == m_shx || wanted == kFile ? eFontSHX : eFontTrueType);
        EXPECT_EQ(m_combo.GetSelFont(font, fontClass), RowOf(wanted));
        EXPECT_EQ(font.lfFaceName, wanted);
    }
    EXPECT_FALSE(m_combo.SetSelection(L"only a"));
    EXPECT_EQ(m_combo.GetCurSel(), RowOf(kFile)) << "the selection stays";
    EXPECT_TRUE(m_dialog.calls.empty()) << "the program's own choice is silent";
}

TEST_F(FontCombo, ReportsTheUsersChoiceAndHasTheKeysOfTheOtherBoxes)
{
    m_combo.SetFocus();
    m_combo.SetSelection(m_shx);
    owtest::Press(VK_UP);
    owtest::Press(VK_DOWN);
    m_combo.SetCurSel(-1);
    m_dialog.SendMessage(WM_COMMAND, MAKEWPARAM(kFont, CBN_SELCHANGE), LPARAM(m_combo.m_hWnd));
    ASSERT_EQ(m_dialog.calls.size(), 3u);
    EXPECT_EQ(m_dialog.calls[1], L"1002 " + std::wstring(m_shx) + L" 1");
    EXPECT_EQ(m_dialog.calls[2], L"1002  0");

    m_combo.AddString(L"\tindented"); // which a Tab that comes through as a character would choose
    for (const auto& [key, shift, target] :
         {std::tuple(VK_TAB, false, kAfter), {VK_TAB, true, kBefore}, {VK_RETURN, false, kAfter}})
    {
        m_combo.SetFocus();
        owtest::Press(static_cast<WORD>(key), shift);
        EXPECT_TRUE(owtest::PumpUntil([&] { return CWnd::GetFocus() == m_dialog.GetDlgItem(target); }))
            << key;
    }
    m_combo.SetFocus();
    owtest::Press(VK_ESCAPE);
    EXPECT_TRUE(owtest::PumpUntil([&] { return m_dialog.cancels == 1; }));
    EXPECT_EQ(m_combo.GetCurSel(), -1);
}

TEST_F(FontCombo, TheListGrowsByTheIconsToo)
{
    CClientDC dc(&m_combo);
    dc.SelectObject(m_combo.GetFont());
    const CString name(L'W', 40);
    const int text = dc.GetTextExtent(name).cx + ::GetSystemMetrics(SM_CXVSCROLL) + dc.GetTextExtent(L"0").cx;
    m_combo.AddString(name);
    for (auto [ttf, shx, beside] :
         {std::tuple(0, 0, 4), {16, 9, 20}, {16, 24, 28}, {0, 0, 28}}) // never shrinks
    {
        Combo::s_szIconTTF.cx = ttf;
        Combo::s_szIconSHX.cx = shx;
        m_combo.ShowDropDown(TRUE);
        m_combo.ShowDropDown(FALSE);
        EXPECT_EQ(m_combo.GetDroppedWidth(), text + beside);
    }
}

TEST_F(FontCombo, ARowIsItsNameInItsFontAtNinePointsWithAMarkOrAnIcon)
{
    const COLORREF back = ::GetSysColor(COLOR_WINDOW), color = ::GetSysColor(COLOR_WINDOWTEXT);
    const COLORREF hiBack = ::GetSysColor(COLOR_HIGHLIGHT), hiColor = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
    const int fonts = owtest::CountGdiObjects(0x0A);
    const auto& record = *static_cast<const LOGFONT*>(m_combo.GetItemDataPtr(RowOf(m_ttf)));
    EXPECT_NE(record.lfHeight, 90);
    EXPECT_TRUE(LooksLike(m_ttf, m_ttf, 0, back, color));
    EXPECT_EQ(record.lfHeight, 90) << "the paint leaves its height in the record";
    EXPECT_EQ(record.lfWidth, 0);
    EXPECT_TRUE(LooksLike(m_ttf, m_ttf, ODS_SELECTED, hiBack, hiColor)) << "whatever height stands there";
    EXPECT_TRUE(LooksLike(m_ttf, m_ttf, ODS_DISABLED, back, ::GetSysColor(COLOR_GRAYTEXT)));
    EXPECT_TRUE(LooksLike(m_shx, m_shx + L" (SHX)", 0, back, color));
    EXPECT_TRUE(LooksLike(kFile, L"only a file (SHX)", 0, back, color)) << "a row of the caller";
    for (DWORD_PTR data : {0, 0x12345}) // none, and the caller's own
    {
        m_combo.SetItemData(RowOf(kNoFont), data);
        EXPECT_TRUE(LooksLike(kNoFont, kNoFont, 0, back, color));
    }
    EXPECT_TRUE(LooksLike(L"no row", L"", ODS_SELECTED, hiBack, hiColor));
    EXPECT_EQ(owtest::CountGdiObjects(0x0A), fonts) << "made for the paint only";

    Combo::LoadIcons();
    const HICON ttf = Combo::s_hIconTTF, shx = Combo::s_hIconSHX;
    const int gdi = owtest::CountHandles().gdi;
    Combo::LoadIcons();
    EXPECT_TRUE(ttf == Combo::s_hIconTTF && shx == Combo::s_hIconSHX && ttf != shx) << "loaded once";
    EXPECT_EQ(owtest::CountHandles().gdi, gdi);
    EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
    EXPECT_TRUE(Combo::s_szIconTTF == CSize(16, 16) && Combo::s_szIconSHX == CSize(16, 16));
    EXPECT_TRUE(LooksLike(m_ttf, m_ttf, 0, back, color, ttf));
    EXPECT_TRUE(LooksLike(m_shx, m_shx, 0, back, color, shx));
    for (HICON* missing : {&Combo::s_hIconTTF, &Combo::s_hIconSHX}) // one alone is not used
    {
        const HICON icon = std::exchange(*missing, nullptr);
        EXPECT_TRUE(LooksLike(m_shx, m_shx + L" (SHX)", 0, back, color));
        *missing = icon;
    }

    m_combo.UpdateWindow();
    m_combo.SetNormalColors(1, 2);
    EXPECT_TRUE(m_combo.GetUpdateRect(nullptr));
    EXPECT_TRUE(LooksLike(m_ttf, m_ttf, 0, 1, 2, ttf));
    m_combo.UpdateWindow();
    m_combo.SetHilightColors(3, 4);
    EXPECT_TRUE(m_combo.GetUpdateRect(nullptr));
    EXPECT_TRUE(LooksLike(m_ttf, m_ttf, ODS_SELECTED, 3, 4, ttf));
    Combo().SetNormalColors(1, 2); // before there is a window
}

TEST_F(FontCombo, ARecordGoesWithItsRowOrWithTheWindow)
{
    const auto use = [&](HWND parent, int way)
    {
        Combo combo;
        for (int window = 0; window < 2; ++window) // the same object for one after another
        {
            const size_t bare = owtest::CountHeapBytes();
            combo.SubclassWindow(
                ::CreateWindow(L"COMBOBOX", L"", kStyle, 0, 0, 9, 9, parent, nullptr, nullptr, nullptr));
            if (way == 1)
                combo.InitFonts();
            ASSERT_EQ(combo.GetCount(), static_cast<int>(m_fonts.size()));
            if (way == 2)
                combo.ResetContent();
            const size_t heap = owtest::CountHeapBytes() - (m_fonts.size() - 1) * sizeof(LOGFONT);
            for (int count = combo.GetCount(); way == 3 && count > 1; --count)
                combo.DeleteString(count / 2);
            EXPECT_TRUE(way < 3 || parent != m_dialog.m_hWnd || owtest::CountHeapBytes() < heap)
                << "freed at once";
            combo.SetItemData(0, 77); // the caller's own, in place of the record
            combo.DestroyWindow();
            EXPECT_TRUE(window == 0 || owtest::CountHeapBytes() < bare + sizeof(LOGFONT))
                << "while the object lives";
        }
    };
    // A window that is not the framework's does not pass on that rows are deleted.
    const HWND foreign =
        ::CreateWindow(L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    const auto useAll = [&]
    {
        for (int way = 0; way < 8; ++way)
            use(way < 4 ? m_dialog.m_hWnd : foreign, way % 4);
    };
    useAll(); // what is made once for the process
    const owtest::HandleCount before = owtest::CountHandles();
    const size_t heap = owtest::CountHeapBytes();
    useAll();
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_LT(owtest::CountHeapBytes(), heap + 16 * 40) << "less than one record for each window";
    ::DestroyWindow(foreign);
}

// Without the pictures in the icon's group, in this process.
OW_CHILD_SCENARIO(no_shx_icon)
{
    const HINSTANCE library = AfxFindResourceHandle(MAKEINTRESOURCE(10100), RT_GROUP_ICON);
    const HRSRC found = ::FindResource(library, MAKEINTRESOURCE(10100), RT_GROUP_ICON);
    auto* header = static_cast<WORD*>(::LockResource(::LoadResource(library, found)));
    DWORD before;
    ::VirtualProtect(header, 6, PAGE_READWRITE, &before);
    header[2] = 0;
    Combo::LoadIcons();
}

TEST(FontComboIcons, EndTheProcessWhereOneIsMissing)
{
    owtest::ExpectFailedAssert(
        owtest::RunChild("no_shx_icon"),
        L"ASSERT(s_hIconSHX = gfnLoadIconResource(IDI_OW_SHX))\n[.\\FontSelectionComboBox : 33]\n");
}
