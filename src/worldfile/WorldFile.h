// World state files: the JSON text of a world with the window fields and
// resume state saved beside it, and reading such a text into a fresh world.
// Toolkit-free; reader and writer work from one description of the fields.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "worldfile/ResumeState.h"

namespace keldor {

struct World;
struct WindowRecord;

// The file's format version, written as FormatVersion.
inline constexpr int WorldFileFormatVersion = 1;

std::string WorldFileText(const World& world, const WindowRecord& window, const ResumeState& resume);

// Reads `text` into `world`, `window` and `resume` (freshly constructed);
// returns the fault naming the first bad field ("Nests[0].Ants[3].CellX: ...").
std::optional<std::string> ReadWorldFileText(std::string_view text, World& world, WindowRecord& window,
                                             ResumeState& resume);

}  // namespace keldor
