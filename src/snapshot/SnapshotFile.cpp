#include "snapshot/SnapshotFile.h"

#include <utility>

#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

#include "window/Commands.h"
#include "model/Numeric.h"
#include "model/World.h"
#include "window/WindowState.h"
#include "snapshot/SnapshotRead.h"
#include "snapshot/StateJson.h"

namespace keldor {

QByteArray SnapshotText(const World& world, const WindowState& window, const ResumeState& resume) {
  return QJsonDocument(StateJson(world, window, resume)).toJson();
}

std::optional<std::string> WriteSnapshotFile(const QString& path, const World& world, const WindowState& window,
                                             const ResumeState& resume) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(SnapshotText(world, window, resume)) < 0 || !file.commit()) {
    return "cannot write '" + path.toStdString() + "': " + file.errorString().toStdString();
  }
  return std::nullopt;
}

std::optional<std::string> ReadSnapshotFile(const QString& path, World& world, WindowState& window,
                                            ResumeState& resume) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return "cannot read '" + path.toStdString() + "': " + file.errorString().toStdString();
  if (auto fault = ReadSnapshot(file.readAll(), world, window, resume)) return "'" + path.toStdString() + "': " + *fault;
  return std::nullopt;
}

}  // namespace keldor
