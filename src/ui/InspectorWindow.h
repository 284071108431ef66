// "Keldor Inspector": the ant, nest or cell picked on the terrain view with
// the arrow tool, its fields shown as they are after the latest tick.
#pragma once

#include <QWidget>

class QLabel;

namespace keldor {

struct Inspection;

class InspectorWindow : public QWidget {
  Q_OBJECT

 public:
  explicit InspectorWindow(QWidget* parent = nullptr);

  void Show(const Inspection& inspection);
  // The lines shown, "Label: value" each.
  QString Text() const;
  QString Title() const;

 private:
  QLabel* title_ = nullptr;
  QLabel* lines_ = nullptr;
};

}  // namespace keldor
