#include "app/headless/OutputFiles.h"

#include <unistd.h>

#include <filesystem>
#include <string_view>
#include <utility>

#include <QBuffer>
#include <QByteArray>
#include <QString>

namespace keldor::headless {

namespace {

std::string CannotWrite(const char* option, const std::string& path, const std::string& reason) {
  return std::string("--") + option + ": cannot write '" + path + "': " + reason;
}

std::optional<std::string> OpenFile(const char* option, const std::string& path, std::unique_ptr<ReplacingFile>& file) {
  if (path.empty()) return std::nullopt;
  file = std::make_unique<ReplacingFile>();
  if (auto reason = file->Open(path)) return CannotWrite(option, path, *reason);
  return std::nullopt;
}

// Whether two names are one file: the same name, or both there and the same file.
bool SameFile(const std::string& a, const std::string& b) {
  if (a.empty() || b.empty()) return false;
  std::error_code error;
  return std::filesystem::absolute(a, error).lexically_normal() == std::filesystem::absolute(b, error).lexically_normal() ||
         std::filesystem::equivalent(a, b, error);
}

// The message for the first two of the named files that are one. A world
// file may replace the world it was loaded from: it is read whole first.
std::optional<std::string> SharedName(const std::pair<const char*, std::string> (&names)[5]) {
  for (size_t i = 0; i < std::size(names); ++i) {
    for (size_t j = i + 1; j < std::size(names); ++j) {
      const bool worldReplacesItself = std::string_view(names[i].first) == "load" && std::string_view(names[j].first) == "json";
      if (!worldReplacesItself && SameFile(names[i].second, names[j].second)) {
        return std::string("--") + names[j].first + ": names the same file as --" + names[i].first + " ('" +
               names[j].second + "')";
      }
    }
  }
  return std::nullopt;
}

}  // namespace

FileStreamBuffer::FileStreamBuffer(ReplacingFile& file) : file_(file) { setp(buffer_, buffer_ + sizeof buffer_); }

FileStreamBuffer::int_type FileStreamBuffer::overflow(int_type ch) {
  if (sync() != 0) return traits_type::eof();
  if (!traits_type::eq_int_type(ch, traits_type::eof())) {
    *pptr() = traits_type::to_char_type(ch);
    pbump(1);
  }
  return traits_type::not_eof(ch);
}

int FileStreamBuffer::sync() {
  const auto size = static_cast<size_t>(pptr() - pbase());
  if (size > 0 && !file_.Write({pbase(), size})) return -1;
  setp(buffer_, buffer_ + sizeof buffer_);
  return 0;
}

bool WritePng(ReplacingFile& file, const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG") &&
         file.Write({bytes.constData(), static_cast<size_t>(bytes.size())});
}

std::optional<std::string> OutputFiles::Open(const HeadlessOptions& options) {
  const std::pair<const char*, std::string> names[] = {{"load", options.LoadPath},
                                                        {"json", options.JsonPath},
                                                        {"csv", options.CsvPath},
                                                        {"png", options.PngPath},
                                                        {"frames", options.FramesDir}};
  if (auto shared = SharedName(names)) return shared;
  if (auto problem = OpenFile("json", options.JsonPath, json_)) return problem;
  if (auto problem = OpenFile("csv", options.CsvPath, csv_)) return problem;
  if (csv_) {
    csvBuffer_ = std::make_unique<FileStreamBuffer>(*csv_);
    csvStream_ = std::make_unique<std::ostream>(csvBuffer_.get());
  }
  if (auto problem = OpenFile("png", options.PngPath, png_)) return problem;
  if (!options.FramesDir.empty()) {
    const std::string& dir = options.FramesDir;
    std::error_code error;
    if (std::filesystem::exists(dir, error) && !std::filesystem::is_directory(dir, error)) {
      return CannotWrite("frames", dir, "not a folder");
    }
    std::filesystem::create_directories(dir, error);
    if (error) return CannotWrite("frames", dir, "cannot make the folder: " + error.message());
    if (::access(dir.c_str(), W_OK | X_OK) != 0) return CannotWrite("frames", dir, "the folder is not writable");
    framesDir_ = dir;
  }
  return std::nullopt;
}

std::optional<std::string> OutputFiles::WriteFrame(int64_t tick, const QImage& frame) const {
  const std::string path =
      (std::filesystem::path(framesDir_) / QString("frame-%1.png").arg(tick, 6, 10, QChar('0')).toStdString()).string();
  ReplacingFile file;
  std::optional<std::string> reason = file.Open(path);
  if (!reason && !WritePng(file, frame)) reason = file.Commit().value_or("the image cannot be encoded");
  if (!reason) reason = file.Commit();
  if (reason) return CannotWrite("frames", path, *reason);
  return std::nullopt;
}

std::optional<std::string> OutputFiles::Commit() {
  if (csvStream_ && !csvStream_->flush()) return CannotWrite("csv", csv_->Path(), csv_->Commit().value_or("write failed"));
  const std::pair<const char*, ReplacingFile*> files[] = {{"json", json_.get()}, {"csv", csv_.get()}, {"png", png_.get()}};
  for (const auto& [option, file] : files) {
    if (file == nullptr) continue;
    if (auto reason = file->Commit()) return CannotWrite(option, file->Path(), *reason);
  }
  return std::nullopt;
}

}  // namespace keldor::headless
