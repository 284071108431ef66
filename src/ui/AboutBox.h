// The "About Keldor" box: the icon, the title, an authorship line, a freeware
// notice with the web address, OK and the System Info button.
#pragma once

#include <QDialog>

namespace keldor {

class MessageBox;
class ProgramStarter;
class Registry;

class AboutBox : public QDialog {
  Q_OBJECT

 public:
  AboutBox(Registry& registry, ProgramStarter& starter, MessageBox& messages, QWidget* parent = nullptr);

 private:
  Registry& registry_;
  ProgramStarter& starter_;
  MessageBox& messages_;
};

}  // namespace keldor
