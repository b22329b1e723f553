#include <afxwin.h>

#include "DlgPage/Page.h"

#include "DlgPage/LowMemory.h"
#include "DlgPage/PageDialog.h"

namespace
{
template <class Value>
void PreSet(Value& target, int& nTargetSet, const Value& value)
{
    target = value;
    nTargetSet = 1;
}

/// A format that is marked as not set leaves what was pre-set before.
void PreSetIfSet(CFormatTekstaKote& target, int& nTargetSet, const CFormatTekstaKote& format)
{
    if (format.IsSet())
        PreSet(target, nTargetSet, format);
}
} // namespace

CPage::CPage(CString strName, CPageDialog* pDialog) : name(strName), dialog(pDialog)
{
}

CPage::CPage(const CPage&) = default;
CPage& CPage::operator=(const CPage&) = default;
CPage::~CPage() = default;

void* CPage::operator new(std::size_t size)
{
    return gfnAllocateLow(size);
}

void* CPage::operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    try
    {
        return gfnAllocateLow(size);
    }
    catch (CMemoryException* pException)
    {
        pException->Delete();
        return nullptr;
    }
}

void CPage::operator delete(void* pPage) noexcept
{
    gfnFreeLow(pPage);
}

void CPage::operator delete(void* pPage, const std::nothrow_t&) noexcept
{
    gfnFreeLow(pPage);
}

#if defined(_DEBUG)
void* CPage::operator new(std::size_t size, LPCSTR, int)
{
    return gfnAllocateLow(size);
}

void CPage::operator delete(void* pPage, LPCSTR, int) noexcept
{
    gfnFreeLow(pPage);
}
#endif

void CPage::DrawPreview(CCmndGraphicContext*) const
{
}

CPage::EPagePreviewID CPage::GetPreviewID() const
{
    return EPagePreviewID{};
}

CString CPage::GetTreeItemName() const
{
    return name;
}

void CPage::ChangeVisibility(bool bVisible)
{
    if (!dialog || !dialog->GetSafeHwnd())
        return;
    dialog->EnableWindow(bVisible);
    dialog->ShowWindow(bVisible ? SW_SHOW : SW_HIDE);
    dialog->BindControlsToSources(bVisible, this);
    if (bVisible)
        dialog->SetFocus();
}

UINT CPage::GetDialogTemplateID() const
{
    return dialog ? dialog->GetDialogTemplateID() : 0;
}

void CPage::SendFocusedControlKillFocusMessage()
{
    if (dialog)
        dialog->SendFocusedControlKillFocusMessage();
}

void CPage::SetIdConf(int nIdConf)
{
    idConf = nIdConf;
    formatGoreSet = formatDoleSet = formatIzvorSet = 0;
    duzinaSet = sirinaSet = debljinaSet = 0;
    separatorSet = polozajSet = 0;
}

void CPage::SetFormatGore(const CFormatTekstaKote& format)
{
    PreSetIfSet(formatGore, formatGoreSet, format);
}

void CPage::SetFormatDole(const CFormatTekstaKote& format)
{
    PreSetIfSet(formatDole, formatDoleSet, format);
}

void CPage::SetFormatIzvor(const CFormatTekstaKote& format)
{
    PreSetIfSet(formatIzvor, formatIzvorSet, format);
}

void CPage::SetDuzina(const CFormatJedinice& format)
{
    PreSet(duzina, duzinaSet, format);
}

void CPage::SetSirina(const CFormatJedinice& format)
{
    PreSet(sirina, sirinaSet, format);
}

void CPage::SetDebljina(const CFormatJedinice& format)
{
    PreSet(debljina, debljinaSet, format);
}

void CPage::SetSeparator(int nSeparator)
{
    PreSet(separator, separatorSet, nSeparator);
}

void CPage::SetPolozaj(int nPolozaj)
{
    PreSet(polozaj, polozajSet, nPolozaj);
}
