// The pictures of the game: vector drawings inside the program, turned into pixels when they are
// first needed, and then kept.
#pragma once

#include <QPixmap>
#include <QString>

#include "engine/state/Errors.h"

namespace Parlino {

// The size of picture 1..63 of the image list, in pixels at a device pixel ratio of 1.
QSize PictureSize(Integer picture);

// Picture 1..63 at this device pixel ratio.
QPixmap CardPicture(Integer picture, qreal ratio);

// The same in the dark.
QPixmap DimmedPicture(Integer picture, qreal ratio);

// Picture 1..3 of the message dialog, 32 pixels square.
QPixmap MessagePicture(int picture, qreal ratio);

// The small card back of the trick piles, 32 pixels square.
QPixmap SmallBack(qreal ratio);

// The program's icon.
QPixmap IconPicture(int size);

// Sets the program's icon for all of its windows, including those created later.
void GiveWindowsIcon();

}  // namespace Parlino
