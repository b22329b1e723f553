#pragma once
// A combo box of the fonts that a text style of a drawing can use: each row a font's name written in that
// font, behind an icon that tells a TrueType font from an SHX font.
//
// ```cpp
//     class CTextStyleDialog : public CDialog, public AFontSelectionNotificationHandler
//     {
//         CFontSelectionComboBox m_comboFont{this};
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_FONT, m_comboFont); }
//         void OnFontSelected(int, const CString& strFont, EFontClass eClass) override { UseFont(strFont); }
//     };
// ```
//
//     COMBOBOX IDC_FONT, 92, 7, 120, 150, CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | CBS_SORT |
//                                         WS_VSCROLL | WS_TABSTOP
//
// Template. CBS_OWNERDRAWFIXED and CBS_HASSTRINGS are needed. Without CBS_SORT the rows stand as the system
// enumerates the fonts.
//
// Rows. A control of a template is filled when it is attached; one that is made by Create is filled by
// InitFonts, and stays empty without. Listed are the TrueType fonts of the system, each once, and the forms
// for vertical writing that it has of some, with @ before the name; the class of each is what gFontManager
// says of its name. A row that the caller adds with AddString counts as a font of that name, of an SHX font
// for instance. Rows may be taken out with DeleteString and ResetContent.
//
// Item data. Each listed row has a record of the control's own as its item data, which callers leave alone.
// It goes with its row, at the latest with the window.
//
// Reports. OnFontSelected, for each selection that the user makes; SetCurSel and SetSelection are silent.
// Without a handler the control is silent. Keys and the growth of the list are those of CExtComboBox.
//
// Icons. They are shared by all font combo boxes and stay for the process. CFontCtrlGroup loads them in its
// OnInitDialog; who uses the combo box alone calls LoadIcons once, or has none: then " (SHX)" behind the name
// tells the one class from the other.
//
// Cost. The font of a row is made when the row is painted, so that a list of a thousand fonts opens as fast
// as one of a thousand texts.

#include <afxwin.h>

#include "module/Export.h"
#include "module/NotificationInterfaces.h"

#include <memory>
#include <vector>

class OW_DIALOGCONTROLS_API CFontSelectionComboBox : public CComboBox
{
public:
    /// Posted by FillFonts, and when a window is made. The control itself does not handle it; a derived class
    /// may, with OnInitFonts.
    static constexpr UINT kFillMessage = WM_USER + 123;

    /// The handler is not owned, may be null, and must outlive the combo box.
    explicit CFontSelectionComboBox(AFontSelectionNotificationHandler* pHandler = nullptr);
    ~CFontSelectionComboBox() override;

    /// Loads both icons, if they are not there yet. A missing resource is a failed assertion, reported at
    /// ".\FontSelectionComboBox" line 31 (TrueType) or 33 (SHX), and ends the process.
    static void LoadIcons();

    /// Kept for callers: posts the message, and fills nothing.
    void FillFonts();
    /// Fills the list anew. The selection is lost.
    void InitFonts();

    /// Index of the selected row, or -1, and then the arguments are left alone. The LOGFONT is that of the
    /// enumeration, with 90, tenths of a point, as its height once the row has been painted. Of a row that
    /// the caller added only the face name and the class are known.
    int GetSelFont(LOGFONT& logFont, EFontClass& eClass) const;
    /// Face name and class of the selected row; false without a selection, and the arguments are left alone.
    bool GetSelection(CString& strFont, EFontClass& eClass) const;
    /// Selects the row of that name, in either case; false if there is none, and the selection stays.
    bool SetSelection(CString strFont);

    /// Colours of the rows, in place of the system's.
    void SetNormalColors(COLORREF crBackground, COLORREF crText);
    /// Colours of the selected row, in place of the system's.
    void SetHilightColors(COLORREF crBackground, COLORREF crText);

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    /// Does nothing: rows keep the height that the system gives them.
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;
    /// Gives back what the row kept.
    void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct) override;

    /// For EnumFonts: adds a row for a TrueType font. `lParam` is the combo box. Always 1, to go on.
    static int CALLBACK EnumFontProc(const LOGFONT* pLogFont, const TEXTMETRIC* pMetric, DWORD nType,
                                     LPARAM lParam);

    // Null and 0 by 0 until LoadIcons. The icons belong to the library; nobody destroys them.
    static HICON s_hIconTTF;
    static HICON s_hIconSHX;
    static CSize s_szIconTTF;
    static CSize s_szIconSHX;
    static int s_nIconTextOffset; ///< gap between icon and text, in pixels

protected:
    void PreSubclassWindow() override;
    void DrawFont(LPDRAWITEMSTRUCT pItem);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSelChange();
    afx_msg void OnDropDown();
    afx_msg LRESULT OnInitFonts(WPARAM wParam, LPARAM lParam); ///< not in the map
    DECLARE_MESSAGE_MAP()

private:
    /// What is known of a row's font.
    struct SFontRow
    {
        LOGFONT logFont;
        int nIndex; ///< in gFontManager, or -1
    };
    using Rows = std::vector<std::unique_ptr<SFontRow>>;

    static bool HasIcons();
    static SFontRow FontOfName(const CString& strName);

    static int DrawFontIcon(CDC& dc, const CRect& rect, EFontClass eClass);

    static int CALLBACK AddFontOnce(const LOGFONT* pLogFont, const TEXTMETRIC* pMetric, DWORD nType,
                                    LPARAM lParam);
    void AddFont(const LOGFONT& logFont);
    Rows::const_iterator FindRecord(DWORD_PTR nItemData) const;
    SFontRow* RecordOf(int nItem) const; ///< null for a row without one
    SFontRow FontOfRow(int nItem) const;
    void Repaint();
    void DrawRow(CDC& dc, CRect rect, int nItem);

    COLORREF m_crHilightBackground;
    COLORREF m_crNormalText;
    COLORREF m_crHilightText;
    COLORREF m_crNormalBackground;
    AFontSelectionNotificationHandler* m_pHandler;
    Rows m_rows; ///< the records of the rows, which point to them, in any order
};
