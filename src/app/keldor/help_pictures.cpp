// keldor-help-pictures: draws the guide's pictures with the program's own
// windows and renderer, and the documentation's pictures of the guide and of
// the charts after a two-colony run. Run with the offscreen platform or under
// a virtual display, then rebuild so that the guide bundles the new pictures:
//   keldor-help-pictures src/ui/help docs
// writes HELP/window.png, HELP/closeup.png, HELP/legend.png,
// DOCS/guide.png and DOCS/charts-two-colonies.png.
#include <QApplication>
#include <QDir>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "model/Random.h"
#include "model/World.h"
#include "platform/QtCanvas.h"
#include "platform/QtColour.h"
#include "platform/QtMessageBox.h"
#include "render/CellDrawing.h"
#include "render/ViewColours.h"
#include "sim/OdorField.h"
#include "ui/AppTexts.h"
#include "ui/ChartsWindow.h"
#include "ui/HelpWindow.h"
#include "ui/MainWindow.h"
#include "ui/PictureBox.h"
#include "window/Viewport.h"

namespace {

using keldor::MainWindow;

bool Save(const QImage& picture, const QString& path) {
  if (picture.save(path)) return true;
  std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
  return false;
}

void Click(MainWindow& window, const char* button) { window.findChild<QPushButton*>(button)->click(); }

// A left click with the chosen tool at a point of the terrain view.
void ClickTerrain(MainWindow& window, QPointF at) {
  auto* terrain = window.findChild<keldor::PictureBox*>("picTerreno");
  QMouseEvent press(QEvent::MouseButtonPress, at, terrain->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(terrain, &press);
  QMouseEvent release(QEvent::MouseButtonRelease, at, terrain->mapToGlobal(at), Qt::LeftButton, Qt::NoButton,
                      Qt::NoModifier);
  QApplication::sendEvent(terrain, &release);
}

void RunTicks(MainWindow& window, int ticks) {
  for (int i = 0; i < ticks; ++i) window.AdvanceTick();
  QApplication::processEvents();
}

// Cells drawn by the view's own cell routine: food scent and nest scent from
// weak to strong, each with its two numbers, and labels beside them.
QImage Legend(const keldor::WorldSettings& settings) {
  constexpr int CellPixels = 44;
  constexpr int Width = 600;
  constexpr int Height = 3 * CellPixels + 90;
  keldor::QtCanvas canvas(Width, Height);
  canvas.SetScale({0, 0, Width, Height});
  canvas.Pen.Fill = keldor::FillStyle::Solid;
  canvas.Pen.FillColor = keldor::Colour(255, 255, 255);
  canvas.Box(0, 0, Width, Height, keldor::Colour(255, 255, 255));
  keldor::World world;
  world.Settings.CellSize = CellPixels;
  keldor::ViewState view;
  view.ZoomX = view.ZoomY = 1;
  view.ShowOdor = 1;
  view.InfoVisible = false;
  view.Terrain = {0, 0, Width, Height};
  canvas.Pen.ForeColor = keldor::Black;
  canvas.Pen.FontSize = 8;
  const double shares[] = {0.1, 0.4, 0.7, 1.0};
  for (int row = 0; row < 2; ++row) {
    for (int i = 0; i < 4; ++i) {
      keldor::Cell cell;
      cell.X = static_cast<int16_t>(i + 2);
      cell.Y = static_cast<int16_t>(2 * row + 1);
      cell.Scent = row == 0 ? shares[i] * settings.FoodScentMax : -shares[i] * settings.NestScentMax;
      cell.Colour = keldor::ScentColour(cell.Scent, settings.FoodScentMax, settings.NestScentMax);
      cell.AntCount = static_cast<int16_t>(i);
      canvas.Pen.Fill = keldor::FillStyle::Solid;
      keldor::QtCanvas unused(1, 1);
      DrawCell(world, view, cell, canvas, unused);
    }
  }
  QImage picture = canvas.Image();
  QPainter painter(&picture);
  painter.setPen(Qt::black);
  QFont font = painter.font();
  font.setPixelSize(15);
  painter.setFont(font);
  const int labelX = 5 * CellPixels + 16;
  painter.drawText(8, 10 + CellPixels / 2, "Food");
  painter.drawText(labelX, 4 + CellPixels / 2, "green: food scent, weak to strong");
  painter.drawText(labelX, 24 + CellPixels / 2, "top left: scent, bottom right: ants");
  painter.drawText(8, 2 * CellPixels + 10 + CellPixels / 2, "Nest");
  painter.drawText(labelX, 2 * CellPixels + 4 + CellPixels / 2, "pink-brown: nest scent, weak to strong");
  painter.drawText(labelX, 2 * CellPixels + 24 + CellPixels / 2, "the same two numbers");
  painter.drawText(8, 3 * CellPixels + 50,
                   "Over a nest (grey disc) or a food pile (green disc) the two numbers are yellow.");
  painter.end();
  return picture;
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(keldor::ApplicationTitle);
  if (argc < 3) {
    std::fprintf(stderr, "usage: keldor-help-pictures HELP_DIR DOCS_DIR\n");
    return 2;
  }
  const QDir help(argv[1]);
  const QDir docs(argv[2]);
  keldor::QtMessageBox messages;
  MainWindow window(messages);
  window.show();
  window.NewWithSeed(7);
  // A second colony in another colour, left of the first.
  keldor::WorldSettings& settings = window.TheWorld().Settings;
  settings.AntColour = keldor::Colour(40, 60, 200);
  Click(window, "btnAction_4");
  auto* terrain = window.findChild<keldor::PictureBox*>("picTerreno");
  ClickTerrain(window, QPointF(terrain->width() * 0.2, terrain->height() * 0.3));
  Click(window, "btnAction_0");
  Click(window, "btnStop");
  Click(window, "btnOdor");
  RunTicks(window, 1500);
  Click(window, "btnStop");
  RunTicks(window, 1);
  bool saved = Save(window.grab().toImage(), help.filePath("window.png"));

  keldor::ChartsWindow* charts = window.Charts();
  charts->show();
  charts->Refresh();
  QApplication::processEvents();
  saved = Save(charts->grab().toImage(), docs.filePath("charts-two-colonies.png")) && saved;

  // Up close between the first nest and the food pile nearest to it.
  for (int i = 0; i < 3; ++i) Click(window, "cmdZoomIn");
  const keldor::World& world = window.TheWorld();
  const keldor::Nest& nest = world.Nests[0];
  double x = nest.X;
  double y = nest.Y;
  double nearest = 1e300;
  for (const keldor::FoodPile& pile : world.FoodPiles) {
    const double px = (pile.X - 0.5) * world.Settings.CellSize;
    const double py = (pile.Y - 0.5) * world.Settings.CellSize;
    const double distance = std::hypot(px - nest.X, py - nest.Y);
    if (distance < nearest) {
      nearest = distance;
      x = (px + nest.X) / 2;
      y = (py + nest.Y) / 2;
    }
  }
  keldor::NavigateFromMap(window.Window(), x, y);
  RunTicks(window, 1);
  const QImage view = terrain->grab().toImage();
  const QSize part = QSize(520, 360) * view.devicePixelRatio();
  saved = Save(view.copy(QRect(QPoint((view.width() - part.width()) / 2, (view.height() - part.height()) / 2), part)),
               help.filePath("closeup.png")) && saved;
  saved = Save(Legend(settings), help.filePath("legend.png")) && saved;

  keldor::HelpWindow* guide = window.Help();
  guide->show();
  guide->ShowPage(1);
  QApplication::processEvents();
  saved = Save(guide->grab().toImage(), docs.filePath("guide.png")) && saved;
  return saved ? 0 : 1;
}
