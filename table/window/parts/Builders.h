// The parts of the table, each building its widgets and tying them to the model.
#pragma once

#include <QString>
#include <QWidget>

namespace Parlino {

class PendingEvents;
class TableMirror;
struct TableWidgets;

// What a part is built with: the table or frame that holds it, the mirror that will keep it up to
// date, the place for the events it reports and the list in which others find its widgets.
struct BuildSite {
  QWidget& parent;
  TableMirror& mirror;
  PendingEvents& pending;
  TableWidgets& widgets;
};

void BuildTableTop(const BuildSite& site);
void BuildTrickPiles(const BuildSite& site);
void BuildTrumps(const BuildSite& site);
void BuildCards(const BuildSite& site);
void BuildWelcomePanel(const BuildSite& site);
void BuildNames(const BuildSite& site);
void BuildInfoLine(const BuildSite& site);
void BuildWelcomeButton(const BuildSite& site);  // in front of the information line, for its clicks
void BuildBiddingPanel(const BuildSite& site);
void BuildPlayedList(const BuildSite& site);
void BuildScoreFrame(const BuildSite& site);
void BuildStatusBar(const BuildSite& site);

}  // namespace Parlino
