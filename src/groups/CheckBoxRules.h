#pragma once
// Four rules by which a number goes to check boxes and comes back, in the manner of a dialog's data exchange.
//
// ```cpp
//     class CDetailDialog : public CDialog
//     {
//         CButton m_checkDimensions, m_checkTolerances;
//         int m_nDimensions = 0;
//         void ShowDimensions()                                 // bSet true: the value goes to the controls
//         {
//             gfnObradiDvaCheckBoxa(&m_checkDimensions, &m_checkTolerances, true, &m_nDimensions);
//         }
//         void OnDimensionsClicked()                            // bSet false: the controls go to the value
//         {
//             gfnObradiDvaCheckBoxa(&m_checkDimensions, &m_checkTolerances, false, &m_nDimensions);
//         }
//     };
// ```
//
// Reading enables, clears and checks what depends on a box as well: a dialog calls it from the click handlers
// of all boxes of the rule, and they stay in step.
//
// A box counts as checked in the state BST_CHECKED, and not when it is indeterminate. Nothing happens, and
// values stay as they are, if a pointer is null or a check box has no window.

#include <afxwin.h>

#include "module/Export.h"

class CRadioGroup;

/// A box and a flag. Any value but 0 checks the box; it reads 1 or 0.
OW_DIALOGCONTROLS_API void gfnObradiCheckBox(CButton* pCheck, bool bSet, int* pnValue);

/// Two boxes and three levels: 0 both off, 1 the first on, 2 both on. The second box is enabled while the
/// first is on; it is cleared when the first is read as off. Any other value checks the first only. A second
/// box with a third state reads 3 in that state.
OW_DIALOGCONTROLS_API void gfnObradiDvaCheckBoxa(CButton* pFirst, CButton* pSecond, bool bSet, int* pnValue);

/// A box and a flag, of use only while another value, the condition, is not 0: meanwhile the box is enabled
/// and read. With the condition 0 it is disabled, and the value stays as it was.
OW_DIALOGCONTROLS_API void gfnObradiUslovniCheckBox(CButton* pCheck, bool bSet, int* pnCondition,
                                                    int* pnValue);

/// A box that switches a radio group: 0 is off, any other value the index of the option plus 1. While the box
/// is off, the group is cleared and disabled. A value that is no option leaves the group enabled and cleared;
/// reading checks the first option then. With an empty group the value is 0 or 1.
OW_DIALOGCONTROLS_API void gfnObradiChkBoxSaGrupomRadioDugmica(CButton* pCheck, CRadioGroup& group, bool bSet,
                                                               int* pnValue);
