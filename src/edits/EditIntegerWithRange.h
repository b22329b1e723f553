#pragma once
// A text box for a whole number of 32 bits, with an optional range and an empty state.
//
// ```cpp
//     class CJointDialog : public CDialog, public CEditNNotificationHandler
//     {
//         CEditIntegerWithRange m_editBolts{this};
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_BOLTS, m_editBolts); }
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog();
//             m_editBolts.SetRange(2, 24);
//             m_editBolts.SetValue(8);
//             return TRUE;
//         }
//         void OnEditNChange(int) override { if (!m_editBolts.IsEmpty()) UseBolts(m_editBolts.GetValue()); }
//     };
// ```
//
// Texts. A number is digits with an optional "-" in front; white space around it is passed over. Anything
// else does not parse, a "+", a point, and a number that 32 bits do not hold among it. The user can type 11
// characters, the length of -2147483648.
//
// Range. A typed number outside becomes the bound that it passed, at once; the text follows when the user
// leaves the box. A minimum above the maximum means no range, and so it is at first (0 and -1).
//
// Empty. Only SetEmpty makes the box empty, and the next number that is typed or set ends that. A text that
// the user clears is one that does not parse: the value comes back when the user leaves.
//
// The forcing argument of the setters does their work, the writing of the text included, where nothing
// changes, too.

#include "edits/EditWithValidation.h"
#include "edits/ValueRange.h"

class OW_DIALOGCONTROLS_API CEditIntegerWithRange : public CEditWithValidation
{
public:
    /// The handler is not owned; null: the parent is asked.
    explicit CEditIntegerWithRange(CEditNNotificationHandler* pHandler);

    /// Stores a number, brought into the range, and shows it. Ends the empty state.
    void SetValue(int n, bool bForce = false);
    /// The last number, also while the box is empty.
    int GetValue() const;

    /// Shows nothing, and holds no value.
    void SetEmpty(bool bForce = false);
    bool IsEmpty() const;

    /// A value outside the new range becomes the bound that it passed, and the text follows.
    void SetRange(int nMin, int nMax, bool bForce = false);
    /// Replaces the whole range: there is no maximum afterwards.
    void SetMinRange(int nMin, bool bForce = false);
    /// Replaces the whole range: there is no minimum afterwards.
    void SetMaxRange(int nMax, bool bForce = false);
    /// The bounds as they are stored.
    void GetRange(int& nMin, int& nMax) const;
    /// As GetRange.
    int GetMinRange() const;
    /// As GetRange.
    int GetMaxRange() const;
    /// Touches neither the value nor the text.
    void DisableRangeChecking();
    /// Whether there is a range.
    bool IsRangeCheckingEnabled() const;

    bool IsDataCurrentlyInGUIValid() const override;
    bool ValidateAndStoreDataFromGUI() override;
    void UpdateGUIWithStoredData() override;

protected:
    void HandlerOnCreate() override;

    /// Brings the value into the range; whether that moved it.
    bool EnsureValueIsInRange();
    DECLARE_MESSAGE_MAP()

private:
    bool ParseText(int& n) const;

    int m_nValue = 0;
    ow::CValueRange<int> m_range;
    bool m_bEmpty = false;
};
