// A mayor: builds what a list wants, in the order of the list, and sets the tax.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "planner/campaign_player.h"
#include "planner/campaign_town.h"

namespace campaign {

struct Want {
  Tool tool;
  Cell at;
};
using Wants = std::vector<Want>;

enum ServiceNumber { kMarkets = 1, kSchools, kTaverns, kChurches, kDoctors };

class Mayor {
 public:
  Mayor(Player& player, const Town& town) : player_(player), town_(town) {}

  // Parts of a list.
  Wants homes(std::size_t from, std::size_t to) const;
  Wants farms(std::size_t from, std::size_t to) const;
  /// The n-th building of a service; nothing when the town has no such building.
  Wants service(int k, std::size_t n) const;
  /// A town from its beginning: the nearest homes, then what they lack, then the rest.
  Wants wholeTown() const;

  /// Builds what does not stand yet, streets included, until the treasury is empty. What the game does
  /// not offer yet is left out. After a disaster the same call builds anew.
  void work(const Wants& wants);

  /// Sets the highest tax at which as many people as wanted have room; 0 when none is low enough.
  void taxFor(double people);
  /// The full tax, or less while that brings the next kind of service.
  void taxForMilestone();

 private:
  bool provide(const Want& want);
  /// People that the houses would hold at a tax rate, as they are served now.
  double roomAt(int tax);

  Player& player_;
  const Town& town_;
};

Wants all(std::initializer_list<Wants> lists);
/// The list without what the test names.
Wants without(Wants wants, const std::function<bool(const Want&)>& test);

}  // namespace campaign
