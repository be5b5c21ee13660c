#include "platform/browser/picture_code.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>
#include <memory>

namespace platform {

namespace {

/// The probability of a 1, in 65536ths, which follows what came; quickly at first.
struct Chance {
  static constexpr int kSlowest = 60;

  std::uint16_t one = 1 << 15;
  std::uint16_t seen = 0;

  void learn(bool bit) {
    // Never certain: what has no probability cannot be coded.
    const int target = bit ? 65504 : 32;
    const int step = (1 << 16) / (2 * seen + 3);
    one = static_cast<std::uint16_t>(one + (((target - one) * step) >> 15));
    if (seen < kSlowest) ++seen;
  }
};

constexpr std::uint32_t kLeastRange = 1U << 24;

/// A range coder: divides a range of numbers by the chance of each bit.
class Writer {
 public:
  static constexpr bool kReads = false;
  std::vector<std::uint8_t> bytes;

  bool bit(Chance& chance, bool value) {
    const std::uint32_t bound = (range_ >> 16) * chance.one;
    if (value) {
      range_ = bound;
    } else {
      low_ += bound;
      range_ -= bound;
      if (low_ < bound) carry();
    }
    chance.learn(value);
    while (range_ < kLeastRange) {
      range_ <<= 8;
      putByte();
    }
    return value;
  }
  void finish() {
    for (int i = 0; i < 4; ++i) putByte();
  }

 private:
  void putByte() {
    bytes.push_back(static_cast<std::uint8_t>(low_ >> 24));
    low_ <<= 8;
  }
  void carry() {
    for (auto last = bytes.rbegin(); last != bytes.rend() && ++*last == 0; ++last) {
    }
  }

  std::uint32_t low_ = 0;
  std::uint32_t range_ = ~0U;
};

/// Reads what a Writer wrote; behind the end it reads zeros.
class Reader {
 public:
  static constexpr bool kReads = true;

  explicit Reader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {
    for (int i = 0; i < 4; ++i) takeByte();
  }
  bool bit(Chance& chance, bool) {
    const std::uint32_t bound = (range_ >> 16) * chance.one;
    const bool value = code_ < bound;
    if (value) {
      range_ = bound;
    } else {
      code_ -= bound;
      range_ -= bound;
    }
    chance.learn(value);
    while (range_ < kLeastRange) {
      range_ <<= 8;
      takeByte();
    }
    return value;
  }

 private:
  void takeByte() { code_ = code_ << 8 | (at_ < bytes_.size() ? bytes_[at_++] : 0U); }

  std::span<const std::uint8_t> bytes_;
  std::size_t at_ = 0;
  std::uint32_t code_ = 0;
  std::uint32_t range_ = ~0U;
};

constexpr int kColours = 3;
constexpr std::array kOrder{1, 0, 2};  // green first
constexpr int kErrors = 16;            // classes of the errors around
constexpr int kBefore = 6;             // classes of the errors of this pixel's colours so far
constexpr int kDigits = 8;
constexpr int kRim = 2;  // pixels beside a row that count as transparent and well predicted

/// How much a colour changes where green changes by 1: a quotient of sums that fade.
struct Slope {
  int products = 1 << 9;
  int squares = 1 << 10;

  int times(int green) const { return green * (products >> 2) / (squares >> 2); }
  void learn(int green, int colour) {
    products += 16 * green * colour - products / 8;
    squares += 16 * green * green - squares / 8;
    squares = std::max(squares, 16);
  }
};

template <typename Coder>
class Model {
 public:
  Model(Coder& coder, int width, int channels)
      : coder_(coder),
        width_(width),
        channels_(channels),
        above_(static_cast<std::size_t>(width * channels)) {
    for (auto& rows : errors_) {
      for (auto& row : rows) row.resize(static_cast<std::size_t>(width + 2 * kRim));
    }
    for (auto& row : opaque_) row.resize(static_cast<std::size_t>(width + 2 * kRim));
  }

  /// Codes the next row, or fills it.
  void row(std::uint8_t* pixels) {
    for (int x = 0; x < width_; ++x) pixel(pixels + x * channels_, x);
    std::copy_n(pixels, above_.size(), above_.begin());
    for (auto& rows : errors_) rows[0].swap(rows[1]);
    opaque_[0].swap(opaque_[1]);
    top_ = false;
  }

 private:
  void pixel(std::uint8_t* at, int x) {
    const bool opaque = channels_ == 3 || codeOpaque(at[3] >= 128, x);
    if (channels_ == 4) at[3] = opaque ? 255 : 0;
    int before = 0;
    int green = 0;
    for (int i = 0; i < kColours; ++i) {
      const int colour = kOrder[static_cast<std::size_t>(i)];
      const int around = expected(at + colour, x, colour);
      std::uint8_t& error = errors_[static_cast<std::size_t>(i)][1][place(x)];
      if (!opaque) {
        at[colour] = static_cast<std::uint8_t>(around);
        error = 0;
        continue;
      }
      Slope& slope = slopes_[static_cast<std::size_t>(i)];
      const int guess = i == 0 ? around : std::clamp(around + slope.times(green), 0, 255);
      const int missed = codeError(i, x, before, at[colour] - guess);
      if (Coder::kReads) at[colour] = static_cast<std::uint8_t>(guess + missed);
      error = static_cast<std::uint8_t>(std::min(std::abs(missed), 255));
      before = before / 2 + error;
      if (i == 0) {
        green = missed;
      } else {
        slope.learn(green, at[colour] - around);
      }
    }
  }

  bool codeOpaque(bool value, int x) {
    const std::size_t at = place(x);
    auto& [above, row] = opaque_;
    const int around = row[at - 1] | row[at - 2] << 1 | above[at] << 2 | above[at - 1] << 3 |
                       above[at + 1] << 4 | above[at + 2] << 5;
    row[at] = coder_.bit(opaques_[static_cast<std::size_t>(around)], value);
    return row[at] != 0;
  }

  /// The median of the left neighbour, the upper one, and their sum less the one between them.
  int expected(const std::uint8_t* at, int x, int colour) const {
    const std::size_t up = static_cast<std::size_t>(x * channels_ + colour);
    const int above = top_ ? (x == 0 ? 0 : at[-channels_]) : above_[up];
    if (x == 0 || top_) return above;
    const int left = at[-channels_];
    const int between = above_[up - static_cast<std::size_t>(channels_)];
    return std::clamp(left + above - between, std::min(left, above), std::max(left, above));
  }

  /// Codes by how much the prediction missed, or returns it.
  int codeError(int i, int x, int before, int missed) {
    const std::size_t at = place(x);
    const auto& [above, row] = errors_[static_cast<std::size_t>(i)];
    const unsigned sum = 2U * row[at - 1] + 2U * above[at] + above[at + 1] + above[at - 1];
    const int digits = std::bit_width(sum);
    const unsigned around =
        sum < 4 ? sum
                : std::min(2U * static_cast<unsigned>(digits - 1) + (sum >> (digits - 2) & 1U),
                           kErrors - 1U);
    Chances& chances = chances_[static_cast<std::size_t>(i)];
    Class& likely = chances.classes[around][std::min<std::size_t>(
        std::bit_width(static_cast<unsigned>(before)), kBefore - 1)];
    const unsigned beside = (row[at - 1] != 0 ? 1U : 0U) + (above[at] != 0 ? 2U : 0U);
    if (coder_.bit(likely.zero[beside], missed == 0)) return 0;
    const bool negative = coder_.bit(chances.negative, missed < 0);
    const int size = std::abs(missed);
    unsigned more = 0;
    while (more < kDigits - 1 && coder_.bit(likely.digits[more], size >> (more + 1) != 0)) ++more;
    unsigned found = 1;
    for (unsigned digit = more; digit-- > 0;) {
      found = 2 * found + coder_.bit(chances.number[more][found], (size >> digit & 1) != 0);
    }
    return negative ? -static_cast<int>(found) : static_cast<int>(found);
  }

  static std::size_t place(int x) { return static_cast<std::size_t>(x + kRim); }

  struct Class {
    std::array<Chance, 4> zero;
    std::array<Chance, kDigits> digits;
  };
  struct Chances {
    std::array<std::array<Class, kBefore>, kErrors> classes;
    Chance negative;
    std::array<std::array<Chance, 1 << (kDigits - 1)>, kDigits> number;
  };

  Coder& coder_;
  int width_;
  int channels_;
  bool top_ = true;
  std::vector<std::uint8_t> above_;
  // Of the row above and of this row.
  std::array<std::array<std::vector<std::uint8_t>, 2>, kColours> errors_;
  std::array<std::vector<std::uint8_t>, 2> opaque_;
  std::array<Slope, kColours> slopes_{};
  std::array<Chances, kColours> chances_{};
  std::array<Chance, 64> opaques_{};
};

}  // namespace

std::vector<std::uint8_t> codePicture(const std::vector<std::uint8_t>& pixels, Size size,
                                      int channels) {
  Writer writer;
  const auto model = std::make_unique<Model<Writer>>(writer, size.width, channels);
  std::vector<std::uint8_t> row(static_cast<std::size_t>(size.width * channels));
  for (auto from = pixels.begin(); from != pixels.end(); from += std::ssize(row)) {
    std::copy_n(from, row.size(), row.begin());
    model->row(row.data());
  }
  writer.finish();
  return std::move(writer.bytes);
}

void decodePicture(std::span<const std::uint8_t> coded, Size size, int channels,
                   const std::function<void(int y, const std::uint8_t* pixels)>& row) {
  Reader reader(coded);
  const auto model = std::make_unique<Model<Reader>>(reader, size.width, channels);
  std::vector<std::uint8_t> pixels(static_cast<std::size_t>(size.width * channels));
  for (int y = 0; y < size.height; ++y) {
    model->row(pixels.data());
    row(y, pixels.data());
  }
}

}  // namespace platform
