#include "platform/browser/pack.h"

#include <map>
#include <utility>
#include <vector>

namespace platform {

namespace {

using Bytes = std::span<const std::uint8_t>;

/// Reads forward through a pack; once it would leave it, everything it reads is 0 and `whole` is false.
struct Reader {
  Bytes bytes;
  std::size_t at = 0;
  bool whole = true;

  bool skip(std::size_t count) {
    whole = whole && count <= bytes.size() - at;
    if (whole) at += count;
    return whole;
  }
  unsigned number(int size) {
    const std::size_t from = at;
    if (!skip(static_cast<std::size_t>(size))) return 0;
    unsigned value = 0;
    for (int i = size - 1; i >= 0; --i)
      value = value << 8 | bytes[from + static_cast<std::size_t>(i)];
    return value;
  }
  std::string text(std::size_t length) {
    const std::size_t from = at;
    if (!skip(length)) return "";
    return {bytes.begin() + static_cast<std::ptrdiff_t>(from),
            bytes.begin() + static_cast<std::ptrdiff_t>(at)};
  }
};

struct LetterKey {
  int height, scale;
  char32_t code;
  auto operator<=>(const LetterKey&) const = default;
};

std::vector<Handed> packs;  // what the entries point into
std::map<std::string, PackedPicture, std::less<>> pictures;
std::map<LetterKey, const std::uint8_t*> letters;

constexpr std::size_t kLetterHead = 5;  // advance, left, top, width, rows

void readLetters(Reader& reader, std::map<LetterKey, const std::uint8_t*>& into) {
  for (unsigned count = reader.number(2); count > 0 && reader.whole; --count) {
    LetterKey key{};
    key.height = static_cast<int>(reader.number(1));
    key.scale = static_cast<int>(reader.number(1));
    key.code = reader.number(4);
    into[key] = reader.bytes.data() + reader.at;
    reader.skip(kLetterHead - 2);
    const std::size_t width = reader.number(1);
    reader.skip(width * reader.number(1));
  }
}

}  // namespace

bool addPack(Handed bytes) {
  const std::string_view pack = bytes.view();
  Reader reader{{reinterpret_cast<const std::uint8_t*>(pack.data()), pack.size()}};
  std::map<std::string, PackedPicture, std::less<>> morePictures;
  std::map<LetterKey, const std::uint8_t*> moreLetters;
  while (reader.whole && reader.at < pack.size()) {
    std::string name = reader.text(reader.number(1));
    const unsigned kind = reader.number(1);
    if (kind == 1) {
      readLetters(reader, moreLetters);
    } else if (kind == 3 || kind == 4) {
      const unsigned width = reader.number(2);
      const unsigned height = reader.number(2);
      const Size size{static_cast<int>(width), static_cast<int>(height)};
      const std::size_t length = reader.number(4);
      const std::size_t from = reader.at;
      if (reader.skip(length))
        morePictures[std::move(name)] = {size, static_cast<int>(kind),
                                         reader.bytes.subspan(from, length)};
    } else {
      return false;
    }
  }
  if (!reader.whole) return false;
  packs.push_back(std::move(bytes));
  pictures.merge(morePictures);
  letters.merge(moreLetters);
  return true;
}

const PackedPicture* findPicture(const std::string& path) {
  const auto found = pictures.find(path);
  return found == pictures.end() ? nullptr : &found->second;
}

bool packedLetter(char32_t code, int height, int scale, Glyph& into) {
  const auto found = letters.find({height, scale, code});
  if (found == letters.end()) return false;
  const std::uint8_t* head = found->second;
  into.advance = head[0];
  into.left = static_cast<std::int8_t>(head[1]);
  into.top = static_cast<std::int8_t>(head[2]);
  into.width = head[3];
  into.height = head[4];
  const std::uint8_t* cover = head + kLetterHead;
  into.cover.assign(cover, cover + into.width * into.height);
  return true;
}

}  // namespace platform
