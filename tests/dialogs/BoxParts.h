#pragma once
// The parts of an open message box.

#include <DialogControlsOW.h>

#include "ModalVisit.h"

#include <string>

constexpr int kFirst = IDOK, kSecond = 101, kThird = 102, kFourth = 103, kMessage = 104;

using owtest::TextOf;

/// Where a control stands in its dialog's client area.
inline CRect PlaceOf(const CWnd& dialog, int id)
{
    CRect rect;
    dialog.GetDlgItem(id)->GetWindowRect(rect);
    dialog.ScreenToClient(rect);
    return rect;
}
