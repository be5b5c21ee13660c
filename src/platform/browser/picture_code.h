// Pictures coded without loss, in a quarter less than prediction and gzip take: the packs are most of what
// a browser fetches.
//
// Every byte is predicted from its left and upper neighbours; red and blue moreover follow green by a
// slope that is learned on the way. What remains is coded bit by bit with adaptive probabilities, chosen by
// how well the prediction did around. Whole numbers only, so that every machine gives the same bytes.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "platform/geometry.h"

namespace platform {

/// A picture of rows of `channels` (3 or 4) bytes a pixel without padding. The fourth byte counts as
/// opaque from 128 on, and comes back as 0 or 255; the colours of a transparent pixel are lost.
std::vector<std::uint8_t> codePicture(const std::vector<std::uint8_t>& pixels, Size size,
                                      int channels);

/// Calls `row` with each row, from the top.
void decodePicture(std::span<const std::uint8_t> coded, Size size, int channels,
                   const std::function<void(int y, const std::uint8_t* pixels)>& row);

}  // namespace platform
