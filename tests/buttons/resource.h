#pragma once

#define IDD_BUTTONS 100
#define IDD_EMPTY 101

#define IDC_PUSH 1001
#define IDC_OTHER 1002
#define IDC_CHECK 1003
#define IDC_OWNER_DRAWN 1004
#define IDC_EXT 1005

#define IDC_CROSSHAIR 200
#define IDS_TIP 300
