#include "app/sweep/ProgressBar.h"

#include <cstdio>
#include <string>

namespace keldor::sweep {

namespace {

constexpr int BarWidth = 30;
constexpr auto RedrawInterval = std::chrono::milliseconds(200);
constexpr const char* ClearLine = "\r\033[K";

std::string Duration(double seconds) {
  const auto s = static_cast<int64_t>(seconds + 0.5);
  char text[32];
  std::snprintf(text, sizeof text, "%lld:%02lld:%02lld", static_cast<long long>(s / 3600),
                static_cast<long long>(s / 60 % 60), static_cast<long long>(s % 60));
  return text;
}

}  // namespace

ProgressBar::ProgressBar(std::ostream& out, int64_t total, bool enabled)
    : out_(out), total_(total), enabled_(enabled && total > 0) {}

void ProgressBar::Update(int64_t done) {
  const Clock::time_point now = Clock::now();
  if (!enabled_ || (now - lastDrawn_ < RedrawInterval && done < total_)) return;
  lastDrawn_ = now;
  const double elapsed = std::chrono::duration<double>(now - start_).count();
  const auto filled = static_cast<int>(BarWidth * done / total_);
  std::string line = ClearLine;
  line += "[" + std::string(filled, '#') + std::string(BarWidth - filled, '.') + "] ";
  line += std::to_string(done) + "/" + std::to_string(total_) + " runs";
  if (done > 0) line += ", " + Duration(elapsed / done * (total_ - done)) + " left";
  out_ << line << (done == total_ ? "\n" : "") << std::flush;
}

void ProgressBar::Clear() {
  if (enabled_) out_ << ClearLine << std::flush;
}

}  // namespace keldor::sweep
