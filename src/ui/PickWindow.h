// "Keldor Inspector": the ant, nest or cell picked on the terrain view with
// the arrow tool, described in plain words as it is after the latest tick;
// Follow keeps a picked ant in the terrain view.
#pragma once

#include <QWidget>

class QCheckBox;
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
  // "Follow" is ticked: the main window keeps the picked ant in view.
  bool Following() const;

 private:
  QLabel* title_ = nullptr;
  QLabel* lines_ = nullptr;
  QCheckBox* follow_ = nullptr;
};

}  // namespace keldor
