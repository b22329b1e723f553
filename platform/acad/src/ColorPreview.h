#pragma once
// The old and the new colour side by side: the left half and the right half of a static control.

#include <afxwin.h>

class CColorPreview : public CStatic
{
public:
    /// CLR_NONE leaves a half empty.
    void SetColors(COLORREF crOld, COLORREF crNew);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    COLORREF m_crOld = CLR_NONE;
    COLORREF m_crNew = CLR_NONE;
};
