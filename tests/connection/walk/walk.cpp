// Works with the connection dialog as its user does, and takes its pictures.
//
//     connection_walk enter VALUES SHOTS     enters values, saves a configuration, accepts
//     connection_walk again VALUES SHOTS     finds them again, checks, cancels, changes and takes back
//
// VALUES is the folder of what the dialog keeps, SHOTS that of the PNGs and of an index.html that shows them. Prints
// "[done/all] name" for each picture. Ends with 1 and a line that says why if anything is not as it should be.

#include <afxwin.h>

#include "Check.h"
#include "ConnectionDialog.h"
#include "Language.h"

#include "Handles.h"
#include "Input.h"
#include "ModalVisit.h"
#include "Picture.h"
#include "PictureIndex.h"

#include <shlwapi.h>

#include <algorithm>
#include <cstdio>

namespace
{
/// A program whose profile is its own.
class CWalkApp : public CWinApp
{
public:
    using CWinApp::SetRegistryKey;
};

CWalkApp theApp;
CString s_strValues;
std::wstring s_shots;
int s_done = 0; ///< pictures
PictureIndex s_index(L"The connection example of DialogControlsOW",
                     L"The dialog of an add-on, as a user left it who worked on it with mouse and keyboard.");

constexpr wchar_t kName[] = L"Walk: hall, axis 3";

// Pages by their place in the tree.
constexpr int eGeometry = 0, eBolts = 1, ePlate = 2, eCheck = 3, eParts = 4, eDrawing = 5, eUnits = 6;

// Nothing unwinds through the loops of the dialogs.
void Require(bool condition, const std::wstring& what)
{
    if (condition)
        return;
    std::fwprintf(stderr, L"connection_walk: %ls\n", what.c_str());
    std::fflush(stderr);
    ::TerminateProcess(::GetCurrentProcess(), 1);
}

CWnd& Page(CWnd& dialog)
{
    CWnd* child = dialog.GetWindow(GW_CHILD);
    while (child && !(child->IsWindowVisible() && child->IsKindOf(RUNTIME_CLASS(CPageDialog))))
        child = child->GetWindow(GW_HWNDNEXT);
    Require(child != nullptr, L"no page shows");
    return *child;
}

CWnd& GoTo(CWnd& dialog, int nPage)
{
    auto& tree = static_cast<CPageTreeCtrl&>(*dialog.GetDlgItem(IDC_PAGES));
    HTREEITEM item = tree.GetRootItem();
    for (int i = 0; i < nPage; ++i)
        item = tree.GetNextVisibleItem(item);
    CRect rect;
    tree.GetItemRect(item, rect, TRUE);
    owtest::Click(tree, rect.CenterPoint());
    Require(owtest::PumpUntil([&] { return tree.GetSelectedItem() == item; }), L"the page does not show");
    return Page(dialog);
}

void RequireText(CWnd& page, int id, const std::wstring& text)
{
    const auto now = [&] { return owtest::TextOf(*page.GetDlgItem(id)); };
    Require(owtest::PumpUntil([&] { return now() == text; }), text + L" is " + now());
}

void Retype(CWnd& page, int id, const wchar_t* text)
{
    owtest::Click(*page.GetDlgItem(id));
    owtest::Press('A', false, true);
    owtest::Type(text);
    owtest::Press(VK_TAB);
}

constexpr const wchar_t* kPages[] = {L"Geometry", L"Bolts",   L"Plate", L"Loads",
                                     L"Parts",    L"Drawing", L"Units"};
constexpr int kPictures = 2 * static_cast<int>(std::size(kPages)) + 2;

std::wstring FileName(std::wstring title)
{
    std::replace(title.begin(), title.end(), L' ', L'_');
    return title + L".png";
}

/// Says that a picture is there.
void Announce(const std::wstring& title)
{
    s_index.Add(title, {FileName(title)});
    std::printf("[%d/%d] %ls\n", ++s_done, kPictures, title.c_str());
    std::fflush(stdout);
}

void Shoot(CWnd& window, const std::wstring& title)
{
    owtest::MoveTo(window, CPoint(0, 0));
    window.SendMessage(WM_NCACTIVATE, TRUE); // Wine leaves the caption of a program's first window grey
    window.UpdateWindow();
    owtest::Pump();
    Require(owtest::SaveWindowPng(window, s_shots + L"\\" + FileName(title)), L"no picture");
    Announce(title);
}

void ShootPages(CWnd& dialog, const std::wstring& suffix)
{
    for (int nPage = 0; nPage < static_cast<int>(std::size(kPages)); ++nPage)
    {
        GoTo(dialog, nPage);
        owtest::Press(VK_F6);
        Shoot(dialog, kPages[nPage] + suffix);
    }
}

/// Opens the dialog, works on it, and answers how it was closed.
INT_PTR WithDialog(const owtest::ModalVisit::Visitor& work)
{
    CConnectionDialog dialog(s_strValues);
    const owtest::ModalVisit visit(work);
    return dialog.DoModal();
}

/// Does something that opens a box, and works on it.
void WithBox(const owtest::ModalVisit::Visitor& visitor, const std::function<void()>& open)
{
    const owtest::ModalVisit visit(visitor);
    open();
    Require(owtest::PumpUntil([&] { return visit.Count() == 1; }), L"a box did not come");
}

/// A smaller beam moves the limits of the bolts; what was typed comes back with the old one.
void ChangeBeamAndBack(CWnd& dialog)
{
    Retype(GoTo(dialog, eBolts), IDC_PITCH, L"72");
    RequireText(Page(dialog), IDC_PITCH, L"72.0");
    const auto chooseBeam = [&](WORD key)
    {
        GoTo(dialog, eGeometry).GetDlgItem(IDC_BEAM)->SetFocus();
        owtest::Press(key);
    };
    chooseBeam(VK_UP);
    RequireText(GoTo(dialog, eBolts), IDC_PITCH, L"65.0");
    RequireText(Page(dialog), IDC_END_DISTANCE, L"67.0");
    chooseBeam(VK_DOWN);
    RequireText(GoTo(dialog, eBolts), IDC_PITCH, L"72.0");
    RequireText(Page(dialog), IDC_END_DISTANCE, L"60.0");
    Retype(Page(dialog), IDC_GAUGE, L"500"); // beyond the limit
    RequireText(Page(dialog), IDC_GAUGE, L"147.0");
    Retype(Page(dialog), IDC_GAUGE, L"104");
}

/// Four pieces more, in the cell; the weights follow.
void EditParts(CWnd& dialog)
{
    CWnd& page = GoTo(dialog, eParts);
    auto& grid = static_cast<CGridCtrl&>(*page.GetDlgItem(IDC_PARTS));
    CRect cell;
    grid.GetCellRect(1, 2, cell);
    owtest::Click(grid, cell.CenterPoint());
    owtest::Type(L"8");
    owtest::Press(VK_RETURN);
    // 8 x 253.2 + 2 x 220.68 + 8 x 6.9944 + 64 x 0.4
    Require(owtest::PumpUntil([&] { return grid.GetItemText(1, 5) == L"2025.60"; }),
            L"the weight does not follow");
    Require(grid.GetItemText(3, 5) == L"55.95", L"plates weigh " + std::wstring(grid.GetItemText(3, 5)));
    grid.SetColumnWidth(1, 86, TRUE); // as by dragging; kept when the dialog goes
}

void Enter(CWnd& dialog)
{
    ChangeBeamAndBack(dialog);
    EditParts(dialog);
    const auto typeName = [](CWnd&)
    {
        owtest::Press('A', false, true);
        owtest::Type(kName);
        owtest::Press(VK_RETURN);
    };
    WithBox(typeName, [&] { owtest::Click(*dialog.GetDlgItem(IDC_CONFIG_SAVE)); });
    RequireText(dialog, IDC_STATE, L"");
    ShootPages(dialog, L"");
    owtest::Click(*dialog.GetDlgItem(IDOK));
}

/// Presses Escape as soon as the progress box is there.
LRESULT CALLBACK StopWork(int code, WPARAM wParam, LPARAM lParam)
{
    constexpr int kBar = 10152;
    if (code == HCBT_ACTIVATE && ::GetDlgItem(reinterpret_cast<HWND>(wParam), kBar))
        owtest::QueueKey(VK_ESCAPE);
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void Again(CWnd& dialog)
{
    const auto press = [](WORD key) { return [key](CWnd&) { owtest::Press(key); }; };
    RequireText(dialog, IDC_STATE, L"");
    RequireText(dialog, IDC_CONFIGS, kName); // is current
    RequireText(GoTo(dialog, eBolts), IDC_PITCH, L"72.0");
    RequireText(Page(dialog), IDC_GAUGE, L"104.0");
    auto& grid = static_cast<CGridCtrl&>(*GoTo(dialog, eParts).GetDlgItem(IDC_PARTS));
    Require(grid.GetItemText(1, 2) == L"8" && grid.GetColumnWidth(1) == 86,
            L"the schedule has lost something");

    CWnd& page = GoTo(dialog, eCheck);
    const HHOOK hook = ::SetWindowsHookEx(WH_CBT, &StopWork, nullptr, ::GetCurrentThreadId());
    WithBox(press(VK_RETURN), [&] { owtest::Click(*page.GetDlgItem(IDC_CHECK)); });
    ::UnhookWindowsHookEx(hook);
    const std::wstring stopped = owtest::TextOf(*page.GetDlgItem(IDC_GOVERNING));
    Require(stopped.starts_with(L"Stopped") || stopped.starts_with(L"Not"), L"the check goes on: " + stopped);
    const auto shootAndClose = [](CWnd& box)
    {
        Shoot(box, L"Result");
        owtest::Press(VK_RETURN);
    };
    WithBox(shootAndClose, [&] { owtest::Click(*page.GetDlgItem(IDC_CHECK)); });
    const std::wstring governing = owtest::TextOf(*page.GetDlgItem(IDC_GOVERNING));
    Require(governing.starts_with(L"Case 10000 governs: Plate in bending"), governing);
    Shoot(dialog, L"Check");

    // Escape asks, and no loses nothing; yes takes back what was changed.
    Retype(GoTo(dialog, eBolts), IDC_ROWS, L"3");
    WithBox(press(VK_ESCAPE), [] { owtest::Press(VK_ESCAPE); });
    RequireText(Page(dialog), IDC_ROWS, L"3");
    RequireText(dialog, IDC_STATE, L"Changed, not saved");
    WithBox(press(VK_RETURN), [] { owtest::Press(VK_ESCAPE); });
}

/// Opened and closed with all pages shown, it gives back what it took.
void OpenOften()
{
    owtest::HandleCount before;
    for (int i = 0; i < 103; ++i)
    {
        if (i == 3)
            before = owtest::CountHandles();
        CConnectionDialog dialog(s_strValues);
        dialog.Create(IDD_CONNECTION);
        dialog.ShowWindow(SW_SHOW);
        auto& tree = static_cast<CPageTreeCtrl&>(*dialog.GetDlgItem(IDC_PAGES));
        for (HTREEITEM item = tree.GetRootItem(); item; item = tree.GetNextVisibleItem(item))
        {
            tree.SelectItem(item);
            owtest::Pump();
        }
        dialog.DestroyWindow();
    }
    const owtest::HandleCount after = owtest::CountHandles();
    Require(after == before,
            L"handles: " + std::to_wstring(before.gdi) + L" to " + std::to_wstring(after.gdi));
}
} // namespace

int wmain(int argc, wchar_t** argv)
{
    if (argc != 4 || !AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW))
        return 1;
    theApp.SetRegistryKey(_T("DialogControlsOW connection walk"));
    ChooseLanguage(_T("en"));
    s_strValues = argv[2];
    s_shots = argv[3];
    if (std::wstring_view(argv[1]) == L"enter")
    {
        ::SHDeleteKey(HKEY_CURRENT_USER,
                      _T("Software\\DialogControlsOW connection walk")); // of an earlier walk
        Require(WithDialog(&Enter) == IDOK, L"not accepted");
        return 0;
    }
    for (const wchar_t* page : kPages)
        Announce(page); // of the first run
    Require(WithDialog(&Again) == IDCANCEL, L"not cancelled");
    ChooseLanguage(_T("sr"));
    const auto asBefore = [](CWnd& dialog)
    {
        RequireText(GoTo(dialog, eBolts), IDC_ROWS, L"4");
        ShootPages(dialog, L" in Serbian");
    };
    Require(WithDialog(asBefore) == IDCANCEL, L"not closed");
    Require(s_index.Save(s_shots + L"\\index.html"), L"no index");
    OpenOften();
    return 0;
}
