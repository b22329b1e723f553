// The numbers of the property sheet.
#pragma once

#define IDD_SECTION 200
#define IDD_MATERIAL 201
#define IDD_SUMMARY 202
#define IDS_SHEET 203
#define IDS_SECTION_TAB 204
#define IDC_STATE 1000
#define IDC_NAME 1001
#define IDC_HEIGHT 1200
#define IDC_GRADE 1201
#define IDC_WELDABLE 1202
