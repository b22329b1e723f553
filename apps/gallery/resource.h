#pragma once

#define IDI_GALLERY 100

// The main window
#define IDD_GALLERY 100
#define IDC_PAGES 1000
#define IDC_PAGE_TITLE 1001
#define IDC_PAGE_FRAME 1002
#define IDC_LOG 1003
#define IDC_BY_COMBOS 1004

// The window with combo boxes in place of the tree
#define IDD_GALLERY_COMBOS 101
#define IDC_PAGE_COMBO_BUTTON 1005
#define IDC_PAGE_BUTTON 1006
#define IDC_PAGE_COMBO_CHECK 1007
#define IDC_PAGE_CHECK 1008

// Text boxes
#define IDD_PAGE_TEXT_BOXES 110
#define IDC_MARK 1010
#define IDC_REMARK 1011
#define IDC_STORED 1012
#define IDC_LOCKED 1013

// Drawings
#define IDD_PAGE_DRAWINGS 111

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

// Steel schedule
#define IDD_PAGE_STEEL_SCHEDULE 160
#define IDC_SCHEDULE 1500
#define IDC_SCHEDULE_MM 1501
#define IDC_SCHEDULE_CM 1502
#define IDC_SCHEDULE_M 1503
#define IDC_SCHEDULE_FT 1504
#define IDC_SCHEDULE_N 1505
#define IDC_SCHEDULE_KN 1506
#define IDC_SCHEDULE_STORED 1507

// Cross grid
#define IDD_PAGE_CROSS_GRID 161
#define IDC_CROSS_GRID 1550
#define IDC_CROSS_GRID_GO 1551

// Combo boxes
#define IDD_PAGE_COMBOS 170
#define IDC_GRADE 1600
#define IDC_LAYER 1601
#define IDC_HATCH 1602
#define IDC_CHOSEN 1603
#define IDC_CONNECTION 1604

// Members
#define IDD_PAGE_MEMBERS 180
#define IDC_MEMBER_LENGTH 1700
#define IDC_MEMBER_PIECES 1701
#define IDC_MEMBER_REMARK 1702
#define IDC_MEMBER_TOTAL 1703

// Labels and fonts
#define IDD_PAGE_LABELS_AND_FONTS 193
#define IDC_LABEL_MARKUP 1950
#define IDC_LABEL_SHOWN 1951
#define IDC_LABEL_LEFT 1952
#define IDC_LABEL_CENTER 1953
#define IDC_LABEL_RIGHT 1954
#define IDC_MIXED_FIRST 1955 // 18 check boxes, row by row
#define IDC_LOAD_CASE 1975
#define IDC_LOAD_FIRST 1976 // one of three
#define IDC_LOAD_CHOSEN 1979
#define IDC_LOAD_FIXED 1980
#define IDC_REFLECTED 1985
#define IDC_REFLECTED_ST 1986
#define IDC_REFLECTED_COUNT 1987
// Display cells
#define IDD_PAGE_DISPLAY_CELLS 194
#define IDC_DISPLAY_GRID 2000
#define IDC_DISPLAY_HATCH 2001
#define IDC_DISPLAY_CHANGED 2002
#define IDC_DISPLAY_STORED 2003
#define IDC_DISPLAY_LANGUAGE 2004
#define IDC_DISPLAY_TITLE 2005
#define IDC_DISPLAY_LEFT 2010 // left, centre, right
#define IDC_DISPLAY_RIGHT 2012
#define IDC_DISPLAY_TOP 2013 // top, middle, bottom
#define IDC_DISPLAY_BOTTOM 2015
// Label templates
#define IDD_PAGE_LABEL_TEMPLATES 192
#define IDC_LABELS_LOCKED 1900
#define IDC_LABEL_FIRST 1910   // a box for each kind of label, from the top
#define IDC_INSERT_FIRST 1920  // its button, beside it
#define IDC_PREVIEW_FIRST 1930 // the label as it would be drawn, below it
