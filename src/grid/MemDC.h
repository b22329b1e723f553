#pragma once
// A device context on an off-screen bitmap, for the length of one paint.
//
// ```cpp
//     CPaintDC dc(this);
//     CMemDC buffer(&dc);
//     OnDraw(&buffer);      // in client coordinates, as on the window; shown when `buffer` goes
// ```
//
// Only the target's clip box is buffered. A printer's context is not buffered at all: the object then hands
// everything on to it.

#include <afxwin.h>

#include "module/Export.h"

class OW_DIALOGCONTROLS_API CMemDC : public CDC
{
public:
    explicit CMemDC(CDC* pDC);
    ~CMemDC() override;

private:
    CBitmap m_bitmap;
    CBitmap* m_pOldBitmap = nullptr;
    CDC* m_pDC;    ///< the target, not owned
    CRect m_rect;  ///< the target's clip box
    BOOL m_bMemDC; ///< buffered, because the target does not print
};
