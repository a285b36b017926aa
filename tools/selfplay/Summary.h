// The figures of a run as a person reads them, and as a spreadsheet does.
#pragma once

#include <ostream>

#include "tools/selfplay/Figures.h"

namespace Parlino {

void PrintSummary(std::ostream& out, const Figures& figures, double seconds);

// A line of names, one for each seat and one for each team, separated by commas. A figure that a
// seat or a team does not have is left empty. There are no times, so a seed gives the same table.
void WriteTable(std::ostream& out, const Figures& figures);

}  // namespace Parlino
