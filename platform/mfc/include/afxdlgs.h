#pragma once
#define __AFXDLGS_H__ // asked for by the headers that wizards make
// The common dialogs, and property sheets.
//
//     CFileDialog dlg(TRUE, L"dat", nullptr, OFN_HIDEREADONLY, L"Data (*.dat)|*.dat|All (*.*)|*.*||", this);
//     if (dlg.DoModal() == IDOK)
//         Open(dlg.GetPathName());
//
// DoModal answers IDOK or IDCANCEL; CommDlgExtendedError tells a failure from a cancellation. The structure
// behind a dialog (m_ofn, m_cc) may be changed between the constructor and DoModal.

#include <afxwin.h>

#include <afxcmn.h>

#include <commdlg.h>
#include <prsht.h>

class CPropertySheet;

/// What the common dialogs share. The objects are made by the classes below.
class AFX_CORE_CLASS CCommonDialog : public CDialog
{
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* pParentWnd);

protected:
    void OnOK() override;
    void OnCancel() override { Default(); }
};

/// The dialog to open or save files.
class AFX_CORE_CLASS CFileDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFileDialog)

public:
    /// \param bOpenFileDialog  TRUE to open, FALSE to save under a name
    /// \param lpszDefExt       extension added to a name typed without one
    /// \param lpszFilter       pairs of text and pattern, each ended by '|', the whole by "||"
    /// \param dwSize           size of the OPENFILENAME to use, 0 for the current one
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr, DWORD dwSize = 0);
    ~CFileDialog() override;

    OPENFILENAME m_ofn;
    BOOL m_bOpenFileDialog;

    INT_PTR DoModal() override;

    /// The name chosen: whole, without the directory, the extension without its dot, the name without
    /// extension. While the dialog is open they answer what stands in it.
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;
    CString GetFileTitle() const;
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }
    OPENFILENAME& GetOFN() { return m_ofn; }
    const OPENFILENAME& GetOFN() const { return m_ofn; }

    /// A loop over the files chosen with OFN_ALLOWMULTISELECT. The caller sets a large enough
    /// m_ofn.lpstrFile and nMaxFile for many of them.
    POSITION GetStartPosition() const { return reinterpret_cast<POSITION>(m_ofn.lpstrFile); }
    CString GetNextPathName(POSITION& pos) const;

    // While the dialog is open
    void SetTemplate(LPCTSTR lpWin3ID, LPCTSTR lpWin4ID);
    void SetTemplate(UINT nWin3ID, UINT nWin4ID);
    CString GetFolderPath() const;
    void SetControlText(int nID, LPCSTR lpsz) { SetControlText(nID, CString(lpsz).GetString()); }
    void SetControlText(int nID, const wchar_t* lpsz);
    void HideControl(int nID);
    void SetDefExt(LPCSTR lpsz);

protected:
    /// Answer to a sharing violation: OFN_SHAREFALLTHROUGH, OFN_SHARENOWARN or OFN_SHAREWARN.
    virtual UINT OnShareViolation(LPCTSTR) { return OFN_SHAREWARN; }
    /// A last look at the name; nonzero keeps the dialog open.
    virtual BOOL OnFileNameOK() { return FALSE; }
    virtual void OnInitDone() { GetParent()->CenterWindow(); }
    virtual void OnFileNameChange() {}
    virtual void OnFolderChange() {}
    virtual void OnHelp() {}
    virtual void OnTypeChange() {}
    /// A dialog without OFN_EXPLORER: the selection of a list is about to change. Box, item, and a CD_LBSEL code.
    virtual void OnLBSelChangedNotify(UINT, UINT, UINT) {}

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    /// Lets the dialog answer a question about what stands in it now.
    CString AskDialog(UINT message) const;
    bool IsExplorerDialogOpen() const { return m_hWnd != nullptr && (m_ofn.Flags & OFN_EXPLORER) != 0; }

    CString m_strFilter; ///< the filter with its bars made into nulls
    CString m_strDefExt;
    TCHAR m_szFileName[MAX_PATH];
    TCHAR m_szFileTitle[64];
};

/// The dialog to choose a colour.
class AFX_CORE_CLASS CColorDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CColorDialog)

public:
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr);

    CHOOSECOLOR m_cc;

    INT_PTR DoModal() override;

    /// Chooses a colour while the dialog is open.
    void SetCurrentColor(COLORREF clr);
    COLORREF GetColor() const { return m_cc.rgbResult; }
    /// The 16 custom colours, shared by all colour dialogs of the process.
    static COLORREF* PASCAL GetSavedCustomColors();

protected:
    /// A last look at the colour; nonzero keeps the dialog open.
    virtual BOOL OnColorOK() { return FALSE; }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

/// The dialog to choose a font for the screen or a printer.
class AFX_CORE_CLASS CFontDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFontDialog)

public:
    /// `lplfInitial` is where the choice starts, and stays unchanged.
    explicit CFontDialog(LPLOGFONT lplfInitial = nullptr, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC* pdcPrinter = nullptr, CWnd* pParentWnd = nullptr);

    CHOOSEFONT m_cf;

    INT_PTR DoModal() override;

    void GetCurrentFont(LPLOGFONT lplf);
    CString GetFaceName() const { return m_lf.lfFaceName; }
    CString GetStyleName() const { return m_cf.lpszStyle; }
    /// Tenths of a point.
    int GetSize() const { return m_cf.iPointSize; }
    COLORREF GetColor() const { return m_cf.rgbColors; }
    int GetWeight() const { return m_lf.lfWeight; }
    BOOL IsStrikeOut() const { return m_lf.lfStrikeOut != 0; }
    BOOL IsUnderline() const { return m_lf.lfUnderline != 0; }
    BOOL IsBold() const { return (m_cf.nFontType & BOLD_FONTTYPE) != 0; }
    BOOL IsItalic() const { return (m_cf.nFontType & ITALIC_FONTTYPE) != 0; }

    LOGFONT m_lf;

protected:
    TCHAR m_szStyleName[64];
};

// ---------------------------------------------------------------------------------------------------------
// Property sheets: dialogs whose pages stand behind tabs, or follow each other as the steps of a wizard.
//
//     CPropertySheet sheet(L"Beam", this);
//     CSectionPage section; // derived from CPropertyPage, with a dialog template of its own
//     CMaterialPage material;
//     sheet.AddPage(&section);
//     sheet.AddPage(&material);
//     if (sheet.DoModal() == IDOK)
//         Store(section, material);
//
// A page is created when it is shown for the first time; a page that was never shown was never asked anything.
// Between pages, and before OK and Apply, the active page's OnKillActive takes its values; a refused value keeps the
// page. Pages are shown in the sheet's font. The sheet owns none of its pages, which must outlive its window.

/// A page of a property sheet.
class AFX_CORE_CLASS CPropertyPage : public CDialog
{
    DECLARE_DYNAMIC(CPropertyPage)

public:
    /// The template's caption is the tab's text unless `nIDCaption` names a string. The header texts belong to wizards
    /// with PSH_WIZARD97.
    CPropertyPage() { CommonConstruct(nullptr); }
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGE))
        : CPropertyPage(MAKEINTRESOURCE(nIDTemplate), nIDCaption, dwSize)
    {
    }
    explicit CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0,
                           DWORD dwSize = sizeof(PROPSHEETPAGE))
    {
        CommonConstruct(lpszTemplateName, nIDCaption, 0, 0, dwSize);
    }
    CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0,
                  DWORD dwSize = sizeof(PROPSHEETPAGE))
        : CPropertyPage(MAKEINTRESOURCE(nIDTemplate), nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle, dwSize)
    {
    }
    CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0,
                  DWORD dwSize = sizeof(PROPSHEETPAGE))
    {
        CommonConstruct(lpszTemplateName, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle, dwSize);
    }
    ~CPropertyPage() override;
    void Construct(UINT nIDTemplate, UINT nIDCaption = 0)
    {
        CommonConstruct(MAKEINTRESOURCE(nIDTemplate), nIDCaption);
    }
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0)
    {
        CommonConstruct(lpszTemplateName, nIDCaption);
    }
    void Construct(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0)
    {
        CommonConstruct(MAKEINTRESOURCE(nIDTemplate), nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
    }
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0)
    {
        CommonConstruct(lpszTemplateName, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
    }

    PROPSHEETPAGE m_psp; ///< may be changed before the page is added; lParam is the object
    PROPSHEETPAGE& GetPSP() { return m_psp; }
    const PROPSHEETPAGE& GetPSP() const { return m_psp; }

    /// Enables the sheet's Apply button, or disables it again once no page is modified.
    void SetModified(BOOL bChanged = TRUE);
    /// After a change that Cancel does not undo: OK becomes Close, and Cancel is disabled.
    void CancelToClose() { GetParent()->PostMessage(PSM_CANCELTOCLOSE); }
    /// Asks each page that exists by PSM_QUERYSIBLINGS until one answers something else than 0.
    LRESULT QuerySiblings(WPARAM w, LPARAM l) { return GetParent()->SendMessage(PSM_QUERYSIBLINGS, w, l); }
    CPropertySheet* GetParentSheet() const;
    void EndDialog(int nEndID); ///< ends the sheet

    virtual BOOL OnSetActive(); ///< the page is about to be shown; FALSE skips it
    virtual BOOL OnKillActive() { return UpdateData(TRUE); } ///< FALSE keeps the page: a value was refused
    /// OK or Apply, after OnKillActive; FALSE keeps the sheet open.
    virtual BOOL OnApply() { return OnOK(), TRUE; }
    virtual void OnReset() { OnCancel(); } ///< Cancel
    void OnOK() override {}
    void OnCancel() override {}
    virtual BOOL OnQueryCancel() { return TRUE; } ///< FALSE keeps the sheet open when it is to be cancelled
    /// 0 goes on to the neighbour, -1 stays, the id of a page's template goes there.
    virtual LRESULT OnWizardBack() { return 0; }
    virtual LRESULT OnWizardNext() { return 0; }
    virtual BOOL OnWizardFinish() { return TRUE; } ///< FALSE keeps the wizard open

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    friend class CPropertySheet;

    void CommonConstruct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0, UINT nIDHeaderTitle = 0,
                         UINT nIDHeaderSubTitle = 0, DWORD dwSize = sizeof(PROPSHEETPAGE));
    /// Makes a template in the sheet's font the one that is used.
    void PreProcessPageTemplate(PROPSHEETPAGE& psp, BOOL bWizard);
    LRESULT MapWizardResult(LRESULT lToMap);
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    CString m_strCaption;
    CString m_strHeaderTitle;
    CString m_strHeaderSubTitle;
    BOOL m_bFirstSetActive = TRUE; ///< OnInitDialog has filled the controls already

private:
    std::vector<DWORD> m_ownTemplate;        ///< a copy in the sheet's font
    LPCDLGTEMPLATE m_usedTemplate = nullptr; ///< by which the system's sheet knows the page
};

/// The sheet. DoModal answers IDOK or IDCANCEL, for a wizard ID_WIZFINISH or IDCANCEL, and -1 if it could not be made.
class AFX_CORE_CLASS CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)

public:
    CPropertySheet() { CommonConstruct(nullptr, 0); }
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0)
    {
        Construct(nIDCaption, pParentWnd, iSelectPage);
    }
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0)
    {
        Construct(pszCaption, pParentWnd, iSelectPage);
    }
    /// With the pictures of a wizard; they stay the caller's.
    CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr)
    {
        Construct(nIDCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
    }
    CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr)
    {
        Construct(pszCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
    }
    ~CPropertySheet() override;
    void Construct(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    void Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr)
    {
        Construct(nIDCaption, pParentWnd, iSelectPage);
        SetPictures(hbmWatermark, hpalWatermark, hbmHeader);
    }
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr)
    {
        Construct(pszCaption, pParentWnd, iSelectPage);
        SetPictures(hbmWatermark, hpalWatermark, hbmHeader);
    }

    PROPSHEETHEADER m_psh; ///< may be changed before DoModal or Create
    PROPSHEETHEADER& GetPSH() { return m_psh; }
    const PROPSHEETHEADER& GetPSH() const { return m_psh; }

    virtual INT_PTR DoModal();
    /// Modeless: without the buttons below the pages, unless it is a wizard. -1 is the usual style of a sheet. Closed by
    /// DestroyWindow or its caption; an object made with `new` deletes itself in PostNcDestroy.
    using CWnd::Create;
    BOOL Create(CWnd* pParentWnd = nullptr, DWORD dwStyle = static_cast<DWORD>(-1), DWORD dwExStyle = 0);
    void EndDialog(int nEndID);

    // Pages; before and while the sheet is shown
    void AddPage(CPropertyPage* pPage);
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);
    int GetPageCount() const { return static_cast<int>(m_pages.GetSize()); }
    CPropertyPage* GetPage(int nPage) const { return static_cast<CPropertyPage*>(m_pages[nPage]); }
    int GetPageIndex(CPropertyPage* pPage) const; ///< -1 for a page that is not in the sheet
    int GetActiveIndex() const;
    CPropertyPage* GetActivePage() const;
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage* pPage);

    void SetTitle(LPCTSTR lpszText, UINT nStyle = 0); ///< nStyle: PSH_PROPTITLE or 0
    CTabCtrl* GetTabControl() const;
    void EnableStackedTabs(BOOL bStacked)
    {
        m_bStacked = bStacked;
    } ///< before it is shown; FALSE: tabs scroll
    void PressButton(int nButton) { PostMessage(PSM_PRESSBUTTON, nButton); } ///< a PSBTN_ value
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
    BOOL IsModeless() const { return m_bModeless; }
    BOOL IsWizard() const { return (m_psh.dwFlags & (PSH_WIZARD | PSH_WIZARD97 | PSH_WIZARD_LITE)) != 0; }

    void SetWizardMode() { m_psh.dwFlags |= PSH_WIZARD; } ///< before it is shown
    void SetWizardButtons(DWORD dwFlags) { PostMessage(PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(dwFlags)); }
    void SetFinishText(LPCTSTR lpszText) { AfxSend(PSM_SETFINISHTEXT, 0, lpszText); }

    virtual BOOL OnInitDialog();
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL ContinueModal() override;

protected:
    virtual void BuildPropPageArray();
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    CPtrArray m_pages; ///< CPropertyPage, not owned
    CString m_strCaption;
    CWnd* m_pParentWnd = nullptr;
    BOOL m_bStacked = TRUE;
    BOOL m_bModeless = FALSE;

    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg LRESULT HandleInitDialog(WPARAM, LPARAM) { return OnInitDialog(); }
    afx_msg LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);
    afx_msg void OnClose();
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg LRESULT OnKickIdle(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPressButton(WPARAM wParam, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    void CommonConstruct(CWnd* parent, UINT selectedPage);
    void SetPictures(HBITMAP watermark, HPALETTE palette, HBITMAP header);
    HWND CreateSheet(CWnd* parent);
    PROPSHEETPAGE PageToShow(CPropertyPage& page);
    void LeaveOutButtons();

    std::vector<BYTE> m_pageArray; ///< behind m_psh.ppsp
};
