#pragma once
// Text boxes for label templates: texts with short escape sequences in them, such as "%l" for a length,
// which the module that draws the label replaces later. A button beside the box offers the sequences that
// the label may use; choosing one inserts its code where the caret stood when the box lost the focus.
//
// ```cpp
//     class CPlateDialog : public CDialog, public CEditNNotificationHandler
//     {
//         CEditAcadEscSeqSpecLima m_editLabel{this, IDC_LABEL_INSERT}; // the id of any push button
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_LABEL, m_editLabel); }
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog(); // binds the box, and the box its button
//             m_editLabel.SetValue(L"PL %h x %w");
//             return TRUE;
//         }
//         void OnEditNChange(int) override { Preview(m_editLabel.GetValue()); }
//     };
// ```
//
// The box only offers and inserts: it neither checks nor expands sequences. The same code means different
// things in different classes.
//
// Button. The box takes over the child of its parent that has the given id when it takes over its own
// window, and enables and disables it together with itself. With id 0, with an id that the parent does not
// have, or with a control that another object has taken over, it is a plain text box.
//
// Insertion. A box that never had the focus inserts at the beginning; a selection is kept, and the code
// goes where the caret is. Afterwards the box has the focus, and the caret stands behind the code. The
// handler's OnEditNChange is called twice for each insertion, with the new value stored both times. A
// read-only box inserts nothing, and an index for which the button has no text is ignored.
//
// Values. Every text is one, unless a subclass says otherwise in IsTextValid. A typed text that it refuses
// is not stored, and vanishes when the user leaves the box.

#include <afxwin.h>

#include "buttons/TextBtnST.h"
#include "edits/EditWithValidation.h"

class OW_DIALOGCONTROLS_API CEditEscSeqText : public CEditWithValidation, public ATextBtnSTNotificationHandler
{
public:
    /// The handler is not owned; null: the parent is asked. 0 for a box without a button.
    CEditEscSeqText(CEditNNotificationHandler* pHandler, int nBtnId);

    /// Stores a text and shows it. A text that IsTextValid refuses changes nothing.
    void SetValue(const CString& strText, bool bForce = false);
    const CString& GetValue() const;

    /// Offers the sequences anew, to be called when what EnumEscSeq answers has changed, or the language of
    /// the program. Otherwise the list is read only once, when the box takes over its window.
    void UpdateEscSeqList();

    bool IsDataCurrentlyInGUIValid() const override;
    bool ValidateAndStoreDataFromGUI() override;
    void UpdateGUIWithStoredData() override;

    /// Whether a text may be a value. Here every text may.
    virtual bool IsTextValid(const CString& strText) const;
    /// Fills the arrays, in place of what they hold, with a code and a description for each sequence, and
    /// answers their number. Descriptions are in the source language; the menu shows them translated. Here
    /// there is none.
    virtual int EnumEscSeq(OCArray<CString>& codes, OCArray<CString>& descriptions) const;

    /// The button's choice: inserts the code.
    void OnTextChosen(int nId, int nIndex) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PreSubclassWindow() override;

private:
    void BindButton();
    int CaretIndex() const;
    void DodajTekstBezProvere(CString strText);
    void TakeFocus();

    CString m_strValue;
    int m_nCaret = 0; ///< where the next insertion goes
    int m_nButtonId;  ///< 0: none
    CTextBtnST m_button{this};
    int m_nChosen = 0; ///< bound to the button
};

/// Any text of the CAD host.
class OW_DIALOGCONTROLS_API CEditAcadEscSeqText : public CEditEscSeqText
{
public:
    CEditAcadEscSeqText() : CEditAcadEscSeqText(nullptr, 0) {}
    CEditAcadEscSeqText(CEditNNotificationHandler* pHandler, int nBtnId) : CEditEscSeqText(pHandler, nBtnId)
    {
    }
    int EnumEscSeq(OCArray<CString>& codes, OCArray<CString>& descriptions) const override;
};

/// The label of a member.
class OW_DIALOGCONTROLS_API CEditAcadEscSeqSpecStapa : public CEditEscSeqText
{
public:
    CEditAcadEscSeqSpecStapa() : CEditAcadEscSeqSpecStapa(nullptr, 0) {}
    CEditAcadEscSeqSpecStapa(CEditNNotificationHandler* pHandler, int nBtnId)
        : CEditEscSeqText(pHandler, nBtnId)
    {
    }
    int EnumEscSeq(OCArray<CString>& codes, OCArray<CString>& descriptions) const override;

    /// Leaves out the length; to be set before the box takes over its window.
    bool m_bNoDimensions = false;
};

/// The label of a plate.
class OW_DIALOGCONTROLS_API CEditAcadEscSeqSpecLima : public CEditEscSeqText
{
public:
    CEditAcadEscSeqSpecLima() : CEditAcadEscSeqSpecLima(nullptr, 0) {}
    CEditAcadEscSeqSpecLima(CEditNNotificationHandler* pHandler, int nBtnId)
        : CEditEscSeqText(pHandler, nBtnId)
    {
    }
    int EnumEscSeq(OCArray<CString>& codes, OCArray<CString>& descriptions) const override;

    /// Leaves out length and width; to be set before the box takes over its window.
    bool m_bNoDimensions = false;
};

/// The label of a member in a production list.
class OW_DIALOGCONTROLS_API CEditAcadEscSeqSpecProizvStapa : public CEditEscSeqText
{
public:
    CEditAcadEscSeqSpecProizvStapa() : CEditAcadEscSeqSpecProizvStapa(nullptr, 0) {}
    CEditAcadEscSeqSpecProizvStapa(CEditNNotificationHandler* pHandler, int nBtnId)
        : CEditEscSeqText(pHandler, nBtnId)
    {
    }
    int EnumEscSeq(OCArray<CString>& codes, OCArray<CString>& descriptions) const override;
};
