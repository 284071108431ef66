// Reading and writing world files on disk without a toolkit.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "worldfile/ResumeState.h"
#include "worldfile/WindowRecord.h"

namespace keldor {

struct World;

// Larger than the largest world a file can hold (a full grid walled cell by cell).
inline constexpr uintmax_t MaxWorldFileBytes = uintmax_t{256} << 20;

// Reads the file (refusing a directory, a device or one over
// MaxWorldFileBytes) into world, window and resume (freshly constructed);
// returns the fault naming the path and, for a bad document, the field.
std::optional<std::string> ReadWorldFile(const std::string& path, World& world, WindowRecord& window,
                                         ResumeState& resume);

// Writes the text to a temporary file beside `path`, flushes it to disk,
// then renames it over `path`: an earlier file stays intact on any failure.
// Returns the reason of a failure.
std::optional<std::string> WriteWorldFile(const std::string& path, const World& world, const WindowRecord& window,
                                          const ResumeState& resume);

}  // namespace keldor
