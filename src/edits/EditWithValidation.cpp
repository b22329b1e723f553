#include <afxwin.h>

#include "edits/EditWithValidation.h"

CEditWithValidation::CEditWithValidation(CEditNNotificationHandler* pHandler) : CEditN(pHandler)
{
}

BEGIN_MESSAGE_MAP(CEditWithValidation, CEditN)
END_MESSAGE_MAP()

void CEditWithValidation::HandlerOnCreate()
{
    UpdateGUIWithStoredData();
}

// Whether the text parsed does not matter here: the user may still be on the way to one that does.
void CEditWithValidation::HandlerOnChange()
{
    ValidateAndStoreDataFromGUI();
    CEditN::HandlerOnChange();
}

// A box that was entered and left as it was keeps its text and caret.
void CEditWithValidation::HandlerOnKillFocus()
{
    if (HasChangedSinceLastSetFocus())
        UpdateGUIWithStoredData();
    CEditN::HandlerOnKillFocus();
}
