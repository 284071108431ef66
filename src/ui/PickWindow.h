// "Keldor Inspector": the ant, nest or cell picked on the terrain view with
// the arrow tool, its fields shown as they are after the latest tick.
#pragma once

#include <QWidget>

class QLabel;

namespace keldor {

struct PickReport;

class PickWindow : public QWidget {
  Q_OBJECT

 public:
  explicit PickWindow(QWidget* parent = nullptr);

  void Show(const PickReport& inspection);
  // The lines shown, "Label: value" each.
  QString Text() const;
  QString Title() const;

 private:
  QLabel* title_ = nullptr;
  QLabel* lines_ = nullptr;
};

}  // namespace keldor
