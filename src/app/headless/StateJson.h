// The whole state of a world as JSON: every setting and window-state field by
// its name, the tick count, and the cells, nests with their ants, food piles
// and walls with every record field. Same world, same document.
#pragma once

#include <cstdint>

#include <QJsonObject>

namespace keldor {
struct World;
struct WindowState;
}

namespace keldor::headless {

QJsonObject StateJson(const World& world, const WindowState& window, int64_t ticks);

}  // namespace keldor::headless
