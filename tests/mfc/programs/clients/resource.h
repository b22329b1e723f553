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
