#include "app/headless/ProgressLine.h"

#include <iomanip>

namespace keldor::headless {

namespace {

constexpr std::chrono::milliseconds QuietStart(2000);
constexpr std::chrono::milliseconds ShowEvery(500);

}  // namespace

ProgressLine::ProgressLine(std::ostream& out, bool enabled, int64_t first, int64_t last)
    : out_(out), enabled_(enabled), first_(first), last_(last), start_(Clock::now()), nextShow_(start_ + QuietStart) {}

ProgressLine::~ProgressLine() {
  if (shown_) out_ << "\r\033[K" << std::flush;
}

void ProgressLine::TickDone(int64_t tick) {
  if (!enabled_) return;
  const Clock::time_point now = Clock::now();
  if (now < nextShow_) return;
  nextShow_ = now + ShowEvery;
  shown_ = true;
  const double done = static_cast<double>(tick - first_ + 1);
  const double total = static_cast<double>(last_ - first_ + 1);
  const double elapsed = std::chrono::duration<double>(now - start_).count();
  const double left = elapsed / done * (total - done);
  out_ << "\rkeldor-headless: tick " << tick << " of " << last_ << " (" << std::fixed << std::setprecision(1)
       << 100 * done / total << "%), " << std::setprecision(0) << left << " s left\033[K" << std::flush;
}

}  // namespace keldor::headless
