// What the page does for the program. The functions are the imports of the WebAssembly module; their
// other side is packaging/browser/site/machine.js.
#pragma once

#include <cstdint>

#define VELLMORAN_IMPORT(name) __attribute__((import_module("page"), import_name(name)))

extern "C" {

/// Milliseconds that the page has been visible, and nanoseconds of any clock.
VELLMORAN_IMPORT("milliseconds") double pageMilliseconds();
VELLMORAN_IMPORT("ticks") double pageTicks();

/// Shows pixels of red, green, blue and 255 at a place of the picture.
VELLMORAN_IMPORT("show")
void pageShow(const std::uint8_t* pixels, int x, int y, int width, int height);
VELLMORAN_IMPORT("message") void pageMessage(const char* title, const char* text);

/// Puts text on the clipboard that other programs share.
VELLMORAN_IMPORT("copy") void pageCopy(const char* text, int length);

/// Keeps a file for the next visit; a null pointer forgets it.
VELLMORAN_IMPORT("keep")
void pageKeep(const char* path, int pathLength, const char* bytes, int length);

/// Plays a cue by its number; opens, plays and closes a theme. Each returns whether it could.
VELLMORAN_IMPORT("cue") int pageCue(int number);
VELLMORAN_IMPORT("openTheme") int pageOpenTheme(int number);
VELLMORAN_IMPORT("playTheme") int pagePlayTheme();
VELLMORAN_IMPORT("closeTheme") void pageCloseTheme();
}
