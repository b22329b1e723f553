#pragma once

#define IDC_SELECTOR 1001
#define IDC_TOGGLE 1002
#define IDC_NAME 1003
#define IDC_CAPTION 1004

#define IDD_FIELDS 101
#define IDD_PLAIN 102
#define IDC_COUNT 1010
#define IDC_PLAIN 1011
#define IDC_NOTES 1012
