#pragma once
// The one door through which a box's text goes when its language has a character set of its own.
//
// Texts are wide throughout, so they pass unchanged. The code page is carried for a conversion that would
// have its place here.

#include <afxwin.h>

#include "module/Export.h"

class OW_DIALOGCONTROLS_API CEditCtrlAnsiInterface
{
public:
    /// The box is not owned. The code page is the translator's current one.
    explicit CEditCtrlAnsiInterface(CEdit& edit);
    virtual ~CEditCtrlAnsiInterface();

    /// The code page that texts go through from now on.
    void SetCodePage(unsigned int nCodePage);
    unsigned int GetCodePage() const;

    /// Writes a text by way of the code page.
    void SetText(const CString& strText);
    /// All of the text, also of a box under a CEditCtrlAnsiMsgHook. The argument makes no difference.
    CString GetText(bool bUnused = false) const;

private:
    CEdit* m_pEdit;
    unsigned int m_nCodePage;
};
