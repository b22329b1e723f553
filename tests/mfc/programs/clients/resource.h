// The numbers of all programs of this folder, each with a hundred of its own.
#pragma once

// wizard_dialog
#define IDM_ABOUTBOX 0x0010
#define IDD_ABOUTBOX 100
#define IDS_ABOUTBOX 101
#define IDD_WIZARD_DIALOG 102
#define IDR_MAINFRAME 128
#define IDC_STATE 1000
#define IDC_NAME 1001
#define IDC_COUNT 1002
#define IDC_GREET 1003

// property_sheet
#define IDD_SECTION 200
#define IDD_MATERIAL 201
#define IDD_SUMMARY 202
#define IDS_SHEET 203
#define IDS_SECTION_TAB 204
#define IDC_HEIGHT 1200
#define IDC_GRADE 1201
#define IDC_WELDABLE 1202
