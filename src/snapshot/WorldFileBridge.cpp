// Interim: the world file API over the Qt JSON reader and writer.
#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

#include "model/World.h"
#include "snapshot/SnapshotFile.h"
#include "snapshot/SnapshotRead.h"
#include "window/WindowState.h"
#include "worldfile/WorldFile.h"
#include "worldfile/WorldFileIo.h"

namespace keldor {

std::string WorldFileText(const World& world, const WindowRecord& window, const ResumeState& resume) {
  WindowState state;
  static_cast<WindowRecord&>(state) = window;
  return SnapshotText(world, state, resume).toStdString();
}

std::optional<std::string> ReadWorldFileText(std::string_view text, World& world, WindowRecord& window,
                                             ResumeState& resume) {
  WindowState state;
  auto fault = ReadSnapshot(QByteArray(text.data(), static_cast<qsizetype>(text.size())), world, state, resume);
  window = state;
  return fault;
}

std::optional<std::string> ReadWorldFile(const std::string& path, World& world, WindowRecord& window,
                                         ResumeState& resume) {
  WindowState state;
  auto fault = ReadSnapshotFile(QString::fromStdString(path), world, state, resume);
  window = state;
  return fault;
}

std::optional<std::string> WriteWorldFile(const std::string& path, const World& world, const WindowRecord& window,
                                          const ResumeState& resume) {
  WindowState state;
  static_cast<WindowRecord&>(state) = window;
  return WriteSnapshotFile(QString::fromStdString(path), world, state, resume);
}

}  // namespace keldor
