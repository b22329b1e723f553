// Units and fonts: how lengths and dimensions are written, and the language.

#include <afxwin.h>

#include "ConnectionPage.h"

#include <epgFont.h>

namespace
{
/// The group of the font. Its colour button takes a control id for the life of the process: so there is one
/// group, which serves the page that is open.
class CFontGroup : private AFontCtrlGroupNotificationHandler
{
public:
    static CFontGroup& Get()
    {
        static CFontGroup s_group;
        return s_group;
    }

    CFontCtrlGroup group{IDC_FONT,        IDC_FONT_HEIGHT,     IDC_FONT_COLOR, IDC_FONT_BOLD,
                         IDC_FONT_ITALIC, IDC_FONT_UNDERLINED, IDC_FONT_APPLY, this};
    AFontCtrlGroupNotificationHandler* pPage = nullptr;

private:
    void OnFontGroupChanged(CFontCtrlGroup* pGroup, epgFont* pFont) override
    {
        pPage->OnFontGroupChanged(pGroup, pFont);
    }
    void OnFontGroupButton(CFontCtrlGroup* pGroup, epgFont* pFont) override
    {
        pPage->OnFontGroupButton(pGroup, pFont);
    }
};

class CUnitsPageDialog : public CConnectionPageDialog,
                         public AFormatJediniceCtrlGroupNotificationHandler,
                         public AFontCtrlGroupNotificationHandler,
                         public AExtComboBoxNotificationHandler
{
public:
    explicit CUnitsPageDialog(CConnectionDialog& host) : CConnectionPageDialog(IDD_PAGE_UNITS, host)
    {
        m_fontGroup.pPage = this;
    }
    ~CUnitsPageDialog() override
    {
        m_fontGroup.group.SetFontSource(nullptr);
        DestroyWindow(); // while the groups are there
        m_fontGroup.pPage = nullptr;
    }

    int OnInitPageDialog() override
    {
        m_fontGroup.group.OnInitDialog();
        m_comboLanguage.AddString(_T("Srpski"));
        m_comboLanguage.AddString(_T("English"));
        m_comboLanguage.SetCurSel(StoredLanguage() == _T("en"));
        return TRUE;
    }

    void BindControlsToSources(bool bBind, CPage* pPage) override
    {
        CConnectionPageDialog::BindControlsToSources(bBind, pPage);
        m_formatGroup.SetFormatSource(bBind ? &m_format : nullptr);
        m_formatGroup.Update(true, true);
        m_fontGroup.group.SetFontSource(bBind ? &m_font : nullptr);
    }

    // What a group has told is in its record; the groups are told only what comes from elsewhere.
    void ShowValues(const FittedConnection& fitted) override
    {
        const Connection& c = fitted.values;
        if (!(m_format == ToFormat(c.lengths)))
        {
            m_format = ToFormat(c.lengths);
            m_formatGroup.SetFormatSource(&m_format);
            m_formatGroup.Update(true, true);
        }
        const DrawingStyle& style = c.drawing;
        const CString strFont = style.font.empty() ? UsualFont() : CString(style.font.c_str());
        if (strFont != m_font.strName || style.textHeight_m != m_font.dHeight ||
            style.textColor != m_font.nColor || style.bold != m_font.nCheck1 ||
            style.italic != m_font.nCheck2)
        {
            m_font = {strFont, style.textHeight_m, style.textColor, style.bold, style.italic,
                      0,       eFontTrueType};
            m_fontGroup.group.SetFontSource(&m_font);
        }
        SetDlgItemText(IDC_UNIT_SAMPLE, m_format.Format(c.plateHeight_m));
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CConnectionPageDialog::DoDataExchange(pDX);
        m_formatGroup.DoDataExchange(pDX);
        m_fontGroup.group.DoDataExchange(pDX);
        DDX_Control(pDX, IDC_LANGUAGE, m_comboLanguage);
    }

    void OnFormatGroupChanged(CFormatJediniceCtrlGroup*, CFormatJedinice*, int) override
    {
        // While the user types, the record lags behind the controls.
        m_format = m_formatGroup.GetCtrlState();
        Wanted().lengths = {m_format.nUnitIndex, m_format.nEditValue, m_format.nCheckFlag};
        MyAttributeChanged();
    }
    void OnFontGroupChanged(CFontCtrlGroup*, epgFont* pFont) override
    {
        DrawingStyle& style = Wanted().drawing;
        style.font = pFont->strName == UsualFont() ? _T("") : pFont->strName.GetString();
        style.textHeight_m = pFont->dHeight;
        style.textColor = pFont->nColor;
        style.bold = pFont->nCheck1;
        style.italic = pFont->nCheck2;
        MyAttributeChanged();
    }
    void OnFontGroupButton(CFontCtrlGroup*, epgFont*) override {} // hidden: there is one font only
    void OnExtComboBoxSelChanged(int, int nSel) override { StoreLanguage(nSel == 1 ? _T("en") : _T("sr")); }

private:
    /// Arial, or what stands in for it.
    CString UsualFont() const
    {
        const auto& combo = static_cast<CComboBox&>(*GetDlgItem(IDC_FONT));
        return combo.FindStringExact(-1, _T("Arial")) >= 0 ? _T("Arial") : _T("Liberation Sans");
    }

    CFormatJedinice m_format;
    CFormatJediniceCtrlGroup m_formatGroup{IDC_UNIT, IDC_SYMBOL, IDC_DECIMALS, this};
    epgFont m_font;
    CFontGroup& m_fontGroup = CFontGroup::Get();
    CExtComboBox m_comboLanguage{this};
};
} // namespace

CConnectionPageDialog* NewUnitsPage(CConnectionDialog& host)
{
    return new CUnitsPageDialog(host);
}
