#include "engine/state/LedSuitQuery.h"

#include "engine/state/ErrorReport.h"
#include "engine/state/Questions.h"

namespace Parlino {

bool HasStartSuitQuery(Integer seat) {
  return ReportErrors("HasStartSuitQuery", [seat] {
    if (HoldsLedSuit(seat)) return true;
    PauseMs = DefaultPauseMs;
    return false;
  });
}

}  // namespace Parlino
