#pragma once
// Export marking of SettingsOW. SETTINGSOW_BUILD is defined only while SettingsOW.dll itself is built.

#ifdef SETTINGSOW_BUILD
#define SETTINGS_API __declspec(dllexport)
#else
#define SETTINGS_API __declspec(dllimport)
#endif
