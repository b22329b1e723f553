#pragma once

#define IDI_GALLERY 100

// The main window
#define IDD_GALLERY 100
#define IDC_PAGES 1000
#define IDC_PAGE_TITLE 1001
#define IDC_PAGE_FRAME 1002
#define IDC_LOG 1003

// Text boxes
#define IDD_PAGE_TEXT_BOXES 110
#define IDC_MARK 1010
#define IDC_REMARK 1011
#define IDC_STORED 1012
#define IDC_LOCKED 1013

// Drawings
#define IDD_PAGE_DRAWINGS 111
#define IDC_SHEET 1020

// Numbers
#define IDD_PAGE_NUMBERS 120
#define IDC_UNIT_MM 1100
#define IDC_UNIT_CM 1101
#define IDC_UNIT_M 1102
#define IDC_UNIT_IN 1103
#define IDC_THICKNESS 1104
#define IDC_GAP 1105
#define IDC_GAP_UNIT 1106
#define IDC_GAP_SPIN 1107
#define IDC_LENGTH 1108
#define IDC_CAMBER 1109
#define IDC_OVERALL 1110
#define IDC_LOAD 1111
#define IDC_MODULUS 1112
#define IDC_SLOPE 1113
#define IDC_BOLTS 1114
#define IDC_STOREY 1115

// Buttons
#define IDD_PAGE_BUTTONS 130
#define IDC_BTN_FLAT 1200
#define IDC_BTN_THEME 1201
#define IDC_BTN_TRANSPARENT 1202
#define IDC_BTN_ALIGN 1203
#define IDC_BTN_FIRST 1210 // 60 buttons, row by row

// Message boxes
#define IDD_PAGE_MESSAGE_BOXES 140
#define IDC_LANG_SERBIAN 1300
#define IDC_LANG_ENGLISH 1301
#define IDC_BOX_FIRST 1310    // a button for each kind of box, from the top
#define IDC_RESULT_FIRST 1330 // its result, beside it
#define IDC_XICON_FIXED 1350
#define IDC_XICON_FITTED 1351
#define IDC_XICON_BOLD 1352
#define IDC_XICON_BEHIND 1353

// Grid
#define IDD_PAGE_GRID 150
#define IDC_GRID 1400
#define IDC_GRID_ADD 1401
#define IDC_GRID_DELETE 1402
#define IDC_GRID_FIT 1403
#define IDC_GRID_SAVE 1404
#define IDC_GRID_LIST_MODE 1405
#define IDC_GRID_SORT 1406
#define IDC_GRID_ENTER 1407
#define IDC_GRID_LINES 1408

// Virtual grid
#define IDD_PAGE_VIRTUAL_GRID 151
#define IDC_VIRTUAL_GRID 1420
#define IDC_VIRTUAL_ROW 1421
#define IDC_VIRTUAL_GO 1422
#define IDC_VIRTUAL_ASKED 1423
