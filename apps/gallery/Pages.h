#pragma once
// The pages of the gallery. To add one: write pages/NamePage.cpp with AddNamePage and its template
// pages/NamePage.rc, and add a line here. CHILD makes a page the child of the last top-level one, which
// should have one at most: the selectors made of combo boxes reach no more.

#include "GalleryPage.h"

// clang-format off
#define GALLERY_PAGES(PAGE, CHILD) \
    PAGE(TextBoxes)                \
    CHILD(Numbers)                 \
    PAGE(LabelTemplates)           \
    PAGE(Combos)                   \
    CHILD(Font)                    \
    PAGE(Buttons)                  \
    CHILD(LabelsAndFonts)          \
    PAGE(Pickers)                  \
    CHILD(Colours)                 \
    PAGE(MessageBoxes)             \
    CHILD(NamesAndFiles)           \
    PAGE(Progress)                 \
    PAGE(Grid)                     \
    CHILD(VirtualGrid)             \
    PAGE(SteelSchedule)            \
    CHILD(CrossGrid)               \
    PAGE(DisplayCells)             \
    PAGE(Members)                  \
    PAGE(Choices)                  \
    CHILD(UnitFormat)              \
    PAGE(Configurations)           \
    PAGE(Drawings)
// clang-format on

#define GALLERY_DECLARE_PAGE(name) CPage* Add##name##Page(AGalleryHost& host, CPage* pParent);
GALLERY_PAGES(GALLERY_DECLARE_PAGE, GALLERY_DECLARE_PAGE)
#undef GALLERY_DECLARE_PAGE

/// Adds every page to the host, and answers the first.
inline CPage* AddAllPages(AGalleryHost& host)
{
    CPage *pFirst = nullptr, *pTop = nullptr;
#define GALLERY_ADD_PAGE(name)                                                                               \
    pTop = Add##name##Page(host, nullptr);                                                                   \
    pFirst = pFirst ? pFirst : pTop;
#define GALLERY_ADD_CHILD(name) Add##name##Page(host, pTop);
    GALLERY_PAGES(GALLERY_ADD_PAGE, GALLERY_ADD_CHILD)
#undef GALLERY_ADD_PAGE
#undef GALLERY_ADD_CHILD
    return pFirst;
}
