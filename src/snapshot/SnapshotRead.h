// Reads a world state document back into a World. Every field is checked
// against its type and its range: counts and coordinates within 16 bits,
// list lengths against their counts, the cell list against the grid, every
// cell a record points at inside the grid. Nothing is read into a live world:
// the caller passes a fresh one and takes it over only when reading succeeds.
#pragma once

#include <optional>
#include <string>

#include <QByteArray>

#include "snapshot/ResumeState.h"

namespace keldor {

struct World;
struct WindowState;

// Fills `world` and `window` (freshly constructed) and `resume` from the
// document text.
// Returns the fault naming the field ("Nests[0].Ants[3].CellX: ...") when the
// text is not a whole, valid world state of this format version.
std::optional<std::string> ReadSnapshot(const QByteArray& text, World& world, WindowState& window,
                                        ResumeState& resume);

}  // namespace keldor
