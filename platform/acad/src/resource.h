#pragma once
// Ids of the host's resources.

#define IDD_COLOR 100
#define IDC_COLOR_GRID 1001
#define IDC_COLOR_INDEX 1002
#define IDC_COLOR_RGB 1003
#define IDC_COLOR_TEXT 1004
#define IDC_COLOR_PREVIEW 1005
#define IDC_COLOR_BYLAYER 1006
#define IDC_COLOR_BYBLOCK 1007
