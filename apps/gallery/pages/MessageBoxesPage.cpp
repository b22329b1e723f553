// Message boxes: every kind of box with what it answers, in two languages, the messenger; and icon labels.

#include <afxwin.h>

#include "LanguagePage.h"
#include "resource.h"

#include <Translator.h>

#include <thread>

namespace
{
constexpr int kPostedCode = 17;
constexpr int kParagraphs = 20; // of kSentences each, about ten thousand characters together
constexpr int kSentences = 8;
const wchar_t* const kCaption = L"Konfiguracije";
const wchar_t* const kOverwrite = L"Da li zelite da prethodna konfiguracija bude prepisana?";

CString ResultName(int nResult)
{
    switch (nResult)
    {
    case IDOK:
        return _T("IDOK");
    case IDCANCEL:
        return _T("IDCANCEL");
    case IDYES:
        return _T("IDYES");
    case IDNO:
        return _T("IDNO");
    default:
        return _T("?");
    }
}

CString ButtonName(int nButton)
{
    CString strName;
    strName.Format(gOtLang.Do(_T("button %d")), nButton);
    return strName;
}

// Each of these opens one box, and says what it answered.

CString ShowOk()
{
    return ResultName(
        COstrelMessageBox::MessageBox(L"Konfiguracija je snimljena.", kCaption, MB_OK | MB_ICONINFORMATION));
}

CString ShowOkCancel()
{
    return ResultName(COstrelMessageBox::MessageBox(L"Sve neiskoriscene konfiguracije bice obrisane.",
                                                    kCaption, MB_OKCANCEL | MB_ICONWARNING));
}

CString ShowYesNo()
{
    return ResultName(COstrelMessageBox::MessageBox(kOverwrite, kCaption, MB_YESNO | MB_ICONQUESTION));
}

CString ShowYesNoCancel()
{
    return ResultName(
        COstrelMessageBox::MessageBox(L"Konfiguracija je promenjena. Da li zelite da je snimite?", kCaption,
                                      MB_YESNOCANCEL | MB_ICONQUESTION));
}

CString ShowFree()
{
    return ButtonName(COstrelMessageBox::MessageBox(L"Konfiguracija sa ovim nazivom vec postoji.", kCaption,
                                                    MB_ICONWARNING, L"Zameni", L"Preimenuj", L"Preskoci",
                                                    L"Cancel"));
}

CString ShowPrepared()
{
    COstrelMessageBox box(CWnd::GetFocus());
    box.Set(kOverwrite, kCaption);
    box.SetButtonText(1, L"Zameni");
    box.SetButtonText(2, L"Preskoci");
    return ButtonName(box.DoModal());
}

CString ShowLong()
{
    CString strText;
    for (int i = 1; i <= kParagraphs * kSentences; ++i)
        strText += gOtLang.Do(kOverwrite) + (i % kSentences == 0 ? _T("\r\n\r\n") : _T(" "));
    return ResultName(COstrelMessageBox::MessageBox(strText, kCaption, MB_OK | MB_ICONWARNING));
}

CString ShowSystemError()
{
    COstrelMessageBox::ErrorBox(ERROR_ACCESS_DENIED);
    return gOtLang.Do(_T("closed"));
}

CString PostFromThread()
{
    COstrelMessenger& messenger =
        COstrelMessenger::Instance(); // on the main thread, which owns the host's window
    std::thread([&messenger] { messenger.PostMsg(kPostedCode); }).join();
    CString strPosted;
    strPosted.Format(gOtLang.Do(_T("posted %d")), kPostedCode);
    return strPosted;
}

// In the order of their buttons.
constexpr CString (*kBoxes[])() = {ShowOk,       ShowOkCancel, ShowYesNo,       ShowYesNoCancel, ShowFree,
                                   ShowPrepared, ShowLong,     ShowSystemError, PostFromThread};
constexpr int kLastBox = IDC_BOX_FIRST + static_cast<int>(std::size(kBoxes)) - 1;

class CMessageBoxesPageDialog : public CLanguagePageDialog
{
public:
    explicit CMessageBoxesPageDialog(CGalleryHostDialog& host)
        : CLanguagePageDialog(IDD_PAGE_MESSAGE_BOXES, host)
    {
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CLanguagePageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_XICON_FIXED, m_fixed);
        DDX_Control(pDX, IDC_XICON_FITTED, m_fitted);
        DDX_Control(pDX, IDC_XICON_BOLD, m_bold);
        DDX_Control(pDX, IDC_XICON_BEHIND, m_behind);
    }
    int OnInitPageDialog() override
    {
        m_fixed.SetAutoResize(FALSE).SetIcon(CButtonST::hIconOk, 16);
        m_fitted.SetIcon(CButtonST::hIconOk, 16).SetWindowText(gOtLang.Do(_T("Fitted to its text")));
        m_bold.SetIcon(CButtonST::hIconWarning, 32).SetBold(TRUE);
        m_behind.SetIcon(CButtonST::hIconRightAlt, 16).SetTextColor(::GetSysColor(COLOR_HIGHLIGHT));
        return TRUE;
    }

    afx_msg void OnBox(UINT nId);
    DECLARE_MESSAGE_MAP()

private:
    CXIcon m_fixed;
    CXIcon m_fitted;
    CXIcon m_bold;
    CXIcon m_behind;
};

BEGIN_MESSAGE_MAP(CMessageBoxesPageDialog, CLanguagePageDialog)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_BOX_FIRST, kLastBox, &CMessageBoxesPageDialog::OnBox)
END_MESSAGE_MAP()

void CMessageBoxesPageDialog::OnBox(UINT nId)
{
    const int nBox = static_cast<int>(nId) - IDC_BOX_FIRST;
    const CString strResult = kBoxes[nBox]();
    SetDlgItemText(IDC_RESULT_FIRST + nBox, strResult);

    CString strButton;
    GetDlgItemText(static_cast<int>(nId), strButton);
    strButton.Remove(_T('&'));
    Log(_T("Message box"), _T("%s: %s"), strButton.GetString(), strResult.GetString());
}
} // namespace

void AddMessageBoxesPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CMessageBoxesPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageMessageBoxes, _T("Message boxes"), pDialog), nullptr);
}
