#pragma once
// Export marking of the CAD host's module. ACADHOST_BUILD is defined only while acadhost.dll itself is built.

#ifdef ACADHOST_BUILD
#define ACADHOST_API __declspec(dllexport)
#else
#define ACADHOST_API __declspec(dllimport)
#endif
