// Fonts: the font combo box alone, chosen from by hand and by name; and the group that edits one of three text
// styles, drawn as on a sheet.

#include <afxwin.h>

#include "GalleryPage.h"
#include "Shelf.h"
#include "resource.h"

#include "module/GdiScope.h"

#include <aced.h>

#include <array>
#include <filesystem>
#include <fstream>

namespace
{
// Fonts of the CAD host, which is not at hand here.
constexpr LPCWSTR kShxFonts[] = {L"isocp", L"romans"};

/// Lets the font manager see a directory with the host's fonts. It looks at names only, so that the files are empty,
/// and are gone again when it has looked.
void IntroduceShxFonts()
{
    namespace fs = std::filesystem;
    const fs::path directory =
        fs::temp_directory_path() / (L"gallery_shx_" + std::to_wstring(::GetCurrentProcessId()));
    std::error_code error;
    fs::create_directories(directory, error);
    for (LPCWSTR pszFont : kShxFonts)
        std::ofstream(directory / (std::wstring(pszFont) + L".shx"));
    CStringArray directories;
    directories.Add(directory.c_str());
    gFontManager.SetSHXDirectories(directories);
    gFontManager.Initialize(CWindowDC(nullptr));
    fs::remove_all(directory, error);
}

/// A font group that outlives the page that shows it. Its windows go with the page's.
class CShelvedFontGroup : private AFontCtrlGroupNotificationHandler
{
public:
    CFontCtrlGroup group{IDC_STYLE_FONT,   IDC_STYLE_HEIGHT,     IDC_STYLE_COLOR, IDC_STYLE_BOLD,
                         IDC_STYLE_ITALIC, IDC_STYLE_UNDERLINED, IDC_STYLE_APPLY, this};
    AFontCtrlGroupNotificationHandler* pBorrower = nullptr;

    void PutBack() { group.SetFontSource(nullptr); }

private:
    void OnFontGroupChanged(CFontCtrlGroup* pGroup, epgFont* pFont) override
    {
        pBorrower->OnFontGroupChanged(pGroup, pFont);
    }
    void OnFontGroupButton(CFontCtrlGroup* pGroup, epgFont* pFont) override
    {
        pBorrower->OnFontGroupButton(pGroup, pFont);
    }
};

/// What is drawn on the sheet.
struct STextStyle
{
    LPCTSTR pszName;
    LPCTSTR pszSample;
    epgFont font = {};
};

CString TextOf(const epgFont& font)
{
    CString strText;
    strText.Format(gOtLang.Do(_T("%s, %.1f mm, colour %d%s%s")), font.strName.GetString(),
                   font.dHeight * 1000, font.nColor,
                   gOtLang.Do(font.nCheck1 ? _T(", bold") : _T("")).GetString(),
                   gOtLang.Do(font.nCheck2 ? _T(", italic") : _T("")).GetString());
    return strText;
}

/// Description of the font for the screen, in its true size there.
LOGFONT OnScreen(const epgFont& font, CDC& dc)
{
    constexpr double kInch = 0.0254; // metres
    const bool bTrueType = font.eClass == eFontTrueType;
    LOGFONT logFont{};
    logFont.lfHeight = -static_cast<LONG>(font.dHeight / kInch * dc.GetDeviceCaps(LOGPIXELSY) + 0.5);
    logFont.lfWeight = bTrueType && font.nCheck1 ? FW_BOLD : FW_NORMAL;
    logFont.lfItalic = bTrueType && font.nCheck2;
    logFont.lfCharSet = DEFAULT_CHARSET;
    lstrcpyn(logFont.lfFaceName, font.strName, LF_FACESIZE);
    return logFont;
}

/// The host draws its colour 7 in black on a white sheet.
COLORREF OnPaper(int nColor)
{
    constexpr int kForeground = 7;
    return nColor == kForeground ? RGB(0, 0, 0) : acedGetRGB(nColor);
}

class CFontPageDialog : public CGalleryPageDialog,
                        public AFontSelectionNotificationHandler,
                        public AFontCtrlGroupNotificationHandler
{
public:
    explicit CFontPageDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_FONT, host)
    {
        IntroduceShxFonts();
        CFontSelectionComboBox::LoadIcons();
    }
    ~CFontPageDialog() override { DestroyWindow(); } // while it still has its group

    int OnInitPageDialog() override
    {
        AddShxFonts(m_comboFont);
        m_comboFont.SetCurSel(0);
        ShowSelection();
        InitStyles();
        m_styleGroup->group.OnInitDialog();
        AddShxFonts(static_cast<CComboBox&>(*GetDlgItem(IDC_STYLE_FONT)));
        CheckDlgButton(IDC_STYLE_FIRST, BST_CHECKED);
        OnStyle(IDC_STYLE_FIRST);
        return TRUE;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_FONT_NAME, m_comboFont);
        m_styleGroup->group.DoDataExchange(pDX);
    }

    void OnFontSelected(int nId, const CString& strFont, EFontClass eClass) override
    {
        Log(_T("Font"), _T("OnFontSelected(%d, \"%s\", %d)"), nId, strFont.GetString(), eClass);
        SetDlgItemText(IDC_FONT_FOUND, _T("")); // no longer the font of that name
        ShowSelection();
    }
    void OnFontGroupChanged(CFontCtrlGroup*, epgFont* pFont) override
    {
        Log(_T("Text style"), _T("OnFontGroupChanged(%s)"), TextOf(*pFont).GetString());
        ShowStyles();
    }
    void OnFontGroupButton(CFontCtrlGroup*, epgFont* pFont) override
    {
        Log(_T("Text style"), _T("OnFontGroupButton(%s)"), TextOf(*pFont).GetString());
        for (STextStyle& style : m_styles)
            style.font = *pFont;
        ShowStyles();
    }

    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnStyle(UINT nId);
    afx_msg void OnSelect();
    DECLARE_MESSAGE_MAP()

private:
    static void AddShxFonts(CComboBox& combo)
    {
        for (LPCWSTR pszFont : kShxFonts)
            combo.AddString(pszFont);
    }
    void InitStyles();
    void ShowStyles();
    void PaintSheet(CDC& dc, const CRect& sheet);
    void PaintStyle(CDC& dc, CRect room, const STextStyle& style);

    void ShowSelection()
    {
        LOGFONT logFont;
        EFontClass eClass;
        if (m_comboFont.GetSelFont(logFont, eClass) < 0)
            return;
        SetDlgItemText(IDC_FONT_CLASS, eClass == eFontSHX ? _T("SHX") : _T("TrueType"));
        ShowPreview(logFont);
    }
    void ShowPreview(LOGFONT logFont)
    {
        constexpr LONG kHeight = 140; // tenths of a point
        logFont.lfHeight = kHeight;
        logFont.lfWidth = 0;
        CFont font;
        font.CreatePointFontIndirect(&logFont);
        GetDlgItem(IDC_FONT_PREVIEW)->SetFont(&font);
        m_fontPreview.DeleteObject(); // now that it is not shown any more
        m_fontPreview.Attach(font.Detach());
    }

    CFontSelectionComboBox m_comboFont{this};
    CFont m_fontPreview;

    std::array<STextStyle, IDC_STYLE_LAST - IDC_STYLE_FIRST + 1> m_styles{
        {{_T("Part marks"), _T("B 12")}, {_T("Dimensions"), _T("4 500")}, {_T("Notes"), _T("M24 - 8.8")}}};
    int m_nStyle = 0; ///< the one that the group edits
    CBorrowed<CShelvedFontGroup> m_styleGroup{this};
};

BEGIN_MESSAGE_MAP(CFontPageDialog, CGalleryPageDialog)
    ON_WM_DRAWITEM()
    ON_CONTROL_RANGE(BN_CLICKED, IDC_STYLE_FIRST, IDC_STYLE_LAST, &CFontPageDialog::OnStyle)
    ON_BN_CLICKED(IDC_FONT_SELECT, &CFontPageDialog::OnSelect)
END_MESSAGE_MAP()

void CFontPageDialog::OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (nIDCtl == IDC_STYLE_SHEET)
        PaintInMemory(*lpDrawItemStruct, [this](CDC& dc, const CRect& area) { PaintSheet(dc, area); });
    else
        CGalleryPageDialog::OnDrawItem(nIDCtl, lpDrawItemStruct);
}

// One group for all three: it edits the record that it is given.
void CFontPageDialog::OnStyle(UINT nId)
{
    m_nStyle = nId - IDC_STYLE_FIRST;
    m_styleGroup->group.SetFontSource(&m_styles[m_nStyle].font);
    ShowStyles();
}

void CFontPageDialog::OnSelect()
{
    CString strWanted;
    GetDlgItemText(IDC_FONT_WANTED, strWanted);
    const bool bFound = m_comboFont.SetSelection(strWanted); // reports nothing
    SetDlgItemText(IDC_FONT_FOUND, gOtLang.Do(bFound ? _T("Selected.") : _T("There is no such font.")));
    ShowSelection();
}

// In fonts that the system has.
void CFontPageDialog::InitStyles()
{
    const bool bArial = m_comboFont.FindStringExact(-1, _T("Arial")) >= 0;
    const LPCTSTR pszSans = bArial ? _T("Arial") : _T("Liberation Sans");
    const LPCTSTR pszSerif = bArial ? _T("Times New Roman") : _T("Liberation Serif");
    m_styles[0].font = {pszSans, 0.007, 5, 1, 0, 0, eFontTrueType};
    m_styles[1].font = {pszSans, 0.005, 1, 0, 0, 0, eFontTrueType};
    m_styles[2].font = {pszSerif, 0.0035, 94, 0, 1, 0, eFontTrueType};
}

void CFontPageDialog::ShowStyles()
{
    const epgFont& font = m_styles[m_nStyle].font;
    SetDlgItemText(IDC_STYLE_RECORD,
                   font.eClass == eFontSHX
                       ? TextOf(font) + gOtLang.Do(_T(" (the host's own: another font stands in here)"))
                       : TextOf(font));
    GetDlgItem(IDC_STYLE_SHEET)->Invalidate(FALSE);
}

/// The styles one below the other, with a bar beside the one that is edited.
void CFontPageDialog::PaintSheet(CDC& dc, const CRect& sheet)
{
    constexpr int kBar = 4; // pixels
    const CGdiSelection font(dc, GetFont()->m_hObject);
    dc.SetBkMode(TRANSPARENT);
    dc.FillSolidRect(sheet, RGB(255, 255, 255));
    const int nCount = static_cast<int>(m_styles.size());
    for (int i = 0; i < nCount; ++i)
    {
        const CRect room(sheet.left, sheet.top + sheet.Height() * i / nCount, sheet.right,
                         sheet.top + sheet.Height() * (i + 1) / nCount);
        PaintStyle(dc, room, m_styles[i]);
        if (i == m_nStyle)
            dc.FillSolidRect(room.left, room.top, kBar, room.Height(), ::GetSysColor(COLOR_HIGHLIGHT));
        if (i > 0)
            dc.FillSolidRect(room.left, room.top, room.Width(), 1, ::GetSysColor(COLOR_BTNFACE));
    }
    dc.Draw3dRect(sheet, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNSHADOW));
}

/// A style's name, and a text in its font, height and colour below.
void CFontPageDialog::PaintStyle(CDC& dc, CRect room, const STextStyle& style)
{
    room.DeflateRect(12, 4);
    dc.SetTextColor(::GetSysColor(COLOR_GRAYTEXT));
    room.top += dc.DrawText(gOtLang.Do(style.pszName), room, DT_SINGLELINE | DT_NOPREFIX);
    CFont font;
    const LOGFONT logFont = OnScreen(style.font, dc);
    font.CreateFontIndirect(&logFont);
    const CGdiSelection selection(dc, font);
    dc.SetTextColor(OnPaper(style.font.nColor));
    dc.DrawText(style.pszSample, room, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}
} // namespace

void AddFontPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CFontPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageFont, _T("Font"), pDialog), manager.GetPage(ePageCombos));
}
