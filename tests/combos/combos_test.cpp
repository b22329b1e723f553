// The combo boxes: reports, keys, the width of the list; of the font combo box also what it lists, and how it paints.

#include <DialogControlsOW.h>

#include "Testing.h"

namespace
{
using FontCombo = CFontSelectionComboBox;

constexpr WORD idExt = 1002, idFont = 1003, idReflected = 1004, idAfter = 1005;
constexpr wchar_t kFile[] = L"only a file", kNoFont[] = L"No such font";
constexpr DWORD kFontStyle =
    WS_CHILD | WS_VISIBLE | WS_TABSTOP | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | CBS_SORT;

struct OpenReflected : CComboBoxReflected
{
    using CComboBoxReflected::CComboBoxReflected, CComboBoxReflected::DoesNotificationHandlerExist;
};

struct CombosDialog : CDialog,
                      AExtComboBoxNotificationHandler,
                      AFontSelectionNotificationHandler,
                      CComboBoxReflectedNotificationHandler
{
    /// Another one as the handler of the combo boxes.
    explicit CombosDialog(CombosDialog* pHandler = nullptr)
        : ext(pHandler), font(pHandler), reflected(pHandler)
    {
    }

    CExtComboBox ext;
    CFontSelectionComboBox font;
    OpenReflected reflected;
    std::ostringstream calls; ///< as "1 1004; " by its code, "select 1002: 0; ", "font 1003: Arial, 0; "
    std::string Take() { return std::exchange(calls, std::ostringstream()).str(); }

    bool Open()
    {
        const auto form =
            owtest::DialogTemplate(L"Combos", 160, 100)
                .Item(L"COMBOBOX", L"", idExt, CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, 4, 20, 60, 80)
                .Item(L"COMBOBOX", L"", idFont, kFontStyle, 4, 40, 60, 80)
                .Item(L"COMBOBOX", L"", idReflected, CBS_DROPDOWN | WS_TABSTOP, 4, 60, 60, 80)
                .Edit(idAfter, 4, 80, 60, 12, WS_TABSTOP)
                .DefaultButton(L"OK", IDOK, 100, 4, 40, 14);
        return CreateIndirect(form.get()) && ext.SubclassDlgItem(idExt, this) &&
               font.SubclassDlgItem(idFont, this) && reflected.SubclassDlgItem(idReflected, this) &&
               (ShowWindow(SW_SHOW), owtest::Activate(m_hWnd));
    }
    CComboBox& operator[](int nId) { return static_cast<CComboBox&>(*GetDlgItem(nId)); }
    void Notify(int nId, int n) { SendMessage(WM_COMMAND, MAKEWPARAM(nId, n), LPARAM((*this)[nId].m_hWnd)); }
    void OnExtComboBoxSelChanged(int nId, int n) override { Note("select", nId, ": ", n); }
    void OnFontSelected(int nId, const CString& strFont, EFontClass eClass) override
    {
        Note("font", nId, ": ", CStringA(strFont).GetString(), ", ", eClass);
    }
    void ComboBoxReflectedOnEditchange(int nId) override { Note(CBN_EDITCHANGE, nId); }
    void ComboBoxReflectedOnCloseup(int nId) override { Note(CBN_CLOSEUP, nId); }
    void ComboBoxReflectedOnDblclk(int nId) override { Note(CBN_DBLCLK, nId); }
    void ComboBoxReflectedOnDropdown(int nId) override { Note(CBN_DROPDOWN, nId); }
    void ComboBoxReflectedOnEditupdate(int nId) override { Note(CBN_EDITUPDATE, nId); }
    void ComboBoxReflectedOnErrspace(int nId) override { Note(CBN_ERRSPACE, nId); }
    void ComboBoxReflectedOnKillfocus(int nId) override { Note(CBN_KILLFOCUS, nId); }
    void ComboBoxReflectedOnSelchange(int nId) override { Note(CBN_SELCHANGE, nId); }
    void ComboBoxReflectedOnSelendcancel(int nId) override { Note(CBN_SELENDCANCEL, nId); }
    void ComboBoxReflectedOnSelendok(int nId) override { Note(CBN_SELENDOK, nId); }
    void ComboBoxReflectedOnSetfocus(int nId) override { Note(CBN_SETFOCUS, nId); }
    void OnOK() override { Note("command", IDOK); }
    void OnCancel() override { Note("command", IDCANCEL); }
    void Note(const auto& what, int nId, const auto&... more)
    {
        ((calls << what << ' ' << nId) << ... << more) << "; ";
    }
};

/// With an SHX font in a file of its own, and no icons loaded.
struct Combos : ::testing::Test
{
    void SetUp() override
    {
        const auto directory = std::filesystem::temp_directory_path(),
                   file = directory / (kFile + std::wstring(L".shx"));
        std::ofstream(file) << "shapes";
        CStringArray directories;
        directories.Add(directory.c_str());
        gFontManager.SetSHXDirectories(directories);
        gFontManager.Initialize(CWindowDC(nullptr));
        std::filesystem::remove(file);
        const FONTENUMPROC take = [](const LOGFONT* font, const TEXTMETRIC*, DWORD type, LPARAM fonts) -> int
        {
            if (type == TRUETYPE_FONTTYPE)
                reinterpret_cast<Fonts*>(fonts)->try_emplace(font->lfFaceName, *font);
            return 1;
        };
        ::EnumFonts(CWindowDC(nullptr), nullptr, take, reinterpret_cast<LPARAM>(&m_fonts));
        FontCombo::s_hIconTTF = FontCombo::s_hIconSHX = nullptr;
        FontCombo::s_szIconTTF = FontCombo::s_szIconSHX = CSize(0, 0);
        ASSERT_TRUE(m_dialog.Open());
        for (const wchar_t* entry : {L"S235", L"S275", L"S355"})
            m_ext.AddString(entry);
        m_font.AddString(kFile);
        m_font.AddString(kNoFont);
    }
    void TearDown() override
    {
        EXPECT_EQ(m_dialog.Take(), "") << "told to the handler alone";
        m_dialog.DestroyWindow();
    }
    bool FocusArrives(int nId)
    {
        const HWND control = *m_dialog.GetDlgItem(nId);
        return owtest::PumpUntil([=] { return ::GetFocus() == control || ::IsChild(control, ::GetFocus()); });
    }
    void Enter(int nId)
    {
        m_dialog.GetDlgItem(nId)->SetFocus();
        ASSERT_TRUE(FocusArrives(nId));
        m_handler.Take();
    }
    /// The window of the list that opens by F4.
    static HWND OpenList()
    {
        owtest::Press(VK_F4);
        EXPECT_TRUE(owtest::PumpUntil([] { return !owtest::OpenWindows(L"ComboLBox").empty(); }));
        return owtest::OpenWindows(L"ComboLBox").front();
    }
    /// The width of a list with that as its longest text.
    int WidthFor(const wchar_t* pszText)
    {
        CClientDC dc(&m_ext);
        dc.SelectObject(m_ext.GetFont());
        return dc.GetTextExtent(pszText).cx + ::GetSystemMetrics(SM_CXVSCROLL) + dc.GetTextExtent(L"0").cx;
    }

    int RowOf(const wchar_t* name) { return m_font.FindStringExact(-1, name); }
    LOGFONT* RecordOf(LPCWSTR name) { return static_cast<LOGFONT*>(m_font.GetItemDataPtr(RowOf(name))); }
    /// Expects that a row shows a text of 9 points behind the icon, which may be null.
    void ExpectRow(const wchar_t* name, const CString& text, UINT state, COLORREF back, COLORREF color,
                   HICON icon = nullptr)
    {
        CFont font; // goes after the surface in which it is selected
        owtest::Surface seen(200, 20), wanted(200, 20);
        CDC& dc = wanted.dc();
        CRect rect(3, 1, 190, 19);
        DRAWITEMSTRUCT item{ODT_COMBOBOX, idFont, UINT(RowOf(name)), ODA_DRAWENTIRE, state, m_font, seen.dc(),
                            rect,         0};
        m_font.DrawItem(&item);
        dc.FillSolidRect(rect, back);
        if (icon)
            dc.DrawState(rect.TopLeft(), CSize(16, 16), icon, DSS_NORMAL, static_cast<CBrush*>(nullptr));
        LOGFONT look{};
        look.lfCharSet = DEFAULT_CHARSET;
        look = m_fonts.contains(name) ? m_fonts[name] : look;
        ::lstrcpy(look.lfFaceName, name);
        look.lfHeight = 90;
        look.lfWidth = 0;
        font.CreatePointFontIndirect(&look, &dc);
        dc.SelectObject(&font);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(color);
        rect.left += icon ? 20 : 4;
        dc.DrawText(text, rect, DT_SINGLELINE | DT_VCENTER);
        EXPECT_EQ(seen.dc().GetBkMode(), TRANSPARENT) << "is left so";
        EXPECT_TRUE(seen == wanted) << CStringA(text).GetString() << ' ' << state << ' ' << icon;
    }

    CombosDialog m_handler;
    CombosDialog m_dialog{&m_handler};
    CExtComboBox& m_ext = m_dialog.ext;
    CFontSelectionComboBox& m_font = m_dialog.font;
    using Fonts = std::map<CString, LOGFONT>;
    Fonts m_fonts; ///< the system's, each once, by name
};
} // namespace

TEST_F(Combos, TabAndEscapeAreThoseOfTheTextBoxesOverAnOpenListToo)
{
    for (const int nId : {idExt, idFont})
        for (const auto& [key, nTarget] : {std::pair(VK_TAB, nId + 1), {VK_ESCAPE, nId}})
        {
            CComboBox& combo = m_dialog[nId];
            EXPECT_EQ(combo.SendMessage(WM_GETDLGCODE), DLGC_WANTALLKEYS | DLGC_WANTARROWS | DLGC_WANTCHARS);
            combo.AddString(L"\tindented"); // which a Tab that comes through as a character would choose
            combo.SetCurSel(1);
            Enter(nId);
            OpenList();
            owtest::Press(key);
            EXPECT_TRUE(FocusArrives(nTarget)) << nId << ' ' << key;
            EXPECT_EQ(m_dialog.Take(), key == VK_ESCAPE ? "command 2; " : "");
            EXPECT_EQ(combo.GetDroppedState() != FALSE, key == VK_ESCAPE);
            EXPECT_EQ(combo.GetCurSel(), 1);
        }
}

TEST_F(Combos, ASelectionIsReportedAtEachStepOfTheKeysAndOnceByMouse)
{
    m_ext.SetCurSel(0);
    Enter(idExt);
    for (const WORD key : {VK_DOWN, VK_DOWN, VK_UP})
        owtest::Press(key);
    owtest::Click(OpenList(), CPoint(10, 2 * m_ext.GetItemHeight(0) + 5));
    m_ext.SetCurSel(-1); // the program's own choice is silent
    m_dialog.Notify(idExt, CBN_SELCHANGE);
    EXPECT_EQ(m_handler.Take(),
              "select 1002: 1; select 1002: 2; select 1002: 1; select 1002: 2; select 1002: -1; ");
}

TEST_F(Combos, TheListGrowsToItsLongestEntryAndToTheIconsAndNeverShrinks)
{
    CRect control;
    m_ext.GetWindowRect(control);
    const CString strLong(L'W', 30), strLonger(L'W', 40);
    const int nLong = WidthFor(strLong), nLonger = WidthFor(strLonger);
    // The entry at the top, none empties the list; the widths of both icons; and that of the list.
    const std::tuple<CComboBox&, CString, CSize, int> openings[] = {
        {m_ext, L"W", {}, control.Width()},     {m_ext, strLong, {}, nLong},
        {m_ext, strLonger, {}, nLonger},        {m_ext, L"", {}, nLonger},
        {m_font, strLonger, {}, nLonger + 4},   {m_font, L"W", {16, 9}, nLonger + 20},
        {m_font, L"W", {16, 24}, nLonger + 28}, {m_font, L"", {}, nLonger + 28}};
    for (const auto& [combo, strEntry, icons, nWidth] : openings)
    {
        FontCombo::s_szIconTTF.cx = icons.cx;
        FontCombo::s_szIconSHX.cx = icons.cy;
        strEntry.IsEmpty() ? combo.ResetContent() : void(combo.InsertString(0, strEntry));
        Enter(combo.GetDlgCtrlID());
        CRect list;
        ::GetWindowRect(OpenList(), list);
        EXPECT_EQ(combo.GetDroppedWidth(), nWidth);
        EXPECT_GE(list.Width(), nWidth) << "the list that opens is the wide one already";
        combo.ShowDropDown(FALSE);
    }
}

TEST_F(Combos, TheReflectedOnePassesOnEachNotificationToItsHandlerOrElseToAParentThatIsOne)
{
    for (const int nCode :
         {CBN_EDITCHANGE, CBN_CLOSEUP, CBN_DBLCLK, CBN_DROPDOWN, CBN_EDITUPDATE, CBN_ERRSPACE, CBN_KILLFOCUS,
          CBN_SELCHANGE, CBN_SELENDOK, CBN_SETFOCUS, CBN_SELENDCANCEL})
    {
        m_dialog.Notify(idReflected, nCode);
        EXPECT_EQ(m_handler.Take(), std::to_string(nCode) + " 1004; ");
    }
    CombosDialog dialog; // without a handler; the other boxes do not look for one
    ASSERT_TRUE(dialog.Open());
    dialog.Take();
    for (const int nId : {idReflected, idExt, idFont})
        dialog.Notify(nId, CBN_SELCHANGE);
    EXPECT_TRUE(dialog.reflected.DoesNotificationHandlerExist());
    dialog.reflected.SetParent(&m_ext);
    m_ext.SendMessage(WM_COMMAND, MAKEWPARAM(idReflected, CBN_SELCHANGE), LPARAM(dialog.reflected.m_hWnd));
    EXPECT_EQ(dialog.Take(), "1 1004; ") << "the dialog, and then nobody";
    dialog.DestroyWindow();
}

TEST_F(Combos, TheFontOneListsEachTrueTypeFontOnceAndThoseThatACallerEnumerates)
{
    const int count = static_cast<int>(m_fonts.size());
    m_font.InitFonts();
    EXPECT_EQ(m_font.GetCount(), count);
    for (const auto& [name, font] : m_fonts)
    {
        const LOGFONT* record = RecordOf(name);
        EXPECT_TRUE(record->lfFaceName == name && record->lfHeight == font.lfHeight &&
                    record->lfWeight == font.lfWeight && record->lfItalic == font.lfItalic);
        EXPECT_EQ(*reinterpret_cast<const int*>(record + 1), gFontManager.Find(name));
    }
    LOGFONT own{};
    own.lfWeight = 123;
    ::lstrcpy(own.lfFaceName, kNoFont);
    for (int type :
         {RASTER_FONTTYPE, TRUETYPE_FONTTYPE | DEVICE_FONTTYPE, TRUETYPE_FONTTYPE, TRUETYPE_FONTTYPE})
        EXPECT_EQ(FontCombo::EnumFontProc(&own, nullptr, type, reinterpret_cast<LPARAM>(&m_font)), 1);
    EXPECT_EQ(m_font.GetCount(), count + 2) << "the same name, too, but no other type";
    m_font.DeleteString(RowOf(kNoFont));
    EXPECT_EQ(RecordOf(kNoFont)->lfWeight, 123);
    EXPECT_TRUE(m_font.IsWindowVisible()) << "it draws again once it is filled";

    FontCombo plain;
    ASSERT_TRUE(plain.Create(kFontStyle, CRect(0, 0, 90, 90), &m_dialog, 1));
    MSG msg;
    EXPECT_TRUE(::PeekMessage(&msg, plain, 1147, 1147, PM_REMOVE));
    plain.DestroyWindow();
}

TEST_F(Combos, TheFontOneTellsTheSelectedFontAndItsClass)
{
    LOGFONT font{};
    EFontClass fontClass = eFontSHX;
    CString name = L"as it was";
    EXPECT_TRUE(m_font.GetSelFont(font, fontClass) == -1 && !m_font.GetSelection(name, fontClass));
    EXPECT_TRUE(font.lfFaceName[0] == 0 && name == L"as it was" && fontClass == eFontSHX);
    for (const CString& wanted : {m_fonts.begin()->first, CString(kNoFont), CString(kFile)})
    {
        const bool listed = wanted != kNoFont && wanted != kFile; // of others only the name is known
        EXPECT_TRUE(m_font.SetSelection(CString(wanted).MakeUpper()));
        EXPECT_TRUE(m_font.GetSelection(name, fontClass) && name == wanted);
        EXPECT_EQ(fontClass, wanted == kFile ? eFontSHX : eFontTrueType);
        EXPECT_EQ(m_font.GetSelFont(font, fontClass), RowOf(wanted));
        EXPECT_TRUE(font.lfFaceName == wanted && (font.lfWeight > 0) == listed);
        EXPECT_EQ(font.lfCharSet == DEFAULT_CHARSET, !listed);
    }
    EXPECT_FALSE(m_font.SetSelection(L"only a"));
    EXPECT_EQ(m_font.GetCurSel(), RowOf(kFile)) << "the selection stays";
    m_font.SetCurSel(RowOf(kFile) - 1);
    Enter(idFont);
    owtest::Press(VK_DOWN);
    m_font.SetCurSel(-1); // the user's choices alone
    m_dialog.Notify(idFont, CBN_SELCHANGE);
    EXPECT_EQ(m_handler.Take(), "font 1003: only a file, 1; font 1003: , 0; ");
}

TEST_F(Combos, ARowOfFontsIsItsNameInItsFontAtNinePointsWithAMarkOrAnIcon)
{
    const COLORREF back = ::GetSysColor(COLOR_WINDOW), text = ::GetSysColor(COLOR_WINDOWTEXT);
    const COLORREF hiBack = ::GetSysColor(COLOR_HIGHLIGHT), hiText = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
    const CString name = m_fonts.begin()->first, marked = L"only a file (SHX)";
    const int objects = owtest::CountHandles().gdi;
    RecordOf(name)->lfWidth = 40;
    ExpectRow(name, name, 0, back, text);
    EXPECT_TRUE(RecordOf(name)->lfHeight == 90 && RecordOf(name)->lfWidth == 0) << "left in the record";
    m_font.SetItemData(RowOf(kFile), 0x12345); // the caller's own
    ExpectRow(name, name, ODS_SELECTED, hiBack, hiText);
    ExpectRow(name, name, ODS_DISABLED, back, ::GetSysColor(COLOR_GRAYTEXT));
    ExpectRow(kFile, marked, 0, back, text);
    ExpectRow(L"no row", L"", ODS_SELECTED, hiBack, hiText);
    EXPECT_EQ(owtest::CountHandles().gdi, objects) << "made for the paint only";

    FontCombo::LoadIcons();
    const HICON ttf = FontCombo::s_hIconTTF, shx = FontCombo::s_hIconSHX;
    FontCombo::LoadIcons();
    EXPECT_TRUE(ttf == FontCombo::s_hIconTTF && shx == FontCombo::s_hIconSHX && ttf != shx) << "loaded once";
    EXPECT_TRUE(FontCombo::s_szIconTTF == CSize(16, 16) && FontCombo::s_szIconSHX == CSize(16, 16));
    ExpectRow(name, name, 0, back, text, ttf);
    ExpectRow(kFile, kFile, 0, back, text, shx);
    FontCombo::s_hIconSHX = nullptr;
    ExpectRow(kFile, marked, 0, back, text); // one icon alone is not used
    m_font.UpdateWindow();
    m_font.SetNormalColors(1, 2);
    EXPECT_TRUE(m_font.GetUpdateRect(nullptr));
    ExpectRow(name, name, 0, 1, 2);
    m_font.SetHilightColors(3, 4);
    ExpectRow(name, name, ODS_SELECTED, 3, 4);
    FontCombo().SetNormalColors(1, 2); // before there is a window
}

TEST_F(Combos, ARecordOfAFontGoesWithItsRowOrWithTheWindow)
{
    // A window that is not the framework's does not pass on that rows are deleted.
    const HWND parents[] = {
        m_dialog, ::CreateWindow(L"STATIC", L"", 0, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr)};
    FontCombo combo; // the same object for one window after another
    for (int window = 0; window < 4; ++window)
    {
        const size_t bare = owtest::CountHeapBytes(), records = (m_fonts.size() - 1) * sizeof(LOGFONT);
        combo.SubclassWindow(::CreateWindow(L"COMBOBOX", L"", kFontStyle, 0, 0, 9, 9, parents[window % 2],
                                            nullptr, nullptr, nullptr));
        const size_t once = owtest::CountHeapBytes();
        combo.InitFonts();
        const size_t full = owtest::CountHeapBytes();
        EXPECT_TRUE(window < 2 || full < once + records) << "in place of those before";
        while (combo.GetCount() > 1)
            combo.DeleteString(combo.GetCount() / 2);
        EXPECT_TRUE(window % 2 || owtest::CountHeapBytes() + records < full);
        combo.DestroyWindow();
        EXPECT_TRUE(window < 2 || owtest::CountHeapBytes() < bare + sizeof(LOGFONT));
    }
    ::DestroyWindow(parents[1]);
}
