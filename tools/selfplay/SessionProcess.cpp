#include "tools/selfplay/SessionProcess.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <poll.h>
#include <sstream>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <system_error>
#include <type_traits>
#include <unistd.h>

namespace Parlino {
namespace {

static_assert(std::is_trivially_copyable_v<Figures>, "figures are sent as they are in memory");

[[noreturn]] void RaiseSystemError(const std::string& what) {
  throw std::runtime_error(what + ": " + std::generic_category().message(errno));
}

bool SendAll(int pipe, std::string_view text) {
  while (!text.empty()) {
    const ssize_t sent = write(pipe, text.data(), text.size());
    if (sent < 0 && errno != EINTR) return false;
    if (sent > 0) text.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

// Leaves the process without touching what belongs to the one that started it, such as its files.
[[noreturn]] void PlayAndLeave(const SessionPlan& plan, bool isTranscribed, int pipe) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);  // nobody else would read what it has to say
  try {
    std::ostringstream transcript;
    const Figures figures = PlaySession(plan, isTranscribed ? &transcript : nullptr, [](long) {});
    const std::string_view bytes(reinterpret_cast<const char*>(&figures), sizeof figures);
    _exit(SendAll(pipe, bytes) && SendAll(pipe, transcript.view()) ? 0 : 1);
  } catch (...) {
    _exit(1);
  }
}

}  // namespace

SessionProcess::SessionProcess(const SessionPlan& plan, int number, bool isTranscribed)
    : plan_(plan), number_(number) {
  int ends[2];
  if (pipe(ends) != 0) RaiseSystemError("a session cannot be started");
  process_ = fork();
  if (process_ == 0) PlayAndLeave(plan, isTranscribed, ends[1]);
  const int failure = errno;
  close(ends[1]);
  pipe_ = ends[0];
  if (process_ > 0) return;
  close(pipe_);
  errno = failure;
  RaiseSystemError("a session cannot be started");
}

SessionProcess::~SessionProcess() {
  close(pipe_);
  if (process_ < 0) return;
  kill(process_, SIGKILL);
  waitpid(process_, nullptr, 0);
}

void SessionProcess::Read() {
  constexpr std::size_t atOnce = 1 << 16;
  const std::size_t before = received_.size();
  received_.resize(before + atOnce);
  const ssize_t count = read(pipe_, received_.data() + before, atOnce);
  received_.resize(before + (count > 0 ? static_cast<std::size_t>(count) : 0));
  hasEnded_ = count == 0 || (count < 0 && errno != EINTR);
}

Figures SessionProcess::TakeResult(std::string& transcript) {
  int status = 0;
  waitpid(process_, &status, 0);
  process_ = -1;
  Figures figures;
  const bool isWhole = received_.size() >= sizeof figures;
  if (isWhole) std::memcpy(&figures, received_.data(), sizeof figures);
  if (status != 0 || !isWhole || figures.hands != plan_.hands) {
    const std::string how = WIFSIGNALED(status)
                                ? " was ended by signal " + std::to_string(WTERMSIG(status))
                                : " did not come to its end";
    throw std::runtime_error("the session of hands " + std::to_string(plan_.handsBefore + 1) +
                             " to " + std::to_string(plan_.handsBefore + plan_.hands) + how);
  }
  transcript = received_.substr(sizeof figures);
  return figures;
}

void ReadFromAny(const std::vector<std::unique_ptr<SessionProcess>>& sessions) {
  std::vector<pollfd> pipes;
  pipes.reserve(sessions.size());
  for (const auto& session : sessions) pipes.push_back({session->Pipe(), POLLIN, 0});
  if (poll(pipes.data(), pipes.size(), -1) < 0) return;
  for (std::size_t place = 0; place < pipes.size(); ++place)
    if (pipes[place].revents != 0) sessions[place]->Read();
}

}  // namespace Parlino
