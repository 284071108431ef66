// keldor-headless run inside the test process, and the files it wrote.
#pragma once

#include <sstream>

#include <QByteArray>
#include <QFile>
#include <QStringList>

#include "app/headless/HeadlessRun.h"

namespace keldor::headless {

struct InProcessRun {
  explicit InProcessRun(QStringList arguments) {
    std::vector<std::string> list{"keldor-headless"};
    for (const QString& argument : arguments) list.push_back(argument.toStdString());
    status = RunHeadless(list, out, err);
  }
  int status = -1;
  std::ostringstream out;
  std::ostringstream err;
};

inline QByteArray ReadAll(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace keldor::headless
