// The pictures of the game: vector drawings inside the program, turned into pixels when they are
// first needed and remembered.
#pragma once

#include <QPixmap>
#include <QString>

#include "engine/state/Errors.h"

namespace Parlino {

// The size of picture 1..63 of the image list, in pixels at ratio 1.
QSize PictureSize(Integer picture);

// Picture 1..63 at the device pixel ratio of the screen.
QPixmap CardPicture(Integer picture, qreal ratio);

// Picture 1..3 of the message dialog, 32 pixels square.
QPixmap MessagePicture(int picture, qreal ratio);

// The small card back of the trick piles, 32 pixels square.
QPixmap SmallBack(qreal ratio);

// The program's icon.
QPixmap IconPicture(int size);

// Gives the program's icon to all of its windows, from now on.
void GiveWindowsIcon();

}  // namespace Parlino
