#pragma once
// A dialog with the boxes of this room, and a handler that writes down what it is told.

#include <DialogControlsOW.h>

#include "Texts.h"

#include <limits>

using owtest::TextOf;

constexpr WORD kWhole = 1001, kLines = 1002, kPlain = 1003, kReadOnly = 1004, kOwn = 1005, kGiven = 1006,
               kGivenUnit = 1007, kGivenSpin = 1008, kInsert = 1009, kFree = 1010;

inline const CComplexUnit kMillimetre{CMeasurementUnit(CMeasurementUnit::eMillimetre, 0)};
inline const CComplexUnit kCentimetre{CMeasurementUnit(CMeasurementUnit::eCentimetre, 0)};

/// Writes down each call as "change 1001; ", with what the test wants to know at that moment behind the id.
struct Recorder : CEditDWRNotificationHandler
{
    std::function<std::string()> look = [] { return ""; };
    std::string Take() { return std::exchange(m_calls, {}); }

    void OnEditNChange(int nId) override { Record("change ", nId); }
    void OnEditNSetFocus(int nId) override { Record("enter ", nId); }
    void OnEditNKillFocus(int nId) override { Record("leave ", nId); }
    void OnEditDWRSpinDeltaPos(int nId) override { Record("spin ", nId); }

    void Record(const char* what, int nId) { m_calls += what + std::to_string(nId) + look() + "; "; }

    std::string m_calls;
};

/// Makes its label and its spin itself.
struct OwnControlsBox : CEditDoubleWithRange
{
    using CEditDoubleWithRange::GetScanfFormatString;
    explicit OwnControlsBox(CEditNNotificationHandler* pHandler = nullptr)
        : CEditDoubleWithRange(pHandler, kCreateControl, kCreateControl)
    {
    }
    CWnd& Label() const { return *GetParent()->GetDlgItem(GetComplexUnitStaticId()); }
    CWnd& Spin() const { return *GetParent()->GetDlgItem(GetSpinCtrlId()); }
};

/// Tells itself where there is no handler.
struct BoxesDialog : CDialog, Recorder
{
    explicit BoxesDialog(CEditNNotificationHandler* pHandler)
        : whole(pHandler), lines(pHandler), plain(pHandler), readOnly(pHandler), own(pHandler),
          given(pHandler, kGivenUnit, kGivenSpin)
    {
    }

    CEditIntegerWithRange whole;
    CEditN lines, plain, readOnly;
    OwnControlsBox own;
    CEditDoubleWithRange given;                ///< finds its label and its spin in the template
    int oks = 0, cancels = 0, changesSeen = 0; ///< the last: notifications that a box has let through

    bool Open()
    {
        constexpr DWORD styles[] = {0, ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL, 0, ES_READONLY, 0, 0};
        auto form = owtest::DialogTemplate(L"Boxes", 180, 120).Style(WS_POPUP | WS_VISIBLE | WS_CAPTION);
        for (short i = 0; i < 6; ++i)
            form.Edit(kWhole + i, 10, 10 + 16 * i, 70, 14, styles[i] ? styles[i] : ES_AUTOHSCROLL);
        form.Item(UPDOWN_CLASSW, L"", kGivenSpin, UDS_ARROWKEYS, 80, 90, 10, 14)
            .Item(L"Static", L"", kGivenUnit, SS_LEFT, 94, 92, 30, 9)
            .Button(L"Insert", kInsert, 130, 26, 40, 14)
            .DefaultButton(L"OK", IDOK, 130, 10, 40, 14);
        bool bOpen = CreateIndirect(form.get());
        for (int nId = kWhole;
             CEdit * pBox : std::initializer_list<CEdit*>{&whole, &lines, &plain, &readOnly, &own, &given})
            bOpen = bOpen && pBox->SubclassDlgItem(nId++, this);
        return bOpen && owtest::Activate(m_hWnd);
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override
    {
        changesSeen += nCode == EN_CHANGE;
        return CDialog::OnCmdMsg(nID, nCode, pExtra, pInfo);
    }
    void OnOK() override { ++oks; }
    void OnCancel() override { ++cancels; }
};

struct Boxes : ::testing::Test
{
    void SetUp() override
    {
        ASSERT_TRUE(dialog.Open());
        handler.Take();
    }
    void TearDown() override { dialog.DestroyWindow(); }

    static bool HasFocus(const CWnd& wnd)
    {
        return owtest::PumpUntil([&] { return ::GetFocus() == wnd.m_hWnd; });
    }
    /// Enters the box and types over what stands in it; the calls since it was entered.
    std::string TypeInto(CEdit& box, std::wstring_view text)
    {
        box.SetFocus();
        box.SetSel(0, -1);
        handler.Take();
        owtest::Type(text);
        return handler.Take();
    }

    Recorder handler;
    BoxesDialog dialog{&handler};
};
