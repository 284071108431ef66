// The tick timer's period at normal speed: the one definition every front
// end and the stepped clock use.
#pragma once

namespace keldor {

inline constexpr int TickPeriodMs = 75;
inline constexpr double TickPeriodSeconds = TickPeriodMs / 1000.0;

}  // namespace keldor
