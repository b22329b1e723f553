#pragma once
// The spin control of a CEditDoubleWithRange. It hands each press to the box that is its buddy, which does
// the rest.

#include <afxwin.h>
#include <afxcmn.h>

#include "module/Export.h"

class OW_DIALOGCONTROLS_API CSpinButtonForDoubleEditCtrl : public CSpinButtonCtrl
{
protected:
    afx_msg void OnDeltapos(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()
};
