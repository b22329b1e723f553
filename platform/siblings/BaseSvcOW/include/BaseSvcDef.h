#pragma once
// Export marking of BaseSvcOW. BASESVCOW_BUILD is defined only while BaseSvcOW.dll itself is built.

#include <afxwin.h>

#ifdef BASESVCOW_BUILD
#define BASESVC_API __declspec(dllexport)
#else
#define BASESVC_API __declspec(dllimport)
#endif

#ifdef _MSC_VER
#pragma warning(disable : 4251) // private members of standard types: no client reaches them
#endif
