// The built themes and cues: a theme is over when its cycle ends, sounds only notes its instruments
// have and leaves none ringing; a cue starts and ends at rest.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

// Walks over a file; past its end it reads zeros and says so.
struct Reader {
  std::string bytes;
  std::size_t at = 0;
  bool overrun = false;

  explicit Reader(const std::string& name) {
    std::ifstream file(VELLMORAN_SOURCE_DIR "/data/sound/" + name, std::ios::binary);
    bytes.assign(std::istreambuf_iterator<char>(file), {});
  }
  std::uint32_t byte() {
    if (at < bytes.size()) return static_cast<std::uint8_t>(bytes[at++]);
    overrun = true;
    return 0;
  }
  std::uint32_t big(std::uint32_t count) {
    std::uint32_t value = 0;
    while (count-- > 0) value = value << 8 | byte();
    return value;
  }
  std::uint32_t little(int count) {
    std::uint32_t value = 0;
    for (int i = 0; i < count; ++i) value |= byte() << 8 * i;
    return value;
  }
  std::uint32_t varying() {
    std::uint32_t value = 0, next = 128;
    while (next & 128) value = value << 7 | ((next = byte()) & 127);
    return value;
  }
  std::string text(std::uint32_t count) {
    std::string out;
    while (count-- > 0 && !overrun) out += static_cast<char>(byte());
    return out;
  }
};

struct Theme {
  Reader in;
  std::uint32_t perQuarter = 1;
  std::map<std::uint32_t, double> tempo{};  // seconds for a quarter, by the tick they hold from
  bool meter = false;

  double seconds(std::uint32_t tick) const {
    double total = 0, pace = 0.5;
    std::uint32_t last = 0;
    for (const auto& [from, next] : tempo) {
      if (from >= tick) break;
      total += (from - last) * pace / perQuarter;
      last = from;
      pace = next;
    }
    return total + (tick - last) * pace / perQuarter;
  }

  // Reads the next track, of a theme that may be cut at the second given.
  void check(bool plays, double limit) {
    std::string name;
    std::vector<int> keys;
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
        if (kind == 0x51) {
          tempo[now] = in.big(length) / 1e6;
        } else {
          const std::string data = in.text(length);
          if (kind == 3) name = data;
        }
        meter |= kind == 0x58;
        closed = kind == 0x2F;
        continue;
      }
      if (first & 128) {
        status = first;
        first = in.byte();
      }
      const auto kind = status >> 4;
      const auto value = kind == 12 || kind == 13 ? 0 : in.byte();
      if (kind != 8 && kind != 9) continue;
      const bool strikes = kind == 9 && value > 0;
      bool& held = down[{status & 15, first}];
      EXPECT_NE(held, strikes) << name << ", key " << first << " at " << seconds(now);
      held = strikes;
      if (strikes) keys.push_back(static_cast<int>(first));
      lastOff = strikes ? lastOff : now;
    }
    SCOPED_TRACE(name);
    EXPECT_FALSE(name.empty());
    EXPECT_TRUE(closed && in.at == stop);
    EXPECT_TRUE(std::none_of(down.begin(), down.end(), [](const auto& key) { return key.second; }));
    EXPECT_GT(seconds(now), limit - 2);
    EXPECT_LT(seconds(now), limit);
    EXPECT_LT(seconds(lastOff), limit - 1) << "the last chord needs a second to die away";
    if (!plays) return;
    ASSERT_GT(keys.size(), 8u);
    EXPECT_GE(*std::min_element(keys.begin(), keys.end()), 28) << "below the bass viol";
    EXPECT_LE(*std::max_element(keys.begin(), keys.end()), 91) << "above the recorder";
  }
};

TEST(SoundSet, ThemesAreOverBeforeTheyAreCut) {
  constexpr std::array kLimits{82, 125, 163, 154, 130};
  for (std::size_t i = 0; i < kLimits.size(); ++i) {
    const std::string name = "theme" + std::to_string(i + 1) + ".Mid";
    SCOPED_TRACE(name);
    Theme theme{Reader(name)};
    ASSERT_EQ(theme.in.text(4), "MThd");
    EXPECT_EQ(theme.in.big(4), 6u);
    EXPECT_EQ(theme.in.big(2), 1u);
    const auto tracks = theme.in.big(2);
    theme.perQuarter = theme.in.big(2);
    ASSERT_GT(tracks, 4u);
    for (std::uint32_t track = 0; track < tracks; ++track) theme.check(track > 0, kLimits[i]);
    EXPECT_TRUE(theme.meter);
    EXPECT_FALSE(theme.tempo.empty());
    EXPECT_TRUE(!theme.in.overrun && theme.in.at == theme.in.bytes.size());
  }
}

TEST(SoundSet, CuesAreShortAndStartAndEndAtRest) {
  for (int i = 1; i <= 4; ++i) {
    SCOPED_TRACE(i);
    Reader in("sound" + std::to_string(i) + ".wav");
    EXPECT_EQ(in.text(4), "RIFF");
    EXPECT_EQ(in.little(4) + 8, in.bytes.size());
    EXPECT_EQ(in.text(8), "WAVEfmt ");
    in.little(4);
    EXPECT_EQ(in.little(4), 0x10001u);  // plain samples, one channel
    EXPECT_EQ(in.little(4), 44100u);
    in.text(6);
    EXPECT_EQ(in.little(2), 16u);
    EXPECT_EQ(in.text(4), "data");
    std::vector<int> samples(in.little(4) / 2);
    ASSERT_LE(samples.size(), 44100u * 7 / 10);
    ASSERT_GT(samples.size(), 2000u);
    for (int& sample : samples) sample = std::abs(static_cast<std::int16_t>(in.little(2)));
    EXPECT_FALSE(in.overrun);
    const int peak = *std::max_element(samples.begin(), samples.end());
    EXPECT_LT(peak, 32768 * std::pow(10, -3 / 20.0));
    EXPECT_GT(peak, 32768 * std::pow(10, -12 / 20.0));
    EXPECT_LT(samples.front(), 33);
    EXPECT_LT(*std::max_element(samples.end() - 40, samples.end()), 330);
  }
}

}  // namespace
