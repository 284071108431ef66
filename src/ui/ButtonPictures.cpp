#include "ui/ButtonPictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

namespace keldor {

namespace {

// Pictures are drawn on a 24 x 24 grid and scaled.
constexpr int GridSize = 24;
const QColor Ink(40, 40, 40);
const QColor AntBrown(150, 100, 70);

// An ant seen from above, head to the right, centred on (cx, cy).
void DrawAnt(QPainter& p, double cx, double cy, double scale, const QColor& colour) {
  // Six legs from the thorax, the front pair reaching forward, the hind pair
  // back; two antennae from the head.
  p.setPen(QPen(colour.darker(150), 1.0 * scale, Qt::SolidLine, Qt::RoundCap));
  for (int i = -1; i <= 1; ++i) {
    for (int side : {-1, 1}) {
      const QPointF knee(cx + i * 2.0 * scale, cy + side * 3.0 * scale);
      p.drawLine(QPointF(cx, cy), knee);
      p.drawLine(knee, QPointF(cx + i * 4.5 * scale, cy + side * 5.5 * scale));
    }
  }
  for (int side : {-1, 1}) p.drawLine(QPointF(cx + 4.5 * scale, cy), QPointF(cx + 7.5 * scale, cy + side * 3.0 * scale));
  p.setPen(Qt::NoPen);
  p.setBrush(colour);
  p.drawEllipse(QPointF(cx - 4.5 * scale, cy), 3.2 * scale, 2.4 * scale);
  p.drawEllipse(QPointF(cx, cy), 2.0 * scale, 1.6 * scale);
  p.drawEllipse(QPointF(cx + 3.8 * scale, cy), 1.8 * scale, 1.6 * scale);
}

void DrawMagnifier(QPainter& p, bool plus) {
  p.setPen(QPen(Ink, 2));
  p.setBrush(QColor(220, 235, 250));
  p.drawEllipse(QPointF(10, 10), 6.5, 6.5);
  p.setPen(QPen(Ink, 3, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(15, 15), QPointF(21, 21));
  p.setPen(QPen(Ink, 2));
  p.drawLine(QPointF(6.5, 10), QPointF(13.5, 10));
  if (plus) p.drawLine(QPointF(10, 6.5), QPointF(10, 13.5));
}

void DrawPicture(QPainter& p, ButtonPicture picture) {
  switch (picture) {
    case ButtonPicture::Start: {
      // A fresh sheet with a star: a new world.
      p.setPen(QPen(Ink, 1.5));
      p.setBrush(Qt::white);
      p.drawRect(QRectF(4, 3, 14, 18));
      p.setBrush(QColor(240, 200, 40));
      QPolygonF star;
      for (int i = 0; i < 10; ++i) {
        const double r = i % 2 == 0 ? 6 : 2.5;
        const double a = i * 3.1415926 / 5 - 3.1415926 / 2;
        star << QPointF(17 + r * std::cos(a), 8 + r * std::sin(a));
      }
      p.drawPolygon(star);
      break;
    }
    case ButtonPicture::Play:
      p.setPen(Qt::NoPen);
      p.setBrush(QColor(30, 140, 50));
      p.drawPolygon(QPolygonF({QPointF(6, 4), QPointF(20, 12), QPointF(6, 20)}));
      break;
    case ButtonPicture::Pause:
      p.setPen(Qt::NoPen);
      p.setBrush(QColor(40, 70, 160));
      p.drawRect(QRectF(6, 4, 4.5, 16));
      p.drawRect(QRectF(13.5, 4, 4.5, 16));
      break;
    case ButtonPicture::ZoomIn:
      DrawMagnifier(p, true);
      break;
    case ButtonPicture::ZoomOut:
      DrawMagnifier(p, false);
      break;
    case ButtonPicture::Info:
      // The information panel: a small map with a frame in it.
      p.setPen(QPen(Ink, 1.5));
      p.setBrush(QColor(185, 172, 145));
      p.drawRect(QRectF(3, 3, 18, 18));
      p.setPen(QPen(QColor(255, 0, 0), 1.5));
      p.setBrush(Qt::NoBrush);
      p.drawRect(QRectF(7, 8, 8, 7));
      break;
    case ButtonPicture::Odor: {
      // Scent drifting up in waves.
      p.setBrush(Qt::NoBrush);
      const QColor waves[] = {QColor(0, 150, 0), QColor(200, 120, 0), QColor(120, 60, 160)};
      for (int i = 0; i < 3; ++i) {
        QPainterPath path(QPointF(5 + i * 6, 21));
        path.cubicTo(QPointF(1 + i * 6, 16), QPointF(9 + i * 6, 10), QPointF(5 + i * 6, 3));
        p.setPen(QPen(waves[i], 2));
        p.drawPath(path);
      }
      break;
    }
    case ButtonPicture::Ants:
      DrawAnt(p, 11, 12, 1.3, AntBrown);
      break;
    case ButtonPicture::NoTool: {
      // An arrow pointer.
      p.setPen(QPen(Ink, 1.2));
      p.setBrush(Qt::white);
      p.drawPolygon(QPolygonF({QPointF(6, 3), QPointF(6, 19), QPointF(10, 15), QPointF(13, 21), QPointF(15.5, 20),
                               QPointF(12.5, 14), QPointF(18, 14)}));
      break;
    }
    case ButtonPicture::FoodTool:
      p.setPen(QPen(QColor(0, 100, 0), 1.2));
      p.setBrush(QColor(0, 150, 0));
      p.drawEllipse(QPointF(12, 13), 7.5, 6.5);
      p.setBrush(QColor(90, 200, 90));
      p.drawEllipse(QPointF(9.5, 10.5), 2.5, 2);
      break;
    case ButtonPicture::WallTool:
      // Plaster bricks in courses.
      p.setPen(QPen(QColor(100, 100, 150), 1));
      p.setBrush(QColor(235, 235, 235));
      for (int row = 0; row < 3; ++row) {
        const double y = 5 + row * 5;
        const double shift = row % 2 == 0 ? 0 : 4;
        for (double x = 2 - shift; x < 22; x += 8) {
          p.drawRect(QRectF(std::max(2.0, x), y, std::min(8.0, 22 - std::max(2.0, x)), 5));
        }
      }
      break;
    case ButtonPicture::RemoveAntsTool:
      DrawAnt(p, 12, 12, 1.2, AntBrown);
      p.setPen(QPen(QColor(200, 0, 0), 2.5, Qt::SolidLine, Qt::RoundCap));
      p.drawLine(QPointF(4, 4), QPointF(20, 20));
      p.drawLine(QPointF(20, 4), QPointF(4, 20));
      break;
    case ButtonPicture::NestTool:
      // A mound with its entrance.
      p.setPen(QPen(QColor(90, 60, 40), 1.2));
      p.setBrush(AntBrown);
      p.drawChord(QRectF(2, 8, 20, 24), 0, 180 * 16);
      p.setBrush(QColor(50, 30, 20));
      p.drawEllipse(QPointF(12, 16), 2.5, 2);
      break;
  }
}

QPixmap Render(ButtonPicture picture, int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing);
  p.scale(static_cast<double>(size) / GridSize, static_cast<double>(size) / GridSize);
  DrawPicture(p, picture);
  return pixmap;
}

// The picture of a disabled button: grey and faint, so that a button that
// cannot be pressed never looks as if it could (the style's own disabled
// picture keeps dark ink dark).
QPixmap Faded(const QPixmap& picture) {
  QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const int grey = 128 + qGray(line[x]) / 2;
      line[x] = qRgba(grey, grey, grey, qAlpha(line[x]) * 2 / 5);
    }
  }
  return QPixmap::fromImage(image);
}

}  // namespace

QIcon ButtonIcon(ButtonPicture picture) {
  QIcon icon;
  for (int size : {16, 24, 32, 48}) {
    const QPixmap normal = Render(picture, size);
    icon.addPixmap(normal, QIcon::Normal);
    icon.addPixmap(Faded(normal), QIcon::Disabled);
  }
  return icon;
}

QPixmap AppIconPixmap(int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing);
  p.scale(size / 64.0, size / 64.0);
  // Sandy ground, a green food pile, a scent trail and an ant on it.
  p.setPen(QPen(QColor(120, 100, 70), 2));
  p.setBrush(QColor(185, 172, 145));
  p.drawRoundedRect(QRectF(2, 2, 60, 60), 10, 10);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(255, 220, 120));
  for (int i = 0; i < 5; ++i) p.drawRect(QRectF(8 + i * 9, 40 - i * 6, 9, 9));
  p.setBrush(QColor(0, 150, 0));
  p.drawEllipse(QPointF(50, 14), 8, 7);
  DrawAnt(p, 24, 38, 3.0, QColor(90, 50, 30));
  return pixmap;
}

QIcon AppIcon() {
  QIcon icon;
  for (int size : {16, 32, 48, 64, 128}) icon.addPixmap(AppIconPixmap(size));
  return icon;
}

}  // namespace keldor
