#include "worldfile/WorldFileIo.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "worldfile/WorldFile.h"

namespace keldor {

namespace {

std::string Quoted(const std::string& path) { return "'" + path + "'"; }

std::string SystemError() { return std::strerror(errno); }

// Writes all of text to fd, then flushes it to disk.
bool WriteAll(int fd, const std::string& text) {
  size_t done = 0;
  while (done < text.size()) {
    const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    done += static_cast<size_t>(n);
  }
  return ::fsync(fd) == 0;
}

// The mode a new file gets: the earlier file's, or what the umask leaves.
mode_t NewFileMode(const std::string& path) {
  struct stat earlier {};
  if (::stat(path.c_str(), &earlier) == 0) return earlier.st_mode & 07777;
  const mode_t mask = ::umask(022);
  ::umask(mask);
  return 0666 & ~mask;
}

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
  const std::string text = WorldFileText(world, window, resume);
  std::string temporary = path + ".XXXXXX";
  const mode_t mode = NewFileMode(path);
  const int fd = ::mkstemp(temporary.data());
  if (fd < 0) return "cannot write " + Quoted(path) + ": " + SystemError();
  std::string reason;
  if (::fchmod(fd, mode) != 0 || !WriteAll(fd, text)) reason = SystemError();
  if (::close(fd) != 0 && reason.empty()) reason = SystemError();
  if (reason.empty() && ::rename(temporary.c_str(), path.c_str()) != 0) reason = SystemError();
  if (!reason.empty()) {
    ::unlink(temporary.c_str());
    return "cannot write " + Quoted(path) + ": " + reason;
  }
  return std::nullopt;
}

}  // namespace keldor
