#pragma once
// What the in-place editors share: the tie to their cell, and the notification that an edit has ended.

#include <afxwin.h>

#include "module/Export.h"

class CGridCell;

/// A part of every in-place editor, beside its window class. Keeps cell and editor from pointing at one
/// another once either of them is gone.
class OW_DIALOGCONTROLS_API CInPlaceEditor
{
    friend class CGridCell;

public:
    CInPlaceEditor() = default;
    virtual ~CInPlaceEditor();
    CInPlaceEditor(const CInPlaceEditor&) = delete;
    CInPlaceEditor& operator=(const CInPlaceEditor&) = delete;

    /// Tells the grid and asks the window to close. Can be called at any time while the edit runs, and again
    /// until the window has closed: the grid is told once.
    virtual void EndEdit() = 0;

protected:
    /// Sends LVN_ENDLABELEDITW with the text and the key that ended the edit, then posts WM_CLOSE to the
    /// editor, so that it is closed only when the grid has done its work. `editor` may be gone when this
    /// returns. Nothing happens from the second time on.
    void NotifyEnd(CWnd& editor, int nRow, int nColumn, UINT nLastChar, const CString& strText);

private:
    CGridCell* m_pCell = nullptr; ///< not owned
    bool m_bTold = false;         ///< the end; from here on the cell may be elsewhere
};

/// Whether a key moves the edit on to another cell: page up and down and the four arrows. Home and end do
/// not.
bool gfnIsCellMoveKey(UINT nChar);
