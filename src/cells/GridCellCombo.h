#pragma once
// A cell whose text is typed or chosen from a list.
//
// ```cpp
//     m_grid.SetCellType(1, 1, RUNTIME_CLASS(CGridCellCombo));
//     CStringArray profiles;
//     profiles.Add(L"IPE 200");
//     profiles.Add(L"HEA 240");
//     static_cast<CGridCellCombo&>(*m_grid.GetCell(1, 1)).SetOptions(profiles);
// ```
//
// The editor is a CInPlaceList: a choice from its list ends the edit at once. An arrow at the right edge
// tells of the list, in cells that may be edited and have room for it, and goes while the edit runs.
//
// The style is CBS_DROPDOWN: the user may type what the list lacks. A derived class may set m_dwStyle to
// CBS_DROPDOWNLIST; such a cell can only be chosen from, and its list opens as the edit begins.

#include <afxwin.h>
#include <afxcoll.h>

#include "cells/GridCell.h"

class CInPlaceList;

class OW_DIALOGCONTROLS_API CGridCellCombo : public CGridCell
{
    DECLARE_DYNCREATE(CGridCellCombo)

public:
    using CGridCell::operator=;
    /// Takes over the list and the style, too.
    void operator=(const CGridCellCombo& cell);

    /// Replaces the list, from the next edit on.
    void SetOptions(const CStringArray& options);
    /// Window style of the editor: CBS_ flags.
    DWORD GetStyle() const;
    /// The editor; null while no edit runs. It is not owned, and deletes itself.
    CComboBox* DajKomboBoks() const;
    /// The edit part of the editor; null while no edit runs, and for a list without an edit part.
    CWnd* GetEditWnd() override;

    BOOL Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd) override;
    CSize GetCellExtent(CDC* pDC) override;

    /// An edit that runs already is ended and begun anew; a plain cell would go on with it.
    BOOL Edit(int nRow, int nCol, CRect rect, CPoint point, UINT nID, UINT nChar) override;

protected:
    CStringArray m_Strings;
    DWORD m_dwStyle = CBS_DROPDOWN;

private:
    CInPlaceList* GetList() const;
};
