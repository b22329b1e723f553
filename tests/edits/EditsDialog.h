#pragma once
// A dialog with text boxes, and handlers that write down what they are told.

#include <DialogControlsOW.h>

#include "Input.h"
#include "resource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

using Calls = std::vector<std::string>;

/// Writes down each call as "change 1001", followed by what the test wants to know at that moment.
class RecordingHandler : public CEditNNotificationHandler
{
public:
    Calls calls;
    std::function<std::string()> look = [] { return std::string(); };
    Calls Take() { return std::exchange(calls, {}); }

    void OnEditNChange(int nId) override { Record("change ", nId); }
    void OnEditNSetFocus(int nId) override { Record("enter ", nId); }
    void OnEditNKillFocus(int nId) override { Record("leave ", nId); }

private:
    void Record(const char* what, int nId) { calls.push_back(what + std::to_string(nId) + look()); }
};

/// A typed box for tests: holds a whole number, shows it with a mark behind it, limits it to 0 to 99.
class CountBox : public CEditWithValidation
{
public:
    explicit CountBox(CEditNNotificationHandler* pHandler) : CEditWithValidation(pHandler) {}

    int value = 7;
    int updates = 0;
    void SetValue(int n)
    {
        value = n;
        UpdateGUIWithStoredData();
    }

    bool IsDataCurrentlyInGUIValid() const override
    {
        int parsed = 0;
        return Parse(parsed);
    }
    bool ValidateAndStoreDataFromGUI() override
    {
        int parsed = 0;
        if (!Parse(parsed))
            return false;
        value = std::clamp(parsed, 0, 99);
        return true;
    }
    void UpdateGUIWithStoredData() override
    {
        ++updates;
        if (!m_hWnd)
            return;
        CString text;
        text.Format(L"%d pcs", value);
        SafeSetWindowText(text);
    }

private:
    bool Parse(int& parsed) const
    {
        CString text;
        GetWindowText(text);
        return swscanf(text, L"%d", &parsed) == 1;
    }
};

class EditsDialog : public CDialog
{
public:
    explicit EditsDialog(CEditNNotificationHandler* pHandler)
        : CDialog(IDD_EDITS), first(pHandler), second(pHandler), readOnly(pHandler)
    {
    }

    CountBox first;
    CEditN second;
    CEditN readOnly;
    int oks = 0;
    int cancels = 0;

    std::wstring Text(int nId) const { return owtest::TextOf(*GetDlgItem(nId)); }
    bool HasFocus(int nId) const { return ::GetFocus() == GetDlgItem(nId)->m_hWnd; }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_FIRST, first);
        DDX_Control(pDX, IDC_SECOND, second);
        DDX_Control(pDX, IDC_READONLY, readOnly);
    }
    void OnOK() override { ++oks; }
    void OnCancel() override { ++cancels; }
};

/// The dialog in front, entered by a click on one of its boxes.
class Edits : public ::testing::Test
{
protected:
    explicit Edits(int nFirst) : m_nFirst(nFirst) {}
    void SetUp() override
    {
        ASSERT_TRUE(m_dialog.Create(IDD_EDITS));
        ASSERT_TRUE(owtest::Activate(m_dialog));
        owtest::Click(*m_dialog.GetDlgItem(m_nFirst));
        ASSERT_TRUE(FocusArrives(m_nFirst));
        m_handler.Take();
    }
    void TearDown() override { m_dialog.DestroyWindow(); }

    bool FocusArrives(int nId)
    {
        return owtest::PumpUntil([&] { return m_dialog.HasFocus(nId); });
    }

    RecordingHandler m_handler;
    EditsDialog m_dialog{&m_handler};

private:
    int m_nFirst;
};
