#pragma once
#define __AFXDLGS_H__ // asked for by the headers that wizards make
// The common dialogs.
//
//     CFileDialog dlg(TRUE, L"dat", nullptr, OFN_HIDEREADONLY, L"Data (*.dat)|*.dat|All (*.*)|*.*||", this);
//     if (dlg.DoModal() == IDOK)
//         Open(dlg.GetPathName());
//
// DoModal answers IDOK or IDCANCEL; CommDlgExtendedError tells a failure from a cancellation. The structure
// behind a dialog (m_ofn, m_cc) may be changed between the constructor and DoModal.

#include <afxwin.h>

#include <commdlg.h>

/// What the common dialogs share. The objects are made by the classes below.
class AFX_CORE_CLASS CCommonDialog : public CDialog
{
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* pParentWnd);

protected:
    void OnOK() override;
    void OnCancel() override;
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
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);
    /// A last look at the name; nonzero keeps the dialog open.
    virtual BOOL OnFileNameOK() { return FALSE; }
    virtual void OnInitDone() { GetParent()->CenterWindow(); }
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnHelp();
    virtual void OnTypeChange();

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
