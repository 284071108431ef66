// World state files: the document text of a world, reading a file into a
// fresh world, and handing a loaded world over to a running session.
#pragma once

#include <optional>
#include <string>

#include <QByteArray>
#include <QString>

#include "snapshot/ResumeState.h"

namespace keldor {

struct World;
struct WindowState;

QByteArray SnapshotText(const World& world, const WindowState& window, const ResumeState& resume);

// Writes the file whole through a temporary file beside it, so that a failed
// write leaves an earlier file as it was. Returns the reason of a failure.
std::optional<std::string> WriteSnapshotFile(const QString& path, const World& world, const WindowState& window,
                                             const ResumeState& resume);

// Reads the file into `world` and `window` (freshly constructed) and `resume`;
// returns the fault naming the file and the field.
std::optional<std::string> ReadSnapshotFile(const QString& path, World& world, WindowState& window,
                                            ResumeState& resume);

}  // namespace keldor
