// The font combo box: choosing a font by hand and by name, with a preview.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

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

class CFontPage : public CGalleryPage, public AFontSelectionNotificationHandler
{
public:
    explicit CFontPage(AGalleryHost& host) : CGalleryPage(IDD_PAGE_FONT, host)
    {
        IntroduceShxFonts();
        CFontSelectionComboBox::LoadIcons();
    }

    int OnInitPageDialog() override
    {
        for (LPCWSTR pszFont : kShxFonts)
            m_comboFont.AddString(pszFont);
        m_comboFont.SetCurSel(0);
        ShowSelection();
        return TRUE;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPage::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_FONT_NAME, m_comboFont);
    }

    void OnFontSelected(int nId, const CString& strFont, EFontClass eClass) override
    {
        Log(_T("Font"), _T("OnFontSelected(%d, \"%s\", %d)"), nId, strFont.GetString(), eClass);
        SetDlgItemText(IDC_FONT_FOUND, _T("")); // no longer the font of that name
        ShowSelection();
    }

    afx_msg void OnSelect();
    DECLARE_MESSAGE_MAP()

private:
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
};

BEGIN_MESSAGE_MAP(CFontPage, CGalleryPage)
    ON_BN_CLICKED(IDC_FONT_SELECT, OnSelect)
END_MESSAGE_MAP()

void CFontPage::OnSelect()
{
    CString strWanted;
    GetDlgItemText(IDC_FONT_WANTED, strWanted);
    const bool bFound = m_comboFont.SetSelection(strWanted); // reports nothing
    SetDlgItemText(IDC_FONT_FOUND, bFound ? _T("Selected.") : _T("There is no such font."));
    ShowSelection();
}
} // namespace

CPage* AddFontPage(AGalleryHost& host, CPage* pParent)
{
    return AddTitledPage(host, new CFontPage(host), _T("Font"), pParent);
}
