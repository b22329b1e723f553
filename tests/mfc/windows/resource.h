#pragma once
// Resources of the tests of this folder.

#define IDD_PAGE 200
#define IDS_SHEET 201
#define IDS_TAB 202
#define IDS_HEADER 203
#define IDS_SUBTITLE 204
#define IDC_GRADE 1201
