// Names and files: the three dialogs that ask for a text, each with what it answered, and a file really read and
// saved.

#include <afxwin.h>

#include "GalleryPage.h"
#include "TextFile.h"
#include "resource.h"

namespace
{
constexpr LPCTSTR kFilter = _T("Notes (*.txt)|*.txt|All files (*.*)|*.*||");

CString ReadFirstLine(const CString& strPath)
{
    constexpr UINT kMost = 4096; // bytes
    const CString strText = ReadText(strPath, kMost);
    const int nEnd = strText.FindOneOf(_T("\r\n"));
    return nEnd < 0 ? strText : strText.Left(nEnd);
}

class CNamesAndFilesPageDialog : public CGalleryPageDialog
{
public:
    explicit CNamesAndFilesPageDialog(CGalleryHostDialog& host)
        : CGalleryPageDialog(IDD_PAGE_NAMES_AND_FILES, host)
    {
    }

protected:
    int OnInitPageDialog() override;

    afx_msg void OnMark();
    afx_msg void OnLayer();
    afx_msg void OnOpenFile();
    afx_msg void OnSaveFile();
    DECLARE_MESSAGE_MAP()

private:
    CString TextOf(int nId) const;
    void ShowAnswer(int nId, LPCTSTR pszStarter, int nResult, const CString& strText);
    template <class Use>
    void UseFile(bool bOpen, int nAnswerId, Use use);

    CString m_strMark = _T("B1");
    CString m_strLayer = _T("Axes");
    CStringArray m_layers;
    CString m_strPath; ///< of the file used last
};

BEGIN_MESSAGE_MAP(CNamesAndFilesPageDialog, CGalleryPageDialog)
    ON_BN_CLICKED(IDC_ASK_MARK, &CNamesAndFilesPageDialog::OnMark)
    ON_BN_CLICKED(IDC_ASK_LAYER, &CNamesAndFilesPageDialog::OnLayer)
    ON_BN_CLICKED(IDC_OPEN_FILE, &CNamesAndFilesPageDialog::OnOpenFile)
    ON_BN_CLICKED(IDC_SAVE_FILE, &CNamesAndFilesPageDialog::OnSaveFile)
END_MESSAGE_MAP()

void CNamesAndFilesPageDialog::OnMark()
{
    const int nResult = gfnStartNazivDlg(m_strMark, TextOf(IDC_NAME_CAPTION));
    ShowAnswer(IDC_MARK_ANSWER, _T("gfnStartNazivDlg"), nResult, m_strMark);
}

// A layer that is typed is in the list the next time.
void CNamesAndFilesPageDialog::OnLayer()
{
    const int nResult = gfnStartNazivComboDlg(m_strLayer, m_layers, TextOf(IDC_NAME_CAPTION), this);
    ShowAnswer(IDC_LAYER_ANSWER, _T("gfnStartNazivComboDlg"), nResult, m_strLayer);
    for (INT_PTR i = 0; i < m_layers.GetSize(); ++i)
        if (m_layers[i] == m_strLayer)
            return;
    m_layers.Add(m_strLayer);
}

void CNamesAndFilesPageDialog::OnOpenFile()
{
    UseFile(true, IDC_OPEN_ANSWER,
            [this](const CString& strPath) { SetDlgItemText(IDC_FIRST_LINE, ReadFirstLine(strPath)); });
}

void CNamesAndFilesPageDialog::OnSaveFile()
{
    UseFile(false, IDC_SAVE_ANSWER, [this](const CString& strPath) { WriteText(strPath, TextOf(IDC_NOTE)); });
}

int CNamesAndFilesPageDialog::OnInitPageDialog()
{
    for (LPCTSTR pszLayer : {_T("0"), _T("Axes"), _T("Columns"), _T("Walls")})
        m_layers.Add(pszLayer);
    SetDlgItemText(IDC_NOTE, _T("Beam B1: shop primer\r\nDeliver with columns C1 to C4"));
    return TRUE;
}

CString CNamesAndFilesPageDialog::TextOf(int nId) const
{
    CString strText;
    GetDlgItemText(nId, strText);
    return strText;
}

void CNamesAndFilesPageDialog::ShowAnswer(int nId, LPCTSTR pszStarter, int nResult, const CString& strText)
{
    CString strAnswer;
    strAnswer.Format(_T("%s: \"%s\""), nResult == IDOK ? _T("IDOK") : _T("IDCANCEL"), strText.GetString());
    SetDlgItemText(nId, strAnswer);
    Log(pszStarter, _T("%s"), strAnswer.GetString());
}

/// Asks for a file, and uses it.
template <class Use>
void CNamesAndFilesPageDialog::UseFile(bool bOpen, int nAnswerId, Use use)
{
    const DWORD dwFlags =
        OFN_HIDEREADONLY | OFN_NOCHANGEDIR | (bOpen ? OFN_FILEMUSTEXIST : OFN_OVERWRITEPROMPT);
    CString strPath;
    const int nResult = gfnStartTranslatedFileDialog(strPath, bOpen, _T("txt"), m_strPath, dwFlags,
                                                     gOtLang.Do(kFilter), m_hWnd, nullptr);
    ShowAnswer(nAnswerId, _T("gfnStartTranslatedFileDialog"), nResult, strPath);
    if (nResult != IDOK)
        return;
    m_strPath = strPath;
    TryWithFile([&] { use(strPath); });
}
} // namespace

void AddNamesAndFilesPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CNamesAndFilesPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageNamesAndFiles, _T("Names and files"), pDialog),
                    manager.GetPage(ePageMessageBoxes));
}
