// A view box of the main window (the terrain view or the mini-map): shows the
// last frame the tick drew and reports mouse events with the position in
// pixels and the buttons as a bit set (1 left, 2 right).
#pragma once

#include <QImage>
#include <QWidget>

namespace keldor {

class PictureBox : public QWidget {
  Q_OBJECT

 public:
  explicit PictureBox(QWidget* parent = nullptr);
  // Shows a finished frame (sized in device pixels of this box).
  void SetFrame(const QImage& frame);
  const QImage& Frame() const { return frame_; }

 signals:
  // button: the pressed or released button; buttons: all held buttons.
  void MouseDown(int button, QPointF pixel);
  void MouseMove(int buttons, QPointF pixel);
  void MouseUp(int button, QPointF pixel);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QImage frame_;
};

// The bit set of mouse buttons: 1 left, 2 right, 4 middle.
int ButtonBits(Qt::MouseButtons buttons);

}  // namespace keldor
