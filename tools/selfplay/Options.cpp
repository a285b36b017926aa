#include "tools/selfplay/Options.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "tools/CommandLine.h"

namespace Parlino {
namespace {

bool TakeSouth(std::string_view text, bool& isRobot) {
  if (text != "random" && text != "robot") return false;
  isRobot = text == "robot";
  return true;
}

auto TakeName(std::string& name) {
  return [&name](std::string_view text) {
    name = text;
    return !text.empty();
  };
}

std::filesystem::path PlaceOf(const std::string& name) {
  std::error_code ignored;
  return std::filesystem::weakly_canonical(std::filesystem::absolute(name, ignored), ignored);
}

}  // namespace

const std::string_view SelfPlayHelp = R"(usage: parlino-selfplay --hands N --seed S [options]

Plays hands at the table without a window, without pauses, and prints how they went.

  --hands N            how many hands
  --seed S             a whole number; the same seed gives the same hands
  --south random       South bids and plays at random (if nothing else is said)
  --south robot        South bids and plays as the robots do
  --jobs N             divides the hands into sessions of 2,500, each with a seed of
                       its own and a new game, and plays N of them at the same time;
                       the hands are the same for every N, but not the same as
                       without --jobs, where all are played in one session
  --transcript FILE    writes a line of JSON about the run and one for each hand
  --csv FILE           writes the figures as a table for a spreadsheet
  --help               says this

A file is there when all of it has been written; until then, and if anything goes
wrong or the run is stopped with Ctrl+C, what was there before stays. On a terminal
a run of more than a second says how far it has come.

In the summary, a seat's bid is made if the seat takes as many tricks itself, and a
team's if the partners do together; half tricks are those that robots' bids left out.

The status is 0, or 1 if the run failed or a file cannot be written, or 2 if the
command line cannot be understood.
)";

std::string ParseOptions(int count, const char* const* arguments, SelfPlayOptions& options) {
  options.isHelpWanted = std::any_of(arguments, arguments + count,
                                     [](std::string_view text) { return text == "--help"; });
  if (options.isHelpWanted) return {};
  const auto takeSouth = [&](std::string_view text) {
    return TakeSouth(text, options.isSouthARobot);
  };
  std::string complaint = ComplaintAbout(count, arguments,
                                         {{"--hands", TakeNumber(options.hands, 1)},
                                          {"--seed", TakeNumber(options.seed)},
                                          {"--south", takeSouth, false},
                                          {"--jobs", TakeNumber(options.jobs, 1), false},
                                          {"--transcript", TakeName(options.transcript), false},
                                          {"--csv", TakeName(options.table), false}});
  if (complaint.empty() && !options.table.empty() && !options.transcript.empty() &&
      PlaceOf(options.table) == PlaceOf(options.transcript))
    complaint = "--transcript and --csv name the same file";
  return complaint;
}

}  // namespace Parlino
