#pragma once
// Everything of AcadOleSvcOW, the add-on's services around the CAD host's fonts.

#include "FontClass.h"
#include "FontManager.h"
#include "epgFont.h"
