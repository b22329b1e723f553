#pragma once
// A text box that holds a typed value.
//
// The value is a member of the subclass, and the text is a view of it. Each keystroke that parses stores the
// value; when the user leaves the box, the text is rewritten from the value, so that it stands normalised. A
// text that does not parse changes nothing, and vanishes when the user leaves.
//
// ```cpp
//     class CEditMark : public CEditWithValidation
//     {
//         CString m_strMark;
//         bool IsDataCurrentlyInGUIValid() const override;
//         bool ValidateAndStoreDataFromGUI() override;   // text -> m_strMark; false if it does not parse
//         void UpdateGUIWithStoredData() override { if (m_hWnd) SafeSetWindowText(m_strMark); }
//     };
// ```
//
// A handler's OnEditNChange finds the value stored already. A value that the program sets is stored by the
// subclass, which then calls UpdateGUIWithStoredData; no notification follows.

#include "edits/EditN.h"

class OW_DIALOGCONTROLS_API CEditWithValidation : public CEditN
{
public:
    explicit CEditWithValidation(CEditNNotificationHandler* pHandler);

    /// Whether the text now in the control would be accepted; false without a window. Changes nothing.
    virtual bool IsDataCurrentlyInGUIValid() const = 0;
    /// Parses the text and, if it parses, stores the value, brought into its limits. Answers if it parsed.
    virtual bool ValidateAndStoreDataFromGUI() = 0;
    /// Writes the value to the control, without a notification. Does nothing without a window.
    virtual void UpdateGUIWithStoredData() = 0;

protected:
    void HandlerOnCreate() override;
    void HandlerOnChange() override;
    void HandlerOnKillFocus() override;
    DECLARE_MESSAGE_MAP()
};
