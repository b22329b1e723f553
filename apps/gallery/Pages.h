#pragma once
// The pages of the gallery. To add one: write pages/NamePage.cpp with MakeNamePage and its template
// pages/NamePage.rc, and add a line here.

#include "GalleryPage.h"

#include <vector>

#define GALLERY_PAGES(X)                                                                                     \
    X(TextBoxes)                                                                                             \
    X(Numbers)                                                                                               \
    X(Buttons)                                                                                               \
    X(MessageBoxes)                                                                                          \
    X(Grid)                                                                                                  \
    X(VirtualGrid)                                                                                           \
    X(Icons)                                                                                                 \
    X(Pictures)

#define GALLERY_DECLARE_PAGE(name) std::unique_ptr<CGalleryPage> Make##name##Page(AGalleryLog& log);
GALLERY_PAGES(GALLERY_DECLARE_PAGE)
#undef GALLERY_DECLARE_PAGE

inline std::vector<std::unique_ptr<CGalleryPage>> MakeAllPages(AGalleryLog& log)
{
    std::vector<std::unique_ptr<CGalleryPage>> pages;
#define GALLERY_ADD_PAGE(name) pages.push_back(Make##name##Page(log));
    GALLERY_PAGES(GALLERY_ADD_PAGE)
#undef GALLERY_ADD_PAGE
    return pages;
}
