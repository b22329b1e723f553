// The common dialogs.

#include "../base/Answers.h"

#include <afxdlgs.h>

namespace
{
/// Presses a button of the dialog as soon as it is there, and again as often as the name is refused.
class ScriptedFileDialog : public CFileDialog
{
public:
    using CFileDialog::CFileDialog;
    using CFileDialog::WindowProc;

    int refusals = 1;
    CString pathAsked;
    std::vector<UINT> told;

    void OnInitDone() override { GetParent()->PostMessage(WM_COMMAND, IDOK); }
    BOOL OnFileNameOK() override
    {
        pathAsked = GetPathName();
        if (refusals-- <= 0)
            return FALSE;
        GetParent()->PostMessage(WM_COMMAND, IDOK);
        return TRUE;
    }
    void OnLBSelChangedNotify(UINT box, UINT selection, UINT code) override { told = {box, selection, code}; }
};

class ScriptedColorDialog : public CColorDialog
{
public:
    using CColorDialog::CColorDialog;

    int button = IDOK;

    BOOL OnInitDialog() override
    {
        EXPECT_EQ(CWnd::FromHandlePermanent(m_hWnd), this);
        PostMessage(WM_COMMAND, button);
        return CColorDialog::OnInitDialog();
    }
};

class ScriptedFontDialog : public CFontDialog
{
public:
    using CFontDialog::CFontDialog;

    BOOL OnInitDialog() override
    {
        LOGFONT current = {};
        GetCurrentFont(&current);
        EXPECT_STREQ(current.lfFaceName, L"Liberation Sans") << "asked of the open dialog";
        PostMessage(WM_COMMAND, IDOK);
        return CFontDialog::OnInitDialog();
    }
};
} // namespace

TEST(FileDialog, TheFilterIsARowOfTextsAndSeveralFilesAreWalkedWithTheirFolder)
{
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT, L"Data (*.dat)|*.dat||");
    const std::wstring expected(L"Data (*.dat)\0*.dat\0\0", 20);
    EXPECT_EQ(std::wstring(dialog.m_ofn.lpstrFilter, expected.size()), expected);
    const auto paths = [&](const std::wstring& names)
    {
        std::fill_n(dialog.m_ofn.lpstrFile, dialog.m_ofn.nMaxFile, L'\0');
        std::copy(names.begin(), names.end(), dialog.m_ofn.lpstrFile);
        CString all;
        for (POSITION pos = dialog.GetStartPosition(); pos != nullptr;)
            all += dialog.GetNextPathName(pos) + L' ';
        return all;
    };
    EXPECT_EQ(paths(std::wstring(L"C:\\parts\0a.dat\0b.dat\0", 22)), L"C:\\parts\\a.dat C:\\parts\\b.dat ");
    EXPECT_EQ(paths(std::wstring(L"C:\\\0a.dat\0b.dat\0", 16)), L"C:\\a.dat C:\\b.dat ");
    EXPECT_EQ(paths(L"C:\\parts\\single.dat"), L"C:\\parts\\single.dat ");
}

TEST(FileDialog, ARefusedNameKeepsTheDialogOpen)
{
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPath(MAX_PATH, folder);
    const CString path = CString(folder) + L"mfc_controls.test.dat";
    ScriptedFileDialog dialog(FALSE, L"dat", path, 0);
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.refusals, -1) << "asked twice";
    EXPECT_EQ(dialog.pathAsked.CompareNoCase(path), 0);
    EXPECT_EQ(Told(dialog.GetFileName(), dialog.GetFileTitle(), dialog.GetFileExt()),
              "mfc_controls.test.dat,mfc_controls.test,dat");
    dialog.WindowProc(::RegisterWindowMessage(LBSELCHSTRING), 1120, MAKELPARAM(3, CD_LBSELCHANGE));
    EXPECT_EQ(dialog.told, (std::vector<UINT>{1120, 3, CD_LBSELCHANGE}));
}

TEST(ColorDialog, StartsFromTheColourAndAnswersIt)
{
    ScriptedColorDialog dialog(RGB(10, 200, 30), CC_FULLOPEN);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetColor(), RGB(10, 200, 30));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(CColorDialog::GetSavedCustomColors(), dialog.m_cc.lpCustColors) << "one palette for all";
    dialog.button = IDCANCEL;
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(FontDialog, StartsFromTheFontAndAnswersIt)
{
    LOGFONT start = {};
    start.lfHeight = -16; // 12 points
    start.lfWeight = FW_BOLD;
    start.lfItalic = TRUE;
    start.lfUnderline = TRUE;
    ::lstrcpy(start.lfFaceName, L"Liberation Sans");
    ScriptedFontDialog dialog(&start);
    ASSERT_EQ(dialog.DoModal(), IDOK);
    LOGFONT chosen = {};
    dialog.GetCurrentFont(&chosen);
    EXPECT_EQ(Told(chosen.lfHeight, dialog.GetFaceName(), dialog.GetSize(), dialog.GetWeight()),
              "-16,Liberation Sans,120,700");
    EXPECT_TRUE(dialog.IsBold() && dialog.IsItalic() && dialog.IsUnderline() && !dialog.IsStrikeOut());
}
