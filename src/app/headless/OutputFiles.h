// The files a batch run writes. Each is opened before the first tick as a
// temporary file beside its name (ReplacingFile), so that a file that cannot
// be written stops the run at once, and renamed into place only by Commit
// once it is whole and on disk: a failed or interrupted run leaves every
// earlier file as it was.
#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <streambuf>
#include <string>

#include <QImage>

#include "app/headless/HeadlessOptions.h"
#include "worldfile/ReplacingFile.h"

namespace keldor::headless {

// A std::ostream's buffer over a replacing file; a failed write fails the stream.
class FileStreamBuffer : public std::streambuf {
 public:
  explicit FileStreamBuffer(ReplacingFile& file);
  FileStreamBuffer(const FileStreamBuffer&) = delete;
  FileStreamBuffer& operator=(const FileStreamBuffer&) = delete;

 protected:
  int_type overflow(int_type ch) override;
  int sync() override;

 private:
  ReplacingFile& file_;
  char buffer_[1 << 16];
};

// Writes an image as PNG; false when encoding or writing failed.
bool WritePng(ReplacingFile& file, const QImage& image);

class OutputFiles {
 public:
  // Opens every file the options name and makes the frames folder; returns
  // the message naming the option of the first one that cannot be written,
  // or that names the input world or another output.
  std::optional<std::string> Open(const HeadlessOptions& options);

  // Null when the run writes no such file.
  ReplacingFile* Json() { return json_.get(); }
  std::ostream* Csv() { return csvStream_.get(); }
  ReplacingFile* Png() { return png_.get(); }
  bool WritesFrames() const { return !framesDir_.empty(); }

  // Writes the frame of tick `tick` whole into the frames folder.
  std::optional<std::string> WriteFrame(int64_t tick, const QImage& frame) const;

  // Renames every written file into place; returns the message of the first
  // that fails.
  std::optional<std::string> Commit();

 private:
  std::unique_ptr<ReplacingFile> json_;
  std::unique_ptr<ReplacingFile> csv_;
  std::unique_ptr<FileStreamBuffer> csvBuffer_;
  std::unique_ptr<std::ostream> csvStream_;
  std::unique_ptr<ReplacingFile> png_;
  std::string framesDir_;
};

}  // namespace keldor::headless
