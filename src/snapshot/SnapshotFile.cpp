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

void TakeOverWorld(World& world, WindowState& window, World&& loaded, WindowState&& loadedWindow) {
  ControlState controls = window.Controls;
  std::swap(controls.ActionTops[static_cast<size_t>(window.View.CurrentTool)],
            controls.ActionTops[static_cast<size_t>(loadedWindow.View.CurrentTool)]);
  controls.CrossHairPointer = loadedWindow.View.CurrentTool != NoTool;
  controls.WorldControlsEnabled = loadedWindow.TimerEnabled;
  controls.StopToolTip = loaded.Running ? "Pause" : "Play";
  controls.StopImage = loaded.Running ? PlayPauseImage::Pause : PlayPauseImage::Play;
  controls.OdorToolTip = loadedWindow.View.ShowOdor != 0 ? "Hide Odor Traces" : "Show Odor Traces";
  controls.AntsToolTip = loadedWindow.View.ShowAnts != 0 ? "Hide ants" : "Show ants";
  controls.PopulationCaption = CStr(loaded.Settings.Population);
  loadedWindow.Controls = std::move(controls);
  loadedWindow.View.InfoVisible = window.View.InfoVisible;
  loadedWindow.PendingGridSize = window.PendingGridSize;
  world = std::move(loaded);
  window = std::move(loadedWindow);
  CollapsePalette(window);
}

}  // namespace keldor
