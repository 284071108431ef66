#include "ui/InspectorWindow.h"

#include <QFont>
#include <QLabel>
#include <QVBoxLayout>

#include "window/Inspection.h"

namespace keldor {

InspectorWindow::InspectorWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
  setObjectName("frmInspector");
  setWindowTitle("Keldor Inspector");
  auto* layout = new QVBoxLayout(this);
  title_ = new QLabel(this);
  title_->setObjectName("lblInspectTitle");
  QFont bold = title_->font();
  bold.setBold(true);
  title_->setFont(bold);
  title_->setWordWrap(true);
  lines_ = new QLabel(this);
  lines_->setObjectName("lblInspection");
  lines_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  lines_->setFont(QFont("monospace"));
  layout->addWidget(title_);
  layout->addWidget(lines_);
  layout->addStretch();
  resize(300, 260);
}

void InspectorWindow::Show(const Inspection& inspection) {
  QString text;
  for (const auto& [label, value] : inspection.Lines) {
    if (!text.isEmpty()) text += '\n';
    text += QString::fromStdString(label) + ": " + QString::fromStdString(value);
  }
  const QString title = QString::fromStdString(inspection.Title);
  if (title_->text() != title) title_->setText(title);
  if (lines_->text() != text) lines_->setText(text);
}

QString InspectorWindow::Text() const { return lines_->text(); }

QString InspectorWindow::Title() const { return title_->text(); }

}  // namespace keldor
