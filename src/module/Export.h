#pragma once
// Marks what DialogControlsOW.dll gives to other modules.

#ifdef OW_DIALOGCONTROLS_BUILD
#define OW_DIALOGCONTROLS_API __declspec(dllexport)
#else
#define OW_DIALOGCONTROLS_API __declspec(dllimport)
#endif
