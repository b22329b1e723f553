#pragma once
// The dialog behind acedSetColorDialog.

#include "ColorGrid.h"
#include "ColorPreview.h"

#include "resource.h"

class CColorDialog : public CDialog
{
public:
    enum
    {
        IDD = IDD_COLOR
    };

    /// `nColor` is the start value; `nLayerColor` the colour in which ByLayer is shown.
    CColorDialog(int nColor, bool bAllowMetaColor, int nLayerColor, CWnd* pParent);

    /// The chosen index, once DoModal answered IDOK.
    int GetColor() const { return m_nColor; }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void OnOK() override;

    afx_msg void OnGridSelectionChanged();
    afx_msg void OnGridHotChanged();
    afx_msg void OnGridAccepted();
    afx_msg void OnTextChanged();
    afx_msg void OnByLayer();
    afx_msg void OnByBlock();
    DECLARE_MESSAGE_MAP()

private:
    bool CanChoose(int nColor) const;
    int ParseText() const;
    void Choose(int nColor);
    void ShowText();
    void ShowChoice();
    void ShowReadout(int nColor);
    COLORREF ShownColor(int nColor) const;

    CColorGrid m_grid;
    CColorPreview m_preview;
    CEdit m_text;
    CStatic m_indexText;
    CStatic m_rgbText;

    int m_nColor; ///< the present choice, or kNoColor
    int m_nOldColor;
    bool m_bAllowMetaColor;
    int m_nLayerColor;
    bool m_bSettingText = false; ///< the dialog itself is writing into the box
};
