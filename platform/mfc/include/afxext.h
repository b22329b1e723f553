#pragma once
#define __AFXEXT_H__ // asked for by the headers that wizards make
// Buttons with pictures. The other extensions of MFC's own header belong to frame windows.

#include <afxwin.h>

/// A button that shows bitmaps in place of a text; the style BS_OWNERDRAW is needed.
///
///     m_turn.AutoLoad(IDC_TURN, this); // the template's caption TURN: bitmaps TURNU, TURND, TURNF and TURNX
class AFX_CORE_CLASS CBitmapButton : public CButton
{
    DECLARE_DYNAMIC(CBitmapButton)

public:
    CBitmapButton();
    /// As LoadBitmaps; failures show in it only.
    explicit CBitmapButton(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = nullptr,
                           LPCTSTR lpszBitmapResourceFocus = nullptr,
                           LPCTSTR lpszBitmapResourceDisabled = nullptr);
    explicit CBitmapButton(UINT nIDBitmapResource, UINT nIDBitmapResourceSel = 0,
                           UINT nIDBitmapResourceFocus = 0, UINT nIDBitmapResourceDisabled = 0);
    ~CBitmapButton() override;

    /// The bitmaps of the button as it is, pressed, with the focus, and disabled. Only the first is needed; a state
    /// without one shows the first. FALSE if one that was named is missing.
    BOOL LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = nullptr,
                     LPCTSTR lpszBitmapResourceFocus = nullptr, LPCTSTR lpszBitmapResourceDisabled = nullptr);
    BOOL LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel = 0, UINT nIDBitmapResourceFocus = 0,
                     UINT nIDBitmapResourceDisabled = 0);
    /// Takes over a button of a dialog, whose caption with U, D, F or X behind it names the bitmaps, and sizes it.
    BOOL AutoLoad(UINT nID, CWnd* pParent);
    /// Makes the button as large as its first bitmap.
    void SizeToContent();

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    CBitmap m_bitmap;
    CBitmap m_bitmapSel;
    CBitmap m_bitmapFocus;
    CBitmap m_bitmapDisabled;
};
