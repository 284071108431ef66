#include "platform/SystemClock.h"

#include <QTime>

namespace keldor {

double SystemClock::SecondsSinceMidnight() { return QTime::currentTime().msecsSinceStartOfDay() / 1000.0; }

}  // namespace keldor
