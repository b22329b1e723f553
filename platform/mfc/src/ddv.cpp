// Dialog data validation.

#include <afxcmn.h>

#include <cfloat>
#include <string>

namespace
{
/// Tells the user which values are allowed and ends the exchange. While loading, a value that stands outside
/// its range is let through: the program has put it there.
void RefuseOutside(CDataExchange* pDX, LPCTSTR format, LPCTSTR minimum, LPCTSTR maximum)
{
    if (!pDX->m_bSaveAndValidate)
    {
        TRACE(L"The value of control %u is outside its range.\n", pDX->m_idLastControl);
        return;
    }
    CString prompt;
    prompt.Format(format, minimum, maximum);
    AfxMessageBox(prompt, MB_ICONEXCLAMATION);
    pDX->Fail();
}

template <class Number>
void CheckInteger(CDataExchange* pDX, Number value, Number minimum, Number maximum)
{
    if (value < minimum || value > maximum)
        RefuseOutside(pDX, L"Please enter a whole number from %s to %s.", std::to_wstring(minimum).c_str(),
                      std::to_wstring(maximum).c_str());
}

CString WithDigits(double value, int digits)
{
    CString text;
    text.Format(L"%.*g", digits, value);
    return text;
}

void CheckReal(CDataExchange* pDX, double value, double minimum, double maximum, int digits)
{
    // Written so that what is not a number at all counts as outside.
    if (!(value >= minimum && value <= maximum))
        RefuseOutside(pDX, L"Please enter a number from %s to %s.", WithDigits(minimum, digits),
                      WithDigits(maximum, digits));
}

HWND LastControl(const CDataExchange* pDX)
{
    return pDX->m_idLastControl == 0 ? nullptr : ::GetDlgItem(pDX->m_pDlgWnd->m_hWnd, pDX->m_idLastControl);
}

bool IsComboBox(HWND window)
{
    TCHAR name[32] = {};
    ::GetClassName(window, name, _countof(name));
    return ::lstrcmpi(name, WC_COMBOBOX) == 0;
}
} // namespace

#define IMPLEMENT_DDV_MINMAX(name, number_type)                                                              \
    void AFXAPI DDV_MinMax##name(CDataExchange* pDX, number_type value, number_type minVal,                  \
                                 number_type maxVal)                                                         \
    {                                                                                                        \
        CheckInteger(pDX, value, minVal, maxVal);                                                            \
    }
IMPLEMENT_DDV_MINMAX(Byte, BYTE)
IMPLEMENT_DDV_MINMAX(Short, short)
IMPLEMENT_DDV_MINMAX(Int, int)
IMPLEMENT_DDV_MINMAX(Long, long)
IMPLEMENT_DDV_MINMAX(UInt, UINT)
IMPLEMENT_DDV_MINMAX(DWord, DWORD)
IMPLEMENT_DDV_MINMAX(LongLong, LONGLONG)
IMPLEMENT_DDV_MINMAX(ULongLong, ULONGLONG)

void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal)
{
    CheckReal(pDX, value, minVal, maxVal, FLT_DIG);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal)
{
    CheckReal(pDX, value, minVal, maxVal, DBL_DIG);
}

void AFXAPI DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal)
{
    CheckInteger(pDX, value, minVal, maxVal);
    if (pDX->m_bSaveAndValidate)
        return;
    const HWND slider = LastControl(pDX);
    ::SendMessage(slider, TBM_SETRANGEMIN, FALSE, static_cast<LPARAM>(minVal));
    ::SendMessage(slider, TBM_SETRANGEMAX, TRUE, static_cast<LPARAM>(maxVal));
}

void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars)
{
    if (pDX->m_bSaveAndValidate)
    {
        if (value.GetLength() <= nChars)
            return;
        CString prompt;
        prompt.Format(L"Please enter no more than %d characters.", nChars);
        AfxMessageBox(prompt, MB_ICONEXCLAMATION);
        pDX->Fail();
    }
    if (const HWND control = LastControl(pDX))
        ::SendMessage(control, IsComboBox(control) ? CB_LIMITTEXT : EM_LIMITTEXT, nChars, 0);
}
