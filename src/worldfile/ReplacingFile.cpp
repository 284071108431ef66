#include "worldfile/ReplacingFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace keldor {

namespace {

std::string SystemError() { return std::strerror(errno); }

// The mode a new file gets: the earlier file's, or what the umask leaves.
mode_t NewFileMode(const std::string& path) {
  struct stat earlier {};
  if (::stat(path.c_str(), &earlier) == 0) return earlier.st_mode & 07777;
  const mode_t mask = ::umask(022);
  ::umask(mask);
  return 0666 & ~mask;
}

}  // namespace

std::optional<std::string> NotARegularFile(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return std::nullopt;
  if (S_ISDIR(status.st_mode)) return "it is a folder";
  if (!S_ISREG(status.st_mode)) return "not a regular file";
  return std::nullopt;
}

ReplacingFile::~ReplacingFile() { Discard(); }

void ReplacingFile::Discard() {
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
  if (!temporary_.empty()) ::unlink(temporary_.c_str());
  temporary_.clear();
}

std::optional<std::string> ReplacingFile::Open(const std::string& path) {
  Discard();
  path_ = path;
  error_.clear();
  if (auto problem = NotARegularFile(path)) return problem;
  const mode_t mode = NewFileMode(path);
  std::string temporary = path + ".XXXXXX";
  fd_ = ::mkstemp(temporary.data());
  if (fd_ < 0) return SystemError();
  temporary_ = temporary;
  if (::fchmod(fd_, mode) != 0) {
    const std::string reason = SystemError();
    Discard();
    return reason;
  }
  return std::nullopt;
}

bool ReplacingFile::Write(std::string_view bytes) {
  if (!error_.empty() || fd_ < 0) return false;
  while (!bytes.empty()) {
    const ssize_t n = ::write(fd_, bytes.data(), bytes.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      error_ = n < 0 ? SystemError() : "nothing written";
      return false;
    }
    bytes.remove_prefix(static_cast<size_t>(n));
  }
  return true;
}

std::optional<std::string> ReplacingFile::Commit() {
  if (fd_ < 0) return "not open";
  std::string reason = error_;
  if (reason.empty() && ::fsync(fd_) != 0) reason = SystemError();
  if (::close(fd_) != 0 && reason.empty()) reason = SystemError();
  fd_ = -1;
  // A name that became a device, FIFO or folder since Open is not replaced.
  if (reason.empty()) reason = NotARegularFile(path_).value_or("");
  if (reason.empty() && ::rename(temporary_.c_str(), path_.c_str()) != 0) reason = SystemError();
  if (!reason.empty()) {
    Discard();
    return reason;
  }
  temporary_.clear();
  return std::nullopt;
}

}  // namespace keldor
