#pragma once
#define __AFXVER_H__ // asked for by the headers that wizards make
// Version and linkage macros that every other MFC header builds on.
//
// OW_MFC_BUILD is defined while mfcow.dll itself is compiled, and _AFXEXT while an extension module is.
// Everybody else imports.

#ifndef _AFXDLL
#error The bundled MFC is a shared library: compile with _AFXDLL.
#endif
#if !defined(UNICODE) || !defined(_UNICODE)
#error The bundled MFC is Unicode only: compile with UNICODE and _UNICODE.
#endif

#define _MFC_VER 0x0800

#ifndef STRICT
#define STRICT
#endif

// Calling conventions and the empty markers that class wizards and message maps use.
#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#define AFX_MSG_CALL
#define afx_msg
#define AFX_INLINE inline
#define AFX_NOVTABLE
#define AFX_COMDAT
#define BASED_CODE

// Linkage of the members of the MFC library.
#define AFX_CLASS_EXPORT __declspec(dllexport)
#define AFX_CLASS_IMPORT __declspec(dllimport)
#define AFX_API_EXPORT __declspec(dllexport)
#define AFX_API_IMPORT __declspec(dllimport)
#define AFX_DATA_EXPORT __declspec(dllexport)
#define AFX_DATA_IMPORT __declspec(dllimport)

#ifdef OW_MFC_BUILD
#define AFX_CORE_CLASS AFX_CLASS_EXPORT
#define AFX_CORE_API AFX_API_EXPORT
#define AFX_CORE_DATA AFX_DATA_EXPORT
#else
#define AFX_CORE_CLASS AFX_CLASS_IMPORT
#define AFX_CORE_API AFX_API_IMPORT
#define AFX_CORE_DATA AFX_DATA_IMPORT
#endif

// Linkage of the members of an extension module, for use in that module's own headers.
#ifdef _AFXEXT
#define AFX_EXT_CLASS AFX_CLASS_EXPORT
#define AFX_EXT_API AFX_API_EXPORT
#define AFX_EXT_DATA AFX_DATA_EXPORT
#define AFX_EXT_DATADEF
#else
#define AFX_EXT_CLASS AFX_CLASS_IMPORT
#define AFX_EXT_API AFX_API_IMPORT
#define AFX_EXT_DATA AFX_DATA_IMPORT
#define AFX_EXT_DATADEF
#endif

// Modules redefine these around their headers where data members of classes need a linkage of their own.
#ifndef AFX_DATA
#define AFX_DATA
#endif
#ifndef AFX_DATADEF
#define AFX_DATADEF
#endif

// Names for parameters and locals that only a debug build reads.
#define UNUSED_ALWAYS(x) ((void)(x))
#ifdef _DEBUG
#define UNUSED(x)
#else
#define UNUSED(x) ((void)(x))
#endif
