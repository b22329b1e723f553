#pragma once
// The identities of the gallery's pages: what CPageManager::GetPage finds them by.
//
//     m_tree.SetCurrentPage(m_manager.GetPage(ePageTextBoxes));

#include <DialogControlsOW.h>

// Indented: the child of the page above, which should have one at most: the selectors made of combo boxes
// reach no more.
// clang-format off
constexpr CPage::EPageID ePageTextBoxes{1};
constexpr CPage::EPageID     ePageNumbers{2};
constexpr CPage::EPageID ePageLabelTemplates{3};
constexpr CPage::EPageID ePageCombos{4};
constexpr CPage::EPageID     ePageFont{5};
constexpr CPage::EPageID ePageButtons{6};
constexpr CPage::EPageID     ePageLabelsAndFonts{7};
constexpr CPage::EPageID ePagePickers{8};
constexpr CPage::EPageID     ePageColours{9};
constexpr CPage::EPageID ePageMessageBoxes{10};
constexpr CPage::EPageID     ePageNamesAndFiles{11};
constexpr CPage::EPageID ePageProgress{12};
constexpr CPage::EPageID ePageGrid{13};
constexpr CPage::EPageID     ePageVirtualGrid{14};
constexpr CPage::EPageID ePageSteelSchedule{15};
constexpr CPage::EPageID     ePageCrossGrid{16};
constexpr CPage::EPageID ePageDisplayCells{17};
constexpr CPage::EPageID ePageBeam{18};
constexpr CPage::EPageID     ePageColumn{19};
constexpr CPage::EPageID ePageChoices{20};
constexpr CPage::EPageID     ePageUnitFormat{21};
constexpr CPage::EPageID ePageConfigurations{22};
constexpr CPage::EPageID ePageIcons{23};
constexpr CPage::EPageID     ePagePictures{24};
// clang-format on

/// The identity of the preview that the members' pages draw.
constexpr CPage::EPagePreviewID ePreviewMember{1};
