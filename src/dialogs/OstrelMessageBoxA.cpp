#include <afxwin.h>

#include "dialogs/OstrelMessageBoxA.h"

#include "dialogs/MessageBoxLayout.h"
#include "module/AssertReport.h"
#include "module/IconResource.h"
#include "module/RecreateControl.h"
#include "resources/resource.h"

#include <Translator.h>

namespace
{
constexpr int kTextWidthStep = 5;
constexpr double kNormalDpi = 96.0;
constexpr int kLinesPerNotch = 3; // of the mouse wheel

int IconIdOf(unsigned int nIconType)
{
    switch (nIconType)
    {
    case MB_ICONERROR:
        return IDI_OW_ERROR;
    case MB_ICONQUESTION:
        return IDI_OW_QUESTION;
    case MB_ICONWARNING:
        return IDI_OW_WARNING;
    case MB_ICONINFORMATION:
        return IDI_OW_INFORMATION;
    default:
        INTERNAL_ERROR_AT(L"Nedozvoljena vrednost.", kMessageBoxSource, 194);
    }
}

/// By the caption as it was handed over, in whatever language it is shown; null for most.
HICON IconOfCaption(const CString& strCaption)
{
    if (strCaption == _T("OK"))
        return CButtonST::hIconOk;
    return strCaption == _T("Cancel") ? CButtonST::hIconCancel : nullptr;
}

double ScreenScale()
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    return dc.GetDeviceCaps(LOGPIXELSY) / kNormalDpi;
}
} // namespace

COstrelMessageBoxA::COstrelMessageBoxA(CWnd* pParent) : CDialog(IDD_OW_MESSAGE_BOX, pParent)
{
}

void COstrelMessageBoxA::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_OW_MESSAGE, m_editMessage);
    DDX_Control(pDX, IDC_OW_FOURTH, m_btnFourth);
    DDX_Control(pDX, IDC_OW_THIRD, m_btnThird);
    DDX_Control(pDX, IDC_OW_SECOND, m_btnSecond);
    DDX_Control(pDX, IDOK, m_btnFirst);
}

BEGIN_MESSAGE_MAP(COstrelMessageBoxA, CDialog)
    ON_BN_CLICKED(IDC_OW_SECOND, &COstrelMessageBoxA::OnSecond)
    ON_BN_CLICKED(IDC_OW_THIRD, &COstrelMessageBoxA::OnThird)
    ON_BN_CLICKED(IDC_OW_FOURTH, &COstrelMessageBoxA::OnFourth)
    ON_EN_SETFOCUS(IDC_OW_MESSAGE, &COstrelMessageBoxA::OnMessageSetFocus)
    ON_WM_PAINT()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

void COstrelMessageBoxA::OnSecond()
{
    Press(2);
}

void COstrelMessageBoxA::OnThird()
{
    Press(3);
}

void COstrelMessageBoxA::OnFourth()
{
    Press(4);
}

// The text is a label: it never keeps the focus.
void COstrelMessageBoxA::OnMessageSetFocus()
{
    m_btnFirst.SetFocus();
}

void COstrelMessageBoxA::OnPaint()
{
    CPaintDC dc(this);
    if (m_pIcon)
        dc.DrawIcon(CMessageBoxLayout::kIconLeft, CMessageBoxLayout::kIconTop, m_pIcon.get());
}

// The wheel turns over the button that has the focus. A text that is shown whole does not move.
BOOL COstrelMessageBoxA::OnMouseWheel(UINT, short zDelta, CPoint)
{
    m_editMessage.LineScroll(-zDelta * kLinesPerNotch / WHEEL_DELTA);
    return TRUE;
}

// The keys go to a button, too, and turn the pages of the text.
BOOL COstrelMessageBoxA::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_KEYDOWN && (pMsg->wParam == VK_PRIOR || pMsg->wParam == VK_NEXT))
    {
        m_editMessage.SendMessage(EM_SCROLL, pMsg->wParam == VK_PRIOR ? SB_PAGEUP : SB_PAGEDOWN);
        return TRUE;
    }
    return CDialog::PreTranslateMessage(pMsg);
}

void COstrelMessageBoxA::OnOK()
{
    m_nPressed = 1;
    CDialog::OnOK();
}

void COstrelMessageBoxA::Set(const CString& strText, const CString& strCaption)
{
    m_strText = strText;
    m_strCaption = strCaption;
    m_bSet = true;
}

void COstrelMessageBoxA::SetButtonText(int nButton, const CString& strText)
{
    if (nButton < 1 || nButton > kMaxButtons)
        INTERNAL_ERROR_AT(L"Vrednost za <n> mora biti od 1 do 4!", kMessageBoxSource, 273);
    m_strButton[nButton - 1] = strText;
    m_nButtons = (std::max)(m_nButtons, nButton);
}

INT_PTR COstrelMessageBoxA::DoModal()
{
    CDialog::DoModal();
    return m_nPressed;
}

CButtonST& COstrelMessageBoxA::Button(int nButton)
{
    CButtonST* const buttons[] = {&m_btnFirst, &m_btnSecond, &m_btnThird, &m_btnFourth};
    return *buttons[nButton - 1];
}

void COstrelMessageBoxA::Press(int nButton)
{
    m_nPressed = nButton;
    EndDialog(nButton);
}

BOOL COstrelMessageBoxA::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetIcon(CButtonST::hIconBlueOn, FALSE);
    m_editMessage.SetWindowText(gOtLang.Do(m_strText));
    SetWindowText(m_strCaption);
    SetButtonFaces();
    gOtLang.TranslateDialog(this, 1);
    LoadMessageIcon();
    Arrange();
    return TRUE;
}

void COstrelMessageBoxA::SetButtonFaces()
{
    if (m_strButton[0].IsEmpty())
        m_strButton[0] = _T("OK"); // as the template has it
    for (int i = 1; i <= m_nButtons; ++i)
    {
        const CString& strCaption = m_strButton[i - 1];
        Button(i).SetWindowText(strCaption);
        Button(i).SetIcon(IconOfCaption(strCaption), nullptr);
    }
    for (int i = 1; i <= kMaxButtons; ++i)
        Button(i).ShowWindow(i <= m_nButtons ? SW_SHOW : SW_HIDE);
}

// An icon that does not load is left out.
void COstrelMessageBoxA::LoadMessageIcon()
{
    if (m_nIconType != 0)
        m_pIcon.reset(gfnLoadIconResource(IconIdOf(m_nIconType)));
}

// The window keeps its place here; MFC centres it on its owner afterwards, inside the work area.
void COstrelMessageBoxA::Arrange()
{
    CRect rectButton;
    m_btnFirst.GetWindowRect(rectButton);
    CMessageBoxLayout layout(rectButton.Size(), m_nButtons, ScreenScale(), FrameSize(), m_nIconType != 0);

    const int nLines = CountLinesAt(CMessageBoxLayout::kMaxTextWidth);
    const int nMaxLines = layout.MaxLines(WorkAreaHeight());
    if (nLines <= nMaxLines)
        layout.SetText(FindTextWidth(nLines), CMessageBoxLayout::TextHeight(nLines));
    else
        layout.SetText(CMessageBoxLayout::kMaxTextWidth, CMessageBoxLayout::TextHeight(nMaxLines));

    SetWindowPos(nullptr, 0, 0, layout.Window().cx, layout.Window().cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    if (nLines <= nMaxLines)
        m_editMessage.MoveWindow(layout.Text());
    else
        MakeMessageScroll(layout.Text());
    for (int i = 0; i < m_nButtons; ++i)
    {
        const CPoint point = layout.Button(i);
        Button(i + 1).SetWindowPos(nullptr, point.x, point.y, 0, 0,
                                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

CSize COstrelMessageBoxA::FrameSize() const
{
    CRect rectWindow, rectClient;
    GetWindowRect(rectWindow);
    GetClientRect(rectClient);
    return rectWindow.Size() - rectClient.Size();
}

int COstrelMessageBoxA::CountLinesAt(int nWidth)
{
    m_editMessage.SetWindowPos(nullptr, 0, 0, nWidth, CMessageBoxLayout::kMinTextHeight,
                               SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW);
    return m_editMessage.GetLineCount();
}

/// The least width, in steps of 5 from 200 to 500, at which the text takes no more lines than in the
/// greatest. A text that takes several there begins one step further.
///
/// A wider text never takes more lines, so that the width is found by halving: an edit control needs a while
/// to break a long text into lines.
int COstrelMessageBoxA::FindTextWidth(int nFewestLines)
{
    // nNarrow is taken for too narrow, nWide is wide enough.
    int nNarrow = CMessageBoxLayout::kMinTextWidth - (nFewestLines <= 1 ? kTextWidthStep : 0);
    int nWide = CMessageBoxLayout::kMaxTextWidth;
    while (nWide - nNarrow > kTextWidthStep)
    {
        const int nMiddle = nNarrow + (nWide - nNarrow) / kTextWidthStep / 2 * kTextWidthStep;
        (CountLinesAt(nMiddle) <= nFewestLines ? nWide : nNarrow) = nMiddle;
    }
    return nWide;
}

int COstrelMessageBoxA::WorkAreaHeight() const
{
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    ::GetMonitorInfo(::MonitorFromWindow(m_hWnd, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork.bottom - info.rcWork.top;
}

/// Gives a text that is too long for the screen a scroll bar. An edit control takes one only at its creation.
void COstrelMessageBoxA::MakeMessageScroll(const CRect& rect)
{
    gfnRecreateControl(m_editMessage, m_editMessage.GetStyle() | WS_VSCROLL, rect);
}
