// The common dialogs.

#include <afxdlgs.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace
{
/// Presses a button of the dialog as soon as it is there, and again as often as the name is refused.
class ScriptedFileDialog : public CFileDialog
{
public:
    using CFileDialog::CFileDialog;

    int button = IDCANCEL;
    int refusals = 0;
    CString pathAsked;

protected:
    void OnInitDone() override
    {
        CFileDialog::OnInitDone();
        GetParent()->PostMessage(WM_COMMAND, button);
    }

    BOOL OnFileNameOK() override
    {
        pathAsked = GetPathName();
        if (refusals-- <= 0)
            return FALSE;
        GetParent()->PostMessage(WM_COMMAND, button);
        return TRUE;
    }
};

class ScriptedColorDialog : public CColorDialog
{
public:
    using CColorDialog::CColorDialog;

    int button = IDOK;
    bool attached = false;

protected:
    BOOL OnInitDialog() override
    {
        attached = CWnd::FromHandlePermanent(m_hWnd) == this;
        PostMessage(WM_COMMAND, button);
        return CColorDialog::OnInitDialog();
    }
};

std::vector<CString> Paths(const CFileDialog& dialog)
{
    std::vector<CString> paths;
    for (POSITION pos = dialog.GetStartPosition(); pos != nullptr;)
        paths.push_back(dialog.GetNextPathName(pos));
    return paths;
}
} // namespace

TEST(FileDialog, TheFilterIsARowOfTextsAndSeveralFilesAreWalkedWithTheirFolder)
{
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT, L"Data (*.dat)|*.dat||");
    const std::wstring expected(L"Data (*.dat)\0*.dat\0\0", 20);
    EXPECT_EQ(std::wstring(dialog.m_ofn.lpstrFilter, expected.size()), expected);
    const auto put = [&](const std::wstring& names)
    {
        std::fill_n(dialog.m_ofn.lpstrFile, dialog.m_ofn.nMaxFile, L'\0');
        std::copy(names.begin(), names.end(), dialog.m_ofn.lpstrFile);
    };
    put(std::wstring(L"C:\\parts\0a.dat\0b.dat\0", 22));
    EXPECT_EQ(Paths(dialog), (std::vector<CString>{L"C:\\parts\\a.dat", L"C:\\parts\\b.dat"}));
    put(std::wstring(L"C:\\\0a.dat\0b.dat\0", 16));
    EXPECT_EQ(Paths(dialog).front(), L"C:\\a.dat");
    put(L"C:\\parts\\single.dat");
    EXPECT_EQ(Paths(dialog), std::vector<CString>{L"C:\\parts\\single.dat"});
}

TEST(FileDialog, ARefusedNameKeepsTheDialogOpen)
{
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPath(MAX_PATH, folder);
    const CString path = CString(folder) + L"mfc_controls.test.dat";
    ScriptedFileDialog dialog(FALSE, L"dat", path, 0);
    dialog.button = IDOK;
    dialog.refusals = 1;
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.refusals, -1) << "asked twice";
    EXPECT_EQ(dialog.pathAsked.CompareNoCase(path), 0);
    EXPECT_EQ(dialog.GetFileName(), L"mfc_controls.test.dat");
    EXPECT_EQ(dialog.GetFileTitle(), L"mfc_controls.test");
    EXPECT_EQ(dialog.GetFileExt(), L"dat");
}

TEST(FileDialog, TellsOfASelectionThatChanges)
{
    struct Dialog : CFileDialog
    {
        Dialog() : CFileDialog(TRUE) {}
        std::vector<UINT> told;
        void OnLBSelChangedNotify(UINT box, UINT selection, UINT code) override
        {
            told = {box, selection, code};
        }
        using CFileDialog::WindowProc;
    } dialog;
    dialog.WindowProc(::RegisterWindowMessage(LBSELCHSTRING), 1120, MAKELPARAM(3, CD_LBSELCHANGE));
    EXPECT_EQ(dialog.told, (std::vector<UINT>{1120, 3, CD_LBSELCHANGE}));
}

TEST(ColorDialog, StartsFromTheColourAndAnswersIt)
{
    ScriptedColorDialog dialog(RGB(10, 200, 30), CC_FULLOPEN);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_TRUE(dialog.attached);
    EXPECT_EQ(dialog.GetColor(), RGB(10, 200, 30));
    EXPECT_EQ(dialog.m_hWnd, nullptr);

    ScriptedColorDialog cancelled;
    cancelled.button = IDCANCEL;
    EXPECT_EQ(cancelled.DoModal(), IDCANCEL);
    EXPECT_EQ(CColorDialog::GetSavedCustomColors(), dialog.m_cc.lpCustColors)
        << "one palette for all dialogs";
}

/// Accepts what it starts from.
class ScriptedFontDialog : public CFontDialog
{
public:
    using CFontDialog::CFontDialog;
    LOGFONT current = {};

protected:
    BOOL OnInitDialog() override
    {
        GetCurrentFont(&current);
        PostMessage(WM_COMMAND, IDOK);
        return CFontDialog::OnInitDialog();
    }
};

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
    EXPECT_STREQ(dialog.current.lfFaceName, L"Liberation Sans") << "asked of the open dialog";
    LOGFONT chosen = {};
    dialog.GetCurrentFont(&chosen);
    EXPECT_EQ(chosen.lfHeight, -16);
    EXPECT_EQ(dialog.GetFaceName(), L"Liberation Sans");
    EXPECT_EQ(dialog.GetSize(), 120);
    EXPECT_EQ(dialog.GetWeight(), FW_BOLD);
    EXPECT_TRUE(dialog.IsBold() && dialog.IsItalic() && dialog.IsUnderline() && !dialog.IsStrikeOut());
    CClientDC screen(nullptr);
    EXPECT_EQ(CFontDialog(nullptr, 0, &screen).m_cf.Flags & (CF_PRINTERFONTS | CF_INITTOLOGFONTSTRUCT),
              DWORD{CF_PRINTERFONTS});
}
