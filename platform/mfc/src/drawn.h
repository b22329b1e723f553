#pragma once
// Controls that draw themselves: the parent gives WM_DRAWITEM back, and the control calls its DrawItem.

#include <afxwin.h>

// A derived class that is owner-drawn overrides DrawItem.
#define IMPLEMENT_DRAWN_CONTROL(class_name)                                                                  \
    BOOL class_name::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)            \
    {                                                                                                        \
        if (message != WM_DRAWITEM)                                                                          \
            return CWnd::OnChildNotify(message, wParam, lParam, pLResult);                                   \
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));                                                \
        return TRUE;                                                                                         \
    }                                                                                                        \
    void class_name::DrawItem(LPDRAWITEMSTRUCT)                                                              \
    {                                                                                                        \
        ASSERT(FALSE); /* an owner-drawn control must draw itself */                                         \
    }
