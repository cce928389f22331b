// The options that every command takes, each with a twin in the environment.
#pragma once

#include "cli/ToldTime.h"
#include "core/platform/Device.h"
#include "core/platform/Location.h"
#include "core/platform/PhoneBook.h"

#include <CLI/CLI.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace vitrelle::cli {

struct Options {
  std::optional<std::string> home;
  std::optional<std::string> phoneIdentifier;
  std::optional<OsVersion> os;
  std::optional<bool> zoomed;
  std::optional<AppearanceChoice> appearance;
  std::optional<ToldTime> now;           ///< at which the time stands still
  std::optional<float> battery;          ///< as full as it is taken to be, from 0 to 1; or -1
  std::optional<Coordinate> location;    ///< where the device is taken to be
  std::optional<std::string> weatherUrl; ///< of another weather service of the same kind
  bool verbose = false;

  /// Whether --standard stood on the command line, which `defaults` takes for its own.
  bool standardTold = false;
  /// Which of the phone's settings stood on the command line itself.
  bool phoneTold = false;
};

/// Adds the options to the program; they are complete once `readEnvironment` has run after the
/// parsing.
void addOptions(CLI::App& program, Options& options);

/// Takes what the command line did not tell from the environment. Throws `CLI::ValidationError`,
/// as parsing does.
void readEnvironment(Options& options);

/// The machine identifier of a phone told by name, in any case, or by identifier; nothing when it
/// is neither. An identifier need not be a known one.
std::optional<std::string> phoneIdentifier(const std::string& nameOrIdentifier);

/// "desktop", "light" or "dark".
std::string_view describe(AppearanceChoice appearance);

/// "18", "18.1" or "18.1.2".
std::optional<OsVersion> parseOsVersion(const std::string& text);

/// "18.1", with the patch only when it is not 0.
std::string describe(const OsVersion& version);

} // namespace vitrelle::cli
