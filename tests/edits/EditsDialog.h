#pragma once
// A dialog with text boxes, and handlers that write down what they are told.

#include <DialogControlsOW.h>

#include "resource.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

/// Writes down each call as "change 1001", with what it finds in the box if a box is given.
class RecordingHandler : public CEditNNotificationHandler
{
public:
    std::vector<std::string> calls;
    std::vector<std::string> Take() { return std::exchange(calls, {}); }

    void OnEditNChange(int nId) override { Record("change", nId); }
    void OnEditNSetFocus(int nId) override { Record("enter", nId); }
    void OnEditNKillFocus(int nId) override { Record("leave", nId); }

private:
    void Record(const char* what, int nId) { calls.push_back(std::string(what) + ' ' + std::to_string(nId)); }
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

    std::wstring Text(int nId) const
    {
        CString text;
        GetDlgItemText(nId, text);
        return text.GetString();
    }
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
