// What the program works with. Its starter chooses the implementations: the game a real window and
// real sound, the driver and the tests virtual ones.
#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "map/picture_set.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/control.h"
#include "platform/display.h"
#include "platform/font.h"
#include "platform/media.h"
#include "platform/png.h"
#include "platform/random.h"
#include "platform/skin.h"

namespace shell {

/// The pictures of panels and screens, by the name of their file.
class ImageSet {
 public:
  /// Of pictures of one scale.
  explicit ImageSet(int scale) : scale_(scale) {}
  /// Loads the pictures that the menu names from `folder`, or those that the game screen names; what
  /// is there already is kept. False, with the file's name and what is wrong in `error`.
  bool loadMenu(const std::string& folder, std::string& error);
  bool loadGame(const std::string& folder, std::string& error);
  /// The picture behind the menu is the largest, so it is read beside other work: it is empty from
  /// `begin` to `finish`, and in memory until it is dropped. False as above.
  void beginMenuBackground(const std::string& folder);
  bool finishMenuBackground(std::string& error);
  void dropMenuBackground();
  /// Null where there is none of that name.
  const platform::Surface* find(std::string_view name) const;

 private:
  bool load(std::span<const platform::ControlDesign> table, const std::string& folder,
            std::string& error);
  bool load(const std::string& folder, const char* name, platform::Size largest,
            std::string& error);

  int scale_;
  std::string menuPath_;
  std::unique_ptr<platform::PngAhead> menuAhead_;
  std::map<std::string, platform::Surface, std::less<>> images_;
};

/// Everything that is read from the data folder. The menu needs a quarter of it: the rest is read
/// piece by piece behind its first picture.
class Assets {
 public:
  std::unique_ptr<platform::Font> font;
  platform::Skin skin;
  map::PictureSet pictures;
  ImageSet images;

  /// What is to be drawn at a scale of 1 or 2.
  explicit Assets(int scale = 1) : pictures(scale), images(scale) {}
  int scale() const { return pictures.scale(); }

  /// Begins to read from a folder: the largest picture, beside what the caller does next. `open`
  /// does so where it has not been done.
  void begin(const std::string& dataFolder);
  /// Reads what the menu shows. False, with the file's name and what is wrong in `error`.
  bool open(const std::string& dataFolder, std::string& error);
  /// Whether the pictures of the game are all there.
  bool complete() const;
  /// Reads the next piece of them, a few milliseconds of work. False as for `open`.
  bool readNext(std::string& error);
  /// Reads the backdrop of a mode, if it has one, in place of the last. False as for `open`.
  bool readBackdrop(double mode, std::string& error);
  /// The picture behind the menu is read while the menu's window opens. At a scale of 2 it has six
  /// megabytes, and is in memory only while the menu is open. False as for `open`.
  void beginMenuBackground();
  bool finishMenuBackground(std::string& error);
  void dropMenuBackground();
  /// Reads everything at once but the backdrops.
  bool load(const std::string& dataFolder, std::string& error);

 private:
  std::string folder_;
  bool panelsRead_ = false;
  std::size_t picturesRead_ = 0;
};

struct Services {
  platform::Clock& clock;
  platform::Random& random;        // draws of rules
  platform::Random& walkerRandom;  // draws of decoration
  platform::Media& media;
  platform::Display& display;
  Assets& assets;
  std::string programFolder;  // of games, progress and sounds
  /// Lets events that wait at the window in, in the middle of a handler. May be empty.
  std::function<void()> letEventsIn;
  /// Null where the program shares none with others.
  platform::Clipboard* clipboard = nullptr;
  /// Why nothing can be kept in that folder, for the menu to say once; empty where it can.
  std::string folderFault = {};
};

}  // namespace shell
