#include "shell/services.h"

#include "core/game_controls.h"
#include "platform/png.h"
#include "shell/menu_controls.h"

namespace shell {

bool ImageSet::load(const std::string& folder, std::string& error) {
  std::vector<std::pair<const char*, platform::Size>> wanted{
      {kMenuBackground, {platform::kScreenWidth, platform::kScreenHeight}}};
  for (const auto table : {core::gameControls(), menuControls()}) {
    for (const platform::ControlDesign& row : table) {
      if (row.image != nullptr) wanted.push_back({row.image, {row.place.width, row.place.height}});
    }
  }
  for (const auto& [name, size] : wanted) {
    if (images_.contains(name)) continue;
    platform::Surface surface;
    const std::string path = folder + "/" + name + ".png";
    if (!platform::readPng(path, surface, error)) return false;
    if (surface.width() > size.width || surface.height() > size.height) {
      error = path + ": the picture is larger than its place";
      return false;
    }
    images_.emplace(name, std::move(surface));
  }
  return true;
}

const platform::Surface* ImageSet::find(std::string_view name) const {
  const auto found = images_.find(name);
  return found == images_.end() ? nullptr : &found->second;
}

bool Assets::load(const std::string& dataFolder, std::string& error) {
  font = platform::Font::open(dataFolder + "/font.otf", error);
  return font != nullptr && images.load(dataFolder + "/pictures/panel", error) &&
         map::loadPictures(pictures, dataFolder + "/pictures", error);
}

}  // namespace shell
