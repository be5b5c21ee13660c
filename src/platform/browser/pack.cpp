#include "platform/browser/pack.h"

#include <map>
#include <memory>
#include <string_view>

#include "platform/browser/prediction.h"

namespace platform {

namespace {

using Bytes = std::vector<std::uint8_t>;

/// Reads forward through a pack; once it would leave it, everything it reads is 0 and `whole` is false.
struct Reader {
  const Bytes& bytes;
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

/// A place in a pack. A pack is let go of with the last entry that points into it.
struct Place {
  std::shared_ptr<const Bytes> pack;
  std::size_t at = 0;
};
struct StoredPicture {
  Place place;
  Size size{};
  int channels = 0;
};
struct LetterKey {
  int height, scale;
  char32_t code;
  auto operator<=>(const LetterKey&) const = default;
};

std::map<std::string, StoredPicture, std::less<>> pictures;
std::map<LetterKey, Place> letters;

constexpr std::size_t kLetterHead = 5;  // advance, left, top, width, rows

void readLetters(Reader& reader, const std::shared_ptr<const Bytes>& pack,
                 std::map<LetterKey, Place>& into) {
  for (unsigned count = reader.number(2); count > 0 && reader.whole; --count) {
    LetterKey key{};
    key.height = static_cast<int>(reader.number(1));
    key.scale = static_cast<int>(reader.number(1));
    key.code = reader.number(4);
    into[key] = {pack, reader.at};
    reader.skip(kLetterHead - 2);
    const std::size_t width = reader.number(1);
    reader.skip(width * reader.number(1));
  }
}

}  // namespace

bool addPack(Bytes bytes) {
  const auto pack = std::make_shared<const Bytes>(std::move(bytes));
  Reader reader{*pack};
  std::map<std::string, StoredPicture, std::less<>> morePictures;
  std::map<LetterKey, Place> moreLetters;
  while (reader.whole && reader.at < pack->size()) {
    std::string name = reader.text(reader.number(1));
    const unsigned kind = reader.number(1);
    if (kind == 1) {
      readLetters(reader, pack, moreLetters);
    } else if (kind == 3 || kind == 4) {
      const unsigned width = reader.number(2);
      const unsigned height = reader.number(2);
      const Size size{static_cast<int>(width), static_cast<int>(height)};
      morePictures[std::move(name)] = {{pack, reader.at}, size, static_cast<int>(kind)};
      reader.skip(std::size_t{width} * height * kind);
    } else {
      return false;
    }
  }
  if (!reader.whole) return false;
  pictures.merge(morePictures);
  letters.merge(moreLetters);
  return true;
}

bool takePicture(const std::string& path, PackedPicture& into) {
  const auto found = pictures.find(path);
  if (found == pictures.end()) return false;
  const StoredPicture& stored = found->second;
  into.size = stored.size;
  into.channels = stored.channels;
  const auto from = stored.place.pack->begin() + static_cast<std::ptrdiff_t>(stored.place.at);
  into.pixels.assign(from,
                     from + std::ptrdiff_t{into.size.width} * into.size.height * into.channels);
  restore(into.pixels, into.size, into.channels);
  pictures.erase(found);
  return true;
}

bool packedLetter(char32_t code, int height, int scale, Glyph& into) {
  const auto found = letters.find({height, scale, code});
  if (found == letters.end()) return false;
  const std::uint8_t* head = found->second.pack->data() + found->second.at;
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
