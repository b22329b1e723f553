#pragma once
#define __AFXOLE_H__ // asked for by the headers that wizards make
// OLE for programs that include it by this name: AfxOleInit and AfxOleTerm of afxdisp.h.

#include <afxdisp.h>
#include <afxext.h>
