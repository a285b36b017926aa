#include "tests/chaos/ChaosRun.h"

#include <cstdlib>
#include <exception>
#include <iostream>

#include "engine/Generator.h"
#include "game/Game.h"
#include "tools/CommandLine.h"

namespace Parlino {

ChaosOptions::ChaosOptions(int count, const char* const* arguments, const char* program) {
  if (ParseCommandLine(count, arguments,
                       {{"--hands", TakeNumber(hands, 1)}, {"--seed", TakeNumber(seed)}}))
    return;
  std::cerr << "usage: " << program << " --hands N --seed S\n";
  std::exit(2);
}

ChaosRun::ChaosRun(const ChaosOptions& options)
    : session(options.seed, [this](const Deed& deed) { return Do(deed); }), hands_(options.hands) {
  DealGenerator.Seed(options.seed);
}

int ChaosRun::Play() {
  try {
    while (session.watch.HandsScored() < hands_) PlayProgram();
  } catch (const RuleBroken& broken) {
    Tell("broken rule: " + broken.rule);
    return 1;
  } catch (const std::exception& error) {
    Tell(std::string("no error leaves the program, but one did: ") + error.what());
    return 1;
  }
  session.PrintFigures(std::cout);
  return 0;
}

void ChaosRun::Tell(const std::string& what) const {
  std::cout << what << "\nin hand " << session.watch.HandsDealt() << ", after these events:\n";
  session.PrintLog(std::cout);
  std::cout.flush();
}

// From the start to the end that the person brings about.
void ChaosRun::PlayProgram() {
  SetUp();
  session.BeginProgram();
  try {
    RunGame();
  } catch (const EnoughHands&) {
    return;
  }
  LookAtEnd();
  session.OnEnd();
  LookAtEnd();
}

void ChaosRun::EndWhenEnough() const {
  if (session.watch.HandsScored() >= hands_) throw EnoughHands{};
}

}  // namespace Parlino
