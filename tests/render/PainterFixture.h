// A default world with a view painter on two recording canvases.
#pragma once

#include <gtest/gtest.h>

#include "render/ViewPainter.h"
#include "support/RecordingCanvas.h"
#include "support/TestWorld.h"

namespace keldor::testing {

class PainterTest : public ::testing::Test {
 protected:
  // Cell (x, y) with the given scent, ants and colour, as the tick leaves it.
  Cell& SetCell(int x, int y, double scent, int16_t ants, double colour) {
    Cell& c = world.Cells(x, y);
    c.Scent = scent;
    c.AntCount = ants;
    c.Colour = colour;
    return c;
  }
  void ForgetCalls() {
    terrain.Forget();
    map.Forget();
  }

  TestWorld test;
  World& world = test.world;
  RecordingCanvas terrain;
  RecordingCanvas map;
  ViewPainter painter{terrain, map};
};

}  // namespace keldor::testing
