#pragma once
// What all buttons with a drop-down arrow share: they are push buttons, a held key that has opened them does
// not choose, and their face has a picture or a swatch at the left and the arrow at the right.
//
//     CButtonST::OnDrawBackground(pDC, rect);
//     const CRect face = gfnDropFace(rect, m_bIsPressed);
//     gfnDrawDropArrow(*pDC, face, m_bIsDisabled);
//     DrawSwatch(*pDC, gfnDropPictureArea(face));
//
//     +-------------------------------------+
//     |  5                            14    |
//     |5 +--------------------------+       |   the picture area ends 14 pixels from the right and
//     |  | picture area             | \___/ |   5 from the three other edges; the tip of the arrow
//     |  +--------------------------+  \_/  |   stands 8 pixels from the right, half-way down
//     |                               5     |
//     +-------------------------------------+
//
// Private to the library.

#include <afxwin.h>

/// To be called before CButtonST looks at the control: whatever button the template has there becomes a push
/// button. CButtonST takes owner-drawn ones for check boxes.
void gfnBecomePushButton(CButton& button);

/// Whether a message says that a key which chooses, Space or Enter, is held since before: most likely since
/// it opened what stands open now.
bool gfnIsHeldChoice(const MSG& msg);

/// What is left of the button's rectangle for picture and arrow; moved by one pixel while pressed.
CRect gfnDropFace(const CRect& rect, BOOL bPressed);

/// Draws the arrow: black, or engraved while disabled.
void gfnDrawDropArrow(CDC& dc, const CRect& face, BOOL bDisabled);

/// Where a picture or a swatch belongs. Of a face that is too small its width or height is zero or less.
CRect gfnDropPictureArea(const CRect& face);
