#include <afxwin.h>

#include "grid/MemDC.h"

CMemDC::CMemDC(CDC* pDC) : m_pDC(pDC), m_bMemDC(!pDC->IsPrinting())
{
    if (!m_bMemDC)
    {
        m_bPrinting = pDC->m_bPrinting;
        m_hDC = pDC->m_hDC;
        m_hAttribDC = pDC->m_hAttribDC;
        return;
    }
    pDC->GetClipBox(&m_rect);
    CreateCompatibleDC(pDC);
    m_bitmap.CreateCompatibleBitmap(pDC, m_rect.Width(), m_rect.Height());
    m_pOldBitmap = SelectObject(&m_bitmap);
    SetWindowOrg(m_rect.TopLeft());
    constexpr int kBrushSize = 8; // patterns stand as on the target, whatever part of it is painted
    SetBrushOrg(-m_rect.left & (kBrushSize - 1), -m_rect.top & (kBrushSize - 1));
    FillSolidRect(&m_rect, pDC->GetBkColor());
}

CMemDC::~CMemDC()
{
    if (m_bMemDC)
    {
        m_pDC->BitBlt(m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(), this, m_rect.left, m_rect.top,
                      SRCCOPY);
        SelectObject(m_pOldBitmap);
        return;
    }
    m_hDC = nullptr; // they belong to the target
    m_hAttribDC = nullptr;
}
