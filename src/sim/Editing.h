// Editing the world on one cell: food, plaster bricks, ants and nests. The
// terrain tools call these on pointer presses and drags with the cell under
// the pointer; the tick calls the held-button ones (ant removal, food
// adjustment) once per tick.
#pragma once

#include <cstdint>
#include <optional>

namespace keldor {

struct World;
struct FoodPile;
class RandomSource;

// Appends a food pile on cell (x, y) with the given amount and a random
// spread budget of 1..8. The cell's Food is not written: the food-pile pass
// takes the pile's amount from its cell. Returns null when the list is full.
FoodPile* AppendFoodPile(World& world, RandomSource& random, int16_t x, int16_t y, double amount);

// Puts a plaster brick on cell (x, y): one record in Walls and a copy in the
// cell's Objects. Returns false, changing nothing, when a list is full.
bool AddWallAt(World& world, int16_t x, int16_t y);

// Removes wall i when it stands on cell (x, y), which may lie off the world.
bool RemoveWallAt(World& world, int wallIndex, double x, double y);

// Removes the living workers standing on world cell (x, y) (never a queen,
// never a dead ant), dropping their loads on the cell. Returns how many went.
int16_t RemoveAntsAt(World& world, RandomSource& random, int x, int y);

// Grows (button 1, left) or shrinks (button 2, right) food pile i when it
// lies on cell (x, y), which may lie off the world. Returns its new amount
// when it matched.
std::optional<double> AdjustFoodAt(World& world, int pileIndex, double x, double y, int button);

// Removes the first nest on world cell (x, y): its store and its living ants'
// loads fall on the cell as food; its living ants leave the population.
void RemoveNestAt(World& world, RandomSource& random, int x, int y);

}  // namespace keldor
