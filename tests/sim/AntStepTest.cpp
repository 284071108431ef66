// One ant's step: the forward test, the three moves, the draws it takes, the
// scent lookups, the trail it lays and signature blending.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "model/Queries.h"
#include "model/Random.h"
#include "model/World.h"
#include "sim/AntStep.h"
#include "support/ScriptedDraws.h"

namespace keldor::testing {
namespace {

// A hand-built world for one ant's step: 5 by 5 cells of side 10 (100 body
// units), every cell unmarked and without scent, one nest in the corner cell
// (5, 5), of radius 0 (no delivery), with its queen (ant 0) and one worker
// (ant 1). Ants in a cell are limited to (10*10)^2 / 500 / 2 = 10.
// Draws come from a script; by default every draw is 0 (step divisor 2,
// turns of -0 radians).
const Signature NestMark("1100110011001100");
const Signature ForeignMark("0101010101010101");

struct StepRig {
  explicit StepRig(std::vector<double> draws = std::vector<double>(40, 0.0)) : script(std::move(draws)) {
    world.Settings = {.GridX = 5, .GridY = 5, .CellSize = 10, .ScaleX = 10, .ScaleY = 10, .NestScentMax = 250};
    world.Cells.Reset(5, 5);
    for (int x = 0; x <= 6; ++x)
      for (int y = 0; y <= 6; ++y) world.Cells(x, y).Signature = Signature::Unmarked();
    Nest& nest = world.Nests.emplace_back();
    nest.Signature = NestMark;
    nest.X = nest.Y = 45;
    nest.AntBodyArea = 500;
    nest.Ants.Reset(2);
    nest.Ants[0] = {.RearX = 45, .RearY = 45, .HeadX = 45, .HeadY = 47, .Energy = 100};
    world.Running = true;
    random.UseScript(&script);
  }

  World world;
  VirtualClock clock{1};
  RandomSource random{clock};
  ScriptedDraws script;

  Ant& worker() { return world.Nests[0].Ants[1]; }
  Cell& cell(int x, int y) { return world.Cells(x, y); }

  // Puts the living worker on the segment from rear to head, counted on its head's cell.
  void PlaceWorker(double rearX, double rearY, double headX, double headY, double load = 0) {
    worker() = {.RearX = rearX, .RearY = rearY, .HeadX = headX, .HeadY = headY, .Load = load, .Energy = 100};
    ++cell(CellOfCoordinate(headX, 10), CellOfCoordinate(headY, 10)).AntCount;
  }
  // Cell k of the cross around (x, y), in the order left, up, centre, down, right.
  Cell& CrossCell(int x, int y, int k) {
    static constexpr int offsets[5][2] = {{-1, 0}, {0, -1}, {0, 0}, {0, 1}, {1, 0}};
    return cell(x + offsets[k][0], y + offsets[k][1]);
  }
  void SetCross(int x, int y, const std::array<double, 5>& scents) {
    for (int k = 0; k < 5; ++k) CrossCell(x, y, k).Scent = scents[static_cast<size_t>(k)];
  }
  void AddBrick(int x, int y) {
    WallObject brick;
    brick.TypeName = PlasterBrickType;
    cell(x, y).Objects.Add(brick);
  }
  void Step(int antIndex = 1) { StepAnt(world, random, 0, antIndex, world.Settings.NestScentMax); }
};

TEST(AntStepForward, EachConditionAndEachScentRuleDecidesAlone) {
  // Step divisor 2, no turn, a worker of length 4 along (dirX, dirY): forward,
  // its head ends at head + 2*dir, stepping back at head - 2*dir. Without a
  // cross of scents, all 0 admit the step by rule c (no load) or g (loaded:
  // 0 > -250, target 0 = foodward 0, current 0 = nestward 0). With one, the
  // current cell C is (3,3), the target N (4,3) and Fw/Nw are the foodward and
  // nestward lookups around C; each scent rule is the only one to hold.
  const struct {
    const char* what;
    double headX, headY, dirX, dirY, endX, endY, load = 0;
    std::array<double, 5> cross{};  // left, up, C, down, right
    Signature markAhead = Signature::Unmarked();
    int16_t antsAhead = 0;
    bool brickAhead = false;
  } cases[] = {
      {"free cell (4,3) ahead", 28, 25, 1, 0, 30, 25},
      {"diagonal target (4,4)", 28, 28, 1, 1, 26, 26},
      {"last column 5 ahead", 38, 25, 1, 0, 40, 25},
      {"column 6 beyond the grid", 48, 25, 1, 0, 46, 25},
      {"column 0 before the grid", 1, 25, -1, 0, 3, 25},
      {"last row 5 ahead", 25, 38, 0, 1, 25, 40},
      {"row 6 beyond the grid", 25, 48, 0, 1, 25, 46},
      {"row 0 before the grid", 25, 1, 0, -1, 25, 3},
      {"brick ahead", 28, 25, 1, 0, 26, 25, 0, {}, Signature::Unmarked(), 0, true},
      {"10 ants ahead, the limit", 28, 25, 1, 0, 30, 25, 0, {}, Signature::Unmarked(), 10},
      {"11 ants ahead", 28, 25, 1, 0, 26, 25, 0, {}, Signature::Unmarked(), 11},
      {"loaded, unmarked cell ahead", 28, 25, 1, 0, 30, 25, 1},
      {"loaded, own trail ahead", 28, 25, 1, 0, 30, 25, 1, {}, NestMark},
      {"loaded, foreign trail ahead", 28, 25, 1, 0, 26, 25, 1, {}, ForeignMark},
      {"unloaded, foreign trail ahead", 28, 25, 1, 0, 30, 25, 0, {}, ForeignMark},
      // the head from 24 to 26 stays in C. Fw = 9 <> N = 5; Nw = C = 5, unmarked
      {"a: stays in its cell", 24, 25, 1, 0, 26, 25, 1, {9, 0, 5, 0, 0}},
      {"b: up the food gradient", 28, 25, 1, 0, 30, 25, 0, {0, 0, 1, 0, 5}},      // Fw = N = 5 > 0
      {"c: no food scent around", 28, 25, 1, 0, 30, 25, 0, {0, 0, -1, 0, -3}},    // Fw = 0 (down) <> C, N
      {"d: along the nest gradient", 28, 25, 1, 0, 30, 25, 0, {0, 0, 5, 0, -3}},  // Fw = C = 5; Nw = N = -3
      {"no rule, unloaded", 28, 25, 1, 0, 26, 25, 0, {0, 0, 5, 0, 0}},            // Fw = Nw = C = 5 <> N
      {"no rule, food scent beside", 28, 25, 1, 0, 26, 25, 0, {9, 0, 0, 0, 0}},   // Fw = 9 (left) <> N, C = 0
      {"e: onto the nest mark", 28, 25, 1, 0, 30, 25, 1, {0, 0, 0, 0, -250}},     // Nw = N = -250 <> C
      {"f: food, no nest scent", 28, 25, 1, 0, 30, 25, 1, {9, 0, 0, 0, 5}},       // Nw = C = 0; Fw = 9 <> N
      {"g: against food scent", 28, 25, 1, 0, 30, 25, 1, {0, 0, 3, 0, 7}},        // Fw = N = 7; Nw = C = 3, unmarked
      {"h: down the own trail", 28, 25, 1, 0, 30, 25, 1, {0, 0, -5, 0, -6}, NestMark},  // Nw = N = -6 <> C; Fw = 0
      {"h needs the own signature", 28, 25, 1, 0, 26, 25, 1, {0, 0, -5, 0, -6}},
      {"no rule, loaded", 28, 25, 1, 0, 26, 25, 1, {0, 0, 5, 0, 3}},  // Nw = N = 3 <> 0, unmarked; Fw = C = 5
      {"no rule, loaded, food scent beside", 28, 25, 1, 0, 26, 25, 1, {9, 0, 0, 0, 0}},    // N = 0; Fw = 9 <> N
      {"no rule, loaded, on the nest mark", 28, 25, 1, 0, 26, 25, 1, {0, 0, -250, 0, 0}},  // g: C = -250 = Nw
  };
  for (const auto& c : cases) {
    StepRig rig;
    rig.PlaceWorker(c.headX - 4 * c.dirX, c.headY - 4 * c.dirY, c.headX, c.headY, c.load);
    rig.SetCross(3, 3, c.cross);
    rig.cell(4, 3).Signature = c.markAhead;
    rig.cell(4, 3).AntCount = c.antsAhead;
    if (c.brickAhead) rig.AddBrick(4, 3);
    rig.Step();
    EXPECT_EQ(std::tuple(rig.worker().HeadX, rig.worker().HeadY), std::tuple(c.endX, c.endY)) << c.what;
  }
}

TEST(AntStepMoves, DeliveryAndFeedingNeedTheHeadStrictlyInsideTheNest) {
  for (const auto& [radius, delivered] : {std::pair{5.0, false}, {5.000001, true}}) {
    StepRig rig;
    Nest& nest = rig.world.Nests[0];
    std::tie(nest.Radius, nest.AntUnit, nest.FoodStore) = std::tuple(radius, 30, 10);
    rig.PlaceWorker(45, 44, 45, 45, 15);
    rig.Step();  // the head ends at (45, 45.5), in its cell: 10 * 0.5 = 5 body units from the centre
    EXPECT_EQ(rig.worker().Load, delivered ? 0 : 15) << radius;
    EXPECT_EQ(rig.worker().Energy, delivered ? 125 : 100) << "eats the store of 10 + 15, below 5 * 30 - 100";
    EXPECT_EQ(nest.FoodStore, delivered ? 0 : 10);
    EXPECT_EQ(rig.cell(5, 5).Scent, delivered ? -250 : 0) << "the nest cell is marked";
  }
}

TEST(AntStepMoves, ForwardStepBackAndStuck) {
  // A worker from (11,25) to (25,25) in cell (3,3), step 14 / 2 = 7: target
  // head 32 in (4,3), back head 18 in (2,3), which holds nest scent -9.
  const struct {
    const char* move;
    double angle, scentHere;
    bool brickAhead, brickBehind;
    std::tuple<double, double, double, int> rearXHeadXYCellX;
    std::array<int16_t, 3> ants;  // on (3,3), (2,3), (4,3)
  } cases[] = {
      {"forward", 0, 0, false, false, {18, 32, 25, 4}, {0, 0, 1}},
      {"step back", 0, -8, true, false, {4, 18, 25, 2}, {0, 1, 0}},  // U2 toward (2,3): -9 + 1
      // turned by 0.1: head (24.97, 25.70), target (31.9, 26.4), back (18.0, 25.0); the turn is undone
      {"stuck", 0.1, -8, true, true, {11, 25, 25, 3}, {1, 0, 0}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.move);
    StepRig rig;
    rig.PlaceWorker(11, 25, 25, 25);
    rig.worker().Angle = c.angle;
    if (c.brickAhead) rig.AddBrick(4, 3);
    if (c.brickBehind) rig.AddBrick(2, 3);
    rig.cell(2, 3).Scent = -9;
    rig.Step();
    const Ant& w = rig.worker();
    EXPECT_EQ(std::tuple(w.RearX, w.HeadX, w.HeadY, int{w.CellX}), c.rearXHeadXYCellX);
    EXPECT_EQ((std::array{rig.cell(3, 3).AntCount, rig.cell(2, 3).AntCount, rig.cell(4, 3).AntCount}), c.ants);
    // the fresh turn from draws of 0 is -0
    EXPECT_EQ(std::tuple(w.Angle, rig.cell(3, 3).Scent), std::tuple(0.0, c.scentHere));
  }
}

TEST(AntStepDraws, DivisorThenTurnSignThenSizeForWorkerAndQueen) {
  // The worker, of length 6 along x with its head at 28, steps 6 / s forward
  // into the unmarked, unscented (4,3): no trail draws. Its turn rounds left to
  // right: sign * r2, * 60, * 3.1415926, / 180; the queen's rounds as
  // sign * r2 * 60 * (3.1415926 / 180). On a brick she does not turn. She
  // marks her cell (5,5) with -NestScentMax.
  const struct {
    int ant;
    bool brick;
    std::vector<double> draws;
    double headX, angle, nestCellScent;  // headX: the worker's, after its step (0: none placed)
    const char* log;
  } cases[] = {
      {1, false, {0.0, 0.25, 0.5}, 31, -0.5235987666666666, 0, "ddd"},  // s = 2: 28 + 3; -30 * 3.1415926 / 180
      {1, false, {0.5, 0.75, 0.25}, 30, 0.2617993833333333, 0, "ddd"},  // s = Int(1) + 2 = 3: 28 + 2; 15 * ...
      // s = Int(1.98) + 2 = 3; 37.5 * 3.1415926 = 117.80972250000001, / 180
      {1, false, {0.99, 0.75, 0.625}, 30, 0.65449845833333342, 0, "ddd"},
      {0, false, {0.5, 0.25, 0.25}, 0, -0.2617993833333333, -250, "ddd"},
      {0, false, {0.5, 0.75, 0.625}, 0, 0.65449845833333331, -250, "ddd"},  // 37.5 * 0.017453292222222222
      {0, true, {0.5, 0.25, 0.25}, 0, 0, -250, "d"},
  };
  for (const auto& c : cases) {
    StepRig rig(c.draws);
    if (c.ant == 1) rig.PlaceWorker(22, 25, 28, 25);
    if (c.brick) rig.AddBrick(5, 5);
    rig.Step(c.ant);
    EXPECT_EQ(
        std::tuple(rig.world.Nests[0].Ants[c.ant].Angle, rig.script.Log, rig.worker().HeadX, rig.cell(5, 5).Scent),
        std::tuple(c.angle, std::string(c.log), c.headX, c.nestCellScent));
  }
}

TEST(AntStepDraws, TrailTurnAndBlendingFollowTheForwardTurn) {
  // Draws: divisor 0, 60-degree sign 0.75 and size 0.5, then either the small
  // turn's sign 0 and size 0.5 (-1 * 0.5 * 5 * 3.1415926 / 180), or the 16
  // draws that blend the nest's signature into a foreign one after a reseed.
  const struct {
    const char* what;
    double load, c, n, angle;
    Signature markAhead = Signature::Unmarked(), markHere = Signature::Unmarked();
    std::string log = "ddddd";
  } cases[] = {
      {"U3", 0, 5, 9, -0.043633230555555555},            // forward by rule b
      {"L1", 1, -3, -250, -0.043633230555555555},        // forward by rule e
      {"L3", 1, 9, 5, -0.043633230555555555, NestMark},  // rule h: the nestward cell is N, 5
      {"foreign signature", 0, 0, 0, 0.5235987666666666, Signature::Unmarked(), ForeignMark,
       "dddR" + std::string(16, 'd')},  // rule c; +1 * 0.5 * 60 * 3.1415926 / 180
  };
  for (const auto& c : cases) {
    StepRig rig({0, 0.75, 0.5, 0, 0.5, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    rig.PlaceWorker(24, 25, 28, 25, c.load);
    rig.SetCross(3, 3, {0, 0, c.c, 0, c.n});
    rig.cell(4, 3).Signature = c.markAhead;
    rig.cell(3, 3).Signature = c.markHere;
    rig.Step();
    EXPECT_EQ(std::tuple(rig.worker().HeadX, rig.worker().Angle, rig.script.Log), std::tuple(30.0, c.angle, c.log))
        << c.what;
  }
}

TEST(CrossLookups, FoodwardAndNestwardCellPickTheirCell) {
  // The cross around (x, y) is named by signature: left, up, centre, down, right.
  // Ties go to the later cell. Cells beyond GridX and GridY (5) are left out;
  // column and row 0 are read.
  enum Lookup { Foodward, Nestward };
  const struct {
    Lookup lookup;
    std::array<double, 5> cross;
    double scent;
    const char* cellName;           // "" for the empty record
    int16_t v = 250, x = 3, y = 3;  // v: the "Nest Scent" slider's value
  } cases[] = {
      {Foodward, {9, 9, 0, 0, 0}, 9, "up"},
      {Foodward, {0, 9, 9, 0, 0}, 9, "centre"},
      {Foodward, {0, 0, 9, 9, 0}, 9, "down"},
      {Foodward, {0, 0, 0, 9, 9}, 9, "right"},
      {Foodward, {9, 0, 0, 0, 0}, 9, "left"},
      {Foodward, {0, -3, -5, -3, -3}, 0, "left"},  // best 0 is not below 0: kept
      // best down -2 < 0: second, the first cell below 0, above the centre's -9
      // and below the second so far: left -7 (up -4 is higher, right -7 ties)
      {Foodward, {-7, -4, -9, -2, -7}, -7, "left"},
      {Foodward, {-5, -5, -1, -5, -5}, 0, ""},             // best centre -1; none in -1..0: the empty record
      {Foodward, {0, 0, 0, 9, 0}, 9, "down", 250, 3, 4},   // row 5
      {Foodward, {0, 0, 0, 9, 0}, 0, "right", 250, 3, 5},  // not row 6: the last 0 is right
      {Foodward, {0, 0, 0, 0, 9}, 9, "right", 250, 4, 3},  // column 5
      {Foodward, {0, 0, 0, 0, 9}, 0, "down", 250, 5, 3},   // not column 6: the last 0 is down
      {Foodward, {9, 0, 0, 0, 0}, 9, "left", 250, 1, 3},   // column 0
      {Foodward, {0, 9, 0, 0, 0}, 9, "up", 250, 3, 1},     // row 0
      {Nestward, {-7, -7, 0, 0, 0}, -7, "up"},
      {Nestward, {-7, -7, -7, -7, -7}, -7, "right"},
      {Nestward, {0, 0, 0, 0, 0}, 0, "centre"},              // cells without scent never become best
      {Nestward, {-250, 0, 0, 0, -250}, -250, "left"},       // the first cell at -V is returned at once
      {Nestward, {-100, 0, 0, 0, -200}, -200, "right"},      // -V = -250: the lowest wins
      {Nestward, {-100, 0, 0, 0, -200}, -100, "left", 100},  // -V = -100
      {Nestward, {-2, 5, 9, 0, 5}, 5, "up"},     // best left -2, second up 5 (0 < 5 < 9; right ties): |-2| < 5
      {Nestward, {0, 3, 9, 6, 0}, 6, "down"},    // best up 3, second down 6: |3| < 6
      {Nestward, {-6, 5, 9, 0, 0}, -6, "left"},  // best left -6, second up 5: |-6| >= 5
  };
  for (const auto& c : cases) {
    StepRig rig;
    rig.SetCross(c.x, c.y, c.cross);
    const char* names[5] = {"left", "up", "centre", "down", "right"};
    for (int k = 0; k < 5; ++k) rig.CrossCell(c.x, c.y, k).Signature = Signature(names[k]);
    const ScentLookup found =
        c.lookup == Foodward ? FoodwardCell(rig.world, c.x, c.y) : NestwardCell(rig.world, c.x, c.y, c.v);
    EXPECT_EQ(std::tuple(found.Scent, found.Signature.ToString()), std::tuple(c.scent, std::string(c.cellName)));
  }
}

TEST(LayScentTrail, EachRowOfTheTrailTable) {
  // C = (3,3), N = (4,3) or diagonal (4,4), both unmarked. A small turn takes
  // two draws. C always takes the nest's signature, N only when diagonal.
  const struct {
    const char* row;
    double load, c, n, expectedC, expectedN;
    size_t draws;
    int16_t v = 250, ny = 3;  // the "Nest Scent" slider's value (M = -v); N's row, 4 when diagonal
  } cases[] = {
      {"U1 spreads food scent back: 10 - 1", 0, -3, 10, 9, 10, 0},
      {"U1 keeps an as strong nest scent", 0, -10, 10, -10, 10, 0},
      {"U1 keeps the nest mark M", 0, -250, 300, -250, 300, 0},
      {"U1 keeps M = -100", 0, -100, 300, -100, 300, 0, 100},
      {"U1 rewrites -250 when M = -100: 300 - 1", 0, -250, 300, 299, 300, 0, 100},
      {"U2 weaker current: -9 + 1", 0, -5, -9, -8, -9, 0},
      {"U2 weaker current from 0: -4 + 1", 0, 0, -4, -3, -4, 0},
      {"U2 weaker target: -9 + 1", 0, -9, -5, -9, -8, 0},
      {"U2 equal", 0, -5, -5, -5, -5, 0},
      {"U2 toward a diagonal target: -9 + 1", 0, -5, -9, -8, -9, 0, 250, 4},
      {"U3 stronger target: 9 - 1", 0, 5, 9, 8, 9, 2},
      {"U3 equal target", 0, 9, 9, 9, 9, 2},
      {"L1 pulls the nest gradient: -9 + 1", 1, -3, -9, -8, -9, 2},
      {"L1 from 0: -4 + 1", 1, 0, -4, -3, -4, 2},
      {"L1 keeps the nest mark M", 1, -250, -250, -250, -250, 2},
      {"L2 spreads food scent back: 10 - 1", 1, -3, 10, 9, 10, 0},
      {"L2 keeps an as strong nest scent", 1, -10, 10, -10, 10, 0},
      {"L3 carries food scent forward: 9 - 1", 1, 9, 5, 9, 8, 2},
      {"L3 spares a target at M", 1, 300, -250, 300, -250, 2},
      {"L3 spares a stronger target", 1, 5, 9, 5, 9, 2},
      {"L3 spares a stronger nest scent", 1, 5, -7, 5, -7, 2},
      {"no row: loaded, both 0", 1, 0, 0, 0, 0, 0},
      {"no row: loaded, weaker nest scent ahead", 1, -5, -2, -5, -2, 0},
      {"no row: loaded, from 0 to food scent", 1, 0, 7, 0, 7, 0},
  };
  for (const auto& c : cases) {
    StepRig rig;
    rig.PlaceWorker(24, 25, 28, 25, c.load);
    rig.cell(3, 3).Scent = c.c;
    rig.cell(4, c.ny).Scent = c.n;
    LayScentTrail(rig.world, rig.random, 0, 1, 3, 3, 4, c.ny, c.v);
    EXPECT_EQ(std::tuple(rig.cell(3, 3).Scent, rig.cell(4, c.ny).Scent, rig.script.DrawsTaken()),
              std::tuple(c.expectedC, c.expectedN, c.draws))
        << c.row;
    EXPECT_EQ(std::tuple(rig.cell(3, 3).Signature == NestMark, rig.cell(4, c.ny).Signature == NestMark),
              std::tuple(true, c.ny == 4))
        << c.row;
  }
}

TEST(BlendSignature, PaintsWhiteAndMarksOnlyForALivingAntOfAnotherTrail) {
  const struct {
    const char* what;
    double energy;
    Signature before;
    std::string after, log;
  } cases[] = {
      {"unmarked: copied", 100, Signature::Unmarked(), NestMark.ToString(), ""},
      {"own: unchanged", 100, NestMark, NestMark.ToString(), ""},
      {"dead ant: unchanged", 0, ForeignMark, ForeignMark.ToString(), ""},
      // Int(2 * 0.25) = 0 takes the nest's character, Int(2 * 0.75) = 1 the cell's:
      // the nest's first 8, the cell's last 8
      {"foreign: mixed after a reseed", 100, ForeignMark, "1100110001010101", "R" + std::string(16, 'd')},
  };
  for (const auto& c : cases) {
    StepRig rig({0.25, 0.25, 0.25, 0.25, 0.25, 0.25, 0.25, 0.25, 0.75, 0.75, 0.75, 0.75, 0.75, 0.75, 0.75, 0.75});
    rig.worker().Energy = c.energy;
    Cell& target = rig.cell(2, 2);
    target.Signature = c.before;
    BlendSignature(rig.random, 1, rig.world.Nests[0], target, 16);
    EXPECT_EQ(std::tuple(target.Signature.ToString(), rig.script.Log, target.Colour),
              std::tuple(c.after, c.log, Colour(255, 255, 255)))
        << c.what;
  }
}

}  // namespace
}  // namespace keldor::testing
