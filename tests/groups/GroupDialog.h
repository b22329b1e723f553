#pragma once
// A dialog around one group of controls.

#include <DialogControlsOW.h>

#include "DialogTemplate.h"
#include "Input.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

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
    std::wstring TextOf(int nId) const { return owtest::TextOf((*this)[nId]); }
    void Click(int nId) const { owtest::Click((*this)[nId]); }
    void Press(int nId, WORD key) const
    {
        (*this)[nId].SetFocus();
        owtest::Press(key);
    }
    /// Types a new text into an edit, and stays there.
    void TypeInto(int nId, const wchar_t* pszText) const
    {
        Click(nId);
        (*this)[nId].SendMessage(EM_SETSEL, 0, -1);
        owtest::Type(pszText);
    }
};
