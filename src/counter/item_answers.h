#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "src/counter/counter_settings.h"
#include "src/module/session.h"

namespace goods {

/// A packing type and how many packs of it a quantity makes, as the packing list shows them.
struct PackCount {
  std::string name;
  std::string count;
};

/// What a person asks about an item while it is entered: what is on its way, what the shop has. Each answer costs a statement an
/// item, and is given where the shop's settings want it.
class ItemAnswers {
 public:
  /// `session` outlives this object.
  explicit ItemAnswers(basGoodsRequest& session) : session_(session) {}

  void Use(CounterSettings settings) { settings_ = settings; }
  /// Whether any answer is ever given.
  bool AreWanted() const { return settings_.showRequested || settings_.showStock; }
  /// Asks about the item. Database errors are raised; the answers are then those that came before it.
  void Ask(std::int32_t itemId);
  void Forget();

  /// "Already requested: 12.000 in GR24/7 of 29/01/2024"; empty where there is nothing to tell.
  std::string Requested() const;
  /// "In the shop 3.000, reorder level 10.000"; empty where there is nothing to tell.
  std::string Stock() const;
  /// What speaks for the quantity: "shop 3, level 10, on its way 0, free in godowns 48: 12 = 1 carton". The free quantity is told
  /// where it is known, `available`; the packs are
  /// the largest that it fills. Empty where there is nothing to tell.
  std::string Explain(double quantity, const std::string& available, const std::vector<PackCount>& packs) const;

 private:
  struct InShop {
    double stock = 0;
    double reorderLevel = 0;
  };

  basGoodsRequest& session_;
  CounterSettings settings_;
  std::optional<double> onItsWay_;
  std::string requested_;
  std::optional<InShop> inShop_;
};

}  // namespace goods
