// An output file replaced whole or not at all. Its bytes go to a temporary
// file beside it, every write checked to its last byte; Commit flushes the
// temporary file to disk and renames it over the name. An uncommitted file
// (a failed or interrupted run) is removed and the earlier file stays as it was.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace keldor {

class ReplacingFile {
 public:
  ReplacingFile() = default;
  ~ReplacingFile();
  ReplacingFile(const ReplacingFile&) = delete;
  ReplacingFile& operator=(const ReplacingFile&) = delete;

  // Makes the temporary file. Refuses a name that is there but not a regular
  // file (a device, FIFO or folder: renaming over it would replace it).
  // Returns the reason it cannot be written.
  std::optional<std::string> Open(const std::string& path);
  // False from the first write that did not write every byte on.
  bool Write(std::string_view bytes);
  // Flushes, closes and renames into place; returns the reason of the first
  // failure of any step, a write's included.
  std::optional<std::string> Commit();

  const std::string& Path() const { return path_; }

 private:
  void Discard();

  std::string path_;
  std::string temporary_;
  int fd_ = -1;
  std::string error_;  // of the first failed write
};

// The reason a path named as an output cannot be one: it is there and is not
// a regular file. Nothing when it is a regular file or not there.
std::optional<std::string> NotARegularFile(const std::string& path);

}  // namespace keldor
