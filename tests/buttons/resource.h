#pragma once

#define IDC_CROSSHAIR 200
#define IDS_TEXT 300
#define IDI_STATE 400
