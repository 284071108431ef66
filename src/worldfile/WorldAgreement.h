// The rules that tie a world's records together, which a world file must
// keep as the tick keeps them: the population and every cell's ant count are
// the living ants (energy above 0) of all nests and of that cell, and every
// cell's objects are the walls standing on it.
#pragma once

#include <optional>
#include <string>

namespace keldor {

struct World;

// The first record that disagrees, named as in the file
// ("Cells[12].AntCount: ..."), or nothing.
std::optional<std::string> FindDisagreement(const World& world);

}  // namespace keldor
