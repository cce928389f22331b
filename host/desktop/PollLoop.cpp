#include "host/desktop/PollLoop.h"

#include <algorithm>
#include <csignal>
#include <vector>

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

/// SIGINT and SIGTERM as a readable descriptor for as long as this lives.
class InterruptDescriptor final {
 public:
  InterruptDescriptor() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    sigprocmask(SIG_BLOCK, &signals, &before_);
    descriptor_ = signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
  }
  ~InterruptDescriptor() {
    signalfd_siginfo pending;
    while (read(descriptor_, &pending, sizeof pending) > 0) {
    }
    close(descriptor_);
    sigprocmask(SIG_SETMASK, &before_, nullptr);
  }
  InterruptDescriptor(const InterruptDescriptor&) = delete;
  InterruptDescriptor& operator=(const InterruptDescriptor&) = delete;

  int get() const { return descriptor_; }

 private:
  sigset_t before_;
  int descriptor_;
};

} // namespace

EventLoop PollLoop::operations() {
  return {.whenReadable =
              [this](int descriptor, std::function<void()> call) {
                const std::uint64_t ticket = nextTicket_++;
                readers_.emplace(ticket, Reader{descriptor, std::move(call)});
                return Subscription([this, ticket] { readers_.erase(ticket); });
              },
          .every =
              [this](double seconds, std::function<void()> call) {
                const std::uint64_t ticket = nextTicket_++;
                const auto distance = std::chrono::duration_cast<Clock::duration>(
                    std::chrono::duration<double>(seconds));
                timers_.emplace(ticket, Timer{distance, Clock::now() + distance, std::move(call)});
                return Subscription([this, ticket] { timers_.erase(ticket); });
              }};
}

void PollLoop::run() {
  const InterruptDescriptor interrupt;
  stopped_ = false;
  const Subscription onInterrupt = operations().whenReadable(interrupt.get(), [this] { stop(); });
  while (!stopped_) {
    runReaders(millisecondsToNextTimer());
    runDueTimers();
  }
}

int PollLoop::millisecondsToNextTimer() const {
  constexpr int forever = -1;
  if (timers_.empty()) return forever;
  Clock::time_point soonest = Clock::time_point::max();
  for (const auto& [ticket, timer] : timers_)
    soonest = std::min(soonest, timer.due);
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(soonest - Clock::now()).count();
  return static_cast<int>(std::clamp<std::int64_t>(left, 0, 60'000));
}

void PollLoop::runReaders(int timeoutMilliseconds) {
  std::vector<std::uint64_t> tickets;
  std::vector<pollfd> descriptors;
  for (const auto& [ticket, reader] : readers_) {
    tickets.push_back(ticket);
    descriptors.push_back({.fd = reader.descriptor, .events = POLLIN, .revents = 0});
  }
  if (poll(descriptors.data(), descriptors.size(), timeoutMilliseconds) <= 0) return;
  for (std::size_t i = 0; i < descriptors.size() && !stopped_; ++i) {
    if (descriptors[i].revents == 0) continue;
    const auto found = readers_.find(tickets[i]);
    if (found == readers_.end()) continue;
    const auto call = found->second.call; // it may cancel itself while it runs
    call();
  }
}

void PollLoop::runDueTimers() {
  std::vector<std::uint64_t> due;
  const Clock::time_point now = Clock::now();
  for (const auto& [ticket, timer] : timers_) {
    if (timer.due <= now) due.push_back(ticket);
  }
  for (const std::uint64_t ticket : due) {
    const auto found = timers_.find(ticket);
    if (found == timers_.end() || stopped_) continue;
    found->second.due = now + found->second.distance;
    const auto call = found->second.call;
    call();
  }
}

} // namespace vitrelle::host
