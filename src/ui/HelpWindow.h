// "Keldor Help": the guide for a teacher or a first-time user, a list of
// pages beside a text browser. The pages are plain HTML with PNG pictures
// bundled in the program (src/ui/help), so they read the same elsewhere.
#pragma once

#include <QWidget>

class QListWidget;
class QTextBrowser;

namespace keldor {

class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  explicit HelpWindow(QWidget* parent = nullptr);

  int PageCount() const;
  QString PageTitle(int page) const;
  void ShowPage(int page);
  int CurrentPage() const;
  // The shown page as plain text.
  QString PageText() const;

 private:
  QListWidget* pages_ = nullptr;
  QTextBrowser* browser_ = nullptr;
};

}  // namespace keldor
