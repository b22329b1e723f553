#pragma once
// Dialog data exchange: moves values between controls and members, and checks their ranges.
//
//     void CMyDialog::DoDataExchange(CDataExchange* pDX)
//     {
//         CDialog::DoDataExchange(pDX);
//         DDX_Control(pDX, IDC_NAME, m_nameEdit);
//         DDX_Text(pDX, IDC_WIDTH, m_width);
//         DDV_MinMaxInt(pDX, m_width, 1, 500);     // directly after the value's own DDX
//     }
//
// While saving, input that cannot be converted or stands outside its range is reported in a message box; the
// control gets the focus and the exchange ends with a CUserException, which CWnd::UpdateData turns into
// FALSE.

#include <afxwin_wnd.h>

class CListBox;
class CComboBox;

// Text of a control. An empty text reads as an error for numbers. The LPTSTR forms hold up to `nMaxLen`
// characters, the terminating null included.
AFX_CORE_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
AFX_CORE_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value);
AFX_CORE_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
AFX_CORE_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
AFX_CORE_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
AFX_CORE_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
AFX_CORE_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value);
AFX_CORE_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value);
AFX_CORE_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
AFX_CORE_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);
AFX_CORE_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
AFX_CORE_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen);

/// Writes a number with `nSizeGcvt` significant digits, or reads one. Used by the float and double forms of
/// DDX_Text with FLT_DIG and DBL_DIG.
AFX_CORE_API void AFXAPI AfxTextFloatFormat(CDataExchange* pDX, int nIDC, void* pData, double value,
                                            int nSizeGcvt);

// Buttons. DDX_Radio takes the first button of a group, which carries WS_GROUP; the value counts from 0 and
// is -1 for none.
AFX_CORE_API void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
AFX_CORE_API void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);

// Lists. The String forms read the chosen or typed text and select by prefix (Exact: by the whole text), the
// Index forms exchange the selection's index, -1 for none.
AFX_CORE_API void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
AFX_CORE_API void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
AFX_CORE_API void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
AFX_CORE_API void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
AFX_CORE_API void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
AFX_CORE_API void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);

AFX_CORE_API void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
AFX_CORE_API void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value);

/// Subclasses the control with the object on the first exchange; later ones leave it as it is. Fatal if the
/// dialog has no such control or another object holds it: throws CNotSupportedException.
AFX_CORE_API void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

// Ranges, both bounds included. While loading, an initial value outside its range is let through.
AFX_CORE_API void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
AFX_CORE_API void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal);
AFX_CORE_API void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
AFX_CORE_API void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
AFX_CORE_API void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
AFX_CORE_API void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
AFX_CORE_API void AFXAPI DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal,
                                            LONGLONG maxVal);
AFX_CORE_API void AFXAPI DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal,
                                             ULONGLONG maxVal);
AFX_CORE_API void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal);
AFX_CORE_API void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal,
                                          double maxVal);
/// Sets the range of a slider while loading, and checks it while saving.
AFX_CORE_API void AFXAPI DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);

/// Limits an edit's or combo box's typing while loading, and checks the length while saving.
AFX_CORE_API void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);
