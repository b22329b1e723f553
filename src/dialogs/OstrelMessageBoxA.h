#pragma once
// The dialog of COstrelMessageBox, on the library's template: sizes itself to its text, translates itself,
// and answers the number of the button that was pressed. Run it inside a CHostResourceScope.

#include "buttons/ButtonST.h"

#include <memory>

/// How reports name the source of the message box.
inline constexpr char kMessageBoxSource[] = ".\\OstrelMessageBox";

class COstrelMessageBoxA : public CDialog
{
public:
    static constexpr int kMaxButtons = 4;

    explicit COstrelMessageBoxA(CWnd* pParent);

    void Set(const CString& strText, const CString& strCaption);
    bool IsSet() const { return m_bSet; }
    /// There are as many buttons as the greatest number given here, and one at least. A number that is not
    /// from 1 to 4 is an internal error.
    void SetButtonText(int nButton, const CString& strText);
    /// The number that Escape and the close box answer; 0 at first.
    void SetPressedButton(int nButton) { m_nPressed = nButton; }
    /// MB_ICONERROR, MB_ICONQUESTION, MB_ICONWARNING, MB_ICONINFORMATION, or 0 for no icon. Any other value
    /// is an internal error when the dialog opens.
    void SetIconType(unsigned int nIconType) { m_nIconType = nIconType; }

    /// The number of the pressed button, from 1 to 4, or what Escape answers.
    INT_PTR DoModal() override;

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnSecond();
    afx_msg void OnThird();
    afx_msg void OnFourth();
    afx_msg void OnMessageSetFocus();
    afx_msg void OnPaint();
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    struct DestroyIconHandle
    {
        void operator()(HICON hIcon) const { ::DestroyIcon(hIcon); }
    };

    CButtonST& Button(int nButton);
    void Press(int nButton);

    void SetButtonFaces();
    void LoadMessageIcon();
    void Arrange();
    CSize FrameSize() const;
    int CountLinesAt(int nWidth);
    int FindTextWidth(int nFewestLines);
    int WorkAreaHeight() const;
    void MakeMessageScroll(const CRect& rect);

    CEdit m_editMessage;
    CButtonST m_btnFourth{nullptr};
    CButtonST m_btnThird{nullptr};
    CButtonST m_btnSecond{nullptr};
    CButtonST m_btnFirst{nullptr};
    int m_nPressed = 0;
    bool m_bSet = false;
    std::unique_ptr<HICON__, DestroyIconHandle> m_pIcon;
    int m_nButtons = 1;
    unsigned int m_nIconType = 0;
    CString m_strText; ///< in the source language
    CString m_strCaption;
    CString m_strButton[kMaxButtons];
};
