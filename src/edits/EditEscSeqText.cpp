#include <afxwin.h>

#include "edits/EditEscSeqText.h"

#include "module/HasWindow.h"

#include <Translator.h>

#include <algorithm>
#include <span>

namespace
{
struct SEscSeq
{
    LPCWSTR pszCode;
    LPCWSTR pszDescription;
    bool bDimension = false;
};

constexpr SEscSeq kAcadText[] = {
    {L"%%c", L"oznaka za fi"},
};

constexpr SEscSeq kMember[] = {
    {L"%i", L"simbol profila"}, {L"%f", L"oznaka profila"},     {L"%m", L"broj profila u preseku"},
    {L"%o", L"tip profila"},    {L"%d", L"duzina stapa", true},
};

constexpr SEscSeq kPlate[] = {
    {L"%i", L"simbol za kotu"},
    {L"%l", L"duzina lima", true},
    {L"%w", L"sirina lima", true},
    {L"%h", L"debljina lima"},
};

constexpr SEscSeq kProductionMember[] = {
    {L"%i", L"simbol profila"},
    {L"%f", L"oznaka profila"},
    {L"%m", L"broj profila u preseku"},
    {L"%o", L"tip profila"},
    {L"%d", L"transportna duzina profila"},
    {L"%a", L"materijal"},
    {L"%n", L"redni broj nacina secenja"},
    {L"%k", L"broj ponavljanja nacina secenja"},
    {L"%l", L"iskoriscena duzina"},
    {L"%p", L"procenat iskoriscene duzine"},
    {L"%s", L"neiskoriscena duzina"},
    {L"%h", L"procenat neiskoriscene duzine"},
};

int ListEscSeq(std::span<const SEscSeq> table, OCArray<CString>& codes, OCArray<CString>& descriptions,
               bool bNoDimensions = false)
{
    codes.RemoveAll();
    descriptions.RemoveAll();
    for (const SEscSeq& seq : table)
    {
        if (bNoDimensions && seq.bDimension)
            continue;
        codes.Add(seq.pszCode);
        descriptions.Add(seq.pszDescription);
    }
    return static_cast<int>(codes.GetSize());
}
} // namespace

CEditEscSeqText::CEditEscSeqText(CEditNNotificationHandler* pHandler, int nBtnId)
    : CEditWithValidation(pHandler), m_nButtonId(nBtnId)
{
}

LRESULT CEditEscSeqText::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_ENABLE && m_button.m_hWnd)
        m_button.EnableWindow(wParam != 0);
    if (message == WM_KILLFOCUS)
        m_nCaret = CaretIndex(); // before the control gives up its caret
    return CEditWithValidation::WindowProc(message, wParam, lParam);
}

void CEditEscSeqText::PreSubclassWindow()
{
    CEditWithValidation::PreSubclassWindow();
    m_nCaret = 0;
    if (m_nButtonId == 0)
        return;
    BindButton();
    UpdateEscSeqList();
    m_button.SetEnumSource(&m_nChosen);
}

void CEditEscSeqText::BindButton()
{
    const HWND hButton = ::GetDlgItem(::GetParent(m_hWnd), m_nButtonId);
    if (!hButton || FromHandlePermanent(hButton))
        return;
    m_button.SubclassWindow(hButton);
    if (!IsWindowEnabled())
        m_button.EnableWindow(FALSE);
}

// The caret is at one end of the selection, and those are known in 32 bits. EM_CHARFROMPOS, which has 16 and nothing
// for a caret that is scrolled out of sight, only tells which end.
int CEditEscSeqText::CaretIndex() const
{
    int nStart = 0, nEnd = 0;
    GetSel(nStart, nEnd);
    const bool bAtStart = LOWORD(CharFromPos(GetCaretPos())) == LOWORD(nStart);
    return bAtStart ? nStart : nEnd;
}

void CEditEscSeqText::OnTextChosen(int nId, int nIndex)
{
    if (m_nButtonId == 0 || nId != m_nButtonId || !m_hWnd || IsReadOnly())
        return;
    if (nIndex < 0 || nIndex >= m_button.TextCount())
        return;
    const HWND hWnd = m_hWnd;
    DodajTekstBezProvere(m_button.GetText(nIndex));
    if (!gfnHasWindow(this, hWnd))
        return; // the handler closed the dialog
    if (auto* pHandler = GetNotificationHandler())
        pHandler->OnEditNChange(GetDlgCtrlID()); // wanted: the second report of one insertion
}

// Adds a text without checking it.
void CEditEscSeqText::DodajTekstBezProvere(CString strText)
{
    const CString strShown = ReadText();
    const int nPos = std::min(m_nCaret, strShown.GetLength());
    // A text that is refused stands in the control only, and must not be lost to the stored one.
    const CString strOld = IsTextValid(strShown) ? m_strValue : strShown;
    SafeSetWindowText(strOld.Left(nPos) + strText + strOld.Mid(nPos));
    const HWND hWnd = m_hWnd;
    TakeFocus();
    if (!gfnHasWindow(this, hWnd))
        return;
    const int nBehind = nPos + strText.GetLength();
    SetSel(nBehind, nBehind);
    HandlerOnChange();
}

// By way of the dialog, which takes the default button's mark off the button. Other parents do nothing for it.
void CEditEscSeqText::TakeFocus()
{
    ::SendMessage(::GetParent(m_hWnd), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(m_hWnd), TRUE);
    SetFocus();
}

void CEditEscSeqText::UpdateEscSeqList()
{
    OCArray<CString> codes, descriptions;
    EnumEscSeq(codes, descriptions);
    for (int i = 0; i < descriptions.GetSize(); ++i)
        descriptions[i] = gOtLang.Do(descriptions[i]);
    m_button.SetTexts(codes, descriptions);
}

// ---- Value ------------------------------------------------------------------------------------------------

void CEditEscSeqText::SetValue(const CString& strText, bool bForce)
{
    if (!IsTextValid(strText))
        return;
    if (strText == m_strValue && IsTextValid(m_strValue) && !bForce)
        return;
    m_strValue = strText;
    UpdateGUIWithStoredData();
}

const CString& CEditEscSeqText::GetValue() const
{
    return m_strValue;
}

bool CEditEscSeqText::IsDataCurrentlyInGUIValid() const
{
    return m_hWnd && IsTextValid(ReadText());
}

bool CEditEscSeqText::ValidateAndStoreDataFromGUI()
{
    if (!m_hWnd)
        return false;
    const CString strText = ReadText();
    if (!IsTextValid(strText))
        return false;
    m_strValue = strText;
    return true;
}

void CEditEscSeqText::UpdateGUIWithStoredData()
{
    if (m_hWnd)
        SafeSetWindowText(m_strValue);
}

bool CEditEscSeqText::IsTextValid(const CString&) const
{
    return true;
}

// ---- Sequences --------------------------------------------------------------------------------------------

int CEditEscSeqText::EnumEscSeq(OCArray<CString>& codes, OCArray<CString>& descriptions) const
{
    return ListEscSeq({}, codes, descriptions);
}

int CEditAcadEscSeqText::EnumEscSeq(OCArray<CString>& codes, OCArray<CString>& descriptions) const
{
    return ListEscSeq(kAcadText, codes, descriptions);
}

int CEditAcadEscSeqSpecStapa::EnumEscSeq(OCArray<CString>& codes, OCArray<CString>& descriptions) const
{
    return ListEscSeq(kMember, codes, descriptions, m_bNoDimensions);
}

int CEditAcadEscSeqSpecLima::EnumEscSeq(OCArray<CString>& codes, OCArray<CString>& descriptions) const
{
    return ListEscSeq(kPlate, codes, descriptions, m_bNoDimensions);
}

int CEditAcadEscSeqSpecProizvStapa::EnumEscSeq(OCArray<CString>& codes, OCArray<CString>& descriptions) const
{
    return ListEscSeq(kProductionMember, codes, descriptions);
}
