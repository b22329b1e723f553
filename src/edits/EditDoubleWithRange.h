#pragma once
// A text box for a number with a unit, a range, an empty state, and a spin and a unit label beside it.
//
// ```cpp
//     class CPlateDialog : public CDialog, public CEditDWRNotificationHandler
//     {
//         CEditDoubleWithRange m_editThickness{this, CEditDoubleWithRange::kCreateControl,
//                                              CEditDoubleWithRange::kCreateControl};
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_THICKNESS, m_editThickness); }
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog();
//             m_editThickness.SetComplexUnit(CComplexUnit(CMeasurementUnit(CMeasurementUnit::eMillimetre, 0)));
//             m_editThickness.SetRange(0.004, 0.04);   // metres: 4 mm to 40 mm
//             m_editThickness.SetSpinStep(1.0);        // millimetres
//             m_editThickness.SetValue(0.01);          // the box shows "10.00" and "mm" beside it
//             return TRUE;
//         }
//         void OnEditNChange(int) override { UsePlate(m_editThickness.GetValue()); }
//     };
// ```
//
// Units. The value and the range are in the program's global unit. The text and the spin step are in the
// local one, which is the box's CComplexUnit, or, without one, the global unit. The unit label names the
// local unit.
//
// Texts. A number at the beginning of the text is taken, and what follows it is passed over: "12 kN" is 12. A
// text without a number does not parse, and neither does a number beyond what a double holds. See
// DoubleText.h for the three formats, and for what is shown where the decimals are out of any sense or the
// number is too long.
//
// Range. A typed number outside becomes the bound that it passed, at once; the text follows when the user
// leaves the box. A minimum above the maximum means no range, and so it is at first (0 and -1).
//
// Empty. Only SetEmpty makes the box empty, and the next number that is typed or set ends that. GetValue then
// gives a NaN with bits of its own: ask IsEmpty first, or IsEmptyValue of a number that went through other
// hands. A text that the user clears is one that does not parse: the value comes back when the user leaves. A
// program may store an infinity, or a NaN of other bits, too: the box then holds it like any number.
//
// Spin. Each press goes to the nearest whole multiple of the step and one step on from there: 0.127 goes up
// to 0.14 and down to 0.12. The box receives the new text as if it were typed: OnEditNChange comes first,
// then OnEditDWRSpinDeltaPos, for a handler that has it. A negative step turns the spin round. A press that
// leads nowhere does nothing: the step is zero or no number, or the result is beyond what a double holds.
//
// Control ids. The unit label and the spin may stand in the dialog template; then their ids are given. Or the
// box creates them, for which kCreateControl is given: they get ids of the ResourceIdPool, enough for a
// hundred such boxes at a time, and belong to the box. They come up visible, are shown and hidden with the
// box from then on, and end with it; those of the template are left alone, and a spin that the dialog has bound
// to an object of its own is the dialog's affair. An id of 0 means that there is no such control. A spin with
// UDS_ALIGNRIGHT, as the box's own one is, takes its width from the box's.
//
// The forcing argument of the setters does their work, the writing of the text included, where nothing
// changes, too.

#include <afxwin.h>
#include <afxcmn.h>

#include <ComplexUnit.h>

#include "edits/ChildControlId.h"
#include "edits/DoubleText.h"
#include "edits/EditWithValidation.h"
#include "edits/SpinButtonForDoubleEditCtrl.h"
#include "edits/ValueRange.h"

class OW_DIALOGCONTROLS_API CEditDoubleWithRange : public CEditWithValidation
{
public:
    /// Given to the constructor in place of an id: the box creates the control itself.
    static constexpr unsigned int kCreateControl = ow::CChildControlId::kCreate;

    /// The handler is not owned; null: the parent is asked.
    explicit CEditDoubleWithRange(CEditNNotificationHandler* pHandler, unsigned int nUnitLabelId = 0,
                                  unsigned int nSpinId = 0);

    /// Stores a number in the global unit, brought into the range, and shows it. A number that is the value
    /// already costs a comparison and nothing else.
    void SetValue(double d, bool bForce = false);
    /// In the global unit; while the box is empty, the empty value.
    double GetValue() const;

    /// Shows nothing, and holds no value.
    void SetEmpty(bool bForce = false);
    bool IsEmpty() const;
    /// Whether a number is the one that stands for "no value".
    static bool IsEmptyValue(double d);

    /// A value outside the new range becomes the bound that it passed, and the text follows.
    void SetRange(double dMin, double dMax, bool bForce = false);
    /// Replaces the whole range: the maximum is the largest double afterwards.
    void SetMinRange(double dMin, bool bForce = false);
    /// Replaces the whole range: the minimum is the most negative double afterwards.
    void SetMaxRange(double dMax, bool bForce = false);
    /// The bounds as they are stored.
    void GetRange(double& dMin, double& dMax) const;
    /// As GetRange.
    double GetMinRange() const;
    /// As GetRange.
    double GetMaxRange() const;
    /// Touches neither the value nor the text.
    void DisableRangeChecking();
    /// Whether there is a range.
    bool IsRangeCheckingEnabled() const;

    /// Fixed with two decimals at first.
    void SetFormat(EDoubleFormat eFormat, int nDecimals, bool bForce = false);
    EDoubleFormat GetFormat() const;
    void GetFormat(EDoubleFormat& eFormat, int& nDecimals) const;
    /// As SetFormat.
    int GetDecimals() const;

    /// Shows the value in another unit. The text is taken first, under the old one, so that a value with more
    /// digits than the text becomes what the text shows: set the unit before the value.
    void SetComplexUnit(const CComplexUnit& unit);
    /// Shows the value in the global unit, with no symbol. The text is taken first, as in SetComplexUnit.
    void DisableComplexUnit();
    /// The unit, of use while there is one.
    const CComplexUnit& GetComplexUnit() const;
    /// Whether the text stands in a unit of its own.
    bool IsComplexUnitEnabled() const;
    /// Kept for clients that store one; the box converts by its unit alone. Not owned.
    void AttachCustomUnitConvertor(const CUnitsConvertor* pConvertor);

    /// 0 for none.
    unsigned int GetComplexUnitStaticId() const;
    /// 0 for none.
    unsigned int GetSpinCtrlId() const;

    /// In the local unit, 0.01 at first. Any number is stored.
    void SetSpinStep(double dStep);
    double GetSpinStep() const;

    /// Called by the spin for each press; `iDelta` is the number of steps, negative for down. Sets the result
    /// to 1, so that the spin itself stays in the middle of its range; a read-only box leaves the result as
    /// it is.
    void OnSpinDeltapos(NM_UPDOWN* pNMUpDown, LRESULT* pResult);

    bool IsDataCurrentlyInGUIValid() const override;
    bool ValidateAndStoreDataFromGUI() override;
    void UpdateGUIWithStoredData() override;

protected:
    void HandlerOnCreate() override;

    CString GetPrintfFormatString() const;
    CString GetScanfFormatString() const;
    /// Where the unit label belongs, in pixels of the parent's client area: right of the box and of its own
    /// spin, a blank's width further on, as high as the box and as wide as the symbol.
    CRect CalcUnitRect();

    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void AttachSpin();
    void CreateOwnUnitLabel();
    void PlaceOwnUnitLabel();
    void ShowUnitSymbol();
    void ShowNumber(const CString& strText);
    bool EnsureValueIsInRange();
    bool ParseText(double& dGlobal) const;
    double SpinBase() const;
    double ToLocal(double dGlobal) const;
    ow::CValueRange<double> LocalRange() const;
    CString UnitSymbol() const;

    double m_dValue = 0.0; ///< in the global unit, or the empty value
    ow::CValueRange<double> m_range;
    EDoubleFormat m_eFormat = eDoubleFormatFixed;
    int m_nDecimals = 2;
    bool m_bUnitEnabled = false;
    CComplexUnit m_unit;
    ow::CChildControlId m_unitLabelId;
    const CUnitsConvertor* m_pConvertor = &CUnitsConvertor::Object;
    double m_dSpinStep = 0.01;
    CSpinButtonForDoubleEditCtrl m_spin;
    ow::CChildControlId m_spinId;
    CStatic m_unitLabel; ///< attached only if it is the box's own
};
