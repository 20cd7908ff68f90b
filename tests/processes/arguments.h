#pragma once

#include <random>

namespace processes {

/// What the test program was told: a short run in the usual tests, a long one by hand.
struct Arguments {
  unsigned seed = std::random_device()();  ///< --seed
  int actions = 100;                       ///< --actions: of each of several processes
  int saves = 10;                          ///< --saves: of each of several processes
  int kills = 20;                          ///< --kills
};

const Arguments& Given();

}  // namespace processes
