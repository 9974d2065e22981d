#pragma once

#include "examples/contact-sheet/Artwork.h"
#include "examples/contact-sheet/Canvas.h"

/// The parts of the sheet, each put in its place. What a part shows is told on the background.
namespace sheet {

void putStates(Canvas& canvas, Artwork& artwork);
void putSizes(Canvas& canvas, Artwork& artwork);
void putAnchors(Canvas& canvas, Artwork& artwork);
void putFlattened(Canvas& canvas, Artwork& artwork);
void putBorderColours(Canvas& canvas, Artwork& artwork);

}  // namespace sheet
