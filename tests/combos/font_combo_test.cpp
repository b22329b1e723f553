// The font combo box: what its list holds, what it reports, the pixels of its rows, and what becomes of its records.

#include <DialogControlsOW.h>

#include "DialogTemplate.h"
#include "FatalReport.h"
#include "Handles.h"
#include "Input.h"
#include "Picture.h"

#include <acdocman.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace
{
enum Id : WORD
{
    idBefore = 1001,
    idFont,
    idAfter
};

constexpr wchar_t kNoFace[] = L"No such face & more";

struct FontCall
{
    int id;
    std::wstring name;
    EFontClass fontClass;
    bool operator==(const FontCall&) const = default;
};

class RecordingHandler : public AFontSelectionNotificationHandler
{
public:
    std::vector<FontCall> calls;
    void OnFontSelected(int nId, const CString& strFont, EFontClass eClass) override
    {
        calls.push_back({nId, strFont.GetString(), eClass});
    }
};

class FontDialog : public CDialog
{
public:
    explicit FontDialog(AFontSelectionNotificationHandler* pHandler) : combo(pHandler) {}

    CFontSelectionComboBox combo;
    int cancels = 0;

    bool Open()
    {
        const auto form = owtest::DialogTemplate(L"Fonts", 160, 100)
                              .Edit(idBefore, 4, 4, 60, 12, ES_AUTOHSCROLL | WS_TABSTOP)
                              .Item(L"COMBOBOX", L"", idFont,
                                    CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | CBS_SORT |
                                        WS_VSCROLL | WS_TABSTOP,
                                    4, 20, 60, 80)
                              .Edit(idAfter, 4, 60, 60, 12, ES_AUTOHSCROLL | WS_TABSTOP);
        if (!CreateIndirect(form.get()))
            return false;
        ShowWindow(SW_SHOW);
        return owtest::Activate(m_hWnd);
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, idFont, combo); }
    void OnCancel() override { ++cancels; }
};

/// What the system has: the first of each name.
std::vector<LOGFONT> TrueTypeFonts()
{
    std::vector<LOGFONT> fonts;
    CWindowDC screen(nullptr);
    ::EnumFonts(
        screen, nullptr,
        [](const LOGFONT* font, const TEXTMETRIC*, DWORD type, LPARAM into)
        {
            auto& all = *reinterpret_cast<std::vector<LOGFONT>*>(into);
            const auto same = [&](const LOGFONT& known)
            { return !wcscmp(known.lfFaceName, font->lfFaceName); };
            if (type == TRUETYPE_FONTTYPE && std::none_of(all.begin(), all.end(), same))
                all.push_back(*font);
            return 1;
        },
        reinterpret_cast<LPARAM>(&fonts));
    return fonts;
}

/// A combo box on a dialog, two of whose fonts are SHX fonts; no icons are loaded.
class FontCombo : public ::testing::Test
{
protected:
    void SetUp() override
    {
        m_fonts = TrueTypeFonts();
        ASSERT_GT(m_fonts.size(), 3u);
        m_shx = m_fonts[1].lfFaceName;
        m_ttf = m_fonts[2].lfFaceName;
        std::filesystem::create_directories(m_directory);
        for (const wchar_t* name : {m_shx.GetString(), L"only a file"})
            std::ofstream(m_directory / (name + std::wstring(L".shx"))) << "shapes";
        SetDirectory(m_directory.c_str());
        CFontSelectionComboBox::s_hIconTTF = CFontSelectionComboBox::s_hIconSHX = nullptr;
        CFontSelectionComboBox::s_szIconTTF = CFontSelectionComboBox::s_szIconSHX = CSize(0, 0);
        ASSERT_TRUE(m_dialog.Open());
    }
    void TearDown() override
    {
        m_dialog.DestroyWindow();
        SetDirectory(nullptr);
        std::error_code ignored;
        std::filesystem::remove_all(m_directory, ignored);
    }
    static void SetDirectory(const wchar_t* directory)
    {
        CStringArray directories;
        if (directory)
            directories.Add(directory);
        gFontManager.SetSHXDirectories(directories);
    }
    CString TextOf(int row)
    {
        CString text;
        m_combo.GetLBText(row, text);
        return text;
    }
    void Select(const CString& name) { EXPECT_TRUE(m_combo.SetSelection(name)) << name.GetString(); }

    /// A row as the control paints it, 200 by 20, into a surface.
    void Paint(owtest::Surface& into, int row, UINT state = 0)
    {
        DRAWITEMSTRUCT item{ODT_COMBOBOX,
                            idFont,
                            static_cast<UINT>(row),
                            ODA_DRAWENTIRE,
                            state,
                            m_combo,
                            into.dc(),
                            CRect(kLeft, 1, 190, 19),
                            0};
        m_combo.DrawItem(&item);
    }
    /// The same by hand: a background, and a text of 9 points from `x` on.
    static void PaintText(owtest::Surface& into, const wchar_t* face, const wchar_t* text, int x,
                          COLORREF back, COLORREF color)
    {
        CRect rect(kLeft, 1, 190, 19);
        into.dc().FillSolidRect(rect, back);
        CFont font;
        const int height = -::MulDiv(9, into.dc().GetDeviceCaps(LOGPIXELSY), 72);
        font.CreateFont(height, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, face);
        CFont* old = into.dc().SelectObject(&font);
        into.dc().SetBkMode(TRANSPARENT);
        into.dc().SetTextColor(color);
        rect.left = x;
        into.dc().DrawText(text, rect, DT_SINGLELINE | DT_VCENTER);
        into.dc().SelectObject(old);
    }
    void ExpectText(int row, UINT state, const wchar_t* face, const CString& text, int x, COLORREF back,
                    COLORREF color)
    {
        owtest::Surface seen(200, 20), wanted(200, 20);
        Paint(seen, row, state);
        PaintText(wanted, face, text, x, back, color);
        EXPECT_TRUE(seen == wanted) << text.GetString();
    }

    static constexpr int kLeft = 3;
    const std::filesystem::path m_directory =
        std::filesystem::temp_directory_path() / (L"fontcombo" + std::to_wstring(::GetCurrentProcessId()));
    std::vector<LOGFONT> m_fonts;
    CString m_shx, m_ttf; ///< fonts of either class
    RecordingHandler m_handler;
    FontDialog m_dialog{&m_handler};
    CFontSelectionComboBox& m_combo = m_dialog.combo;
};
} // namespace

// ---- The list -----------------------------------------------------------------------------------------------

TEST_F(FontCombo, ListsEachTrueTypeFontWithItsRecord)
{
    for (int round = 0; round < 2; ++round)
    {
        ASSERT_EQ(m_combo.GetCount(), static_cast<int>(m_fonts.size()));
        for (const LOGFONT& font : m_fonts)
        {
            const int row = m_combo.FindStringExact(-1, font.lfFaceName);
            ASSERT_GE(row, 0);
            const auto* record = static_cast<const LOGFONT*>(m_combo.GetItemDataPtr(row));
            ASSERT_NE(record, nullptr);
            EXPECT_EQ(std::wstring(record->lfFaceName), font.lfFaceName);
            EXPECT_EQ(record->lfWeight, font.lfWeight);
            EXPECT_EQ(record->lfCharSet, font.lfCharSet);
            const auto* index = reinterpret_cast<const int*>(record + 1);
            EXPECT_EQ(*index, gFontManager.Find(font.lfFaceName));
        }
        m_combo.InitFonts();
    }
    const LPARAM lCombo = reinterpret_cast<LPARAM>(&m_combo);
    for (DWORD type :
         {DWORD(RASTER_FONTTYPE), DWORD(DEVICE_FONTTYPE), DWORD(TRUETYPE_FONTTYPE | DEVICE_FONTTYPE)})
        EXPECT_EQ(CFontSelectionComboBox::EnumFontProc(&m_fonts[0], nullptr, type, lCombo), 1);
    EXPECT_EQ(m_combo.GetCount(), static_cast<int>(m_fonts.size()));
}

namespace
{
class MappedCombo : public CFontSelectionComboBox
{
protected:
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(MappedCombo, CFontSelectionComboBox)
    ON_MESSAGE(WM_USER + 123, OnInitFonts)
END_MESSAGE_MAP()

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
} // namespace

TEST_F(FontCombo, OneThatIsMadePostsAMessageThatNobodyHandles)
{
    CFontSelectionComboBox plain;
    MappedCombo mapped;
    ASSERT_TRUE(plain.Create(kStyle, CRect(0, 0, 90, 90), &m_dialog, 1));
    ASSERT_TRUE(mapped.Create(kStyle, CRect(0, 0, 90, 90), &m_dialog, 2));
    const auto posted = [&](HWND window)
    {
        MSG msg;
        return ::PeekMessage(&msg, window, 1147, 1147, PM_NOREMOVE) != FALSE;
    };
    EXPECT_TRUE(posted(plain));
    owtest::Pump();
    EXPECT_EQ(plain.GetCount(), 0);
    EXPECT_GT(mapped.GetCount(), 0) << "for those who map it";
    EXPECT_FALSE(posted(plain));
    plain.FillFonts();
    EXPECT_TRUE(posted(plain));
    owtest::Pump();
    EXPECT_EQ(plain.GetCount(), 0);
    plain.InitFonts();
    EXPECT_EQ(plain.GetCount(), m_combo.GetCount());
    plain.DestroyWindow();
    mapped.DestroyWindow();
}

// ---- Selection ----------------------------------------------------------------------------------------------

TEST_F(FontCombo, TellsTheSelectedFontAndItsClass)
{
    LOGFONT font{};
    font.lfWeight = 17;
    EFontClass fontClass = eFontSHX;
    CString name = L"as it was";
    EXPECT_EQ(m_combo.GetSelFont(font, fontClass), -1);
    EXPECT_FALSE(m_combo.GetSelection(name, fontClass));
    EXPECT_EQ(font.lfWeight, 17);
    EXPECT_EQ(name, L"as it was");
    EXPECT_EQ(fontClass, eFontSHX);

    m_combo.AddString(L"only a file");
    for (const auto& [wanted, wantedClass] :
         {std::pair(m_ttf, eFontTrueType), {m_shx, eFontSHX}, {CString(L"only a file"), eFontSHX}})
    {
        CString upper = wanted;
        upper.MakeUpper();
        Select(upper);
        EXPECT_TRUE(m_combo.GetSelection(name, fontClass));
        EXPECT_EQ(name, wanted);
        EXPECT_EQ(fontClass, wantedClass);
        EXPECT_EQ(m_combo.GetSelFont(font, fontClass), m_combo.FindStringExact(-1, wanted));
        EXPECT_EQ(font.lfFaceName, wanted);
    }
    const int selected = m_combo.GetCurSel();
    for (const wchar_t* missing : {kNoFace, L"", L"only a"})
        EXPECT_FALSE(m_combo.SetSelection(missing));
    EXPECT_EQ(m_combo.GetCurSel(), selected);
    EXPECT_TRUE(m_handler.calls.empty()) << "the program's own choice is silent";
}

TEST_F(FontCombo, ReportsEachChoiceOfTheUser)
{
    m_combo.SetFocus();
    Select(TextOf(0));
    owtest::Press(VK_DOWN);
    owtest::Press(VK_F4);
    ASSERT_TRUE(owtest::PumpUntil([&] { return m_combo.GetDroppedState() != FALSE; }));
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    m_combo.GetComboBoxInfo(&info);
    CRect rect;
    ::SendMessage(info.hwndList, LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&rect));
    owtest::Click(info.hwndList, rect.CenterPoint());
    const auto call = [&](int row) {
        return FontCall{idFont, TextOf(row).GetString(), gFontManager.Class(gFontManager.Find(TextOf(row)))};
    };
    EXPECT_EQ(m_handler.calls, (std::vector{call(1), call(2)}));

    m_handler.calls.clear();
    const auto notify = [&]
    {
        m_dialog.SendMessage(WM_COMMAND, MAKEWPARAM(idFont, CBN_SELCHANGE),
                             reinterpret_cast<LPARAM>(m_combo.m_hWnd));
    };
    m_combo.SetCurSel(-1);
    notify();
    Select(m_shx);
    notify();
    EXPECT_EQ(m_handler.calls, (std::vector{FontCall{idFont, L"", eFontTrueType},
                                            FontCall{idFont, m_shx.GetString(), eFontSHX}}));

    FontDialog silent(nullptr);
    ASSERT_TRUE(silent.Open());
    silent.combo.SetFocus();
    owtest::Press(VK_DOWN);
    EXPECT_EQ(silent.combo.GetCurSel(), 0);
    silent.DestroyWindow();
}

TEST_F(FontCombo, TabEnterAndEscapeAreThoseOfTheOtherBoxes)
{
    m_combo.AddString(L"\tindented"); // which a Tab that comes through as a character would choose
    Select(m_ttf);
    const int selected = m_combo.GetCurSel();
    for (const auto& [key, shift, target] :
         {std::tuple(VK_TAB, false, idAfter), {VK_TAB, true, idBefore}, {VK_RETURN, false, idAfter}})
    {
        m_combo.SetFocus();
        owtest::Press(static_cast<WORD>(key), shift);
        EXPECT_TRUE(owtest::PumpUntil([&] { return CWnd::GetFocus() == m_dialog.GetDlgItem(target); }))
            << key;
    }
    m_combo.SetFocus();
    owtest::Press(VK_ESCAPE);
    EXPECT_TRUE(owtest::PumpUntil([&] { return m_dialog.cancels == 1; }));
    EXPECT_EQ(m_combo.GetCurSel(), selected);
}

TEST_F(FontCombo, TheListGrowsByTheIconsToo)
{
    m_combo.ResetContent();
    CClientDC dc(&m_combo);
    dc.SelectObject(m_combo.GetFont());
    const CString name(L'W', 20);
    const int text = dc.GetTextExtent(name).cx + ::GetSystemMetrics(SM_CXVSCROLL) + dc.GetTextExtent(L"0").cx;
    m_combo.AddString(name);
    const auto open = [&](CSize ttf, CSize shx)
    {
        CFontSelectionComboBox::s_szIconTTF = ttf;
        CFontSelectionComboBox::s_szIconSHX = shx;
        m_combo.ShowDropDown(TRUE);
        m_combo.ShowDropDown(FALSE);
        return m_combo.GetDroppedWidth();
    };
    EXPECT_EQ(open(CSize(0, 0), CSize(0, 0)), text + 4);
    EXPECT_EQ(open(CSize(16, 0), CSize(9, 0)), text + 20);
    EXPECT_EQ(open(CSize(16, 0), CSize(24, 0)), text + 28);
    EXPECT_EQ(open(CSize(0, 0), CSize(0, 0)), text + 28) << "and never shrinks";
}

// ---- Rows ---------------------------------------------------------------------------------------------------

TEST_F(FontCombo, ARowIsItsNameInItsFontAtNinePointsWithAMarkForSHX)
{
    const COLORREF back = ::GetSysColor(COLOR_WINDOW), color = ::GetSysColor(COLOR_WINDOWTEXT);
    const int fonts = owtest::CountGdiObjects(0x0A);
    m_combo.AddString(kNoFace);
    m_combo.AddString(L"only a file");
    const int ttf = m_combo.FindStringExact(-1, m_ttf), shx = m_combo.FindStringExact(-1, m_shx);
    for (int round = 0; round < 2; ++round) // whatever stands in the record by then
    {
        ExpectText(ttf, 0, m_ttf, m_ttf, kLeft + 4, back, color);
        ExpectText(shx, 0, m_shx, m_shx + L" (SHX)", kLeft + 4, back, color);
    }
    // Rows of the caller; and of a font that is there no more, which GDI replaces.
    const int file = m_combo.FindStringExact(-1, L"only a file"), none = m_combo.FindStringExact(-1, kNoFace);
    ExpectText(file, 0, L"only a file", L"only a file (SHX)", kLeft + 4, back, color);
    ExpectText(none, 0, kNoFace, kNoFace, kLeft + 4, back, color);
    for (LONG_PTR data : {0x10, 0x12345678})
    {
        m_combo.SetItemData(none, static_cast<DWORD_PTR>(data)); // of the caller's own
        ExpectText(none, 0, kNoFace, kNoFace, kLeft + 4, back, color);
    }

    const COLORREF hiBack = ::GetSysColor(COLOR_HIGHLIGHT), hiColor = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
    ExpectText(ttf, ODS_SELECTED, m_ttf, m_ttf, kLeft + 4, hiBack, hiColor);
    ExpectText(ttf, ODS_DISABLED, m_ttf, m_ttf, kLeft + 4, back, ::GetSysColor(COLOR_GRAYTEXT));
    ExpectText(-1, ODS_SELECTED, L"", L"", kLeft, hiBack, hiColor);
    m_dialog.UpdateWindow();
    EXPECT_FALSE(m_combo.GetUpdateRect(nullptr));
    m_combo.SetNormalColors(RGB(255, 255, 200), RGB(0, 0, 160));
    EXPECT_TRUE(m_combo.GetUpdateRect(nullptr));
    m_combo.SetHilightColors(RGB(0, 90, 0), RGB(255, 200, 200));
    ExpectText(ttf, 0, m_ttf, m_ttf, kLeft + 4, RGB(255, 255, 200), RGB(0, 0, 160));
    ExpectText(ttf, ODS_SELECTED, m_ttf, m_ttf, kLeft + 4, RGB(0, 90, 0), RGB(255, 200, 200));
    EXPECT_EQ(owtest::CountGdiObjects(0x0A), fonts) << "made for the paint only";
}

TEST_F(FontCombo, ThePaintLeavesItsHeightInTheRecord)
{
    const LOGFONT enumerated = m_fonts[2];
    const int row = m_combo.FindStringExact(-1, m_ttf);
    const auto& record = *static_cast<const LOGFONT*>(m_combo.GetItemDataPtr(row));
    EXPECT_EQ(record.lfHeight, enumerated.lfHeight);
    EXPECT_EQ(record.lfWidth, enumerated.lfWidth);
    owtest::Surface surface(200, 20);
    Paint(surface, row);
    LOGFONT font{};
    EFontClass fontClass;
    m_combo.SetCurSel(row);
    EXPECT_EQ(m_combo.GetSelFont(font, fontClass), row);
    EXPECT_EQ(font.lfHeight, 90);
    EXPECT_EQ(font.lfWidth, 0);
    EXPECT_EQ(font.lfWeight, enumerated.lfWeight);
}

TEST_F(FontCombo, TheIconsTakeThePlaceOfTheMark)
{
    CFontSelectionComboBox::LoadIcons();
    const HICON ttf = CFontSelectionComboBox::s_hIconTTF, shx = CFontSelectionComboBox::s_hIconSHX;
    ASSERT_NE(ttf, nullptr);
    ASSERT_NE(shx, nullptr);
    EXPECT_EQ(CFontSelectionComboBox::s_szIconTTF, CSize(16, 16));
    EXPECT_EQ(CFontSelectionComboBox::s_szIconSHX, CSize(16, 16));
    EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
    const int gdi = owtest::CountHandles().gdi;
    CFontSelectionComboBox::LoadIcons();
    EXPECT_EQ(CFontSelectionComboBox::s_hIconTTF, ttf) << "loaded once";
    EXPECT_EQ(CFontSelectionComboBox::s_hIconSHX, shx);
    EXPECT_EQ(owtest::CountHandles().gdi, gdi);

    const COLORREF back = ::GetSysColor(COLOR_WINDOW);
    for (const auto& [name, icon] : {std::pair(m_ttf, ttf), {m_shx, shx}})
    {
        owtest::Surface seen(200, 20), wanted(200, 20);
        Paint(seen, m_combo.FindStringExact(-1, name));
        PaintText(wanted, name, name, kLeft + 16 + 4, back, ::GetSysColor(COLOR_WINDOWTEXT));
        wanted.dc().DrawState(CPoint(kLeft, 1), CSize(187, 18), icon, DSS_NORMAL,
                              static_cast<CBrush*>(nullptr));
        EXPECT_TRUE(seen == wanted) << name.GetString();
        EXPECT_LT(seen.count(CRect(kLeft, 1, kLeft + 16, 17), back), 16 * 16);
        EXPECT_EQ(seen.count(CRect(kLeft + 16, 1, kLeft + 20, 19), back), 4 * 18) << "no larger than it is";
    }

    CFontSelectionComboBox::s_hIconTTF = nullptr; // one alone is not used
    ExpectText(m_combo.FindStringExact(-1, m_shx), 0, m_shx, m_shx + L" (SHX)", kLeft + 4, back,
               ::GetSysColor(COLOR_WINDOWTEXT));
}

// ---- Records ------------------------------------------------------------------------------------------------

TEST_F(FontCombo, ARecordGoesWithItsRowOrWithTheWindow)
{
    CWnd plain; // whose windows are not the framework's, and pass on nothing
    const auto uses = [&](int way)
    {
        const HWND parent = way < 4 ? m_dialog.m_hWnd
                                    : ::CreateWindow(L"STATIC", L"", WS_POPUP, 0, 0, 200, 200, nullptr,
                                                     nullptr, nullptr, nullptr);
        CFontSelectionComboBox combo;
        for (int attached = 0; attached < 2; ++attached) // the same object to one window after another
        {
            ASSERT_TRUE(combo.SubclassWindow(
                ::CreateWindow(L"COMBOBOX", L"", kStyle, 0, 0, 90, 90, parent, nullptr, nullptr, nullptr)));
            EXPECT_EQ(combo.GetCount(), static_cast<int>(m_fonts.size()));
            if (way % 4 == 1)
                combo.InitFonts();
            if (way % 4 == 2)
                combo.ResetContent();
            while (way % 4 == 3 && combo.GetCount() > 5)
                combo.DeleteString(3);
            if (way % 4 == 3)
                combo.SetItemData(2, 77); // the caller's own, in place of the record
            combo.SetCurSel(0);
            combo.DestroyWindow();
        }
        if (way >= 4)
            ::DestroyWindow(parent);
    };
    const auto all = [&]
    {
        for (int way = 0; way < 8; ++way)
            uses(way);
        owtest::Pump();
    };
    all(); // what is made once for the process
    const owtest::HandleCount before = owtest::CountHandles();
    const size_t heap = owtest::CountHeapBytes();
    all();
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_LT(owtest::CountHeapBytes(), heap + 16 * 40) << "less than one record for each window";
}

TEST_F(FontCombo, ARowThatIsTakenOutFreesItsRecordAtOnce)
{
    m_combo.ResetContent();
    const size_t empty = owtest::CountHeapBytes();
    m_combo.InitFonts();
    const size_t full = owtest::CountHeapBytes();
    EXPECT_GT(full, empty + m_fonts.size() * sizeof(LOGFONT));
    for (int count = m_combo.GetCount(); count > 0; --count)
        m_combo.DeleteString(count / 2);
    EXPECT_LT(owtest::CountHeapBytes(), empty + m_fonts.size() * sizeof(LOGFONT) / 2);
}

// ---- Misuse -------------------------------------------------------------------------------------------------

/// Makes an icon of the library unreadable, in this process, and loads the font icons.
static void LoadWithout(int id)
{
    const HINSTANCE library = AfxFindResourceHandle(MAKEINTRESOURCE(id), RT_GROUP_ICON);
    auto* header = static_cast<WORD*>(
        ::LockResource(::LoadResource(library, ::FindResource(library, MAKEINTRESOURCE(id), RT_GROUP_ICON))));
    DWORD before;
    ::VirtualProtect(header, 6, PAGE_READWRITE, &before);
    header[2] = 0; // pictures in the group
    CFontSelectionComboBox::LoadIcons();
}

OW_CHILD_SCENARIO(no_ttf_icon)
{
    LoadWithout(10099);
}

OW_CHILD_SCENARIO(no_shx_icon)
{
    LoadWithout(10100);
}

TEST(FontComboIcons, EndTheProcessWhereTheyAreMissing)
{
    owtest::ExpectFailedAssert(
        owtest::RunChild("no_ttf_icon"),
        L"ASSERT(s_hIconTTF = gfnLoadIconResource(IDI_OW_TTF))\n[.\\FontSelectionComboBox : 31]\n");
    owtest::ExpectFailedAssert(
        owtest::RunChild("no_shx_icon"),
        L"ASSERT(s_hIconSHX = gfnLoadIconResource(IDI_OW_SHX))\n[.\\FontSelectionComboBox : 33]\n");
}
