// Lets the step that runs come to its end when the user interrupts the program, so that no file is
// left half-way.
#pragma once

namespace vitrelle::cli {

/// While one lives, SIGINT and SIGTERM only set `came`; a second one ends the program at once. The
/// signal takes effect when this goes, after all that was made later is cleaned up. One at a time.
class Interruption final {
 public:
  Interruption();
  ~Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

  static bool came();

 private:
  using Handler = void (*)(int);
  Handler interrupt_;
  Handler terminate_;
};

} // namespace vitrelle::cli
