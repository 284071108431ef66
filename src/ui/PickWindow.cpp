#include "ui/PickWindow.h"

#include <QCheckBox>
#include <QFont>
#include <QLabel>
#include <QVBoxLayout>

#include "window/PickReport.h"

namespace keldor {

PickWindow::PickWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
  setObjectName("frmPick");
  setWindowTitle("Keldor Inspector");
  auto* layout = new QVBoxLayout(this);
  title_ = new QLabel(this);
  title_->setObjectName("lblPickTitle");
  QFont bold = title_->font();
  bold.setBold(true);
  title_->setFont(bold);
  title_->setWordWrap(true);
  lines_ = new QLabel(this);
  lines_->setObjectName("lblPickLines");
  lines_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  lines_->setFont(QFont("monospace"));
  layout->addWidget(title_);
  layout->addWidget(lines_);
  follow_ = new QCheckBox("&Follow the picked ant", this);
  follow_->setObjectName("chkFollow");
  layout->addWidget(follow_);
  layout->addStretch();
  resize(340, 280);
}

void PickWindow::Show(const PickReport& inspection) {
  QString text;
  for (const auto& [label, value] : inspection.Lines) {
    if (!text.isEmpty()) text += '\n';
    text += QString::fromStdString(label) + ": " + QString::fromStdString(value);
  }
  const QString title = QString::fromStdString(inspection.Title);
  if (title_->text() != title) title_->setText(title);
  if (lines_->text() != text) lines_->setText(text);
}

QString PickWindow::Text() const { return lines_->text(); }

QString PickWindow::Title() const { return title_->text(); }

bool PickWindow::Following() const { return follow_->isChecked(); }

}  // namespace keldor
