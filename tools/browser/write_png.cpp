// Shots of the driver: PNG files of blocks that are stored, not compressed.
#include <string>

#include "platform/files.h"
#include "platform/png.h"

namespace platform {

namespace {

void put(std::string& into, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8) into += static_cast<char>(value >> shift);
}

std::uint32_t crc(std::string_view bytes) {
  std::uint32_t sum = 0xFFFFFFFFu;
  for (const char byte : bytes) {
    sum ^= static_cast<std::uint8_t>(byte);
    for (int bit = 0; bit < 8; ++bit) sum = sum >> 1 ^ ((sum & 1) != 0 ? 0xEDB88320u : 0);
  }
  return ~sum;
}

std::uint32_t adler(std::string_view bytes) {
  std::uint32_t a = 1;
  std::uint32_t b = 0;
  for (const char byte : bytes) {
    a = (a + static_cast<std::uint8_t>(byte)) % 65521;
    b = (b + a) % 65521;
  }
  return b << 16 | a;
}

void putChunk(std::string& into, std::string_view name, std::string_view content) {
  put(into, static_cast<std::uint32_t>(content.size()));
  const std::string checked = std::string(name) + std::string(content);
  into += checked;
  put(into, crc(checked));
}

std::string stored(std::string_view bytes) {
  constexpr std::size_t kLargest = 65535;
  std::string out = "\x78\x01";
  for (std::size_t at = 0; at < bytes.size(); at += kLargest) {
    const std::string_view block = bytes.substr(at, kLargest);
    out += static_cast<char>(at + kLargest >= bytes.size() ? 1 : 0);
    for (const std::size_t length : {block.size(), ~block.size()}) {
      out += static_cast<char>(length);
      out += static_cast<char>(length >> 8);
    }
    out += block;
  }
  put(out, adler(bytes));
  return out;
}

}  // namespace

bool writePng(const std::string& path, const Surface& surface, std::string& error) {
  const Rect pixels = surface.pixelBounds();
  std::string rows;
  for (int y = 0; y < pixels.height; ++y) {
    rows += '\0';  // no filter
    rows.append(reinterpret_cast<const char*>(surface.row(y)),
                static_cast<std::size_t>(pixels.width) * 3);
  }
  std::string head;
  put(head, static_cast<std::uint32_t>(pixels.width));
  put(head, static_cast<std::uint32_t>(pixels.height));
  head += std::string("\x08\x02\0\0\0", 5);  // 8 bits a channel, red, green and blue
  std::string file = "\x89PNG\r\n\x1A\n";
  putChunk(file, "IHDR", head);
  putChunk(file, "IDAT", stored(rows));
  putChunk(file, "IEND", "");
  return writeFile(path, file, error);
}

}  // namespace platform
