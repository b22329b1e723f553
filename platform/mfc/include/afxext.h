#pragma once
#define __AFXEXT_H__ // asked for by the headers that wizards make
// Kept for clients that include it by habit: everything stands in afxwin.h.

#include <afxwin.h>
