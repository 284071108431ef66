#include "worldfile/WorldFileIo.h"


#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "worldfile/ReplacingFile.h"
#include "worldfile/WorldFile.h"

namespace keldor {

namespace {

std::string Quoted(const std::string& path) { return "'" + path + "'"; }

std::string SystemError() { return std::strerror(errno); }

}  // namespace

std::optional<std::string> ReadWorldFile(const std::string& path, World& world, WindowRecord& window,
                                         ResumeState& resume) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  if (error) return "cannot read " + Quoted(path) + ": " + error.message();
  if (std::filesystem::is_directory(status)) return "cannot read " + Quoted(path) + ": it is a directory";
  if (!std::filesystem::is_regular_file(status)) return "cannot read " + Quoted(path) + ": not a regular file";
  const uintmax_t size = std::filesystem::file_size(path, error);
  if (error) return "cannot read " + Quoted(path) + ": " + error.message();
  if (size > MaxWorldFileBytes) {
    return "cannot read " + Quoted(path) + ": larger than " + std::to_string(MaxWorldFileBytes) + " bytes";
  }
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  if (!file || !(text << file.rdbuf())) return "cannot read " + Quoted(path) + ": " + SystemError();
  if (auto fault = ReadWorldFileText(text.str(), world, window, resume)) return Quoted(path) + ": " + *fault;
  return std::nullopt;
}

std::optional<std::string> WriteWorldFile(const std::string& path, const World& world, const WindowRecord& window,
                                          const ResumeState& resume) {
  ReplacingFile file;
  auto reason = file.Open(path);
  if (!reason) {
    file.Write(WorldFileText(world, window, resume));
    reason = file.Commit();
  }
  if (reason) return "cannot write " + Quoted(path) + ": " + *reason;
  return std::nullopt;
}

}  // namespace keldor
