#include "tools/contact-sheet/ContactSheet.h"

#include <array>

#include <QPainter>

#include "table/TableView.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Pictures.h"

namespace Parlino {
namespace {

constexpr int CardWidth = 71, CardHeight = 96, SmallWidth = 32;
constexpr int Gap = 6;
constexpr Integer CardsOfSuit = 13, Suits = 4;
constexpr int StepOfHand = 27, StepOfRobot = 12;
constexpr Integer PictureRedBack = 58, LastPicture = 63;
constexpr std::array IconSizes{16, 24, 32, 48, 64, 128, 256};
constexpr std::array DialogPictures{1, 2, 3};

constexpr int WidthOfHand = 2 * Gap + (CardsOfSuit - 1) * StepOfHand + CardWidth;
constexpr int SheetWidth = Gap + CardsOfSuit * (CardWidth + Gap);
constexpr int TopOfOthers = Gap + Suits * (CardHeight + Gap);
constexpr int TopOfTable = TopOfOthers + 2 * (CardHeight + Gap);
constexpr int TopOfIcons = TopOfTable + CardHeight + 4 * Gap;
constexpr int SheetHeight = TopOfIcons + 256 + Gap;

class Sheet {
 public:
  explicit Sheet(qreal scale)
      : scale_(scale), image_((QSizeF(SheetWidth, SheetHeight) * scale).toSize(), format) {
    image_.setDevicePixelRatio(scale);
    image_.fill(Colours::Green);
  }

  // Draws the picture there and returns where the next one in its row goes.
  int Put(int left, int top, const QPixmap& picture) {
    QPainter(&image_).drawPixmap(left, top, picture);
    return left + qRound(picture.deviceIndependentSize().width()) + Gap;
  }

  void Fill(const QRect& box, const QColor& colour) { QPainter(&image_).fillRect(box, colour); }

  [[nodiscard]] qreal Scale() const { return scale_; }
  [[nodiscard]] const QImage& Image() const { return image_; }

 private:
  static constexpr auto format = QImage::Format_ARGB32_Premultiplied;
  qreal scale_;
  QImage image_;
};

void PutFaces(Sheet& sheet) {
  for (Integer suit = 0; suit < Suits; ++suit) {
    int left = Gap;
    for (Integer rank = 1; rank <= CardsOfSuit; ++rank)
      left = sheet.Put(left, Gap + suit * (CardHeight + Gap),
                       CardPicture(static_cast<Integer>(suit * CardsOfSuit + rank), sheet.Scale()));
  }
}

void PutOthers(Sheet& sheet) {
  int left = Gap;
  for (Integer picture = PictureBackUpright; picture <= LastPicture; ++picture)
    left = sheet.Put(left, TopOfOthers, CardPicture(picture, sheet.Scale()));
  left = Gap;
  const int top = TopOfOthers + CardHeight + 2 * Gap;
  for (const int picture : DialogPictures)
    left = sheet.Put(left, top, MessagePicture(picture, sheet.Scale()));
  for (int pile = 0; pile < 3; ++pile) {
    sheet.Put(left, top, SmallBack(sheet.Scale()));
    left += SmallWidth / 2;
  }
}

// Most of the time the player sees a strip of each card, on the background of the hand's box.
void PutOverlappingCards(Sheet& sheet) {
  sheet.Fill({0, TopOfTable, WidthOfHand, CardHeight + 2 * Gap}, Colours::Navy);
  constexpr std::array<Integer, 13> hand{4, 10, 13, 22, 24, 26, 34, 37, 38, 41, 45, 50, 52};
  int left = Gap;
  for (const Integer card : hand) {
    sheet.Put(left, TopOfTable + Gap, CardPicture(card, sheet.Scale()));
    left += StepOfHand;
  }
  left += CardWidth;
  for (const Integer back : {PictureBackUpright, PictureRedBack}) {
    for (int card = 0; card < CardsOfSuit; ++card) {
      sheet.Put(left, TopOfTable + Gap, CardPicture(back, sheet.Scale()));
      left += StepOfRobot;
    }
    left += CardWidth;
  }
}

// An icon of 48 pixels has 96 on a screen with a device pixel ratio of 2.
void PutIcons(Sheet& sheet) {
  int left = Gap;
  for (const int size : IconSizes) {
    QPixmap icon = IconPicture(qRound(size * sheet.Scale()));
    icon.setDevicePixelRatio(sheet.Scale());
    left = sheet.Put(left, TopOfIcons, icon);
  }
}

}  // namespace

QImage DrawContactSheet(qreal scale) {
  Sheet sheet(scale);
  PutFaces(sheet);
  PutOthers(sheet);
  PutOverlappingCards(sheet);
  PutIcons(sheet);
  return sheet.Image();
}

}  // namespace Parlino
