#include "ui/OptionsDialog.h"

#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include "platform/QtColour.h"
#include "ui/SliderValueTip.h"

namespace keldor {

namespace {

// A slider with its two end labels: minimum at the left (or bottom).
QWidget* WithEndLabels(QSlider* slider, const char* minText, const char* maxText) {
  auto* box = new QWidget;
  if (slider->orientation() == Qt::Horizontal) {
    auto* layout = new QGridLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(slider, 0, 0, 1, 2);
    layout->addWidget(new QLabel(minText), 1, 0, Qt::AlignLeft);
    layout->addWidget(new QLabel(maxText), 1, 1, Qt::AlignRight);
  } else {
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(maxText), 0, Qt::AlignHCenter);
    layout->addWidget(slider, 1, Qt::AlignHCenter);
    layout->addWidget(new QLabel(minText), 0, Qt::AlignHCenter);
  }
  return box;
}

}  // namespace

OptionsDialog::OptionsDialog(World& world, WindowState& window, QWidget* parent) : QDialog(parent), form_(world, window) {
  setObjectName("frmOptions");
  setWindowTitle("Options");
  setModal(true);

  auto* frame1 = new QGroupBox("Nest (options will apply to the nests created from now)");
  frame1->setObjectName("Frame1");
  auto* nest = new QGridLayout(frame1);
  nest->addWidget(new QLabel("Starting Population:"), 0, 0);
  nest->addWidget(AddTextBox("txtNumAnts", [this]() -> const std::string& { return form_.NumAntsText(); },
                             [this](const std::string& t) { form_.AntCountTyped(t); }),
                  0, 1);
  nest->addWidget(new QLabel("Workers Lenght:"), 1, 0);
  nest->addWidget(AddTextBox("txtAntSize", [this]() -> const std::string& { return form_.AntSizeText(); },
                             [this](const std::string& t) { form_.AntSizeTyped(t); }),
                  1, 1);
  nest->addWidget(new QLabel("mm"), 1, 2);

  auto* colour = new QGroupBox("Ants Color");
  auto* colourGrid = new QGridLayout(colour);
  const char* heads[3] = {"R", "G", "B"};
  const char* names[3] = {"txtAntsRed", "txtAntsGreen", "txtAntsBlue"};
  for (int i = 0; i < 3; ++i) {
    const auto box = static_cast<ColourBox>(i);
    colourGrid->addWidget(new QLabel(heads[i]), 0, i, Qt::AlignHCenter);
    QLineEdit* edit = AddTextBox(
        names[i], [this, box]() -> const std::string& { return form_.ColourText(box); },
        [this, box](const std::string& t) { form_.ColourTyped(box, t); });
    edit->setMaximumWidth(48);
    colourGrid->addWidget(edit, 1, i);
  }
  picAntColor_ = new QFrame;
  picAntColor_->setObjectName("picAntColor");
  picAntColor_->setFrameShape(QFrame::Box);
  picAntColor_->setMinimumSize(40, 24);
  picAntColor_->setAutoFillBackground(true);
  colourGrid->addWidget(picAntColor_, 0, 3, 2, 1);
  nest->addWidget(colour, 2, 0, 1, 3);

  auto* lifeSpan = new QGroupBox("Life span");
  auto* lifeLayout = new QVBoxLayout(lifeSpan);
  lifeLayout->addWidget(WithEndLabels(
      AddSlider("sliLifeSpan", Qt::Vertical, LifeSpanRange, form_.LifeSpan(), &OptionsForm::LifeSpanMoved),
      "Ephemeral", "Immortal"));
  nest->addWidget(lifeSpan, 0, 3, 3, 1);

  auto* grid = new QHBoxLayout;
  grid->addWidget(new QLabel("Grid Dimentions    :"));
  grid->addWidget(new QLabel("X"));
  grid->addWidget(AddTextBox("txtGridDimX", [this]() -> const std::string& { return form_.GridDimXText(); },
                             [this](const std::string& t) { form_.GridSizeTyped(t); }));
  grid->addWidget(new QLabel("Y"));
  QLineEdit* gridY = AddTextBox("txtGridDimY", [this]() -> const std::string& { return form_.GridDimYText(); }, {});
  gridY->setReadOnly(true);  // the grid is square: the height follows the width
  grid->addWidget(gridY);

  auto* sliders = new QGridLayout;
  sliders->addWidget(new QLabel("Automatic Food Generation"), 0, 0);
  sliders->addWidget(
      WithEndLabels(AddSlider("sliFoodRate", Qt::Horizontal, FoodRateRange, form_.FoodRate(),
                              &OptionsForm::FoodRateMoved),
                    "None", "Abundant"),
      0, 1);
  sliders->addWidget(new QLabel("Food Scent"), 1, 0);
  sliders->addWidget(
      WithEndLabels(AddSlider("sliFoodTrace", Qt::Horizontal, TraceRange, form_.FoodTrace(),
                              &OptionsForm::FoodTraceMoved),
                    "Weak", "Strong"),
      1, 1);
  sliders->addWidget(new QLabel("Nest Scent"), 2, 0);
  sliders->addWidget(
      WithEndLabels(AddSlider("sliNestTrace", Qt::Horizontal, TraceRange, form_.NestTrace(),
                              &OptionsForm::NestTraceMoved),
                    "Weak", "Strong"),
      2, 1);

  auto* ok = new QPushButton("&OK");
  ok->setObjectName("btnAcept");
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &OptionsDialog::accept);
  auto* cancel = new QPushButton("&Cancel");
  cancel->setObjectName("btnCancel");
  connect(cancel, &QPushButton::clicked, this, &OptionsDialog::reject);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(frame1);
  layout->addLayout(grid);
  layout->addLayout(sliders);
  layout->addLayout(buttons);
  ShowFields();
}

OptionsDialog::~OptionsDialog() {
  for (const TextBox& box : boxes_) box.edit->disconnect(this);
}

QLineEdit* OptionsDialog::AddTextBox(const char* name, std::function<const std::string&()> text,
                                  std::function<void(const std::string&)> changed) {
  auto* edit = new QLineEdit;
  edit->setObjectName(name);
  boxes_.push_back({edit, std::move(text), std::move(changed)});
  if (boxes_.back().changed) {
    const size_t index = boxes_.size() - 1;
    connect(edit, &QLineEdit::editingFinished, this, [this, index] {
      TakeOver(boxes_[index]);
      ShowFields();
    });
  }
  return edit;
}

QSlider* OptionsDialog::AddSlider(const char* name, Qt::Orientation orientation, SliderRange range, int value,
                               void (OptionsForm::*changed)(int)) {
  auto* slider = new QSlider(orientation);
  slider->setObjectName(name);
  slider->setRange(range.Min, range.Max);
  slider->setValue(value);
  connect(slider, &QSlider::valueChanged, this, [this, changed](int v) { (form_.*changed)(v); });
  ShowValueTips(slider);
  return slider;
}

void OptionsDialog::TakeOver(const TextBox& box) {
  const std::string typed = box.edit->text().toStdString();
  if (typed != box.text()) box.changed(typed);
}

void OptionsDialog::TakeOverAll() {
  for (const TextBox& box : boxes_) {
    if (box.changed) TakeOver(box);
  }
}

void OptionsDialog::ShowFields() {
  for (const TextBox& box : boxes_) {
    const QString text = QString::fromStdString(box.text());
    if (box.edit->text() != text) {
      box.edit->setText(text);
      box.edit->setCursorPosition(static_cast<int>(text.size()));
    }
  }
  QPalette palette = picAntColor_->palette();
  palette.setColor(QPalette::Window, ToQColor(form_.PreviewColour()));
  picAntColor_->setPalette(palette);
}

void OptionsDialog::accept() {
  TakeOverAll();
  form_.ApplyOptions();
  QDialog::accept();
}

void OptionsDialog::reject() {
  TakeOverAll();
  QDialog::reject();
}

}  // namespace keldor
