// What the program works with. The realisations are chosen by whoever starts it: the game takes a real
// window and real sound, the driver and the tests take virtual ones.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "map/picture_set.h"
#include "platform/clock.h"
#include "platform/display.h"
#include "platform/font.h"
#include "platform/media.h"
#include "platform/random.h"

namespace shell {

/// The pictures of panels and screens, by the name of their file.
class ImageSet {
 public:
  /// Loads every picture that the two screens name from `folder`. False, with the file's name and what
  /// is wrong in `error`.
  bool load(const std::string& folder, std::string& error);
  /// Null where there is none of that name.
  const platform::Surface* find(std::string_view name) const;

 private:
  std::map<std::string, platform::Surface, std::less<>> images_;
};

/// Everything that is read from the data folder before the program starts.
struct Assets {
  std::unique_ptr<platform::Font> font;
  map::PictureSet pictures;
  ImageSet images;

  bool load(const std::string& dataFolder, std::string& error);
};

struct Services {
  platform::Clock& clock;
  platform::Random& random;        // draws of rules
  platform::Random& walkerRandom;  // draws of decoration
  platform::Media& media;
  platform::Display& display;
  Assets& assets;
  std::string programFolder;  // where games, progress and sounds lie
  /// Lets events that wait at the window in, in the middle of a handler. May be empty.
  std::function<void()> letEventsIn;
};

}  // namespace shell
