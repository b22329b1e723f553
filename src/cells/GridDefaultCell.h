#pragma once
// What cells inherit: font, format, colours, margin and the size of a new row or column. A grid holds four of
// these, one for each kind of place; see CGridCtrl::GetDefaultCell.

#include <afxwin.h>

#include "cells/GridCell.h"

class OW_DIALOGCONTROLS_API CGridDefaultCell : public CGridCell
{
    DECLARE_DYNCREATE(CGridDefaultCell)

public:
    /// The system's message font, text on one line, centred in height, with an ellipsis where it does not
    /// fit.
    CGridDefaultCell();
    ~CGridDefaultCell() override;
    using CGridCell::operator=;

    // A default cell stands nowhere and holds nothing.
    void SetData(LPARAM lParam) override;
    void SetState(DWORD nState) override;
    void SetCoords(int nRow, int nCol) override;

    /// Makes the font, and derives margin and size from its measures. Null changes nothing.
    void SetFont(const LOGFONTW* plf) override;

    DWORD GetState() override;
    LOGFONTW* GetFont() override;
    CFont* GetFontObject() override;

    /// The caller's own value: the grid does not look at it.
    virtual DWORD GetStyle() const;
    virtual void SetStyle(DWORD dwStyle);
    /// Pixels of a new column.
    virtual int GetWidth() const;
    /// Pixels of a new row.
    virtual int GetHeight() const;
    /// Pixels of columns made from now on.
    virtual void SetWidth(int nWidth);
    /// Pixels of rows made from now on.
    virtual void SetHeight(int nHeight);

protected:
    CSize m_Size{30, 10}; ///< pixels
    CFont m_Font;
    DWORD m_dwStyle = 0;
};
