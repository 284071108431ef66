// Pacing of the Fastest speed: ticks run back to back in short slices, so the
// window handles its events between them, and one tick in about every 1/30 s
// is drawn and shown; the others run without drawing.
#pragma once

namespace keldor {

class FastestPacer {
 public:
  static constexpr double FrameSeconds = 1.0 / 30;
  static constexpr double SliceSeconds = 0.012;

  // Times are seconds on a steady clock.
  void StartSlice(double now) { sliceStart_ = now; }
  bool SliceOver(double now) const { return now - sliceStart_ >= SliceSeconds; }
  // Whether the next tick is to be drawn and shown.
  bool FrameDue(double now) const { return now - lastFrame_ >= FrameSeconds; }
  void FrameShown(double now) { lastFrame_ = now; }

 private:
  double sliceStart_ = 0;
  double lastFrame_ = -FrameSeconds;
};

}  // namespace keldor
