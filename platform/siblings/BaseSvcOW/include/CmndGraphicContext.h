#pragma once
// CCmndGraphicContext: the surface that a page's preview is drawn on.
//
//     void CBeamPage::DrawPreview(CCmndGraphicContext* pContext) const
//     {
//         CDC& dc = pContext->DC();
//         dc.Rectangle(pContext->Area());
//     }

#include <afxwin.h>

class CCmndGraphicContext
{
public:
    /// Lengths are pixels. The context is not owned, and must outlive this object.
    CCmndGraphicContext(CDC& dc, const CRect& area) : m_dc(dc), m_area(area) {}

    CDC& DC() const { return m_dc; }

    /// What may be drawn on.
    const CRect& Area() const { return m_area; }

private:
    CDC& m_dc;
    CRect m_area;
};
