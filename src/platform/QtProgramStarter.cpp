#include "platform/QtProgramStarter.h"

#include <QFileInfo>
#include <QProcess>

namespace keldor {

bool QtProgramStarter::FileExists(const std::string& path) { return QFileInfo::exists(QString::fromStdString(path)); }

bool QtProgramStarter::Start(const std::string& path) {
  return QProcess::startDetached(QString::fromStdString(path), {});
}

}  // namespace keldor
