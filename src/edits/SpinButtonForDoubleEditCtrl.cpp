#include <afxwin.h>

#include "edits/SpinButtonForDoubleEditCtrl.h"

#include "edits/EditDoubleWithRange.h"

BEGIN_MESSAGE_MAP(CSpinButtonForDoubleEditCtrl, CSpinButtonCtrl)
    ON_NOTIFY_REFLECT(UDN_DELTAPOS, &CSpinButtonForDoubleEditCtrl::OnDeltapos)
END_MESSAGE_MAP()

void CSpinButtonForDoubleEditCtrl::OnDeltapos(NMHDR* pNMHDR, LRESULT* pResult)
{
    if (auto* pEdit = dynamic_cast<CEditDoubleWithRange*>(GetBuddy()))
        pEdit->OnSpinDeltapos(reinterpret_cast<NM_UPDOWN*>(pNMHDR), pResult);
}
