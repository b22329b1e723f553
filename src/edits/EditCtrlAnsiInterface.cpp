#include <afxwin.h>

#include "edits/EditCtrlAnsiInterface.h"

#include "edits/WholeText.h"

#include <Translator.h>

CEditCtrlAnsiInterface::CEditCtrlAnsiInterface(CEdit& edit)
    : m_pEdit(&edit), m_nCodePage(gOtSubLang.GetCurrentCodePage())
{
}

CEditCtrlAnsiInterface::~CEditCtrlAnsiInterface()
{
}

void CEditCtrlAnsiInterface::SetCodePage(unsigned int nCodePage)
{
    m_nCodePage = nCodePage;
}

unsigned int CEditCtrlAnsiInterface::GetCodePage() const
{
    return m_nCodePage;
}

void CEditCtrlAnsiInterface::SetText(const CString& strText)
{
    m_pEdit->SetWindowText(strText);
}

CString CEditCtrlAnsiInterface::GetText(bool) const
{
    return gfnWholeText(*m_pEdit);
}
