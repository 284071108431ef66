// The files a batch run writes. Each is opened before the first tick as a
// temporary file beside its name, so that a file that cannot be written stops
// the run at once, and renamed into place only by Commit once it is whole:
// a failed or interrupted run leaves every earlier file as it was.
#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <streambuf>
#include <string>

#include <QImage>
#include <QSaveFile>

#include "app/headless/HeadlessOptions.h"

namespace keldor::headless {

// A std::ostream's buffer over a Qt device.
class DeviceStreamBuffer : public std::streambuf {
 public:
  explicit DeviceStreamBuffer(QIODevice& device);
  DeviceStreamBuffer(const DeviceStreamBuffer&) = delete;
  DeviceStreamBuffer& operator=(const DeviceStreamBuffer&) = delete;

 protected:
  int_type overflow(int_type ch) override;
  int sync() override;

 private:
  QIODevice& device_;
  char buffer_[1 << 16];
};

class OutputFiles {
 public:
  // Opens every file the options name and makes the frames folder; returns
  // the message naming the option of the first one that cannot be written.
  std::optional<std::string> Open(const HeadlessOptions& options);

  // Null when the run writes no such file.
  QSaveFile* Json() { return json_.get(); }
  std::ostream* Csv() { return csvStream_.get(); }
  QSaveFile* Png() { return png_.get(); }
  bool WritesFrames() const { return !framesDir_.isEmpty(); }

  // Writes the frame of tick `tick` whole into the frames folder.
  std::optional<std::string> WriteFrame(int64_t tick, const QImage& frame) const;

  // Renames every written file into place; returns the message of the first
  // that fails.
  std::optional<std::string> Commit();

 private:
  std::unique_ptr<QSaveFile> json_;
  std::unique_ptr<QSaveFile> csv_;
  std::unique_ptr<DeviceStreamBuffer> csvBuffer_;
  std::unique_ptr<std::ostream> csvStream_;
  std::unique_ptr<QSaveFile> png_;
  QString framesDir_;
};

}  // namespace keldor::headless
