#include "app/headless/OutputFiles.h"

#include <cerrno>
#include <cstring>

namespace keldor::headless {

namespace {

std::string CannotWrite(const char* option, const QString& path, const std::string& reason) {
  return std::string("--") + option + ": cannot write '" + path.toStdString() + "': " + reason;
}

std::optional<std::string> OpenQFile(const char* option, const QString& path, std::unique_ptr<QFile>& file) {
  if (path.isEmpty()) return std::nullopt;
  file = std::make_unique<QFile>(path);
  if (!file->open(QIODevice::WriteOnly | QIODevice::Truncate)) return CannotWrite(option, path, file->errorString().toStdString());
  return std::nullopt;
}

}  // namespace

std::optional<std::string> OutputFiles::Open(const HeadlessOptions& options) {
  if (auto problem = OpenQFile("json", options.JsonPath, json_)) return problem;
  if (!options.CsvPath.isEmpty()) {
    csv_ = std::make_unique<std::ofstream>(options.CsvPath.toStdString(), std::ios::out | std::ios::trunc);
    if (!csv_->is_open()) return CannotWrite("csv", options.CsvPath, std::strerror(errno));
  }
  return OpenQFile("png", options.PngPath, png_);
}

}  // namespace keldor::headless
