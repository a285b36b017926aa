// parlino-selfplay: plays hands at the headless table and prints how they went.

#include <chrono>
#include <csignal>
#include <exception>
#include <iostream>
#include <optional>
#include <stdexcept>

#include "tools/selfplay/Jobs.h"
#include "tools/selfplay/Options.h"
#include "tools/selfplay/OutputFile.h"
#include "tools/selfplay/Progress.h"
#include "tools/selfplay/Session.h"
#include "tools/selfplay/Summary.h"
#include "tools/selfplay/Transcript.h"

namespace Parlino {
namespace {

struct Stopped {};  // no std::exception: the game would tell it in a box and play on

volatile std::sig_atomic_t stopAsked = 0;

void AskToStop(int /*signal*/) {
  stopAsked = 1;
}

// So that a run that is broken off puts away what it has written so far. A call that waits for
// somebody at the other end of a pipe ends with an error.
void StopBetweenHandsWhenAsked() {
  struct sigaction ask {};
  struct sigaction before {};
  ask.sa_handler = AskToStop;
  for (const int signal : {SIGINT, SIGTERM, SIGHUP})
    if (sigaction(signal, &ask, &before) == 0 && before.sa_handler == SIG_IGN)
      sigaction(signal, &before, nullptr);
  std::signal(SIGPIPE, SIG_IGN);
}

Figures PlayHands(const SelfPlayOptions& options, std::ostream* transcript) {
  const SessionPlan run{options.seed, 0, options.hands, options.isSouthARobot};
  if (transcript != nullptr)
    WriteTranscriptHeader(*transcript, options.seed, options.hands,
                          options.isSouthARobot ? "robot" : "random",
                          options.jobs > 0 ? HandsInSession : 0);
  Progress progress(options.hands);
  const auto show = [&progress](long hands) {
    if (stopAsked != 0) throw Stopped{};
    progress.Show(hands);
  };
  return options.jobs > 0 ? PlaySessions(run, options.jobs, transcript, show)
                          : PlaySession(run, transcript, show);
}

void Play(const SelfPlayOptions& options) {
  std::optional<OutputFile> transcript;
  std::optional<OutputFile> table;
  if (!options.transcript.empty()) transcript.emplace(options.transcript);
  if (!options.table.empty()) table.emplace(options.table);
  const auto start = std::chrono::steady_clock::now();
  const Figures figures = PlayHands(options, transcript ? &transcript->Stream() : nullptr);
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  if (table) WriteTable(table->Stream(), figures);
  // Neither is put in its place before both have been written.
  for (auto* file : {&transcript, &table})
    if (*file) (*file)->Close();
  for (auto* file : {&transcript, &table})
    if (*file) (*file)->PutInPlace();
  PrintSummary(std::cout, figures, elapsed.count());
  if (!std::cout.flush()) throw std::runtime_error("the summary cannot be written");
}

}  // namespace
}  // namespace Parlino

int main(int count, char** arguments) {
  Parlino::SelfPlayOptions options;
  const std::string complaint = Parlino::ParseOptions(count, arguments, options);
  if (!complaint.empty()) {
    std::cerr << "parlino-selfplay: " << complaint << "; --help lists the options\n";
    return 2;
  }
  if (options.isHelpWanted) {
    std::cout << Parlino::SelfPlayHelp;
    return 0;
  }
  try {
    Parlino::StopBetweenHandsWhenAsked();
    Parlino::Play(options);
    return 0;
  } catch (const Parlino::Stopped&) {
    std::cerr << "parlino-selfplay: stopped\n";
    return 1;
  } catch (const std::exception& error) {
    std::cerr << "parlino-selfplay: " << error.what() << "\n";
    return 1;
  }
}
