// Letters from a pack.
#include "platform/browser/pack.h"
#include "platform/glyphs.h"

namespace platform {

namespace {

class PackedGlyphs : public Glyphs {
 public:
  bool render(char32_t code, int height, int scale, Glyph& into) override {
    return packedLetter(code, height, scale, into);
  }
};

}  // namespace

std::unique_ptr<Glyphs> openGlyphs(const std::string& path, std::string& error) {
  Glyph letter;
  auto glyphs = std::make_unique<PackedGlyphs>();
  if (glyphs->render('H', 12, 1, letter)) return glyphs;
  error = path + ": has not come from the server";
  return nullptr;
}

}  // namespace platform
