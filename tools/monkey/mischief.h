// What the monkey does to the files of the program behind its back: games are damaged, copied, made
// rich, moved to another month or mission, handed over as cities won; progress is raised or spoilt.
#pragma once

#include <set>
#include <string>

#include "monkey/chance.h"

namespace monkey {

class Mischief {
 public:
  Mischief(Chance& chance, std::string folder) : chance_(chance), folder_(std::move(folder)) {}

  /// Does something to a file. Says what, for the record.
  std::string play();
  /// Whether the numbers of this game need not fit one another: it has been damaged, or was made
  /// from one that was.
  bool spoilt(const std::string& name) const { return spoilt_.contains(name); }
  /// The game was saved from a city that is spoilt, or sound.
  void saved(const std::string& name, bool spoilt);

 private:
  std::string damage();
  std::string copyGame();
  std::string enrich();
  std::string progress();
  std::string anyGame();
  bool read(const std::string& name, std::string& text) const;
  void write(const std::string& name, const std::string& text) const;

  Chance& chance_;
  std::string folder_;
  std::set<std::string> spoilt_;
};

}  // namespace monkey
