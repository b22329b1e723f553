#pragma once
// Gives a text box a font with the character set of the language that gOtSubLang stands at, and takes the
// box's text messages through CEditCtrlAnsiInterface.
//
// ```cpp
//     CEditCtrlAnsiMsgHook m_hook;
//     ...
//     gOtSubLang.SetCurrentLanguage(MAKELANGID(LANG_GREEK, SUBLANG_DEFAULT));
//     m_hook.HookWindow(&m_editLabel); // the box now writes Greek
// ```
//
// A hook is for one box at a time. When its box has gone, or after Unhook, it can take another one, which
// is given a font of its own. The hook owns that font and deletes it with the box, with itself, or in
// Unhook.
//
// What the box is asked and told while it is hooked, if it is a CEdit; any other window only gets the font:
//
//     WM_SETTEXT   sets the text, and answers 1.
//     WM_GETTEXT   wParam is taken for bytes, although it counts characters: this is wanted. Half of the
//                  buffer is filled, and a null put behind; the answer is the length of the whole text all
//                  the same. So GetWindowText gives half of a text. The library's own boxes and CInPlaceEdit
//                  read theirs by gfnWholeText (edits/WholeText.h), as a dialog should, too.
//
// Hook on the thread that owns the box. Box and hook may go in any order.

#include <afxwin.h>

#include <MsgHook.h>

#include "module/Export.h"

class OW_DIALOGCONTROLS_API CEditCtrlAnsiMsgHook : public CMsgHook
{
public:
    CEditCtrlAnsiMsgHook();
    /// A box that is still there gets its parent's font.
    ~CEditCtrlAnsiMsgHook() override;

    /// 1 with nothing done if the language has the character set of the display. Otherwise what
    /// CMsgHook::HookWindow answers: 0 for a window that cannot be hooked, or if this hook has one already.
    int HookWindow(CWnd* pWnd);

    /// Leaves the box, which gets its parent's font.
    void Unhook();

protected:
    /// The box's font with another character set; a box without a font has the system's. Does nothing without
    /// a box, or if the box has such a font already.
    void _CreateCustomFont(unsigned char nCharSet);
    /// Gives the box, if it is still there, the font of its parent, and deletes the one that was made. The
    /// record that one was made stays: no other one is made for this box.
    void _DeleteCustomFont();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    LRESULT SetBoxText(CEdit& edit, const wchar_t* pszText);
    LRESULT GetBoxText(CEdit& edit, wchar_t* pszBuffer, WPARAM nBytes);
    LRESULT OnBoxGone();
    void GiveUpFont(CFont& taker);

    bool m_bCustomFont = false;
    CFont m_font;
};
