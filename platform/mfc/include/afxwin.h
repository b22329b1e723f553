#pragma once
#define __AFXWIN_H__ // asked for by the headers that wizards make
// The framework: windows, dialogs, controls, drawing, the application. Include this one.

#include <afx.h>
#include <afxcoll.h>
#include <afxtempl.h>
#include <afxres.h>
#include <afxmsg_.h>
#include <afxwin_gdi.h>
#include <afxwin_wnd.h>
#include <afxwin_ctl.h>
#include <afxwin_chk.h>
#include <afxwin_app.h>
#include <afxdd_.h>
