// Drawing and styles: the pictures of the drawing's dimensions and hatch. The pickers write into the values.

#include <afxwin.h>

#include "ConnectionPage.h"

namespace
{
class CDrawingPageDialog : public CConnectionPageDialog,
                           public ABitmapBtnSTNotificationHandler,
                           public AColorBtnSTNotificationHandler
{
public:
    explicit CDrawingPageDialog(CConnectionDialog& host) : CConnectionPageDialog(IDD_PAGE_DRAWING, host) {}

    int OnInitPageDialog() override
    {
        for (CButtonST* pButton :
             {static_cast<CButtonST*>(&m_btnEnds), static_cast<CButtonST*>(&m_btnText),
              static_cast<CButtonST*>(&m_btnHatch), static_cast<CButtonST*>(&m_btnColor)})
            pButton->DrawFlatFocus(TRUE); // for those who go by keyboard
        return TRUE;
    }

    void ShowValues(const FittedConnection&) override
    {
        m_btnEnds.SetEnumSource(&Wanted().drawing.dimensionEnds);
        m_btnText.SetEnumSource(&Wanted().drawing.dimensionText);
        m_btnHatch.SetEnumSource(&Wanted().drawing.hatch);
        m_btnColor.SetColorSource(&Wanted().drawing.dimensionColor);
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CConnectionPageDialog::DoDataExchange(pDX);
        ShowValues(Fitted()); // a colour button is not to be painted without a source
        DDX_Control(pDX, IDC_DIMENSION_ENDS, m_btnEnds);
        DDX_Control(pDX, IDC_DIMENSION_TEXT, m_btnText);
        DDX_Control(pDX, IDC_HATCH, m_btnHatch);
        DDX_Control(pDX, IDC_DIMENSION_COLOR, m_btnColor);
    }

    // The choice is in its value already.
    void OnBitmapChosen(int, int) override { MyAttributeChanged(); }
    void OnColorChosen(int, int) override { MyAttributeChanged(); }

private:
    CBitmapBtnSTKotnaLinija m_btnEnds{this};
    CBitmapBtnSTTekstKote m_btnText{this};
    CBitmapBtnSTSrafura m_btnHatch{this};
    CColorBtnST m_btnColor{this};
};
} // namespace

CConnectionPageDialog* NewDrawingPage(CConnectionDialog& host)
{
    return new CDrawingPageDialog(host);
}
