// The parts of the table, each building its widgets and tying them to the model.
#pragma once

#include <QString>
#include <QWidget>

namespace Parlino {

class CardHints;
class PendingEvents;
class TableMirror;

// What a part is built with: the table or frame that holds it, the mirror that will keep it up to
// date, the place for the events it reports and what shows the hints on cards.
struct PartsBin {
  QWidget& parent;
  TableMirror& mirror;
  PendingEvents& pending;
  CardHints& hints;
};

void BuildTableTop(const PartsBin& bin);
void BuildTrickPiles(const PartsBin& bin);
void BuildTrumps(const PartsBin& bin);
void BuildCards(const PartsBin& bin);
void BuildWelcomePanel(const PartsBin& bin);
void BuildNames(const PartsBin& bin);
void BuildInfoLine(const PartsBin& bin);
void BuildWelcomeButton(const PartsBin& bin);  // in front of the information line, for its clicks
void BuildBiddingPanel(const PartsBin& bin);
void BuildPlayedList(const PartsBin& bin);
void BuildScoreFrame(const PartsBin& bin);
void BuildStatusBar(const PartsBin& bin);

}  // namespace Parlino
