#pragma once
// Buttons in a dialog and buttons by themselves, opened up for tests.

#include <DialogControlsOW.h>

#include "Picture.h"

#include "resource.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

/// Paints an owner-drawn button onto the surface as the system would ask for it, with ODS_ flags.
inline void PaintButton(CButton& button, owtest::Surface& surface, UINT nItemState = 0)
{
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_BUTTON;
    item.CtlID = button.GetDlgCtrlID();
    item.hwndItem = button.m_hWnd;
    item.hDC = surface.dc().m_hDC;
    item.itemState = nItemState;
    button.GetClientRect(&item.rcItem);
    button.DrawItem(&item);
}

/// A button whose inner state a test may look at and set.
class OpenButton : public CButtonST
{
public:
    using CButtonST::CButtonST;
    using CButtonST::m_background;
    using CButtonST::m_bAlwaysTrack;
    using CButtonST::m_bDrawBorder;
    using CButtonST::m_bIsCheckBox;
    using CButtonST::m_bIsDefault;
    using CButtonST::m_bIsFlat;
    using CButtonST::m_bitmaps;
    using CButtonST::m_bMouseOnButton;
    using CButtonST::m_bShowDisabledBitmap;
    using CButtonST::m_icons;
    using CButtonST::m_nTypeStyle;
    using CButtonST::m_ptImageOrigin;
    using CButtonST::m_szUrl;
    using CButtonST::m_toolTip;
    using CButtonST::PreTranslateMessage;

    /// The caption rectangle as the title received it at the last paint; empty if there was no title.
    CRect captionRect;

    void PaintOn(owtest::Surface& surface, UINT nItemState = 0)
    {
        captionRect.SetRectEmpty();
        PaintButton(*this, surface, nItemState);
    }

protected:
    void DrawTheText(CDC* pDC, const CString& strTitle, const CRect& rectItem, CRect& rectCaption,
                     BOOL bPressed, BOOL bDisabled) override
    {
        captionRect = rectCaption;
        CButtonST::DrawTheText(pDC, strTitle, rectItem, rectCaption, bPressed, bDisabled);
    }
};

/// A control by itself, on a parent that is not shown.
template <class Button>
class Lone
{
public:
    explicit Lone(CSize size, LPCTSTR pszTitle = _T(""), DWORD dwType = BS_PUSHBUTTON)
    {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, CRect(0, 0, 600, 200), nullptr, 0);
        HWND hButton = ::CreateWindow(_T("BUTTON"), pszTitle, WS_CHILD | WS_VISIBLE | dwType, 10, 10, size.cx,
                                      size.cy, m_parent, nullptr, nullptr, nullptr);
        button.SubclassWindow(hButton);
    }
    ~Lone() { m_parent.DestroyWindow(); }

    Button button;

private:
    CWnd m_parent;
};
using LoneButton = Lone<OpenButton>;

/// The dialog of the template, with everything that its buttons tell written down: "handler 1001", "dialog
/// 1001".
class ButtonsDialog : public CDialog, public AButtonSTNotificationHandler
{
public:
    ButtonsDialog() : CDialog(IDD_BUTTONS) {}

    OpenButton push{this};
    OpenButton other{this};
    OpenButton check{this};
    OpenButton ownerDrawn{this};
    OpenButton ok{this};
    CExtButton ext{this};
    CMixedFontButton mixed{this};
    CMixedFontButton mixedOther{this};
    CMixedFontStatic label;
    CMixedFontStatic clearLabel; ///< a transparent one

    std::vector<std::string> calls;
    std::vector<std::string> Take() { return std::exchange(calls, {}); }

    std::function<void()> then = [] {}; ///< at the end of the handler

    void OnButtonClicked(int nId) override
    {
        calls.push_back("handler " + std::to_string(nId));
        then();
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_PUSH, push);
        DDX_Control(pDX, IDC_OTHER, other);
        DDX_Control(pDX, IDC_CHECK, check);
        DDX_Control(pDX, IDC_OWNER_DRAWN, ownerDrawn);
        DDX_Control(pDX, IDOK, ok);
        DDX_Control(pDX, IDC_EXT, ext);
        DDX_Control(pDX, IDC_MIXED, mixed);
        DDX_Control(pDX, IDC_MIXED_OTHER, mixedOther);
        DDX_Control(pDX, IDC_LABEL, label);
        DDX_Control(pDX, IDC_CLEAR_LABEL, clearLabel);
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if (nCode == BN_CLICKED && !pHandlerInfo)
            calls.push_back("dialog " + std::to_string(nID));
        return CDialog::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
    void OnOK() override {}
    void OnCancel() override {}
};
