// Editing the world on the cell under the pointer: food, plaster bricks, ants
// and nests. The terrain tools call these on mouse presses and drags; the tick
// calls the held-button ones (ant removal, food adjustment) once per tick.
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

// Removes wall i when it stands on the (unclamped) cell under the pointer.
bool RemoveWallAtCursor(World& world, int wallIndex);

// Removes the living workers standing on the cursor cell (never a queen,
// never a dead ant), dropping their loads on the cell. Returns how many went.
int16_t RemoveAntsAtCursor(World& world, RandomSource& random);

// Grows (left button) or shrinks (right button) food pile i when it lies on
// the cell under the pointer. Returns its new amount when it matched.
std::optional<double> AdjustFoodAtCursor(World& world, int pileIndex);

// Removes the first nest on the cursor cell: its store and its living ants'
// loads fall on the cell as food; its living ants leave the population.
void RemoveNestAtCursor(World& world, RandomSource& random);

}  // namespace keldor
