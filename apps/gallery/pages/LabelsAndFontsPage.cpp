// Labels and fonts: text in several fonts on one line, in labels, check boxes and buttons with a radio look;
// and buttons that pass their notifications to a handler.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

#include <array>

namespace
{
constexpr int kPlaces = 18;
constexpr int kLoads = 3;

class CLabelsAndFontsPageDialog : public CGalleryPageDialog,
                                  public AButtonSTNotificationHandler,
                                  public CButtonReflectedNotificationHandler
{
public:
    explicit CLabelsAndFontsPageDialog(CGalleryHostDialog& host)
        : CGalleryPageDialog(IDD_PAGE_LABELS_AND_FONTS, host)
    {
        for (CMixedFontButton& place : m_places)
            place.SetNotificationHandler(this);
        for (CMixedFontButton& load : m_loads)
        {
            load.SetNotificationHandler(this);
            load.RadioButtonLook(TRUE);
        }
    }

    int OnInitPageDialog() override
    {
        SetDlgItemText(IDC_LABEL_MARKUP,
                       _T("<i>V</i><sub>Rd</sub> = <i>A</i><sub>v</sub> <i>f</i><sub>y</sub> / 1.73"));
        m_places[0].SetCheck(1);
        m_checkFactored.SetCheck(1);
        m_checkFixed.SetCheck(1);
        m_checkFixed.EnableWindow(FALSE); // not before: a disabled one keeps its state
        EnableLoads();
        Choose(IDC_LOAD_FIRST);
        m_btnPick.SetIcon(CButtonST::hIconPogled, nullptr);
        return TRUE;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPageDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_LABEL_SHOWN, m_labelShown);
        DDX_Control(pDX, IDC_LABEL_LEFT, m_labelLeft);
        DDX_Control(pDX, IDC_LABEL_CENTER, m_labelCenter);
        DDX_Control(pDX, IDC_LABEL_RIGHT, m_labelRight);
        for (int i = 0; i < kPlaces; ++i)
            DDX_Control(pDX, IDC_MIXED_FIRST + i, m_places[i]);
        DDX_Control(pDX, IDC_LOAD_CASE, m_checkFactored);
        for (int i = 0; i < kLoads; ++i)
            DDX_Control(pDX, IDC_LOAD_FIRST + i, m_loads[i]);
        DDX_Control(pDX, IDC_LOAD_CHOSEN, m_labelChosen);
        DDX_Control(pDX, IDC_LOAD_FIXED, m_checkFixed);
        DDX_Control(pDX, IDC_REFLECTED, m_checkReflected);
        DDX_Control(pDX, IDC_REFLECTED_ST, m_btnPick);
    }

    /// The label shows what is typed, while it is typed.
    afx_msg void OnChangeMarkup()
    {
        CString strMarkup;
        GetDlgItemText(IDC_LABEL_MARKUP, strMarkup);
        m_labelShown.SetWindowText(strMarkup);
    }
    DECLARE_MESSAGE_MAP()

    // ---- Mixed-font buttons: whoever answers the click sets the checks ----

    void OnButtonClicked(int nId) override
    {
        Log(nId < IDC_LOAD_CASE ? _T("Place") : _T("Load case"), _T("OnButtonClicked(%d)"), nId);
        if (nId >= IDC_LOAD_FIRST && nId < IDC_LOAD_FIRST + kLoads)
            return Choose(nId);
        CheckDlgButton(nId, !IsDlgButtonChecked(nId));
        if (nId == IDC_LOAD_CASE)
            EnableLoads();
    }

    // ---- Reflected buttons ----

    void ButtonReflectedOnClicked(int nId) override
    {
        Log(ReflectedName(nId), _T("ButtonReflectedOnClicked(%d)"), nId);
        if (nId == IDC_REFLECTED)
            return m_checkReflected.Invalidate(); // in its other colour
        CString strCount;
        strCount.Format(gOtLang.Do(_T("Picks: %d")), ++m_nPicks);
        SetDlgItemText(IDC_REFLECTED_COUNT, strCount);
    }
    void ButtonReflectedOnDoubleclicked(int nId) override
    {
        Log(ReflectedName(nId), _T("ButtonReflectedOnDoubleclicked(%d)"), nId);
    }
    HBRUSH ButtonReflectedOnCtlColor(int nId, CDC* pDC, unsigned int nCtlColor) override
    {
        Log(ReflectedName(nId), _T("ButtonReflectedOnCtlColor(%d, %u)"), nId, nCtlColor);
        if (nId != IDC_REFLECTED)
            return nullptr; // as the system has it
        const bool bChecked = m_checkReflected.GetCheck() == BST_CHECKED;
        pDC->SetBkColor(bChecked ? kGreen : kAmber);
        return bChecked ? m_brushGreen : m_brushAmber;
    }
    void ButtonReflectedOnParentNotify(int nId, unsigned int message, __int64) override
    {
        Log(ReflectedName(nId), _T("ButtonReflectedOnParentNotify(%d, %u)"), nId, message);
    }

private:
    static constexpr COLORREF kGreen = RGB(205, 240, 205);
    static constexpr COLORREF kAmber = RGB(255, 232, 180);

    static LPCTSTR ReflectedName(int nId)
    {
        return nId == IDC_REFLECTED ? _T("Checked by the engineer") : _T("Pick");
    }

    void Choose(int nId)
    {
        for (CMixedFontButton& load : m_loads)
            load.SetCheck(load.GetDlgCtrlID() == nId);
        CString strText;
        GetDlgItemText(nId, strText);
        m_labelChosen.SetWindowText(_T("<b>") + strText);
    }

    void EnableLoads()
    {
        for (CMixedFontButton& load : m_loads)
            load.EnableWindow(m_checkFactored.GetCheck());
    }

    CMixedFontStatic m_labelShown, m_labelLeft, m_labelCenter, m_labelRight, m_labelChosen;
    std::array<CMixedFontButton, kPlaces> m_places;
    std::array<CMixedFontButton, kLoads> m_loads;
    CMixedFontButton m_checkFactored{this};
    CMixedFontButton m_checkFixed{this};
    // No handler is given: these find this page, their parent, which implements the interface.
    CButtonReflected m_checkReflected;
    CButtonSTReflected m_btnPick;
    CBrush m_brushGreen{kGreen};
    CBrush m_brushAmber{kAmber};
    int m_nPicks = 0;
};

BEGIN_MESSAGE_MAP(CLabelsAndFontsPageDialog, CGalleryPageDialog)
    ON_EN_CHANGE(IDC_LABEL_MARKUP, &CLabelsAndFontsPageDialog::OnChangeMarkup)
END_MESSAGE_MAP()
} // namespace

void AddLabelsAndFontsPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CLabelsAndFontsPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageLabelsAndFonts, _T("Labels and fonts"), pDialog),
                    manager.GetPage(ePageButtons));
}
