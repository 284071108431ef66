// The whole state of a world as JSON: every setting and window-state field by
// its name, the viewport, the cells, nests with their ants, food piles and
// walls with every record field, and what an exact resumption needs beyond
// the world (the tick, the random source's words, the virtual clock). Same
// world, same document. Qt writes every number in the shortest form that
// reads back as the same double, so a document read back is the same world.
#pragma once

#include <QJsonObject>

#include "snapshot/ResumeState.h"

namespace keldor {

struct World;
struct WindowState;

// Version of the document's layout, written as "FormatVersion".
inline constexpr int SnapshotFormatVersion = 1;

QJsonObject StateJson(const World& world, const WindowState& window, const ResumeState& resume);

}  // namespace keldor
