#pragma once
// The title strip above the page frame: the name of the current page in bold on a horizontal gradient.
//
// ```cpp
//     CPageGradientCaptionStatic m_caption{m_tree};              // a static control of the template
//     ...
//     m_tree.RegisterSelectPageNotification(&m_caption, true);   // follows the selection by itself
// ```
//
// A page without a name, and no page, show the bare gradient. Any other text can be set as the window's text.
//
// Cost. A paint is one block transfer of a bitmap. The text is drawn only after it has changed, and the
// gradient once, at the first paint: the control keeps the size and the system's colours that it had then.

#include <afxwin.h>

#include "module/Export.h"
#include "module/NotificationInterfaces.h"

class OW_DIALOGCONTROLS_API CPageGradientCaptionStatic : public CStatic, public ASelectPageNotificationClient
{
    DECLARE_DYNAMIC(CPageGradientCaptionStatic)

public:
    /// The provider is not owned and must outlive the control; it is kept for the host.
    explicit CPageGradientCaptionStatic(ACurrentPageProvider& provider);
    ~CPageGradientCaptionStatic() override;

    /// Shows the name of the new page, or nothing.
    void PageSelected(CPage* pNew, CPage* pOld) override;

protected:
    /// The window's text is kept in this object, so WM_SETTEXT, WM_GETTEXT and WM_GETTEXTLENGTH end here.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Makes what is to be painted, compatible with a context, as far as it is not there yet.
    void DrawCachedBitmap(CDC* pDC);

    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    LRESULT SetTitle(const wchar_t* pszText);
    void DrawGradientBitmap(CDC& dc);
    void DrawTextBitmap(CDC& dc);
    void DrawTitle(CDC& dc, CRect rect);
    /// The parent's font, a fifth larger and bold.
    void CreateTitleFont(CFont& font) const;

    COLORREF gradientColor = 0x404040; ///< at the left edge
    CString title;
    int titleChanged = 0;   ///< textBitmap is to be made anew
    CBitmap textBitmap;     ///< gradient and text: what is painted
    CBitmap gradientBitmap; ///< the gradient alone
    [[maybe_unused]] ACurrentPageProvider& currentPageProvider; ///< for the host
};
