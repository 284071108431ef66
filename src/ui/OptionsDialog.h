// The modal "Options" dialog, thin over OptionsForm. A text box's text is
// taken over when the user finishes editing it (Enter, or leaving the box,
// also by pressing OK or Cancel), so that a number can be typed digit by
// digit before it is corrected; the sliders are taken over as they move.
#pragma once

#include <QDialog>
#include <array>
#include <functional>

#include "window/OptionsForm.h"

class QFrame;
class QLineEdit;
class QSlider;

namespace keldor {

struct World;
struct WindowState;

class OptionsDialog : public QDialog {
  Q_OBJECT

 public:
  OptionsDialog(World& world, WindowState& window, QWidget* parent = nullptr);
  // A box that still has the focus loses it while the widgets go: that late
  // "editing finished" must not reach the form, which is already gone.
  ~OptionsDialog() override;

  const OptionsForm& Form() const { return form_; }

 public slots:
  // OK: takes over the pending texts and the rest of the options, then closes.
  void accept() override;
  // Cancel or the close box: takes over the pending texts only, then closes.
  void reject() override;

 private:
  struct TextBox {
    QLineEdit* edit;
    std::function<const std::string&()> text;
    std::function<void(const std::string&)> changed;
  };
  QLineEdit* AddTextBox(const char* name, std::function<const std::string&()> text,
                        std::function<void(const std::string&)> changed);
  QSlider* AddSlider(const char* name, Qt::Orientation orientation, SliderRange range, int value,
                     void (OptionsForm::*changed)(int));
  void TakeOver(const TextBox& box);
  void TakeOverAll();
  void ShowFields();

  OptionsForm form_;
  std::vector<TextBox> boxes_;
  QFrame* picAntColor_ = nullptr;
};

}  // namespace keldor
