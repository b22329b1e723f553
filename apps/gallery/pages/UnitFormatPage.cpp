// Unit format: the group that edits how a length is written, for one record and for several at once.

#include <afxwin.h>

#include "GalleryPage.h"
#include "resource.h"

#include <algorithm>
#include <array>

namespace
{
struct SAxis
{
    double dLength; ///< metres
    CFormatJedinice format;
};

CFormatJedinice MakeFormat(int nUnit, bool bSymbol, int nDecimals)
{
    CFormatJedinice format;
    format.nUnitIndex = nUnit;
    format.nCheckFlag = bSymbol;
    format.nEditValue = nDecimals;
    return format;
}

/// Copies the field that a report's source stands for.
void CopyChanged(CFormatJedinice& to, const CFormatJedinice& from, int nSource)
{
    if (nSource == CFormatJediniceCtrlGroup::eSourceCombo)
        to.nUnitIndex = from.nUnitIndex;
    else if (nSource == CFormatJediniceCtrlGroup::eSourceButton)
        to.nCheckFlag = from.nCheckFlag;
    else
        to.nEditValue = from.nEditValue;
}

class CUnitFormatPageDialog : public CGalleryPageDialog, public AFormatJediniceCtrlGroupNotificationHandler
{
public:
    explicit CUnitFormatPageDialog(CGalleryHostDialog& host) : CGalleryPageDialog(IDD_PAGE_UNIT_FORMAT, host)
    {
    }

    int OnInitPageDialog() override
    {
        CheckDlgButton(IDC_FORMAT_ENABLE, BST_CHECKED);
        CheckDlgButton(IDC_FORMAT_SHOW, BST_CHECKED);
        m_group.SetFormatSource(&m_format);
        m_group.Update(true, true);
        ShowFormat();
        m_axesGroup.SetFormatSource(&m_axesFormat);
        OnDifferAgain();
        return TRUE;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CGalleryPageDialog::DoDataExchange(pDX);
        m_group.DoDataExchange(pDX);
        m_axesGroup.DoDataExchange(pDX);
    }

    void OnFormatGroupChanged(CFormatJediniceCtrlGroup* pGroup, CFormatJedinice* pFormat,
                              int nSource) override
    {
        static constexpr LPCTSTR kSources[] = {_T("the unit"), _T("the box"), _T("typing"),
                                                _T("leaving the edit")};
        Log(pGroup == &m_group ? _T("One format") : _T("Three axes"), _T("OnFormatGroupChanged(%d: %s)   %s"),
            nSource, gOtLang.Do(kSources[nSource]).GetString(), TextOf(*pFormat).GetString());
        if (pGroup == &m_group)
            ShowFormat();
        else
            ChangeAxes(nSource);
    }

    afx_msg void OnNoRecord()
    {
        m_group.SetFormatSource(IsDlgButtonChecked(IDC_FORMAT_NO_RECORD) ? nullptr : &m_format);
        m_group.Update(true, true);
        ShowFormat();
    }
    afx_msg void OnEnable() { m_group.Enable(IsDlgButtonChecked(IDC_FORMAT_ENABLE) != 0); }
    afx_msg void OnShow()
    {
        const UINT nShown = IsDlgButtonChecked(IDC_FORMAT_SHOW);
        m_group.Display(nShown != 0);
        CheckDlgButton(IDC_FORMAT_ENABLE, nShown); // a group that is shown is enabled, too
    }
    afx_msg void OnDifferAgain()
    {
        m_axes = {{{6.25, MakeFormat(CMeasurementUnit::eMetre, true, 2)},
                   {3.4, MakeFormat(CMeasurementUnit::eMillimetre, false, 0)},
                   {1.8288, MakeFormat(CMeasurementUnit::eFoot, true, 1)}}};
        m_axesGroup.Update(true, false);
        ShowAxes();
    }
    DECLARE_MESSAGE_MAP()

private:
    static CString TextOf(const CFormatJedinice& format)
    {
        CString strText;
        strText.Format(gOtLang.Do(_T("unit %d, symbol %d, decimals %d")), format.nUnitIndex,
                       format.nCheckFlag, format.nEditValue);
        return strText;
    }

    // The preview goes by the controls, which are ahead of the record while the user types.
    void ShowFormat()
    {
        SetDlgItemText(IDC_FORMAT_PREVIEW, m_group.GetCtrlState().Format(6.25));
        SetDlgItemText(IDC_FORMAT_RECORD,
                       IsDlgButtonChecked(IDC_FORMAT_NO_RECORD) ? gOtLang.Do(_T("none")) : TextOf(m_format));
    }

    // Leaving the edit says nothing new: what was typed has been reported, and an edit that was only passed holds
    // a number that is none of the axes'.
    void ChangeAxes(int nSource)
    {
        if (nSource == CFormatJediniceCtrlGroup::eSourceEditLeft)
            return;
        for (SAxis& axis : m_axes)
            CopyChanged(axis.format, m_axesGroup.GetCtrlState(), nSource);
        ShowAxes();
    }

    void ShowAxes()
    {
        for (size_t i = 0; i < m_axes.size(); ++i)
            SetDlgItemText(IDC_AXES_TEXT_FIRST + static_cast<int>(i),
                           m_axes[i].format.Format(m_axes[i].dLength));
    }

    CFormatJedinice m_format = MakeFormat(CMeasurementUnit::eMillimetre, true, 0);
    CFormatJediniceCtrlGroup m_group{IDC_FORMAT_UNIT, IDC_FORMAT_SYMBOL, IDC_FORMAT_DECIMALS, this};
    std::array<SAxis, 3> m_axes;
    CFormatJedinice m_axesFormat; ///< what the controls of the axes last stored
    CFormatJediniceCtrlGroup m_axesGroup{IDC_AXES_UNIT, IDC_AXES_SYMBOL, IDC_AXES_DECIMALS, this};
};

BEGIN_MESSAGE_MAP(CUnitFormatPageDialog, CGalleryPageDialog)
    ON_BN_CLICKED(IDC_FORMAT_NO_RECORD, &CUnitFormatPageDialog::OnNoRecord)
    ON_BN_CLICKED(IDC_FORMAT_ENABLE, &CUnitFormatPageDialog::OnEnable)
    ON_BN_CLICKED(IDC_FORMAT_SHOW, &CUnitFormatPageDialog::OnShow)
    ON_BN_CLICKED(IDC_AXES_DIFFER, &CUnitFormatPageDialog::OnDifferAgain)
END_MESSAGE_MAP()
} // namespace

void AddUnitFormatPage(CPageManager& manager, CGalleryHostDialog& host)
{
    auto* pDialog = new CUnitFormatPageDialog(host);
    manager.AddDialog(pDialog);
    manager.AddPage(new CGalleryPage(ePageUnitFormat, _T("Unit format"), pDialog),
                    manager.GetPage(ePageChoices));
}
