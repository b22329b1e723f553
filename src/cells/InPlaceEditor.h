#pragma once
// The life of an in-place editor, written once for all of them.
//
//     new CInPlaceEdit(...)     its window is made, and takes the focus and the first key
//         Leave(key), or the focus goes by itself
//             EndEdit           tells the grid by LVN_ENDLABELEDITW and posts WM_CLOSE
//                 WM_CLOSE      the window goes, and the object with it
//
// A part of every in-place editor, beside its window class. It also keeps cell and editor from pointing at one
// another once either of them is gone.

#include <afxwin.h>

#include "module/Export.h"

class CGridCell;

class OW_DIALOGCONTROLS_API CInPlaceEditor
{
    friend class CGridCell;

public:
    virtual ~CInPlaceEditor();
    CInPlaceEditor(const CInPlaceEditor&) = delete;
    CInPlaceEditor& operator=(const CInPlaceEditor&) = delete;

    /// Tells the grid and asks the window to close. Can be called at any time while the edit runs, and again
    /// until the window has closed: the grid is told once.
    virtual void EndEdit() = 0;

protected:
    /// `window` is the editor itself; the address is that of the cell.
    CInPlaceEditor(CWnd& window, int nRow, int nColumn, const CString& strInitText, BOOL bExitOnArrows);

    /// To be called at the end of the editor's constructor: from then on it is deleted with its window.
    void Constructed() { m_bConstructed = true; }
    /// To be called last in PostNcDestroy.
    void DeleteWithWindow();

    /// Selects what the key that began the edit replaces, in the control that holds the text: a mouse click,
    /// Enter and Backspace leave the text as it is with the caret behind it, all others select it.
    static void SelectForFirstChar(CWnd& edit, UINT nChar);

    /// Takes a key that moves on to another cell, if it may. False for all others, which are the control's.
    bool LeaveByMoveKey(UINT nChar);
    /// Gives the focus to the grid, which is what ends the edit; the editor may be gone when this returns.
    void Leave(UINT nLastChar);
    /// Gives the focus to the grid without a key.
    void Leave();

    /// Sends LVN_ENDLABELEDITW with the text and the key that ended the edit, then posts WM_CLOSE to the
    /// editor, so that it is closed only when the grid has done its work. The editor may be gone when this
    /// returns. Nothing happens from the second time on.
    void NotifyEnd(const CString& strText);

    int m_nRow;
    int m_nColumn;
    CString m_sInitText;
    UINT m_nLastChar = 0; ///< the key that ended the edit; 0 until one does
    BOOL m_bExitOnArrows; ///< without Ctrl, too

private:
    CWnd& m_window;
    CGridCell* m_pCell = nullptr; ///< not owned
    bool m_bTold = false;         ///< the end; from here on the cell may be elsewhere
    /// The window may be gone before that, and nobody must delete the object then.
    bool m_bConstructed = false;
};

/// Whether a key moves the edit on to another cell: page up and down and the four arrows. Home and end do
/// not.
bool gfnIsCellMoveKey(UINT nChar);

/// Whether the key that began an edit leaves the text as it is: a mouse click, Enter and Backspace.
constexpr bool gfnKeepsText(UINT nFirstChar)
{
    return nFirstChar == VK_LBUTTON || nFirstChar == VK_RETURN || nFirstChar == VK_BACK;
}
