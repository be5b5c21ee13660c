#include "shell/services.h"

#include "play/game_controls.h"
#include "shell/menu_controls.h"

namespace shell {

namespace {

bool fits(const std::string& path, const platform::Surface& surface, platform::Size largest,
          std::string& error) {
  if (surface.width() <= largest.width && surface.height() <= largest.height) return true;
  error = path + ": the picture is larger than its place";
  return false;
}

}  // namespace

bool ImageSet::load(const std::string& folder, const char* name, platform::Size largest,
                    std::string& error) {
  if (images_.contains(name)) return true;
  platform::Surface surface;
  const std::string path = folder + "/" + name + ".png";
  if (!platform::readPng(path, surface, error, scale_)) return false;
  if (!fits(path, surface, largest, error)) return false;
  images_.emplace(name, std::move(surface));
  return true;
}

bool ImageSet::load(std::span<const platform::ControlDesign> table, const std::string& folder,
                    std::string& error) {
  for (const platform::ControlDesign& row : table) {
    if (row.image == nullptr) continue;
    if (!load(folder, row.image, {row.place.width, row.place.height}, error)) return false;
  }
  return true;
}

bool ImageSet::loadMenu(const std::string& folder, std::string& error) {
  return load(menuControls(), folder, error);
}

bool ImageSet::loadGame(const std::string& folder, std::string& error) {
  return load(play::gameControls(), folder, error);
}

void ImageSet::beginMenuBackground(const std::string& folder) {
  if (!images_.try_emplace(kMenuBackground).second) return;
  menuPath_ = folder + "/" + kMenuBackground + ".png";
  menuAhead_ = std::make_unique<platform::PngAhead>(menuPath_, scale_);
}

bool ImageSet::finishMenuBackground(std::string& error) {
  if (menuAhead_ == nullptr) return true;
  platform::Surface& surface = images_[kMenuBackground];
  const bool good = menuAhead_->take(surface, error);
  menuAhead_.reset();
  constexpr platform::Size kScreen{platform::kScreenWidth, platform::kScreenHeight};
  return good && fits(menuPath_, surface, kScreen, error);
}

void ImageSet::dropMenuBackground() {
  images_.erase(kMenuBackground);
}

const platform::Surface* ImageSet::find(std::string_view name) const {
  const auto found = images_.find(name);
  return found == images_.end() ? nullptr : &found->second;
}

void Assets::begin(const std::string& dataFolder) {
  folder_ = dataFolder + (scale() == 1 ? "/pictures" : "/pictures/2x");
  beginMenuBackground();
}

bool Assets::open(const std::string& dataFolder, std::string& error) {
  begin(dataFolder);
  font = platform::Font::open(dataFolder + "/font.otf", error, scale());
  const std::string panels = folder_ + "/panel";
  return font != nullptr && skin.load(panels, error, scale()) && images.loadMenu(panels, error);
}

bool Assets::complete() const {
  return panelsRead_ && picturesRead_ == map::pictureFiles().size();
}

bool Assets::readNext(std::string& error) {
  if (!panelsRead_) {
    panelsRead_ = images.loadGame(folder_ + "/panel", error);
    return panelsRead_;
  }
  if (complete()) return true;
  const map::PictureFile& file = map::pictureFiles()[picturesRead_];
  if (file.backdrop == core::Backdrop::none && !map::loadPicture(pictures, file, folder_, error)) {
    return false;
  }
  ++picturesRead_;
  return true;
}

bool Assets::readBackdrop(double mode, std::string& error) {
  const core::Mission* mission = core::missionOf(mode);
  const core::Backdrop backdrop = mission == nullptr ? core::Backdrop::none : mission->backdrop;
  return map::loadBackdrop(pictures, backdrop, folder_, error);
}

void Assets::beginMenuBackground() {
  images.beginMenuBackground(folder_ + "/panel");
}

bool Assets::finishMenuBackground(std::string& error) {
  return images.finishMenuBackground(error);
}

void Assets::dropMenuBackground() {
  if (scale() == 2) images.dropMenuBackground();
}

bool Assets::load(const std::string& dataFolder, std::string& error) {
  if (!open(dataFolder, error) || !finishMenuBackground(error)) return false;
  while (!complete()) {
    if (!readNext(error)) return false;
  }
  return true;
}

}  // namespace shell
