#pragma once
// What a program of a wizard's making includes.

#ifndef VC_EXTRALEAN
#define VC_EXTRALEAN
#endif
#define _ATL_CSTRING_EXPLICIT_CONSTRUCTORS
#define _AFX_ALL_WARNINGS

#include <afxwin.h>
#include <afxext.h>
#include <afxdisp.h>
#include <afxdtctl.h>
#ifndef _AFX_NO_AFXCMN_SUPPORT
#include <afxcmn.h>
#endif
#include <afxdlgs.h>
#include <afxmt.h>
#include <afxole.h>
