#pragma once
#define __AFXPRIV_H__ // asked for by the headers that wizards make
// Private messages of the framework that programs handle now and then.

#include <afxwin.h>

#define WM_QUERYAFXWNDPROC 0x0360 // answered 1 by windows that AfxWndProc serves
#define WM_IDLEUPDATECMDUI 0x0363 // wParam: disable items without a handler; sent in idle time
#define WM_INITIALUPDATE 0x0364
#define WM_COMMANDHELP 0x0365  // lParam: help context or 0; answered nonzero by a window that showed help
#define WM_HELPHITTEST 0x0366  // lParam: position; answered by the help context there, or 0
#define WM_EXITHELPMODE 0x0367
#define WM_KICKIDLE 0x036A     // wParam: idle code, lParam: count; sent to the window of a modal loop
#define WM_DISABLEMODAL 0x036C // answer 1 to stay enabled while the application is modal

// Help contexts: a base for the kind of thing, plus its identifier
#define HID_BASE_COMMAND 0x00010000UL  // ID and IDM
#define HID_BASE_RESOURCE 0x00020000UL // IDR and IDD
#define HID_BASE_PROMPT 0x00030000UL   // IDP
#define HID_BASE_NCAREAS 0x00040000UL
#define HID_BASE_CONTROL 0x00050000UL  // IDC
#define HID_BASE_DISPATCH 0x00060000UL // automation

#ifndef WM_SYSTIMER
#define WM_SYSTIMER 0x0118
#endif
