// A draw script for RandomSource: hands out the given values in order and
// records every draw and reseed, so that a routine can be checked draw by draw.
// Install it with random.UseScript(&script); running out of values fails the test.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "model/Random.h"

namespace keldor::testing {

class ScriptedDraws : public DrawScript {
 public:
  explicit ScriptedDraws(std::vector<double> values) : values_(std::move(values)) {}

  double NextDraw() override {
    Log += "d";
    if (next_ >= values_.size()) {
      ADD_FAILURE() << "draw " << next_ + 1 << " was not scripted";
      return 0;
    }
    return values_[next_++];
  }
  void Reseeded() override { Log += "R"; }

  size_t DrawsTaken() const { return next_; }

  // One letter per event in order: "d" a draw, "R" a reseed.
  std::string Log;

 private:
  std::vector<double> values_;
  size_t next_ = 0;
};

}  // namespace keldor::testing
