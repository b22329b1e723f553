// Display cells: the legend of a drawing, with a column for each kind of cell that looks different, and texts in the
// language of the drawing, which is not that of the display.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

#include <Translator.h>

namespace
{
enum EColumn
{
    eNumber,
    eName,    ///< CAnsiGridCell
    eSection, ///< CPatternBkgndGridCell
    eProfile, ///< CImageGridCell
    ePlan,    ///< CMarkedTextCell
    eSymbol,  ///< CMixedFontGridCell
    eColumnCount
};

struct SItem
{
    LPCTSTR pszSection;
    int nHatch; ///< a style of CreateHatchBrush, or kNoHatch
    COLORREF crHatch;
    int nImage; ///< of the profile icons in CGridCtrl::GridImageList
    LPCTSTR pszPlan;
    bool bChanged;
    LPCTSTR pszSymbol;
};

constexpr int kNoHatch = -1;

constexpr SItem kItems[] = {
    {_T("Steel S355"), HS_BDIAGONAL, RGB(150, 180, 230), 0, _T("A-101"), true,
     _T("N<sub>Rd</sub> = 1840 kN")},
    {_T("Concrete C25/30"), HS_DIAGCROSS, RGB(200, 200, 200), 1, _T("A-102"), false,
     _T("f<sub>ck</sub> = <b>25</b> MPa")},
    {_T("Steel S235"), HS_FDIAGONAL, RGB(230, 190, 150), 3, _T("A-104"), false,
     L"<i>\u03c3</i> = 18 kN/cm<sup>2</sup>"},
    {_T("Timber GL24h"), HS_HORIZONTAL, RGB(235, 205, 150), 2, _T("A-110"), true,
     _T("<f Times New Roman>E</f><sub>0</sub> = 11.5 GPa")},
    {_T("To be chosen"), kNoHatch, RGB(190, 220, 190), 0, _T("A-112"), false,
     _T("\\<b> shows as it stands")},
};
constexpr int kItemCount = static_cast<int>(std::size(kItems));

/// A language for drawings, with the names of the items in it.
struct SLanguage
{
    LPCTSTR pszLanguage;
    WORD nLanguage; ///< LANG_NEUTRAL stands for the display's
    LPCTSTR pszTitle;
    LPCTSTR pszNames[kItemCount];
};

constexpr SLanguage kLanguages[] = {
    {_T("English, as the display"),
     LANG_NEUTRAL,
     _T("Roof, bay 3"),
     {_T("Column"), _T("Footing"), _T("Bracing"), _T("Purlin"), _T("Wall")}},
    {_T("Greek"),
     LANG_GREEK,
     L"\u03a3\u03c4\u03ad\u03b3\u03b7, \u03b6\u03ce\u03bd\u03b7 3",
     {L"\u03a3\u03c4\u03cd\u03bb\u03bf\u03c2", L"\u0398\u03b5\u03bc\u03ad\u03bb\u03b9\u03bf",
      L"\u03a3\u03cd\u03bd\u03b4\u03b5\u03c3\u03bc\u03bf\u03c2", L"\u03a4\u03b5\u03b3\u03af\u03b4\u03b1",
      L"\u03a4\u03bf\u03af\u03c7\u03bf\u03c2"}},
    {_T("Russian"),
     LANG_RUSSIAN,
     L"\u041a\u0440\u043e\u0432\u043b\u044f, \u043e\u0441\u044c 3",
     {L"\u041a\u043e\u043b\u043e\u043d\u043d\u0430",
      L"\u0424\u0443\u043d\u0434\u0430\u043c\u0435\u043d\u0442", L"\u0421\u0432\u044f\u0437\u044c",
      L"\u041f\u0440\u043e\u0433\u043e\u043d", L"\u0421\u0442\u0435\u043d\u0430"}},
};

struct SHatch
{
    LPCTSTR pszName;
    int nStyle;
};

constexpr SHatch kHatches[] = {
    {_T("None"), kNoHatch},       {_T("Horizontal"), HS_HORIZONTAL}, {_T("Vertical"), HS_VERTICAL},
    {_T("Falling"), HS_FDIAGONAL},  {_T("Rising"), HS_BDIAGONAL},      {_T("Squares"), HS_CROSS},
    {_T("Diamonds"), HS_DIAGCROSS},
};

/// What the drawing's texts are written in. Other pages find the display's language again.
void WriteDrawingsIn(WORD nLanguage)
{
    gOtSubLang.SetCurrentLanguage(nLanguage == LANG_NEUTRAL ? ::GetSystemDefaultLangID()
                                                            : MAKELANGID(nLanguage, SUBLANG_DEFAULT));
}

class CDisplayCellsPageDialog : public CGalleryPageDialog,
                                public AExtGridCtrlNotificationHandler,
                                public AExtComboBoxNotificationHandler,
                                public CEditNNotificationHandler
{
public:
    explicit CDisplayCellsPageDialog(CGalleryHostDialog& host)
        : CGalleryPageDialog(IDD_PAGE_DISPLAY_CELLS, host)
    {
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_DISPLAY_GRID, m_grid);
        DDX_Control(pDX, IDC_DISPLAY_HATCH, m_comboHatch);
        DDX_Control(pDX, IDC_DISPLAY_LANGUAGE, m_comboLanguage);
        DDX_Control(pDX, IDC_DISPLAY_TITLE, m_editTitle);
    }
    int OnInitPageDialog() override;

    void OnExtGridRowChanged(int nId, int nRow, int nPrevRow) override
    {
        Log(_T("Legend"), _T("OnExtGridRowChanged(%d, row %d, before %d)"), nId, nRow, nPrevRow);
        m_nRow = nRow;
        ShowCurrentRow();
    }
    bool OnExtGridEndEdit(int nId, int nRow, int nCol, const CString* pText) override
    {
        Log(_T("Legend"), _T("OnExtGridEndEdit(%d, row %d, column %d, \"%s\")"), nId, nRow, nCol,
            pText->GetString());
        if (nCol == ePlan)
            CellAt<CMarkedTextCell>(nRow, ePlan).Mark(true);
        ShowCurrentRow();
        return true;
    }
    void OnExtGridRClick(int nId, int nRow) override
    {
        Log(_T("Legend"), _T("OnExtGridRClick(%d, row %d)"), nId, nRow);
    }
    void OnExtComboBoxSelChanged(int nId, int nSel) override;
    void OnEditNChange(int nId) override
    {
        Log(_T("Title"), _T("OnEditNChange(%d)   \"%s\""), nId, gfnWholeText(m_editTitle).GetString());
    }

    afx_msg void OnChanged()
    {
        CellAt<CMarkedTextCell>(m_nRow, ePlan).Mark(IsDlgButtonChecked(IDC_DISPLAY_CHANGED) != 0);
    }
    afx_msg void OnPlaceImages(UINT nId);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    template <class Cell>
    Cell& CellAt(int nRow, int nCol) const
    {
        return static_cast<Cell&>(*m_grid.GetCell(nRow, nCol));
    }

    void MakeHeadings();
    void AddItem(const SItem& item);
    void WriteIn(const SLanguage& language);
    void ShowCurrentRow();

    CExtGridCtrl m_grid{this};
    CExtComboBox m_comboHatch{this};
    CExtComboBox m_comboLanguage{this};
    CEditN m_editTitle{this};
    CEditCtrlAnsiMsgHook m_hook; ///< of the title
    const SLanguage* m_pLanguage = kLanguages;
    int m_nRow = 1;
};

BEGIN_MESSAGE_MAP(CDisplayCellsPageDialog, CGalleryPageDialog)
    ON_BN_CLICKED(IDC_DISPLAY_CHANGED, &CDisplayCellsPageDialog::OnChanged)
    ON_COMMAND_RANGE(IDC_DISPLAY_LEFT, IDC_DISPLAY_BOTTOM, &CDisplayCellsPageDialog::OnPlaceImages)
    ON_WM_SHOWWINDOW()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

int CDisplayCellsPageDialog::OnInitPageDialog()
{
    for (const SHatch& hatch : kHatches)
        m_comboHatch.AddString(gOtLang.Do(hatch.pszName));
    for (const SLanguage& language : kLanguages)
        m_comboLanguage.AddString(gOtLang.Do(language.pszLanguage));
    m_comboLanguage.SetCurSel(0);

    m_grid.InstallMessageHook(); // the window is the dialog template's
    m_grid.SetDoubleBuffering();
    m_grid.EnableSelection(FALSE); // the current row says where one is
    m_grid.SetImageList(&CGridCtrl::GridImageList);
    m_grid.SetGridBkColor(::GetSysColor(COLOR_WINDOW));
    m_grid.SetGridLineColor(RGB(222, 226, 232));
    MakeHeadings();
    for (const SItem& item : kItems)
        AddItem(item);
    constexpr int kWidths[] = {34, 104, 116, 60, 76};
    for (int nCol = 0; nCol < eSymbol; ++nCol)
        m_grid.SetColumnWidth(nCol, kWidths[nCol], TRUE);
    m_grid.ExpandLastColumn();

    CheckRadioButton(IDC_DISPLAY_LEFT, IDC_DISPLAY_RIGHT, IDC_DISPLAY_LEFT + 1);
    CheckRadioButton(IDC_DISPLAY_TOP, IDC_DISPLAY_BOTTOM, IDC_DISPLAY_TOP + 1);
    OnPlaceImages(0);
    WriteIn(*m_pLanguage);
    m_grid.SetFocusCell(1, eName);
    return TRUE;
}

void CDisplayCellsPageDialog::OnExtComboBoxSelChanged(int nId, int nSel)
{
    Log(nId == IDC_DISPLAY_HATCH ? _T("Hatch") : _T("Language"), _T("OnExtComboBoxSelChanged(%d, %d)"), nId,
        nSel);
    if (nSel < 0)
        return;
    if (nId == IDC_DISPLAY_LANGUAGE)
    {
        WriteIn(kLanguages[nSel]);
        return;
    }
    CellAt<CPatternBkgndGridCell>(m_nRow, eSection).SetPatternStyle(kHatches[nSel].nStyle);
    m_grid.RedrawCell(m_nRow, eSection);
}

void CDisplayCellsPageDialog::OnPlaceImages(UINT /*nId*/)
{
    static constexpr DWORD kAcross[] = {DT_LEFT, DT_CENTER, DT_RIGHT};
    static constexpr DWORD kDown[] = {DT_TOP, DT_VCENTER, DT_BOTTOM};
    const int nAcross = GetCheckedRadioButton(IDC_DISPLAY_LEFT, IDC_DISPLAY_RIGHT) - IDC_DISPLAY_LEFT;
    const int nDown = GetCheckedRadioButton(IDC_DISPLAY_TOP, IDC_DISPLAY_BOTTOM) - IDC_DISPLAY_TOP;
    for (int nRow = 1; nRow < m_grid.GetRowCount(); ++nRow)
        m_grid.SetItemFormat(nRow, eProfile, kAcross[nAcross] | kDown[nDown] | DT_SINGLELINE);
    m_grid.RedrawColumn(eProfile);
}

// The language is that of this page only while it shows.
void CDisplayCellsPageDialog::OnShowWindow(BOOL bShow, UINT nStatus)
{
    CGalleryPageDialog::OnShowWindow(bShow, nStatus);
    WriteDrawingsIn(bShow ? m_pLanguage->nLanguage : LANG_NEUTRAL);
}

void CDisplayCellsPageDialog::OnDestroy()
{
    CGalleryPageDialog::OnDestroy();
    WriteDrawingsIn(LANG_NEUTRAL);
}

// ---- The legend -------------------------------------------------------------------------------------------

void CDisplayCellsPageDialog::MakeHeadings()
{
    static constexpr LPCTSTR kHeadings[] = {_T("No."),     _T("Name"), _T("Section"),
                                             _T("Profile"), _T("Plan"), _T("Symbol")};
    m_grid.SetRowCount(1);
    m_grid.SetColumnCount(eColumnCount);
    m_grid.SetFixedRowCount(1);
    m_grid.SetFixedColumnCount(1);
    for (int nCol = 0; nCol < eColumnCount; ++nCol)
    {
        m_grid.SetItemText(0, nCol, gOtLang.Do(kHeadings[nCol]));
        m_grid.SetItemFormat(0, nCol, GV_HEADING_FORMAT);
    }
}

void CDisplayCellsPageDialog::AddItem(const SItem& item)
{
    constexpr int kRowHeight = 29; // pixels: an image of 16 has room to move
    CString strNumber;
    strNumber.Format(_T("%d"), m_grid.GetRowCount());
    const int nRow = m_grid.InsertRow(strNumber);
    m_grid.SetRowHeight(nRow, kRowHeight);
    m_grid.SetItemFormat(nRow, eNumber, GV_HEADING_FORMAT);

    m_grid.SetCellType(nRow, eSection, RUNTIME_CLASS(CPatternBkgndGridCell));
    auto& section = CellAt<CPatternBkgndGridCell>(nRow, eSection);
    section.SetText(item.pszSection);
    section.SetBackClr(RGB(255, 255, 255)); // the gaps of the hatch
    section.SetPatternColor(item.crHatch);
    section.SetPatternStyle(item.nHatch);

    m_grid.SetCellType(nRow, eProfile, RUNTIME_CLASS(CImageGridCell));
    m_grid.SetItemImage(nRow, eProfile, CGridCtrl::nFirstGridIconIdx + item.nImage);
    m_grid.SetItemState(nRow, eProfile, m_grid.GetItemState(nRow, eProfile) | CELL_READONLY);

    m_grid.SetCellType(nRow, ePlan, RUNTIME_CLASS(CMarkedTextCell));
    m_grid.SetItemText(nRow, ePlan, item.pszPlan);
    CellAt<CMarkedTextCell>(nRow, ePlan).Mark(item.bChanged);

    m_grid.SetCellType(nRow, eSymbol, RUNTIME_CLASS(CMixedFontGridCell));
    m_grid.SetItemText(nRow, eSymbol, item.pszSymbol);
}

/// The cells for names are made anew, as each finds out once whether it needs another character set. Their editors
/// and the title's box get it by hooks, what is painted by the fonts of the grid.
void CDisplayCellsPageDialog::WriteIn(const SLanguage& language)
{
    m_pLanguage = &language;
    WriteDrawingsIn(language.nLanguage);
    m_grid.SetFont(GetFont());
    CAnsiGridCell::InitializeAnsiGrid(m_grid);
    for (int i = 0; i < kItemCount; ++i)
    {
        m_grid.SetCellType(i + 1, eName, RUNTIME_CLASS(CAnsiGridCell));
        m_grid.SetItemText(i + 1, eName, language.pszNames[i]);
    }
    m_grid.Refresh();

    m_hook.Unhook();
    m_hook.HookWindow(&m_editTitle);
    m_editTitle.SafeSetWindowText(language.pszTitle);
}

void CDisplayCellsPageDialog::ShowCurrentRow()
{
    const auto& section = CellAt<CPatternBkgndGridCell>(m_nRow, eSection);
    for (int i = 0; i < static_cast<int>(std::size(kHatches)); ++i)
        if (kHatches[i].nStyle == section.GetPatternStyle())
            m_comboHatch.SetCurSel(i);
    CheckDlgButton(IDC_DISPLAY_CHANGED, CellAt<CMarkedTextCell>(m_nRow, ePlan).IsMarked());
    SetDlgItemText(IDC_DISPLAY_STORED,
                   m_grid.GetItemText(m_nRow, ePlan) + _T("\n") + m_grid.GetItemText(m_nRow, eSymbol));
}
} // namespace

void AddDisplayCellsPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CDisplayCellsPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageDisplayCells, _T("Display cells"), pDialog), nullptr);
}
