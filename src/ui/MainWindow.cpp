#include "ui/MainWindow.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QFrame>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <algorithm>
#include <climits>
#include <cmath>

#include "window/Commands.h"
#include "window/MessageBox.h"
#include "window/OptionsForm.h"
#include "window/Viewport.h"
#include "platform/QtColour.h"
#include "platform/QtProgramStarter.h"
#include "platform/SystemRegistry.h"
#include "window/TerrainTools.h"
#include "sim/Tick.h"
#include "window/WorldTakeOver.h"
#include "worldfile/WorldFileIo.h"
#include "ui/AppTexts.h"
#include "ui/ButtonPictures.h"
#include "ui/PictureBox.h"
#include "ui/AboutBox.h"
#include "ui/OptionsDialog.h"
#include "ui/ScreenFit.h"

namespace keldor {

namespace {
QString AskForWorldFile(QWidget* parent, const char* caption, QFileDialog::AcceptMode mode);
}  // namespace

namespace {

// First outer size of the window, twips.
constexpr double InitialWidth = 10200;
constexpr double InitialHeight = 8400;

enum MouseKind { Press, Move, Release };

void SetToolTip(QWidget* widget, const std::string& text) {
  const QString tip = QString::fromStdString(text);
  if (widget->toolTip() != tip) widget->setToolTip(tip);
}

}  // namespace

MainWindow::MainWindow(MessageBox& messages, Clock* timeOfDay, QWidget* parent)
    : QMainWindow(parent),
      messages_(messages),
      simulation_(timeOfDay),
      world_(simulation_.TheWorld()),
      scale_(TwipScale::ForWidget(*this)),
      registry_(MakeSystemRegistry()),
      starter_(std::make_unique<QtProgramStarter>()),
      canvases_(QSize(1, 1), QSize(scale_.Pixels(MapBox.Width), scale_.Pixels(MapBox.Height)), window_.View,
                devicePixelRatioF()) {
  simulation_.SetTickListener(&populationLimit_);
  setObjectName("frmKeldor");
  chooseWorldFile_ = AskForWorldFile;
  setWindowTitle(ApplicationTitle);
  setWindowIcon(AppIcon());
  auto* central = new QWidget(this);
  setCentralWidget(central);
  BuildMenus();
  BuildTerrain(central);
  BuildButtonBar(central);
  BuildPalette(central);
  BuildInfoPanel(central);
  BuildGuide();

  StartUp(world_, window_);
  timer_.setInterval(TickPeriodMs);
  connect(&timer_, &QTimer::timeout, this, &MainWindow::TimerFired);
  steady_.start();
  resize(QSize(scale_.Pixels(InitialWidth - ClassicFrameWidth),
               scale_.Pixels(InitialHeight - ClassicFrameHeight) + menuBar()->sizeHint().height() +
                   statusBar()->sizeHint().height())
             .boundedTo(AvailableSize(*this)));
  layout()->activate();  // sizes the client area before the first show
  DoResize();
}

MainWindow::~MainWindow() = default;

void MainWindow::BuildMenus() {
  QMenu* file = menuBar()->addMenu("&File");
  QAction* mnuFileNew = file->addAction("&New", this, [this] { Run([this] { OnFileNew(); }); });
  mnuFileNew->setObjectName("mnuFileNew");
  QAction* mnuFileOpen = file->addAction("&Open World...", this, [this] { OnOpenWorld(); });
  mnuFileOpen->setObjectName("mnuFileOpen");
  mnuFileSaveAs_ = file->addAction("Save World &As...", this, [this] { OnSaveWorldAs(); });
  mnuFileSaveAs_->setObjectName("mnuFileSaveAs");
  file->addSeparator();
  QAction* mnuFileExit = file->addAction("&Exit", this, [this] { close(); });
  mnuFileExit->setObjectName("mnuFileExit");

  QMenu* tools = menuBar()->addMenu("&Tools");
  QMenu* view = tools->addMenu("&View");
  view->menuAction()->setObjectName("mnuView");
  mnuButtons_ = view->addAction("&Buttons", this, [this] { Run([this] { ToggleButtonBar(window_, layout_); }); });
  mnuButtons_->setObjectName("mnuButtons");
  mnuButtons_->setCheckable(true);
  mnuInfo_ = view->addAction("&Info", this, [this] { Run([this] { ToggleInfoPanel(window_, layout_); }); });
  mnuInfo_->setObjectName("mnuInfo");
  mnuInfo_->setCheckable(true);
  QAction* mnuOptions = tools->addAction("&Options...", this, [this] { OnOptions(); });
  mnuOptions->setObjectName("mnuOptions");

  QMenu* help = menuBar()->addMenu("&Help");
  QAction* mnuHelpAbout = help->addAction("&About...", this, [this] { OnAbout(); });
  mnuHelpAbout->setObjectName("mnuHelpAbout");
  BuildRunMenus(file, tools);
}

QPushButton* MainWindow::AddBarButton(QWidget* bar, const char* name, double left, const char* toolTip) {
  auto* button = new QPushButton(bar);
  button->setObjectName(name);
  button->setToolTip(toolTip);
  button->setFocusPolicy(Qt::NoFocus);
  button->setGeometry(scale_.Rect({left, BarButtonTop, BarButtonSize, BarButtonSize}));
  button->setIconSize(button->size() * 0.7);
  return button;
}

void MainWindow::BuildButtonBar(QWidget* central) {
  fraButtonBar_ = new QFrame(central);
  fraButtonBar_->setObjectName("fraButtonBar");
  fraButtonBar_->setFrameShape(QFrame::StyledPanel);
  btnStart_ = AddBarButton(fraButtonBar_, "btnStart", StartLeft, "Start new simulation");
  btnStart_->setIcon(ButtonIcon(ButtonPicture::Start));
  connect(btnStart_, &QPushButton::clicked, this, [this] {
    Run([this] {
      CollapsePalette(window_);
      OnFileNew();
    });
  });
  btnStop_ = AddBarButton(fraButtonBar_, "btnStop", StopLeft, "Pause");
  connect(btnStop_, &QPushButton::clicked, this, [this] { Run([this] { TogglePlayPause(world_, window_); }); });
  cmdZoomIn_ = AddBarButton(fraButtonBar_, "cmdZoomIn", ZoomInLeft, "Zoom In");
  cmdZoomIn_->setIcon(ButtonIcon(ButtonPicture::ZoomIn));
  connect(cmdZoomIn_, &QPushButton::clicked, this, [this] { Run([this] { ZoomIn(window_); }); });
  cmdZoomOut_ = AddBarButton(fraButtonBar_, "cmdZoomOut", ZoomOutLeft, "Zoom Out");
  cmdZoomOut_->setIcon(ButtonIcon(ButtonPicture::ZoomOut));
  connect(cmdZoomOut_, &QPushButton::clicked, this, [this] { Run([this] { ZoomOut(window_); }); });
  btnInfo_ = AddBarButton(fraButtonBar_, "btnInfo", InfoButtonLeft, "Toggle Info");
  btnInfo_->setIcon(ButtonIcon(ButtonPicture::Info));
  connect(btnInfo_, &QPushButton::clicked, this, [this] { Run([this] { CloseInfoPanel(window_, layout_); }); });
  btnOdor_ = AddBarButton(fraButtonBar_, "btnOdor", OdorLeft, "");
  btnOdor_->setIcon(ButtonIcon(ButtonPicture::Odor));
  connect(btnOdor_, &QPushButton::clicked, this, [this] { Run([this] { ToggleOdor(window_); }); });
  btnAnts_ = AddBarButton(fraButtonBar_, "btnAnts", AntsLeft, "");
  btnAnts_->setIcon(ButtonIcon(ButtonPicture::Ants));
  connect(btnAnts_, &QPushButton::clicked, this, [this] { Run([this] { ToggleAnts(window_); }); });

  const char* quickTips[2] = {"Toggle Button Bar", "Toggle Info"};
  for (int i = 0; i < 2; ++i) {
    auto* quick = new QPushButton(central);
    quick->setObjectName(QString("btnQuick_%1").arg(i + 1));
    quick->setToolTip(quickTips[i]);
    quick->setFocusPolicy(Qt::NoFocus);
    connect(quick, &QPushButton::clicked, this, [this, i] { Run([this, i] { QuickToggle(window_, layout_, i + 1); }); });
    btnQuick_[i] = quick;
  }
}

void MainWindow::BuildPalette(QWidget* central) {
  fraActions_ = new QFrame(central);
  fraActions_->setObjectName("fraActions");
  fraActions_->setFrameShape(QFrame::StyledPanel);
  fraActions_->setAutoFillBackground(true);
  const ButtonPicture pictures[5] = {ButtonPicture::NoTool, ButtonPicture::FoodTool, ButtonPicture::WallTool,
                                     ButtonPicture::RemoveAntsTool, ButtonPicture::NestTool};
  const char* tips[5] = {"", "Add/Remove food", "Add/Remove plaster brick", "Remove ants", "Add/Remove nest"};
  for (int i = 0; i < 5; ++i) {
    auto* button = new QPushButton(fraActions_);
    button->setObjectName(QString("btnAction_%1").arg(i));
    button->setToolTip(tips[i]);
    button->setIcon(ButtonIcon(pictures[i]));
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QPushButton::clicked, this, [this, i] { Run([this, i] { SelectTool(world_, window_, i); }); });
    btnAction_[i] = button;
  }
  btnPickAction_ = new QPushButton("v", central);
  btnPickAction_->setObjectName("btnPickAction");
  btnPickAction_->setToolTip("Show/Hide actions");
  btnPickAction_->setFocusPolicy(Qt::NoFocus);
  connect(btnPickAction_, &QPushButton::clicked, this, [this] { Run([this] { TogglePalette(window_); }); });
}

void MainWindow::BuildTerrain(QWidget* central) {
  picTerreno_ = new PictureBox(central);
  picTerreno_->setObjectName("picTerreno");
  connect(picTerreno_, &PictureBox::MouseDown, this, [this](int b, QPointF p) { TerrainMouse(Press, b, p); });
  connect(picTerreno_, &PictureBox::MouseMove, this, [this](int b, QPointF p) { TerrainMouse(Move, b, p); });
  connect(picTerreno_, &PictureBox::MouseUp, this, [this](int b, QPointF p) { TerrainMouse(Release, b, p); });
  hScroll1_ = new QScrollBar(Qt::Horizontal, central);
  hScroll1_->setObjectName("HScroll1");
  vScroll1_ = new QScrollBar(Qt::Vertical, central);
  vScroll1_->setObjectName("VScroll1");
  connect(hScroll1_, &QScrollBar::valueChanged, this, &MainWindow::ScrollBarMoved);
  connect(vScroll1_, &QScrollBar::valueChanged, this, &MainWindow::ScrollBarMoved);
}

void MainWindow::BuildInfoPanel(QWidget* central) {
  fraInfo_ = new QFrame(central);
  fraInfo_->setObjectName("fraInfo");
  fraInfo_->setFrameShape(QFrame::StyledPanel);
  picMapa_ = new PictureBox(fraInfo_);
  picMapa_->setObjectName("picMapa");
  picMapa_->setGeometry(scale_.Rect(MapBox));
  connect(picMapa_, &PictureBox::MouseMove, this, [this](int b, QPointF p) { MapMouse(false, b, p); });
  connect(picMapa_, &PictureBox::MouseUp, this, [this](int b, QPointF p) { MapMouse(true, b, p); });
  auto* label1 = new QLabel("Population:", fraInfo_);
  label1->setObjectName("Label1");
  label1->setGeometry(scale_.Rect({90, 2280, 1050, 255}));
  lblPop_ = new QLabel("0000", fraInfo_);
  lblPop_->setObjectName("lblPop");
  lblPop_->setGeometry(scale_.Rect({1140, 2280, 950, 255}));
}

template <typename Command>
void MainWindow::Run(Command command) {
  command();
  ApplyLayout();
  ShowControls();
}

void MainWindow::OnFileNew() { StartNewWorld(std::nullopt); }

namespace {

// The file dialogs are Qt's own on every platform, so that they look and
// behave the same everywhere (and tests can answer them).
QString AskForWorldFile(QWidget* parent, const char* caption, QFileDialog::AcceptMode mode) {
  QFileDialog dialog(parent, caption, QString(), "Keldor worlds (*.keldor.json *.json);;All files (*)");
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(mode);
  dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  // The ending the desktop's file type for world files recognises.
  dialog.setDefaultSuffix("keldor.json");
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().first();
}

}  // namespace

void MainWindow::OnSaveWorldAs() {
  const QString path = chooseWorldFile_(this, "Save World As", QFileDialog::AcceptSave);
  if (path.isEmpty()) return;
  if (const auto fault = WriteWorldFile(path.toStdString(), world_, window_, simulation_.Resume())) messages_.Show(*fault);
}

void MainWindow::OnOpenWorld() {
  const QString path = chooseWorldFile_(this, "Open World", QFileDialog::AcceptOpen);
  if (!path.isEmpty()) OpenWorldFile(path);
}

void MainWindow::OpenWorldFile(const QString& path) {
  if (simulation_.TickInProgress()) return;
  WindowRecord loaded;
  if (const auto fault = simulation_.LoadFile(path.toStdString(), loaded)) {
    messages_.Show(*fault);
    return;
  }
  TakeOverWindow(window_, world_, std::move(loaded));
  simulation_.ChooseClock(speed_ == RunSpeed::Normal);
  chart_.Clear();
  pick_ = {};
  DoResize();  // the loaded viewport takes this window's terrain size
  ShowRun();
}

void MainWindow::OnOptions() {
  OptionsDialog dialog(world_, window_, this);
  options_ = &dialog;
  dialog.exec();
  ShowControls();
}

void MainWindow::OnAbout() {
  AboutBox dialog(*registry_, *starter_, messages_, this);
  dialog.exec();
}

void MainWindow::TerrainMouse(int kind, int buttons, QPointF pixel) {
  if (!world_.HasWorld()) return;
  const float x = static_cast<float>(window_.View.Terrain.Left + scale_.Twips(pixel.x()));
  const float y = static_cast<float>(window_.View.Terrain.Top + scale_.Twips(pixel.y()));
  if (kind == Press && window_.View.CurrentTool == NoTool && buttons == 1) PickAt(pixel);
  if (kind == Press) {
    // The press acts on the cell under the pointer, even without a move before it.
    TerrainPointerMoved(world_, window_, 0, x, y);
    TerrainPointerPressed(world_, window_, simulation_.Random(), buttons);
  } else if (kind == Move) {
    TerrainPointerMoved(world_, window_, buttons, x, y);
  } else {
    TerrainPointerReleased(window_, buttons);
  }
}

void MainWindow::MapMouse(bool release, int buttons, QPointF pixel) {
  if (!release && buttons == 0) return;
  const ViewScale& map = window_.View.Map;
  const double x = map.Left + pixel.x() * map.Width / picMapa_->width();
  const double y = map.Top + pixel.y() * map.Height / picMapa_->height();
  NavigateFromMap(window_, x, y);
  ShowControls();
}

void MainWindow::ScrollBarMoved() {
  if (showing_) return;
  SetHorizontalScroll(window_, hScroll1_->value());
  SetVerticalScroll(window_, vScroll1_->value());
  ShowControls();
}

void MainWindow::AdvanceTick() {
  // The population-limit message is modal: the tick timer keeps firing inside
  // it, and those ticks are skipped.
  if (RunOneTick(canvases_.Painter())) ShowTick();
}

void MainWindow::ShowFrame() {
  picTerreno_->SetFrame(canvases_.Terrain().Image());
  if (window_.View.InfoVisible) picMapa_->SetFrame(canvases_.Map().Image());
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  DoResize();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  // Closing by any route unloads the options dialog too.
  if (options_) options_->reject();
  timer_.stop();
  event->accept();
}

void MainWindow::DoResize() {
  if (isMinimized()) return;
  // The menu bar lies outside the client area, as the layout expects.
  const QSize client = centralWidget()->size();
  const double width = scale_.Twips(client.width()) + ClassicFrameWidth;
  const double height = scale_.Twips(client.height()) + ClassicFrameHeight;
  ResizeWindow(window_, layout_, width, height);
  if (layout_.Width > width || layout_.Height > height) {
    const int growX = static_cast<int>(std::ceil((layout_.Width - width) / scale_.TwipsPerPixel()));
    const int growY = static_cast<int>(std::ceil((layout_.Height - height) / scale_.TwipsPerPixel()));
    // Never beyond the screen: on a small one the view gives up its last pixels.
    const QSize grown = QSize(this->width() + growX, this->height() + growY).boundedTo(AvailableSize(*this));
    if (grown != size()) resize(grown);
  }
  ApplyLayout();
  ShowControls();
}

void MainWindow::ApplyLayout() {
  const ControlState& c = window_.Controls;
  fraButtonBar_->setGeometry(scale_.Rect(layout_.ButtonBar));
  TwipRect actions = layout_.Actions;
  actions.Height = c.ActionsHeight;
  fraActions_->setGeometry(scale_.Rect(actions));
  btnPickAction_->setGeometry(scale_.Rect(layout_.PickAction));
  btnQuick_[0]->setGeometry(scale_.Rect(layout_.Quick1));
  btnQuick_[1]->setGeometry(scale_.Rect(layout_.Quick2));
  picTerreno_->setGeometry(scale_.Rect(layout_.Terrain));
  hScroll1_->setGeometry(scale_.Rect(layout_.HScroll));
  vScroll1_->setGeometry(scale_.Rect(layout_.VScroll));
  fraInfo_->setGeometry(scale_.Rect(layout_.Info));
  fraButtonBar_->setVisible(c.ButtonBarVisible);
  fraActions_->setVisible(c.ButtonBarVisible);
  btnPickAction_->setVisible(c.ButtonBarVisible);
  fraInfo_->setVisible(window_.View.InfoVisible);
  fraActions_->raise();
  btnPickAction_->raise();

  ResizeCanvases();
}

void MainWindow::ResizeCanvases() {
  // A tick may be waiting inside the population-limit message, halfway
  // through its drawing: the canvases follow the boxes once it is done.
  if (simulation_.TickInProgress()) return;
  canvases_.Resize(picTerreno_->size(), picMapa_->size());
}

void MainWindow::ShowControls() {
  showing_ = true;
  const ControlState& c = window_.Controls;
  for (QWidget* w : {static_cast<QWidget*>(btnStop_), static_cast<QWidget*>(cmdZoomIn_),
                     static_cast<QWidget*>(cmdZoomOut_), static_cast<QWidget*>(btnOdor_),
                     static_cast<QWidget*>(btnAnts_), static_cast<QWidget*>(btnPickAction_)}) {
    w->setEnabled(c.WorldControlsEnabled);
  }
  for (QPushButton* b : btnAction_) b->setEnabled(c.WorldControlsEnabled);

  SetToolTip(btnStop_, c.StopToolTip);
  const QString stopPicture = c.StopImage == PlayPauseImage::Play ? "play" : "pause";
  if (btnStop_->property("picture").toString() != stopPicture) {
    btnStop_->setIcon(ButtonIcon(c.StopImage == PlayPauseImage::Play ? ButtonPicture::Play : ButtonPicture::Pause));
    btnStop_->setProperty("picture", stopPicture);
  }
  SetToolTip(btnOdor_, c.OdorToolTip);
  SetToolTip(btnAnts_, c.AntsToolTip);

  // The palette: its height shows the top slot only, or all five buttons.
  const QString caption = QString::fromStdString(c.PickActionCaption);
  if (btnPickAction_->text() != caption) btnPickAction_->setText(caption);
  TwipRect actions = layout_.Actions;
  actions.Height = c.ActionsHeight;
  const QRect paletteRect = scale_.Rect(actions);
  if (fraActions_->geometry() != paletteRect) fraActions_->setGeometry(paletteRect);
  for (int i = 0; i < 5; ++i) {
    const QRect r = scale_.Rect({45, static_cast<double>(c.ActionTops[i]), 400, i == 0 ? 405.0 : 400.0});
    if (btnAction_[i]->geometry() != r) {
      btnAction_[i]->setGeometry(r);
      btnAction_[i]->setIconSize(r.size() * 0.7);
    }
  }
  const Qt::CursorShape cursor = c.CrossHairPointer ? Qt::CrossCursor : Qt::ArrowCursor;
  if (picTerreno_->cursor().shape() != cursor) picTerreno_->setCursor(cursor);

  mnuFileSaveAs_->setEnabled(world_.HasWorld());
  mnuButtons_->setChecked(c.ButtonBarVisible);
  mnuInfo_->setChecked(window_.View.InfoVisible);
  const bool shown[2] = {c.ButtonBarVisible, window_.View.InfoVisible};
  for (int i = 0; i < 2; ++i) {
    const QString css = "background-color: " + ToQColor(QuickButtonColour(shown[i])).name() + "; border: 1px solid gray;";
    if (btnQuick_[i]->styleSheet() != css) btnQuick_[i]->setStyleSheet(css);
  }
  const QString population = QString::fromStdString(c.PopulationCaption);
  if (lblPop_->text() != population) lblPop_->setText(population);

  const ScrollBar* bars[2] = {&window_.HScroll1, &window_.VScroll1};
  QScrollBar* widgets[2] = {hScroll1_, vScroll1_};
  for (int i = 0; i < 2; ++i) {
    widgets[i]->setRange(std::min(bars[i]->Min, bars[i]->Max), std::max(bars[i]->Min, bars[i]->Max));
    widgets[i]->setSingleStep(bars[i]->SmallChange);
    widgets[i]->setPageStep(bars[i]->LargeChange);
    widgets[i]->setValue(bars[i]->Value);
  }

  // Fastest shows a paused world at the frame rate; it has nothing to run.
  const int interval = speed_ == RunSpeed::Fastest && !world_.Running ? static_cast<int>(1000 * FastestPacer::FrameSeconds)
                                                                      : TimerIntervalMs(speed_);
  if (timer_.interval() != interval) timer_.setInterval(interval);
  if (window_.TimerEnabled && !timer_.isActive()) timer_.start();
  if (!window_.TimerEnabled && timer_.isActive()) timer_.stop();
  showing_ = false;
}

}  // namespace keldor
