#pragma once
// Export marking of AcadOleSvcOW. ACADOLESVCOW_BUILD is defined only while AcadOleSvcOW.dll itself is built.

#include <afxwin.h>

#ifdef ACADOLESVCOW_BUILD
#define ACADOLESVC_API __declspec(dllexport)
#else
#define ACADOLESVC_API __declspec(dllimport)
#endif

#ifdef _MSC_VER
#pragma warning(disable : 4251) // private members of standard types: no client reaches them
#endif
