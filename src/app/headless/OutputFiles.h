// The files a batch run writes, opened (and so created or emptied) before the
// first tick, so that a file that cannot be written stops the run at once.
#pragma once

#include <fstream>
#include <memory>
#include <optional>
#include <string>

#include <QFile>

#include "app/headless/HeadlessOptions.h"

namespace keldor::headless {

class OutputFiles {
 public:
  // Opens every file the options name; returns the message naming the option
  // of the first one that cannot be opened for writing.
  std::optional<std::string> Open(const HeadlessOptions& options);

  // Null when the run writes no such file.
  QFile* Json() { return json_.get(); }
  std::ofstream* Csv() { return csv_.get(); }
  QFile* Png() { return png_.get(); }

 private:
  std::unique_ptr<QFile> json_;
  std::unique_ptr<std::ofstream> csv_;
  std::unique_ptr<QFile> png_;
};

}  // namespace keldor::headless
