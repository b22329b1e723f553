#pragma once
// A dialog with a colour button of each kind, everything that they tell written down.

#include "ButtonsDialog.h"

#include "DialogTemplate.h"
#include "Input.h"

/// Opened up, and noting its hook.
template <class Button>
class OpenColors : public Button
{
public:
    using Button::Button;
    using Button::m_bIsCheckBox;
    using Button::OnDestroy;
    int hooks = 0;

protected:
    void OnClickedHook() override { ++hooks; }
};
using OpenRgbButton = OpenColors<CColorBtnST>;

class OpenAcadButton : public OpenColors<CAcadColorBtnST>
{
public:
    using CAcadColorBtnST::m_nNumberLabelId;
    using CAcadColorBtnST::m_numberLabel;
    using OpenColors::OpenColors;
};

class ColorsDialog : public CDialog,
                     public AColorBtnSTNotificationHandler,
                     public AAcadColorBtnSTNotificationHandler
{
public:
    enum
    {
        eRgb = 1001,
        eAcad = 1002,
        eOther = 1003
    };

    ~ColorsDialog() override { DestroyWindow(); }

    bool Open(DWORD dwAcadStyle = BS_PUSHBUTTON, CPoint at = CPoint(100, 100))
    {
        owtest::DialogTemplate form(L"Colours", 120, 60);
        form.Item(L"BUTTON", L"", eRgb, BS_OWNERDRAW | WS_TABSTOP, 4, 4, 40, 14)
            .Item(L"BUTTON", L"", eAcad, dwAcadStyle | WS_TABSTOP, 4, 24, 40, 14)
            .Button(L"Other", eOther, 4, 42, 40, 14);
        if (!CreateIndirect(form.get(), nullptr))
            return false;
        SetWindowPos(nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        ShowWindow(SW_SHOW);
        return owtest::Activate(m_hWnd);
    }

    OpenRgbButton rgb{this};
    OpenAcadButton acad{this};
    DWORD color = RGB(255, 0, 0);
    int index = 30;
    std::vector<std::string> calls;
    std::vector<std::string> Take() { return std::exchange(calls, {}); }

    void OnColorChosen(int nId, int nColor) override { Note("rgb", nId, nColor); }
    void OnAcadColorChosen(int nId, int nColor) override { Note("acad", nId, nColor); }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, eRgb, rgb);
        DDX_Control(pDX, eAcad, acad);
        rgb.SetColorSource(&color);
        acad.SetColorSource(&index);
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if (nCode == BN_CLICKED && !pHandlerInfo)
            calls.push_back("dialog " + std::to_string(nID));
        return CDialog::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
    void OnOK() override {}
    void OnCancel() override {}

private:
    void Note(const char* pszWho, int nId, int nColor)
    {
        calls.push_back(pszWho + (' ' + std::to_string(nId)) + ' ' + std::to_string(nColor));
    }
};
