// The numbers of all programs of this folder, each with a hundred of its own.
#pragma once

// wizard_dialog
#define IDM_ABOUTBOX 0x0010
#define IDD_ABOUTBOX 100
#define IDS_ABOUTBOX 101
#define IDD_WIZARD_DIALOG 102
#define IDD_NOTES 103
#define IDR_MAINFRAME 128
#define IDC_STATE 1000
#define IDC_NAME 1001
#define IDC_COUNT 1002
#define IDC_GREET 1003
#define IDC_OPEN 1004

// property_sheet
#define IDD_SECTION 200
#define IDD_MATERIAL 201
#define IDD_SUMMARY 202
#define IDS_SHEET 203
#define IDS_SECTION_TAB 204
#define IDC_HEIGHT 1200
#define IDC_GRADE 1201
#define IDC_WELDABLE 1202

// worker
#define IDD_WORK 300
#define IDC_BEGIN 1200
#define IDC_PROGRESS 1201
#define IDC_DONE 1202
#define IDC_TOTAL 1203
#define IDC_HALT 1204

// date_picker
#define IDD_DATES 400
#define IDC_DUE 1400
#define IDC_START 1401
#define IDC_SPAN 1402
#define IDC_CHECK 1403

// picture_list
#define IDD_PICTURE_LIST 500
#define IDI_PART 501
#define IDC_PARTS 1500
#define IDC_OPTIONS 1501
#define IDC_TURN 1502
