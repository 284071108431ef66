#include "snapshot/SnapshotFile.h"

#include <utility>

#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

#include "model/Commands.h"
#include "model/Numeric.h"
#include "model/World.h"
#include "snapshot/SnapshotRead.h"
#include "snapshot/StateJson.h"

namespace keldor {

QByteArray SnapshotText(const World& world, const ResumeState& resume) {
  return QJsonDocument(StateJson(world, resume)).toJson();
}

std::optional<std::string> WriteSnapshotFile(const QString& path, const World& world, const ResumeState& resume) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(SnapshotText(world, resume)) < 0 || !file.commit()) {
    return "cannot write '" + path.toStdString() + "': " + file.errorString().toStdString();
  }
  return std::nullopt;
}

std::optional<std::string> ReadSnapshotFile(const QString& path, World& world, ResumeState& resume) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return "cannot read '" + path.toStdString() + "': " + file.errorString().toStdString();
  if (auto fault = ReadSnapshot(file.readAll(), world, resume)) return "'" + path.toStdString() + "': " + *fault;
  return std::nullopt;
}

void TakeOverWorld(World& session, World&& loaded) {
  ControlState controls = session.Controls;
  std::swap(controls.ActionTops[static_cast<size_t>(session.Settings.CurrentTool)],
            controls.ActionTops[static_cast<size_t>(loaded.Settings.CurrentTool)]);
  controls.CrossHairPointer = loaded.Settings.CurrentTool != NoTool;
  controls.WorldControlsEnabled = loaded.TimerEnabled;
  controls.StopToolTip = loaded.Running ? "Pause" : "Play";
  controls.StopImage = loaded.Running ? PlayPauseImage::Pause : PlayPauseImage::Play;
  controls.OdorToolTip = loaded.ShowOdor != 0 ? "Hide Odor Traces" : "Show Odor Traces";
  controls.AntsToolTip = loaded.ShowAnts != 0 ? "Hide ants" : "Show ants";
  controls.PopulationCaption = CStr(loaded.Settings.Population);
  loaded.Controls = std::move(controls);
  loaded.PendingGridSize = session.PendingGridSize;
  session = std::move(loaded);
  CollapsePalette(session);
}

}  // namespace keldor
