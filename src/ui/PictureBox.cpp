#include "ui/PictureBox.h"

#include <QMouseEvent>
#include <QPainter>

namespace keldor {

namespace {
// The terrain's and the map's background: RGB(185, 172, 145).
const QColor BoxBackground(185, 172, 145);
}  // namespace

int ButtonBits(Qt::MouseButtons buttons) {
  int bits = 0;
  if (buttons & Qt::LeftButton) bits |= 1;
  if (buttons & Qt::RightButton) bits |= 2;
  if (buttons & Qt::MiddleButton) bits |= 4;
  return bits;
}

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureBox::SetFrame(const QImage& frame) {
  frame_ = frame;
  update();
}

void PictureBox::paintEvent(QPaintEvent*) {
  QPainter p(this);
  if (frame_.isNull()) {
    p.fillRect(rect(), BoxBackground);
    return;
  }
  // The frame holds device pixels: on a high-dpi screen it is larger than the box in logical pixels.
  p.drawImage(QRectF(rect()), frame_, QRectF(frame_.rect()));
}

void PictureBox::mousePressEvent(QMouseEvent* event) { emit MouseDown(ButtonBits(event->button()), event->position()); }

void PictureBox::mouseMoveEvent(QMouseEvent* event) { emit MouseMove(ButtonBits(event->buttons()), event->position()); }

void PictureBox::mouseReleaseEvent(QMouseEvent* event) { emit MouseUp(ButtonBits(event->button()), event->position()); }

}  // namespace keldor
