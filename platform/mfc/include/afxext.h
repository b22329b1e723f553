#pragma once
// Kept for clients that include it by habit: everything stands in afxwin.h.

#include <afxwin.h>
