#pragma once
#define __AFXRES_H__ // asked for by the headers that wizards make
// Resource and command identifiers of the framework. Used by sources and by .rc files alike, so that it holds
// nothing but numbers.

#ifdef RC_INVOKED
#include <winresrc.h>
#endif

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

// Ranges: 0x0001-0x6FFF resources of programs, 0x8000-0xDFFF commands of programs, 0xE000-0xEFFF the
// framework.
#define AFX_IDW_PANE_FIRST 0xE900

// Standard commands
#define ID_FILE_NEW 0xE100
#define ID_FILE_OPEN 0xE101
#define ID_FILE_CLOSE 0xE102
#define ID_FILE_SAVE 0xE103
#define ID_FILE_SAVE_AS 0xE104
#define ID_FILE_PRINT 0xE107

#define ID_EDIT_CLEAR 0xE120
#define ID_EDIT_CLEAR_ALL 0xE121
#define ID_EDIT_COPY 0xE122
#define ID_EDIT_CUT 0xE123
#define ID_EDIT_FIND 0xE124
#define ID_EDIT_PASTE 0xE125
#define ID_EDIT_REPLACE 0xE129
#define ID_EDIT_SELECT_ALL 0xE12A
#define ID_EDIT_UNDO 0xE12B
#define ID_EDIT_REDO 0xE12C

#define ID_APP_ABOUT 0xE140
#define ID_APP_EXIT 0xE141
#define ID_HELP_INDEX 0xE142
#define ID_HELP_FINDER 0xE143
#define ID_CONTEXT_HELP 0xE145
#define ID_HELP 0xE146
#define ID_DEFAULT_HELP 0xE147

#define ID_SEPARATOR 0
