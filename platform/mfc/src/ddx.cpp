// Dialog data exchange: the exchange itself, and the functions that move values.

#include <afxcmn.h>

#include <cerrno>
#include <cfloat>
#include <limits>
#include <string>
#include <type_traits>

// ---------------------------------------------------------------------------------------------------------
// CDataExchange

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd)
{
}

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (control == nullptr)
    {
        TRACE(L"The dialog has no control %d.\n", nIDC);
        AfxThrowNotSupportedException();
    }
    m_idLastControl = nIDC;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    const HWND control = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail()
{
    if (!m_bSaveAndValidate)
    {
        TRACE(L"An exchange towards the controls cannot be refused by them.\n");
    }
    else if (m_idLastControl != 0)
    {
        const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, m_idLastControl);
        ::SetFocus(control);
        if (m_bEditLastControl)
            ::SendMessage(control, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

// ---------------------------------------------------------------------------------------------------------
// Text

namespace
{
LRESULT Ask(HWND control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return ::SendMessage(control, message, wParam, lParam);
}

CString TextOf(HWND control)
{
    CString text;
    const int length = ::GetWindowTextLength(control);
    ::GetWindowText(control, text.GetBufferSetLength(length), length + 1);
    text.ReleaseBuffer();
    return text;
}

/// Leaves a control alone that shows the text already: no flicker, no change notification.
void ShowText(HWND control, LPCTSTR text)
{
    if (TextOf(control) != text)
        ::SetWindowText(control, text);
}

[[noreturn]] void Refuse(CDataExchange* exchange, LPCTSTR prompt)
{
    AfxMessageBox(prompt, MB_ICONEXCLAMATION);
    exchange->Fail();
}

LPCTSTR SkipBlanks(LPCTSTR text)
{
    while (*text == ' ' || *text == '\t')
        ++text;
    return text;
}

/// Reads a whole decimal number with blanks around it and nothing else; false if it is none, or too large.
template <class Number>
bool ParseInteger(LPCTSTR text, Number& value)
{
    text = SkipBlanks(text);
    if (std::is_unsigned_v<Number> && *text == '-')
        return false;

    using Wide = std::conditional_t<std::is_unsigned_v<Number>, ULONGLONG, LONGLONG>;
    LPTSTR end = nullptr;
    errno = 0;
    Wide wide;
    if constexpr (std::is_unsigned_v<Number>)
        wide = ::wcstoull(text, &end, 10);
    else
        wide = ::wcstoll(text, &end, 10);

    using Limits = std::numeric_limits<Number>;
    if (end == text || *SkipBlanks(end) != 0 || errno == ERANGE)
        return false;
    if (wide < Wide(Limits::min()) || wide > Wide(Limits::max()))
        return false;
    value = static_cast<Number>(wide);
    return true;
}

bool ParseReal(LPCTSTR text, double& value)
{
    LPTSTR end = nullptr;
    const double read = ::wcstod(text, &end);
    if (end == text || *SkipBlanks(end) != 0)
        return false;
    value = read;
    return true;
}

LPCTSTR const promptReal = L"Please enter a number.";

template <class Number>
LPCTSTR PromptFor()
{
    if (std::is_same_v<Number, BYTE>)
        return L"Please enter a whole number from 0 to 255.";
    return std::is_unsigned_v<Number> ? L"Please enter a whole number that is not negative."
                                      : L"Please enter a whole number.";
}

template <class Number>
void ExchangeInteger(CDataExchange* pDX, int nIDC, Number& value)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate)
        ShowText(control, std::to_wstring(value).c_str());
    else if (!ParseInteger(TextOf(control), value))
        Refuse(pDX, PromptFor<Number>());
}
} // namespace

#define IMPLEMENT_DDX_TEXT(number_type)                                                                      \
    void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, number_type& value)                                   \
    {                                                                                                        \
        ExchangeInteger(pDX, nIDC, value);                                                                   \
    }
IMPLEMENT_DDX_TEXT(BYTE)
IMPLEMENT_DDX_TEXT(short)
IMPLEMENT_DDX_TEXT(int)
IMPLEMENT_DDX_TEXT(UINT)
IMPLEMENT_DDX_TEXT(long)
IMPLEMENT_DDX_TEXT(DWORD)
IMPLEMENT_DDX_TEXT(LONGLONG)
IMPLEMENT_DDX_TEXT(ULONGLONG)

void AFXAPI AfxTextFloatFormat(CDataExchange* pDX, int nIDC, void* pData, double value, int nSizeGcvt)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate)
    {
        CString text;
        text.Format(L"%.*g", nSizeGcvt, value);
        ShowText(control, text);
        return;
    }
    double read = 0;
    if (!ParseReal(TextOf(control), read))
        Refuse(pDX, promptReal);
    // The number of digits tells which of the two types `pData` points to.
    if (nSizeGcvt == FLT_DIG)
        *static_cast<float*>(pData) = static_cast<float>(read);
    else
        *static_cast<double*>(pData) = read;
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value)
{
    AfxTextFloatFormat(pDX, nIDC, &value, value, FLT_DIG);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value)
{
    AfxTextFloatFormat(pDX, nIDC, &value, value, DBL_DIG);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = TextOf(control);
    else
        ShowText(control, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        ::lstrcpyn(value, TextOf(control), nMaxLen);
    else
        ShowText(control, value);
}

// ---------------------------------------------------------------------------------------------------------
// Buttons

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        value = static_cast<int>(Ask(control, BM_GETCHECK));
        return;
    }
    if (value < BST_UNCHECKED || value > BST_INDETERMINATE)
        value = BST_UNCHECKED;
    Ask(control, BM_SETCHECK, value);
}

namespace
{
bool IsRadioButton(HWND window)
{
    return (Ask(window, WM_GETDLGCODE) & DLGC_RADIOBUTTON) != 0;
}

/// The next window of the group, or null where the next group begins.
HWND NextOfGroup(HWND window)
{
    const HWND next = ::GetWindow(window, GW_HWNDNEXT);
    const bool begins = next != nullptr && (::GetWindowLong(next, GWL_STYLE) & WS_GROUP) != 0;
    return begins ? nullptr : next;
}
} // namespace

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND first = pDX->PrepareCtrl(nIDC);
    ASSERT(::GetWindowLong(first, GWL_STYLE) & WS_GROUP);
    ASSERT(IsRadioButton(first));

    if (pDX->m_bSaveAndValidate)
        value = -1;
    int index = 0;
    for (HWND button = first; button != nullptr; button = NextOfGroup(button))
    {
        if (!IsRadioButton(button))
            continue;
        if (!pDX->m_bSaveAndValidate)
            Ask(button, BM_SETCHECK, index == value ? BST_CHECKED : BST_UNCHECKED);
        else if (Ask(button, BM_GETCHECK) != BST_UNCHECKED)
            value = index;
        ++index;
    }
}

// ---------------------------------------------------------------------------------------------------------
// List and combo boxes

namespace
{
/// The text of the list's selected item; a combo box shows its own.
CString SelectedText(HWND list)
{
    CString text;
    const auto index = static_cast<int>(Ask(list, LB_GETCURSEL));
    const auto length = static_cast<int>(Ask(list, LB_GETTEXTLEN, index));
    if (index == LB_ERR || length == LB_ERR)
        return text;
    Ask(list, LB_GETTEXT, index, reinterpret_cast<LPARAM>(text.GetBufferSetLength(length)));
    text.ReleaseBuffer();
    return text;
}

/// Looks for a text in the whole list by `findMessage` and selects what was found; false if nothing was.
bool SelectText(HWND list, UINT findMessage, UINT selectMessage, LPCTSTR text)
{
    const LRESULT index = Ask(list, findMessage, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text));
    return index != LB_ERR && Ask(list, selectMessage, index) != LB_ERR;
}

void ExchangeListText(CDataExchange* pDX, int nIDC, CString& value, UINT findMessage)
{
    const HWND list = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = SelectedText(list);
    else if (!SelectText(list, findMessage, LB_SETCURSEL, value))
        TRACE(L"List %d has no item for the text.\n", nIDC);
}

void ExchangeComboText(CDataExchange* pDX, int nIDC, CString& value, UINT findMessage)
{
    const HWND combo = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = TextOf(combo);
    else if (!SelectText(combo, findMessage, CB_SETCURSEL, value))
        ShowText(combo, value); // typed text need not stand in the list
}

void ExchangeIndex(CDataExchange* pDX, int nIDC, int& index, UINT getMessage, UINT setMessage)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = static_cast<int>(Ask(control, getMessage));
    else
        Ask(control, setMessage, index);
}
} // namespace

void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeListText(pDX, nIDC, value, LB_FINDSTRING);
}

void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeListText(pDX, nIDC, value, LB_FINDSTRINGEXACT);
}

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    ExchangeIndex(pDX, nIDC, index, LB_GETCURSEL, LB_SETCURSEL);
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeComboText(pDX, nIDC, value, CB_FINDSTRING);
}

void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeComboText(pDX, nIDC, value, CB_FINDSTRINGEXACT);
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    ExchangeIndex(pDX, nIDC, index, CB_GETCURSEL, CB_SETCURSEL);
}

// ---------------------------------------------------------------------------------------------------------
// Positions

void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND bar = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(bar, SB_CTL);
    else
        ::SetScrollPos(bar, SB_CTL, value, TRUE);
}

void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND slider = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = static_cast<int>(Ask(slider, TBM_GETPOS));
    else
        Ask(slider, TBM_SETPOS, TRUE, value);
}

// ---------------------------------------------------------------------------------------------------------
// Controls

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    if (rControl.m_hWnd != nullptr)
        return;
    ASSERT(!pDX->m_bSaveAndValidate); // the first exchange goes towards the controls
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (CWnd::FromHandlePermanent(control) != nullptr || !rControl.SubclassWindow(control))
    {
        ASSERT(FALSE); // two objects for one control
        AfxThrowNotSupportedException();
    }
}
