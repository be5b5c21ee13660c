// vellmoran-bake DATA SCALE OUT: decodes the pictures and draws the letters of the data folder DATA for
// the browser, at a scale of 1 or 2. Writes OUT/menuSCALE.pack, which the first picture needs, and
// OUT/gameSCALE.pack, which holds the rest.
// The form of a pack is described in platform/browser/pack.h.
#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "platform/browser/picture_code.h"
#include "platform/glyphs.h"
#include "platform/png.h"
#include "platform/skin.h"
#include "shell/menu_controls.h"

namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;

constexpr std::array kLetterHeights{12, 15, 16, 19};
constexpr char32_t kLastLetter = 0xFFFF;

void put(Bytes& into, unsigned value, int size) {
  for (int i = 0; i < size; ++i) into.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

/// Names are those that the game opens, below its data folder.
void putName(Bytes& into, const fs::path& name) {
  const std::string text = "data/" + name.generic_string();
  put(into, static_cast<unsigned>(text.size()), 1);
  into.insert(into.end(), text.begin(), text.end());
}

bool putPicture(Bytes& into, const fs::path& data, const fs::path& name, std::string& error) {
  Bytes rgba;
  platform::Size size;
  if (!platform::readPngRgba(data / name, rgba, size, error)) return false;
  const int channels = name.parent_path().filename() == "pair" ? 4 : 3;
  Bytes pixels;
  for (std::size_t i = 0; i < rgba.size(); i += 4) {
    pixels.insert(pixels.end(), &rgba[i], &rgba[i] + channels);
  }
  const Bytes coded = platform::codePicture(pixels, size, channels);
  putName(into, name);
  put(into, static_cast<unsigned>(channels), 1);
  put(into, static_cast<unsigned>(size.width), 2);
  put(into, static_cast<unsigned>(size.height), 2);
  put(into, static_cast<unsigned>(coded.size()), 4);
  into.insert(into.end(), coded.begin(), coded.end());
  return true;
}

struct Letters {
  unsigned count = 0;
  Bytes bytes;

  void add(platform::Glyphs& glyphs, char32_t code, int height, int scale) {
    platform::Glyph glyph;
    if (!glyphs.render(code, height, scale, glyph)) return;
    ++count;
    put(bytes, static_cast<unsigned>(height), 1);
    put(bytes, static_cast<unsigned>(scale), 1);
    put(bytes, code, 4);
    for (const int part : {glyph.advance, glyph.left, glyph.top, glyph.width, glyph.height}) {
      put(bytes, static_cast<unsigned>(part), 1);
    }
    bytes.insert(bytes.end(), glyph.cover.begin(), glyph.cover.end());
  }
};

/// Every letter that the font has, in every height that the screens use.
bool putLetters(Bytes& into, const fs::path& data, int scale, std::string& error) {
  const auto glyphs = platform::openGlyphs(data / "font.otf", error);
  if (glyphs == nullptr) return false;
  Letters letters;
  for (const int height : kLetterHeights) {
    // Lines are laid out by the capitals of scale 1.
    if (scale != 1) letters.add(*glyphs, 'H', height, 1);
    for (char32_t code = ' '; code <= kLastLetter; ++code)
      letters.add(*glyphs, code, height, scale);
  }
  putName(into, "font.otf");
  put(into, 1, 1);
  put(into, letters.count, 2);
  into.insert(into.end(), letters.bytes.begin(), letters.bytes.end());
  return true;
}

std::set<std::string> picturesOfMenu() {
  std::set<std::string> names{shell::kMenuBackground};
  for (const platform::ControlDesign& row : shell::menuControls()) {
    if (row.image != nullptr) names.insert(row.image);
  }
  for (int look = 0; look < platform::kLooks; ++look) {
    names.insert(platform::lookDesign(static_cast<platform::Look>(look)).file);
  }
  return names;
}

bool write(const fs::path& path, const Bytes& bytes, std::string& error) {
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (file) return true;
  error = path.string() + ": cannot be written";
  return false;
}

bool bake(const fs::path& data, int scale, const fs::path& out, std::string& error) {
  const fs::path pictures = scale == 1 ? "pictures" : "pictures/2x";
  std::vector<fs::path> names;
  for (const char* folder : {"pair", "tile", "mask", "panel"}) {
    for (const auto& entry : fs::directory_iterator(data / pictures / folder)) {
      if (entry.path().extension() == ".png")
        names.push_back(entry.path().lexically_relative(data));
    }
  }
  std::sort(names.begin(), names.end());
  const std::set<std::string> menu = picturesOfMenu();
  Bytes first;
  Bytes rest;
  for (const fs::path& name : names) {
    const bool wanted = name.parent_path().filename() == "panel" && menu.contains(name.stem());
    if (!putPicture(wanted ? first : rest, data, name, error)) return false;
  }
  const std::string ending = std::to_string(scale) + ".pack";
  return putLetters(first, data, scale, error) && write(out / ("menu" + ending), first, error) &&
         write(out / ("game" + ending), rest, error);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string scale = argc == 4 ? argv[2] : "";
  if (scale != "1" && scale != "2") {
    std::fprintf(stderr, "usage: vellmoran-bake DATA SCALE OUT\n");
    return 2;
  }
  std::string error;
  if (bake(argv[1], scale == "1" ? 1 : 2, argv[3], error)) return 0;
  std::fprintf(stderr, "vellmoran-bake: %s\n", error.c_str());
  return 1;
}
