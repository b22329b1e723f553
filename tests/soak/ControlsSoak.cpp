// Buttons, boxes and groups in one dialog: used by input and by calls, with handlers that disable, hide, re-set and
// close what calls them.

#include <DialogControlsOW.h>

#include "Sequence.h"
#include "Testing.h"

namespace
{
enum Id : WORD
{
    idPush = 1001,
    idCheck,
    idExt,
    idDouble,
    idInteger,
    idText,
    idCombo,
    idUnit,
    idWithUnit,
    idDecimals,
    idRadio, ///< and two more
    idLast = idRadio + 2,
};

owtest::DialogTemplate Form()
{
    owtest::DialogTemplate form(L"Controls", 200, 160);
    const auto add = [&](const wchar_t* windowClass, WORD id, DWORD style)
    {
        const short place = static_cast<short>(id - idPush);
        form.Item(windowClass, L"Text", id, style, static_cast<short>(4 + place % 3 * 65),
                  static_cast<short>(4 + place / 3 * 30), 40, 14);
    };
    add(L"BUTTON", idPush, BS_PUSHBUTTON | WS_TABSTOP | WS_GROUP);
    for (const WORD id : {idCheck, idExt, idWithUnit})
        add(L"BUTTON", id, BS_AUTOCHECKBOX | WS_TABSTOP);
    for (const WORD id : {idDouble, idInteger, idText, idDecimals})
        add(L"EDIT", id, ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP);
    for (const WORD id : {idCombo, idUnit})
        add(L"COMBOBOX", id, CBS_DROPDOWNLIST | WS_TABSTOP);
    for (WORD id = idRadio; id <= idLast; ++id)
        add(L"BUTTON", id, BS_AUTORADIOBUTTON | (id == idRadio ? WS_TABSTOP | WS_GROUP : 0));
    return form;
}

class ControlsDialog : public CDialog,
                       public AButtonSTNotificationHandler,
                       public CEditDWRNotificationHandler,
                       public AExtComboBoxNotificationHandler,
                       public AFormatJediniceCtrlGroupNotificationHandler
{
public:
    explicit ControlsDialog(std::function<void(bool bMayClose)> react) : m_react(std::move(react)) {}
    ~ControlsDialog() override { DestroyWindow(); }

    CButtonST push{this}, check{this};
    CExtButton ext{this};
    CEditDoubleWithRange decimal{this, CEditDoubleWithRange::kCreateControl,
                                 CEditDoubleWithRange::kCreateControl};
    CEditIntegerWithRange integer{this};
    CEditEscSeqText text{this, 0};
    CExtComboBox combo{this};
    CFormatJedinice format;
    CFormatJediniceCtrlGroup unit{idUnit, idWithUnit, idDecimals, this};
    CRadioGroup radios{nullptr, 0};

    void OnButtonClicked(int) override { m_react(true); }
    void OnEditNChange(int) override { m_react(false); }
    void OnEditNSetFocus(int) override { m_react(false); }
    void OnEditNKillFocus(int) override { m_react(false); }
    void OnEditDWRSpinDeltaPos(int) override { m_react(false); }
    void OnExtComboBoxSelChanged(int, int) override { m_react(false); }
    void OnFormatGroupChanged(CFormatJediniceCtrlGroup*, CFormatJedinice*, int) override { m_react(false); }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Control(pDX, idPush, push);
        DDX_Control(pDX, idCheck, check);
        DDX_Control(pDX, idExt, ext);
        DDX_Control(pDX, idDouble, decimal);
        DDX_Control(pDX, idInteger, integer);
        DDX_Control(pDX, idText, text);
        DDX_Control(pDX, idCombo, combo);
        unit.DoDataExchange(pDX);
    }
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        for (const wchar_t* row : {L"HEA 100", L"IPE 200", L"L 60x6"})
            combo.AddString(row);
        unit.SetFormatSource(&format);
        radios.Set(this, idRadio);
        return TRUE;
    }
    void OnOK() override {}
    void OnCancel() override {}

private:
    std::function<void(bool)> m_react;
};

class ControlsSequence : public owtest::Sequence
{
    void Step() override
    {
        m_nReactions = 0;
        if (!m_dialog.m_hWnd)
            Open();
        else if (Pick(30) == 0)
            Close();
        else
            Do();
        owtest::Pump();
    }

    void Do()
    {
        using Self = ControlsSequence;
        static constexpr void (Self::*kOperations[])() = {
            &Self::Click,      &Self::Click,       &Self::Type,      &Self::Type,
            &Self::Choose,     &Self::PressKey,    &Self::MoveFocus, &Self::Switch,
            &Self::SetNumbers, &Self::DressButton, &Self::SetGroups, &Self::Paint};
        (this->*OneOf(kOperations))();
    }

    void React(bool bMayClose)
    {
        if (++m_nReactions > 4 || Pick(3) || !m_dialog.m_hWnd)
            return;
        if (bMayClose && Pick(6) == 0)
            Close();
        else
            Do();
    }

    void Open()
    {
        Say("open");
        m_dialog.CreateIndirect(Form().get());
        owtest::Activate(m_dialog);
    }
    /// What stays when the dialog has gone must not grow.
    void Close()
    {
        Say("close");
        m_dialog.DestroyWindow();
        if (m_nReactions > 0)
            return; // a button is not done yet
        const int nHandles = owtest::CountHandles().gdi;
        if (++m_nClosings == 3)
            m_nHandles = nHandles;
        if (m_nClosings > 3 && nHandles > m_nHandles + 30)
            Problem("GDI objects: ", m_nHandles, ", now ", nHandles);
    }

    CWnd& Control(int nId) { return *m_dialog.GetDlgItem(nId); }
    CWnd& SomeControl() { return Control(idPush + Pick(idLast - idPush + 1)); }

    void Click()
    {
        CWnd& control = SomeControl();
        Say("click", control.GetDlgCtrlID());
        const HWND hWnd = control.m_hWnd;
        if (!control.IsWindowVisible() || !control.IsWindowEnabled() || dynamic_cast<CComboBox*>(&control))
            return;
        ::SendMessage(hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        ::SendMessage(hWnd, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    }
    void Type()
    {
        const WORD nId = OneOf(std::array{idDouble, idInteger, idText, idDecimals});
        const wchar_t ch = OneOf(std::wstring_view(L"0123456789.,-+e x\b%"));
        Say("type", nId, static_cast<int>(ch));
        Control(nId).SetFocus();
        if (m_dialog.m_hWnd && ::GetFocus() == Control(nId))
            Control(nId).SendMessage(WM_CHAR, ch);
    }
    void Choose()
    {
        const WORD nId = Pick(2) ? idCombo : idUnit;
        const int nRow = Pick(3);
        Say("choose", nId, nRow);
        Control(nId).SendMessage(CB_SETCURSEL, nRow);
        m_dialog.SendMessage(WM_COMMAND, MAKEWPARAM(nId, CBN_SELCHANGE),
                             reinterpret_cast<LPARAM>(Control(nId).m_hWnd));
    }
    void PressKey()
    {
        static constexpr WORD kKeys[] = {VK_UP, VK_DOWN, VK_TAB, VK_SPACE, VK_RETURN, VK_ESCAPE, VK_DELETE};
        const WORD nKey = OneOf(kKeys);
        Say("key", nKey);
        const HWND hTarget = ::GetFocus() ? ::GetFocus() : m_dialog.m_hWnd;
        ::PostMessage(hTarget, WM_KEYDOWN, nKey, 1);
        ::PostMessage(hTarget, WM_KEYUP, nKey, 0xC0000001);
    }
    void MoveFocus()
    {
        CWnd& control = SomeControl();
        Say("focus", control.GetDlgCtrlID());
        control.SetFocus();
    }
    void Switch()
    {
        CWnd& control = SomeControl();
        Say("enable or show", control.GetDlgCtrlID());
        if (Pick(2))
            control.EnableWindow(Pick(3));
        else
            control.ShowWindow(Pick(3) ? SW_SHOW : SW_HIDE);
    }
    void SetNumbers()
    {
        const int nWhat = Pick(10), n = Pick(200) - 100;
        Say("set number", nWhat, n);
        const bool bForce = Pick(2);
        auto& decimal = m_dialog.decimal;
        auto& integer = m_dialog.integer;
        return nWhat == 0   ? decimal.SetValue(n / 7.0, bForce)
               : nWhat == 1 ? decimal.SetRange(n, n + Pick(50) - 1)
               : nWhat == 2 ? decimal.SetComplexUnit(CComplexUnit(CMeasurementUnit(Pick(6), 0)))
               : nWhat == 3 ? decimal.DisableComplexUnit()
               : nWhat == 4 ? decimal.SetEmpty()
               : nWhat == 5 ? integer.SetValue(n, bForce)
               : nWhat == 6 ? integer.SetRange(n, n + Pick(50) - 1)
               : nWhat == 7 ? integer.SetEmpty()
               : nWhat == 8 ? integer.DisableRangeChecking()
                            : m_dialog.text.SetValue(std::to_wstring(n).c_str());
    }
    void DressButton()
    {
        CButtonST& button = Pick(2) ? m_dialog.push : m_dialog.check;
        const int nWhat = Pick(10), bOn = Pick(2);
        Say("dress", button.GetDlgCtrlID(), nWhat, bOn);
        const auto newBitmap = [](int nSize) { return ::CreateBitmap(nSize, nSize, 1, 32, nullptr); };
        return nWhat == 0   ? void(button.SetIcon(CButtonST::hIconOk, bOn ? CButtonST::hIconCancel : nullptr))
               : nWhat == 1 ? void(button.SetBitmaps(newBitmap(16), 0, bOn ? newBitmap(9) : nullptr))
               : nWhat == 2 ? void(button.SetBitmaps(HBITMAP{}, 0))
               : nWhat == 3 ? void(button.SetFlat(bOn))
               : nWhat == 4 ? void(button.SetCheck(bOn))
               : nWhat == 5 ? button.DrawTransparent(bOn)
               : nWhat == 6 ? button.SetTooltipText(L"tip")
               : nWhat == 7 ? button.SetThemeHelper(bOn ? CButtonST::pLocalTheme : nullptr)
                            : void(button.SetAlign(static_cast<BYTE>(nWhat == 8 ? 0 : 3 - 2 * bOn)));
    }
    void SetGroups()
    {
        const int nWhat = Pick(7), nOn = Pick(4);
        Say("set groups", nWhat, nOn);
        auto& unit = m_dialog.unit;
        auto& radios = m_dialog.radios;
        return nWhat == 0   ? unit.SetFormatSource(nOn ? &m_dialog.format : nullptr)
               : nWhat == 1 ? unit.Update(nOn & 1, nOn & 2)
               : nWhat == 2 ? unit.Enable(nOn)
               : nWhat == 3 ? unit.Display(nOn)
               : nWhat == 4 ? radios.SetOption(nOn - 1)
               : nWhat == 5 ? radios.Enable(nOn)
                            : radios.Show(nOn);
    }
    void Paint()
    {
        Say("paint");
        m_dialog.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }

    void Check() override
    {
        const auto isInRange = [](const auto& box)
        {
            return box.IsEmpty() || !box.IsRangeCheckingEnabled() ||
                   (box.GetValue() >= box.GetMinRange() && box.GetValue() <= box.GetMaxRange());
        };
        Expect(isInRange(m_dialog.decimal) && isInRange(m_dialog.integer), "a value out of its range");
        Expect(m_dialog.format.nUnitIndex >= 0 && m_dialog.format.nUnitIndex < 6, "a unit that there is not");
        Expect(m_dialog.format.nEditValue >= 0 && m_dialog.format.nEditValue <= 15,
               "decimals out of their range");
        if (!m_dialog.m_hWnd)
            return;
        int nChecked = 0;
        for (int i = 0; i < m_dialog.radios.Count(); ++i)
            nChecked += m_dialog.IsDlgButtonChecked(idRadio + i);
        Expect(nChecked <= 1, "two radio buttons are checked");
    }

    int m_nReactions = 0, m_nClosings = 0;
    int m_nHandles = 0; ///< GDI objects after the third closing
    ControlsDialog m_dialog{[this](bool bMayClose) { React(bMayClose); }};
};

const owtest::SoakSubject s_subject("controls", 800,
                                    [](const owtest::Steps& steps) { return ControlsSequence().Run(steps); });
} // namespace
