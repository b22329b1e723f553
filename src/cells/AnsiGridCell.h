#pragma once
// A text cell that is edited in the character set of the texts that go into drawings (gOtSubLang), where that
// differs from the display's.
//
// ```cpp
//     gOtSubLang.SetCurrentLanguage(MAKELANGID(LANG_GREEK, SUBLANG_DEFAULT));
//     CAnsiGridCell::InitializeAnsiGrid(m_grid, nullptr); // before the cells are made
//     m_grid.SetRowCount(10);                             // cells whose editors write Greek
// ```
//
// A cell finds out when it is made whether it needs this, and no later: for another language make the cells
// anew. While it is edited its editor stands under a CEditCtrlAnsiMsgHook, which gives it the font. Nothing
// that the user types is lost by that, however long.

#include <afxwin.h>

#include "cells/GridCell.h"
#include "edits/EditCtrlAnsiMsgHook.h"

class ClTranslator;

class OW_DIALOGCONTROLS_API CAnsiGridCell : public CGridCell
{
    DECLARE_DYNCREATE(CAnsiGridCell)

public:
    /// The translator is asked here only, and not kept; null stands for gOtSubLang. An edit goes by
    /// gOtSubLang whatever was given here: this is wanted.
    explicit CAnsiGridCell(const ClTranslator* pTranslator = nullptr);
    using CGridCell::operator=;
    /// Takes over what the other shows. How it is edited stays.
    void operator=(const CAnsiGridCell& cell);

    /// Gives the fonts of the grid's default cells the translator's character set, and makes CAnsiGridCell
    /// the class of its new cells; the cells that it has stay. Null stands for gOtSubLang. A grid stays as
    /// it is if the character set is that of the display.
    static void InitializeAnsiGrid(CGridCtrl& grid, const ClTranslator* pTranslator = nullptr);

    BOOL Edit(int nRow, int nCol, CRect rect, CPoint point, UINT nID, UINT nChar) override;

protected:
    bool m_bAnsiNeeded;
    CEditCtrlAnsiMsgHook m_hook;

private:
    void PrepareEditor(CEdit& editor, const CString& strText);
};
