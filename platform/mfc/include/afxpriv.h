#pragma once
#define __AFXPRIV_H__ // asked for by the headers that wizards make
// Private messages of the framework that programs handle now and then.

#include <afxwin.h>

#define WM_QUERYAFXWNDPROC 0x0360 // answered 1 by windows that AfxWndProc serves
#define WM_IDLEUPDATECMDUI 0x0363 // wParam: disable items without a handler; sent in idle time
#define WM_INITIALUPDATE 0x0364
#define WM_COMMANDHELP 0x0365
#define WM_KICKIDLE 0x036A     // wParam: idle code, lParam: count; sent to the window of a modal loop
#define WM_DISABLEMODAL 0x036C // answer 1 to stay enabled while the application is modal

#ifndef WM_SYSTIMER
#define WM_SYSTIMER 0x0118
#endif
