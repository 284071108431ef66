// A world file's document as a Qt JSON object, for the window tests that
// compare worlds field by field.
#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "worldfile/WorldFile.h"

namespace keldor {

inline QJsonObject StateJson(const World& world, const WindowRecord& window, const ResumeState& resume) {
  return QJsonDocument::fromJson(QByteArray::fromStdString(WorldFileText(world, window, resume))).object();
}

}  // namespace keldor
