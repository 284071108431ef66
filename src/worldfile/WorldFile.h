// World files: the whole state of a world as a JSON document (every setting
// and kept window field by name, the cells, nests with their ants, food piles
// and walls with every record field, and what an exact resumption needs
// beyond the world), and reading one back with every field checked. Same
// world, same text; a text read back is the same world. The fields are
// described once, in WorldFields.h.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "worldfile/ResumeState.h"
#include "worldfile/WindowRecord.h"

namespace keldor {

struct World;

// Version of the document's layout, written as "FormatVersion".
inline constexpr int WorldFileFormatVersion = 1;

std::string WorldFileText(const World& world, const WindowRecord& window, const ResumeState& resume);

// Reads text into world, window and resume (freshly constructed); returns the
// fault naming the first bad field ("Nests[0].Ants[3].CellX: ...") when the
// text is not a whole, valid world of this format version.
std::optional<std::string> ReadWorldFileText(std::string_view text, World& world, WindowRecord& window,
                                             ResumeState& resume);

}  // namespace keldor
