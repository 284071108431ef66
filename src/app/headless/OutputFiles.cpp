#include "app/headless/OutputFiles.h"

#include <QDir>
#include <QFileInfo>

namespace keldor::headless {

namespace {

std::string CannotWrite(const char* option, const QString& path, const QString& reason) {
  return std::string("--") + option + ": cannot write '" + path.toStdString() + "': " + reason.toStdString();
}

std::optional<std::string> OpenSaveFile(const char* option, const std::string& name, std::unique_ptr<QSaveFile>& file) {
  if (name.empty()) return std::nullopt;
  const QString path = QString::fromStdString(name);
  file = std::make_unique<QSaveFile>(path);
  if (!file->open(QIODevice::WriteOnly)) return CannotWrite(option, path, file->errorString());
  return std::nullopt;
}

}  // namespace

DeviceStreamBuffer::DeviceStreamBuffer(QIODevice& device) : device_(device) {
  setp(buffer_, buffer_ + sizeof buffer_);
}

DeviceStreamBuffer::int_type DeviceStreamBuffer::overflow(int_type ch) {
  if (sync() != 0) return traits_type::eof();
  if (!traits_type::eq_int_type(ch, traits_type::eof())) {
    *pptr() = traits_type::to_char_type(ch);
    pbump(1);
  }
  return traits_type::not_eof(ch);
}

int DeviceStreamBuffer::sync() {
  const qint64 size = pptr() - pbase();
  if (size > 0 && device_.write(pbase(), size) != size) return -1;
  setp(buffer_, buffer_ + sizeof buffer_);
  return 0;
}

std::optional<std::string> OutputFiles::Open(const HeadlessOptions& options) {
  if (auto problem = OpenSaveFile("json", options.JsonPath, json_)) return problem;
  if (auto problem = OpenSaveFile("csv", options.CsvPath, csv_)) return problem;
  if (csv_) {
    csvBuffer_ = std::make_unique<DeviceStreamBuffer>(*csv_);
    csvStream_ = std::make_unique<std::ostream>(csvBuffer_.get());
  }
  if (auto problem = OpenSaveFile("png", options.PngPath, png_)) return problem;
  if (!options.FramesDir.empty()) {
    const QString framesDir = QString::fromStdString(options.FramesDir);
    const QFileInfo dir(framesDir);
    if (dir.exists() && !dir.isDir()) return CannotWrite("frames", framesDir, "not a folder");
    if (!QDir().mkpath(framesDir)) return CannotWrite("frames", framesDir, "cannot make the folder");
    framesDir_ = framesDir;
  }
  return std::nullopt;
}

std::optional<std::string> OutputFiles::WriteFrame(int64_t tick, const QImage& frame) const {
  const QString path = QDir(framesDir_).filePath(QString("frame-%1.png").arg(tick, 6, 10, QChar('0')));
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || !frame.save(&file, "PNG") || !file.commit()) {
    return CannotWrite("frames", path, file.errorString());
  }
  return std::nullopt;
}

std::optional<std::string> OutputFiles::Commit() {
  if (csvStream_ && !csvStream_->flush()) return CannotWrite("csv", csv_->fileName(), csv_->errorString());
  const std::pair<const char*, QSaveFile*> files[] = {{"json", json_.get()}, {"csv", csv_.get()}, {"png", png_.get()}};
  for (const auto& [option, file] : files) {
    if (file != nullptr && !file->commit()) return CannotWrite(option, file->fileName(), file->errorString());
  }
  return std::nullopt;
}

}  // namespace keldor::headless
