// Reading and writing world files on disk.
#pragma once

#include <optional>
#include <string>

#include "worldfile/ResumeState.h"

namespace keldor {

struct World;
struct WindowRecord;

// Reads the file and parses it; the fault names the path.
std::optional<std::string> ReadWorldFile(const std::string& path, World& world, WindowRecord& window,
                                         ResumeState& resume);

// Writes the text to a temporary file beside `path` and renames it over
// `path` when whole; an earlier file stays intact on any failure. Returns the
// reason of a failure.
std::optional<std::string> WriteWorldFile(const std::string& path, const World& world, const WindowRecord& window,
                                          const ResumeState& resume);

}  // namespace keldor
