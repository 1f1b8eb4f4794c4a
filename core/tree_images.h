#pragma once

// The images of the page tree, in the size for the screen.

#include "platform/gdi.h"

/// The image that a node shows which names none.
constexpr int kDefaultTreeImage = 5;

/// Edge of a tree image in pixels for a screen with that many logical pixels per inch: 16, 24, 32
/// or 48.
int TreeImageSize(int pixelsPerInch);

/// ILC_COLOR... flag for a screen with that many bits per pixel (over all planes).
UINT ImageListColours(int bitsPerPixel);

/// Fills the list with the six images for the screen of the active window. CResourceException when
/// the strip is missing or damaged.
void LoadTreeImages(CImageList& images);
