#include "headless/CardText.h"

#include "engine/state/GameState.h"

namespace Parlino {

std::string CardText(int card) {
  if (card < 1 || card > CardsInPack) return "--";
  const auto place = static_cast<std::size_t>(card - 1);
  return {"23456789TJQKA"[place % CardsInSuit], "DCHS"[place / CardsInSuit]};
}

}  // namespace Parlino
