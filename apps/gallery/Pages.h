#pragma once
// The pages of the gallery. To add one: give it an identity in PageIds.h, write pages/NamePage.cpp with
// AddNamePage and its template pages/NamePage.rc, and call AddNamePage in AddAllPages (Pages.cpp).

class CGalleryHostDialog;
class CPageManager;

/// Adds every page with its dialog, parents before their children.
void AddAllPages(CPageManager& manager, CGalleryHostDialog& host);
