// A slider that shows its value: as its tool tip, and in a tip beside the
// pointer while it moves, so a setting can be chosen and noted exactly.
#pragma once

class QSlider;

namespace keldor {

void ShowValueTips(QSlider* slider);

}  // namespace keldor
