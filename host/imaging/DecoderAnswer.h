// What a decoder in a process of its own tells the program that started it: one answer, which the
// program takes from a process that a hostile file may have taken over.
#pragma once

#include "core/platform/Result.h"
#include "host/imaging/DecodedPicture.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>

namespace vitrelle::host {

/// What is asked of a decoder: a picture without its pixels, or with them.
enum class Wanted : std::uint8_t { size, picture };

/// Takes all of the bytes, or gives false.
using AnswerSink = std::function<bool(std::span<const std::uint8_t>)>;
/// Fills the bytes and tells how many came; fewer than asked for at the end alone.
using AnswerSource = std::function<std::size_t(std::span<std::uint8_t>)>;

/// The picture has pixels if they are wanted. False when not all was taken.
bool writeAnswer(const Result<DecodedPicture>& picture, const AnswerSink& sink);

/// The decoder's picture, within bounds and as wanted, or its failure, of `what`, in words that are
/// fit for a terminal. Nothing when the bytes are anything else than one whole answer.
std::optional<Result<DecodedPicture>> readAnswer(Wanted wanted, const std::string& what,
                                                 const AnswerSource& source);

} // namespace vitrelle::host
