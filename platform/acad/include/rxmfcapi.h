#pragma once
// The CAD host's MFC objects.

#include "acadhostdef.h"

#include <afxwin.h>

/// The host's main window. The first call makes it, hidden, if the host program has not done so (see
/// acadhost.h). It belongs to the host and lives until the program ends or destroys it. Null only if it
/// cannot be made.
ACADHOST_API CFrameWnd* acedGetAcadFrame();
