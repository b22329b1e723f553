#pragma once
// A dialog with a colour button of each kind, everything that they tell written down.

#include "ButtonsDialog.h"

#include "DialogTemplate.h"
#include "Input.h"

class OpenAcadButton : public CAcadColorBtnST
{
public:
    using CAcadColorBtnST::CAcadColorBtnST;
    using CAcadColorBtnST::m_bIsCheckBox;
    using CAcadColorBtnST::m_nNumberLabelId;
    using CAcadColorBtnST::m_numberLabel;
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

    bool Open(DWORD dwAcadStyle = BS_PUSHBUTTON)
    {
        owtest::DialogTemplate form(L"Colours", 120, 60);
        form.Item(L"BUTTON", L"", eRgb, BS_OWNERDRAW | WS_TABSTOP, 4, 4, 40, 14)
            .Item(L"BUTTON", L"", eAcad, dwAcadStyle | WS_TABSTOP, 4, 24, 40, 14)
            .Button(L"Other", eOther, 80, 4, 30, 14);
        if (!CreateIndirect(form.get(), nullptr))
            return false;
        SetWindowPos(nullptr, 100, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
        return owtest::Activate(m_hWnd);
    }

    struct Rgb : CColorBtnST
    {
        using CColorBtnST::CColorBtnST;
        void OnClickedHook() override { static_cast<ColorsDialog*>(GetParent())->calls.push_back("hook"); }
    } rgb{this};
    OpenAcadButton acad{this};
    DWORD color = RGB(255, 0, 0);
    int index = 30;
    std::vector<std::string> calls;
    std::vector<std::string> Take() { return std::exchange(calls, {}); }

    void OnColorChosen(int nId, int nColor) override { Note("rgb ", nId, nColor); }
    void OnAcadColorChosen(int nId, int nColor) override { Note("acad ", nId, nColor); }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        rgb.SetColorSource(&color); // before there is a window
        acad.SetColorSource(&index);
        DDX_Control(pDX, eRgb, rgb);
        DDX_Control(pDX, eAcad, acad);
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if (nCode == BN_CLICKED && !pHandlerInfo)
            calls.push_back("dialog " + std::to_string(nID));
        return CDialog::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }

private:
    void Note(const char* pszWho, int nId, int nColor)
    {
        calls.push_back(pszWho + std::to_string(nId) + ' ' + std::to_string(nColor));
    }
};
