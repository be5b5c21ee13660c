// Letters from the outlines of a font file.
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_MODULE_H
#include FT_OUTLINE_H

#include <cstring>

#include "platform/glyphs.h"

namespace platform {

namespace {

class FreeTypeGlyphs : public Glyphs {
 public:
  FreeTypeGlyphs() = default;
  FreeTypeGlyphs(const FreeTypeGlyphs&) = delete;
  FreeTypeGlyphs& operator=(const FreeTypeGlyphs&) = delete;
  ~FreeTypeGlyphs() override {
    if (face_ != nullptr) FT_Done_Face(face_);
    if (library_ != nullptr) FT_Done_FreeType(library_);
  }

  /// Null, or what is wrong.
  const char* open(const std::string& path);
  bool render(char32_t code, int height, int scale, Glyph& into) override;

 private:
  bool load(FT_UInt index, int pixels);

  FT_Library library_ = nullptr;
  FT_Face face_ = nullptr;
  int pixels_ = 0;  // the letter height that the face is set to
};

const char* FreeTypeGlyphs::open(const std::string& path) {
  if (FT_Init_FreeType(&library_) != 0) return "the text library does not start";
  // Bold letters at these sizes look half bold unless their stems are darkened.
  FT_Bool no = 0;
  FT_Property_Set(library_, "cff", "no-stem-darkening", &no);
  const FT_Error opened = FT_New_Face(library_, path.c_str(), 0, &face_);
  if (opened == FT_Err_Cannot_Open_Resource) return "cannot be opened";
  if (opened != 0) return "not a usable font";
  if (!FT_IS_SCALABLE(face_)) return "a font without outlines";
  return nullptr;
}

bool FreeTypeGlyphs::load(FT_UInt index, int pixels) {
  if (pixels_ != pixels) {
    FT_Set_Pixel_Sizes(face_, 0, static_cast<FT_UInt>(pixels));
    pixels_ = pixels;
  }
  return FT_Load_Glyph(face_, index, FT_LOAD_TARGET_NORMAL) == 0;
}

bool FreeTypeGlyphs::render(char32_t code, int height, int scale, Glyph& into) {
  const FT_UInt index = FT_Get_Char_Index(face_, code);
  if (index == 0 || !load(index, height)) return false;
  into.advance = static_cast<int>((face_->glyph->advance.x + 32) >> 6);
  if (scale > 1) {
    if (!load(index, height * scale)) return false;
    // The advance was rounded at a scale of 1. What that added or took goes to both sides alike.
    const FT_Pos own = face_->glyph->linearHoriAdvance >> 10;
    FT_Outline_Translate(&face_->glyph->outline, (into.advance * scale * 64 - own) / 2, 0);
  }
  if (FT_Render_Glyph(face_->glyph, FT_RENDER_MODE_NORMAL) != 0 ||
      face_->glyph->bitmap.pixel_mode != FT_PIXEL_MODE_GRAY) {
    return false;
  }
  const FT_Bitmap& bitmap = face_->glyph->bitmap;
  into.left = face_->glyph->bitmap_left;
  into.top = face_->glyph->bitmap_top;
  into.width = static_cast<int>(bitmap.width);
  into.height = static_cast<int>(bitmap.rows);
  into.cover.resize(static_cast<std::size_t>(into.width * into.height));
  for (int y = 0; y < into.height && into.width > 0; ++y) {
    std::memcpy(&into.cover[y * into.width], bitmap.buffer + y * bitmap.pitch,
                static_cast<std::size_t>(into.width));
  }
  return true;
}

}  // namespace

std::unique_ptr<Glyphs> openGlyphs(const std::string& path, std::string& error) {
  auto glyphs = std::make_unique<FreeTypeGlyphs>();
  if (const char* wrong = glyphs->open(path)) {
    error = path + ": " + wrong;
    return nullptr;
  }
  return glyphs;
}

}  // namespace platform
