#include "ui/SliderValueTip.h"

#include <QCursor>
#include <QSlider>
#include <QToolTip>

namespace keldor {

void ShowValueTips(QSlider* slider) {
  slider->setToolTip(QString::number(slider->value()));
  QObject::connect(slider, &QSlider::valueChanged, slider, [slider](int value) {
    slider->setToolTip(QString::number(value));
    if (slider->isSliderDown() || slider->underMouse()) QToolTip::showText(QCursor::pos(), slider->toolTip(), slider);
  });
}

}  // namespace keldor
