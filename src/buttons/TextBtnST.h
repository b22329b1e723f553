#pragma once
// A button with a drop-down arrow that offers a list of texts in a pop-up menu, and tells a handler which
// was chosen.
//
// ```cpp
//     class CLabelDialog : public CDialog, public ATextBtnSTNotificationHandler
//     {
//         CTextBtnST m_btnInsert{this};
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_INSERT, m_btnInsert); }
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog();
//             OCArray<CString> texts, descriptions;
//             texts.Add(L"%l");
//             descriptions.Add(L"plate length");
//             m_btnInsert.SetTexts(texts, descriptions);            // the menu shows "%l - plate length"
//             return TRUE;
//         }
//         void OnTextChosen(int, int nIndex) override { Insert(m_btnInsert.GetText(nIndex)); }
//     };
// ```
//
// For text boxes that insert what is chosen there is CEditEscSeqText, which has a button of this kind.
//
// Menu. A click, Space or Enter opens it at the button's top right corner. It is made by SetTexts; before
// that, and with an empty list, there is none. Texts and descriptions show as they are given: an ampersand
// underlines nothing. When the menu has closed, or if there is none, the click goes to the parent as
// BN_CLICKED, as with CButtonST; a choice comes after that.
//
// Choice. It is stored in the bound variable, if there is one, and then the handler is called, also for the
// entry that was chosen before. Escape or a click elsewhere closes the menu and changes nothing; a key that
// is still held from opening the menu does nothing in it. The handler may close the dialog.
//
// The commands of the menu are 36914 and the following, one for each text. Every command that reaches the
// button counts as a choice, and only the upper end is looked at: for one behind the last text the index is
// that of the bound variable, or 0 without one; for one below 36914 it is negative. A handler that may be
// sent such commands checks the index.
//
// Look. The title stands in the middle as in every CButtonST, the arrow at the right; there is no check
// box. A transparent button has no arrow, as it has no face.

#include <afxwin.h>

#include "buttons/ButtonST.h"
#include "module/OCArray.h"

#include <memory>

class OW_DIALOGCONTROLS_API CTextBtnST : public CButtonST
{
public:
    CTextBtnST();
    /// The handler is not owned, may be null, and must outlive the button.
    explicit CTextBtnST(ATextBtnSTNotificationHandler* pHandler);

    /// Binds the variable that receives the index of the chosen text. Not owned; null: none.
    void SetEnumSource(int* pnSource);

    /// Offers texts without descriptions, in place of all that was offered before.
    void SetTexts(const OCArray<CString>& texts);
    /// Offers texts with descriptions. An empty description, or one that is missing because its array is
    /// the shorter one, leaves its text bare; surplus ones are not shown.
    void SetTexts(const OCArray<CString>& texts, const OCArray<CString>& descriptions);

    /// Entries of the menu.
    int TextCount() const;
    /// The text at an index from 0 to TextCount() - 1; the index is not checked here. Good until the next
    /// SetTexts.
    const CString& GetText(int nIndex) const;

protected:
    DWORD OnDrawBackground(CDC* pDC, CRect& rect) override;
    /// Leaves room for the arrow. The button's own title is not measured by it.
    void DrawItemHook_CalcRect(CDC* pDC, const CString& strText, CRect& rect) override;

    void PreSubclassWindow() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg BOOL OnClicked();
    afx_msg void OnSysColorChange();
    DECLARE_MESSAGE_MAP()

private:
    void CreateTextMenu();
    int ChosenIndex(UINT nCommand) const;

    int* m_pnSource = nullptr;      ///< index of the chosen text, not owned
    std::shared_ptr<CMenu> m_pMenu; ///< null before SetTexts; a menu that is open stays till it closes
    OCArray<CString> m_texts;
    OCArray<CString> m_descriptions; ///< may be shorter or longer than the texts
    ATextBtnSTNotificationHandler* m_pHandler;
};
