#pragma once
// The CAD host's colours by index.
//
// Index   Colour
// 0       ByBlock: the colour of the block
// 1 - 9   the standard colours: red, yellow, green, cyan, blue, magenta, white, dark grey, light grey
// 10-249  24 hues in steps of 15 degrees, ten shades each; an odd index is the pale form of the even one
//         before it
// 250-255 greys from dark to white
// 256     ByLayer: the colour of the layer

#include "acadhostdef.h"
#include "adesk.h"

#include <windows.h>

/// The colour of an index. ByBlock (0) and ByLayer (256) have no colour of their own and answer the
/// foreground colour, white. An index outside 0 to 256 answers CLR_INVALID.
ACADHOST_API COLORREF acedGetRGB(int nColor);

/// Lets the user choose a colour index in a modal dialog, over the active window of the calling thread.
///
/// `nColor` is both the start value and the result; a start value that the dialog cannot show leaves it
/// without a selection. With `bAllowMetaColor` the user may also choose ByLayer and ByBlock. `nCurLayerColor`
/// (1 to 255) is the colour in which ByLayer is shown; any other value shows it in the foreground colour.
///
/// Answers kTrue if the user accepted a colour. Otherwise, also if the dialog could not be made, `nColor`
/// stays.
ACADHOST_API Adesk::Boolean acedSetColorDialog(int& nColor, Adesk::Boolean bAllowMetaColor,
                                               int nCurLayerColor);
