#pragma once
// A dialog with number boxes: one that makes its label and spin itself, one that finds them in the template,
// and one for whole numbers.

#include <DialogControlsOW.h>

#include "Input.h"
#include "resource.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

using Calls = std::vector<std::string>;
using owtest::TextOf;

/// Writes down each call as "change 1010", and does on each change what the test wants.
class NumberHandler : public CEditDWRNotificationHandler
{
public:
    Calls calls;
    std::function<void()> onChange = [] {};
    Calls Take() { return std::exchange(calls, {}); }

    void OnEditNChange(int nId) override
    {
        Record("change", nId);
        onChange();
    }
    void OnEditNKillFocus(int nId) override { Record("leave", nId); }
    void OnEditDWRSpinDeltaPos(int nId) override { Record("spin", nId); }

private:
    void Record(const char* what, int nId) { calls.push_back(std::string(what) + ' ' + std::to_string(nId)); }
};

/// A double box that counts the messages it receives.
class CountedBox : public CEditDoubleWithRange
{
public:
    using CEditDoubleWithRange::CEditDoubleWithRange;
    int messages = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        ++messages;
        return CEditDoubleWithRange::WindowProc(message, wParam, lParam);
    }
};

class NumbersDialog : public CDialog
{
public:
    explicit NumbersDialog(CEditNNotificationHandler* pHandler)
        : CDialog(IDD_NUMBERS),
          own(pHandler, CEditDoubleWithRange::c_nCreateControl, CEditDoubleWithRange::c_nCreateControl),
          given(pHandler, IDC_GIVEN_UNIT, IDC_GIVEN_SPIN), count(pHandler)
    {
    }

    CountedBox own;
    CEditDoubleWithRange given;
    CEditIntegerWithRange count;

    CWnd& OwnLabel() const { return *GetDlgItem(own.GetComplexUnitStaticId()); }
    CWnd& OwnSpin() const { return *GetDlgItem(own.GetSpinCtrlId()); }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_OWN, own);
        DDX_Control(pDX, IDC_GIVEN, given);
        DDX_Control(pDX, IDC_COUNT, count);
    }
    void OnOK() override {}
};

inline std::wstring SelectionOf(const CEdit& edit)
{
    int nStart = 0, nEnd = 0;
    edit.GetSel(nStart, nEnd);
    return TextOf(edit).substr(nStart, nEnd - nStart);
}

inline const CComplexUnit kMillimetre{CMeasurementUnit(CMeasurementUnit::eMillimetre, 0)};
inline const CComplexUnit kCentimetre{CMeasurementUnit(CMeasurementUnit::eCentimetre, 0)};

class Numbers : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(dialog.Create(IDD_NUMBERS)); }
    void TearDown() override
    {
        if (dialog.m_hWnd)
            dialog.DestroyWindow();
    }

    /// Enters the box and types over what stands in it.
    void TypeInto(CEdit& edit, std::wstring_view text)
    {
        ASSERT_TRUE(owtest::Activate(dialog));
        edit.SetFocus();
        edit.SetSel(0, -1);
        handler.Take();
        owtest::Type(text);
    }
    void Leave(CEdit& edit)
    {
        owtest::Press(VK_TAB);
        ASSERT_TRUE(owtest::PumpUntil([&] { return ::GetFocus() != edit.m_hWnd; }));
    }

    NumberHandler handler;
    NumbersDialog dialog{&handler};
};
