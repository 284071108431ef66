// Encounters: an ant in a crowded cell bites the first living ant of each
// foreign colony its head touches.
#pragma once

namespace keldor {

struct World;
struct Cell;
struct NeighbourSearch;

// Ant i of nest n, standing in cell, against the ants of every other colony.
void ResolveEncounter(World& world, Cell& cell, int nestIndex, int antIndex);

// The encounter phase: every living ant of every nest. With a search whose
// index is built, only the ants near each biter are tested, with the same
// bites in the same order.
void ResolveEncounters(World& world, NeighbourSearch* search);

}  // namespace keldor
