// The built themes and cues: a theme is over when its cycle ends, sounds only notes its instruments
// have and leaves none ringing; a cue starts and ends at rest.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <vector>

#include "support/temp_folder.h"

namespace {

// Walks over a file; past its end it reads zeros and says so.
struct Reader {
  std::string bytes;
  std::size_t at = 0;
  bool overrun = false;

  explicit Reader(const std::string& name)
      : bytes(support::bytesOf(VELLMORAN_SOURCE_DIR "/data/sound/" + name)) {}
  std::uint32_t byte() {
    overrun |= at >= bytes.size();
    return overrun ? 0 : static_cast<std::uint8_t>(bytes[at++]);
  }
  std::uint32_t big(std::uint32_t count) {
    std::uint32_t value = 0;
    while (count-- > 0) value = value << 8 | byte();
    return value;
  }
  std::uint32_t varying() {
    std::uint32_t value = 0, next = 128;
    while (next & 128) value = value << 7 | ((next = byte()) & 127);
    return value;
  }
  std::string text(std::uint32_t count) {
    count = std::min(count, static_cast<std::uint32_t>(bytes.size() - at));
    return bytes.substr((at += count) - count, count);
  }
};

struct Theme {
  Reader in;
  std::uint32_t perQuarter = 1;
  std::map<std::uint32_t, double> tempo{};  // seconds for a quarter, by the tick they hold from

  double seconds(std::uint32_t tick) const {
    double total = 0, pace = 0.5;
    std::uint32_t last = 0;
    for (const auto& [from, next] : tempo) {
      total += (std::min(from, tick) - last) * pace / perQuarter;
      last = std::min(from, tick);
      pace = next;
    }
    return total + (tick - last) * pace / perQuarter;
  }

  // Reads the next track, of a theme that may be cut at the second given.
  void check(double limit) {
    std::uint32_t now = 0, status = 0, lastOff = 0;
    std::map<std::pair<std::uint32_t, std::uint32_t>, bool> down;
    ASSERT_EQ(in.text(4), "MTrk");
    const std::size_t size = in.big(4), stop = in.at + size;
    bool closed = false;
    while (in.at < stop && !closed && !in.overrun) {
      now += in.varying();
      auto first = in.byte();
      if (first == 0xFF) {
        const auto kind = in.byte(), length = in.varying();
        closed = kind == 0x2F;
        if (kind == 0x51) tempo[now] = in.big(length) / 1e6;
        if (kind != 0x51) in.text(length);
        continue;
      }
      if (first & 128) status = std::exchange(first, in.byte());
      const auto kind = status >> 4;
      const auto value = kind == 12 || kind == 13 ? 0 : in.byte();
      if (kind != 8 && kind != 9) continue;
      const bool strikes = kind == 9 && value > 0;
      bool& held = down[{status & 15, first}];
      EXPECT_NE(held, strikes) << "key " << first << " at " << seconds(now);
      EXPECT_TRUE(first >= 28 && first <= 91)
          << first << " is below the bass viol or above the recorder";
      held = strikes;
      lastOff = strikes ? lastOff : now;
    }
    EXPECT_TRUE(closed && in.at == stop);
    for (const auto& [key, held] : down) EXPECT_FALSE(held) << "key " << key.second;
    EXPECT_GT(seconds(now), limit - 2);
    EXPECT_LT(seconds(now), limit);
    EXPECT_LT(seconds(lastOff), limit - 1) << "the last chord needs a second to die away";
    notes += down.size();
  }
  std::size_t notes = 0;  // different ones
};

TEST(SoundSet, ThemesAreOverBeforeTheyAreCut) {
  int number = 0;
  for (const int limit : {82, 125, 163, 154, 130}) {
    Theme theme{Reader("theme" + std::to_string(++number) + ".Mid")};
    EXPECT_EQ(theme.in.text(10), std::string("MThd\0\0\0\6\0\1", 10));
    const auto tracks = theme.in.big(2);
    theme.perQuarter = theme.in.big(2);
    for (std::uint32_t track = 0; track < tracks; ++track) {
      SCOPED_TRACE(testing::Message() << "theme " << number << ", track " << track);
      theme.check(limit);
    }
    EXPECT_GT(theme.notes, 4u * 8u);
    EXPECT_FALSE(theme.tempo.empty());
    EXPECT_TRUE(!theme.in.overrun && theme.in.at == theme.in.bytes.size());
  }
}

TEST(SoundSet, CuesAreShortAndStartAndEndAtRest) {
  for (int i = 1; i <= 4; ++i) {
    SCOPED_TRACE(i);
    Reader in("sound" + std::to_string(i) + ".wav");
    // Plain samples of two bytes, one channel.
    EXPECT_EQ(in.text(40).substr(8),
              std::string("WAVEfmt \20\0\0\0\1\0\1\0\x44\xAC\0\0\x88X\1\0\2\0\20\0data", 32));
    const std::uint32_t low = in.byte(), count = (low | in.byte() << 8) / 2;
    EXPECT_EQ(in.big(2), 0u);
    ASSERT_TRUE(count > 2000 && count <= 44100 * 7 / 10) << count;
    ASSERT_EQ(in.bytes.size(), 44 + count * 2);
    int peak = 0;
    for (std::uint32_t n = 0; n < count; ++n) {
      const std::uint32_t first = in.byte();
      const int loud = std::abs(static_cast<std::int16_t>(first | in.byte() << 8));
      peak = std::max(peak, loud);
      ASSERT_TRUE((n > 0 || loud < 33) && (n < count - 40 || loud < 330)) << n;
    }
    EXPECT_LT(peak, 32768 * std::pow(10, -3 / 20.0));
    EXPECT_GT(peak, 32768 * std::pow(10, -12 / 20.0));
  }
}

}  // namespace
