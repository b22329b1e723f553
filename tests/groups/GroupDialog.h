#pragma once
// A dialog around one group of controls; with it as a base, the room of a test.

#include <DialogControlsOW.h>

#include "Testing.h"

class GroupDialog : public CDialog
{
public:
    ~GroupDialog() override { DestroyWindow(); }

    /// Opens it, or opens it anew.
    bool Open(const owtest::DialogTemplate& form)
    {
        DestroyWindow();
        return CreateIndirect(form.get()) && (ShowWindow(SW_SHOW), owtest::Activate(m_hWnd));
    }
    CWnd& operator[](int nId) const { return *GetDlgItem(nId); }
    /// Texts of controls and states of buttons; hidden ones as nothing, disabled ones with a dash.
    std::string Seen(const std::vector<int>& ids) const
    {
        std::wstring seen;
        for (const int nId : ids)
        {
            CWnd& control = (*this)[nId];
            const bool bButton = control.SendMessage(WM_GETDLGCODE) & (DLGC_BUTTON | DLGC_RADIOBUTTON);
            const std::wstring text =
                bButton ? std::to_wstring(IsDlgButtonChecked(nId)) : owtest::TextOf(control);
            seen +=
                L' ' + (control.IsWindowVisible() ? text : L"") + (control.IsWindowEnabled() ? L"" : L"-");
        }
        return std::string(CStringA(seen.substr(1).c_str()));
    }
    void Click(int nId) const { owtest::Click((*this)[nId]); }
    void Press(int nId, WORD key) const
    {
        (*this)[nId].SetFocus();
        owtest::Press(key);
    }
    /// Whether there is anything to be seen in the middle of a button.
    bool ShowsPicture(int nId) const
    {
        owtest::Surface picture(9, 9);
        CRect rect;
        (*this)[nId].UpdateWindow();
        (*this)[nId].GetClientRect(rect);
        CClientDC dc(&(*this)[nId]);
        picture.dc().BitBlt(0, 0, 9, 9, &dc, rect.CenterPoint().x - 4, rect.CenterPoint().y - 4, SRCCOPY);
        return picture.count(CRect(0, 0, 9, 9), picture.at(0, 0)) < 81;
    }
    void TypeInto(int nId, const wchar_t* pszText) const
    {
        Click(nId);
        (*this)[nId].SendMessage(EM_SETSEL, 0, -1);
        owtest::Type(pszText);
    }

protected:
    /// What a room looks at after each step.
    virtual std::string State() { return {}; }
    using Step = std::pair<std::function<void()>, const char*>;
    void Play(std::initializer_list<Step> steps)
    {
        for (int nStep = 0; const auto& [step, state] : steps)
        {
            step();
            EXPECT_EQ(State(), state) << "step " << nStep;
            ++nStep;
        }
    }
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        return FALSE;
    }
};
