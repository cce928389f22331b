// Decoding by a program of its own, for libraries that a hostile file can crash, keep for ever or
// make take memory without bound.
#pragma once

#include "core/platform/Result.h"
#include "host/imaging/DecodedPicture.h"
#include "host/imaging/DecoderAnswer.h"

#include <chrono>
#include <cstdint>
#include <span>
#include <string>

namespace vitrelle::host {

/// A program that takes what is wanted, "size" or "picture", as its argument and a file's bytes as
/// its standard input, and writes a `DecoderAnswer` to its standard output. It bounds its memory
/// and its processor time by itself.
struct IsolatedDecoder {
  std::string format; ///< what failures are named after
  std::string program;
  std::chrono::milliseconds patience{40'000};
};

/// The answer of a new process over these bytes. It has ended and is gone when this returns, and a
/// program that can't be started or does anything else than answer is a failure.
Result<DecodedPicture> decodeIsolated(const IsolatedDecoder& decoder, Wanted wanted,
                                      std::span<const std::uint8_t> bytes);

} // namespace vitrelle::host
