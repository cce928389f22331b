#include "cli/Interruption.h"

#include <csignal>
#include <cstdio>

namespace vitrelle::cli {

namespace {

volatile std::sig_atomic_t caught = 0; ///< the signal's number; 0 for none

void catchSignal(int number) {
  caught = number;
  std::signal(number, SIG_DFL);
}

/// What was ignored before stays so, as under nohup.
auto watch(int number) {
  const auto before = std::signal(number, catchSignal);
  if (before == SIG_IGN) std::signal(number, SIG_IGN);
  return before;
}

} // namespace

Interruption::Interruption() : interrupt_(watch(SIGINT)), terminate_(watch(SIGTERM)) {}

Interruption::~Interruption() {
  std::signal(SIGINT, interrupt_);
  std::signal(SIGTERM, terminate_);
  if (caught == 0) return;
  std::fflush(stdout);
  std::signal(caught, SIG_DFL);
  std::raise(caught);
}

bool Interruption::came() {
  return caught != 0;
}

} // namespace vitrelle::cli
