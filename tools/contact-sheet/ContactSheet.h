// All pictures of the game on one sheet, as the window draws them: the faces by suit, the other
// pictures, the icon in its sizes, and cards that overlap as they do on the table.
#pragma once

#include <QImage>

namespace Parlino {

// Draws the sheet; at scale 2 it shows what a screen with a device pixel ratio of 2 shows. Needs a
// QGuiApplication.
QImage DrawContactSheet(qreal scale);

}  // namespace Parlino
