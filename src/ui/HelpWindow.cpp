#include "ui/HelpWindow.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QSplitter>
#include <QTextBrowser>
#include <QUrl>
#include <iterator>

#include "ui/ScreenFit.h"

namespace keldor {

namespace {

struct HelpPage {
  const char* Title;
  const char* File;
};

// In reading order: the first page is the one a new user needs first.
constexpr HelpPage Pages[] = {
    {"Getting started", "start.html"},
    {"What the views show", "views.html"},
    {"Tools", "tools.html"},
    {"Running and stepping", "run.html"},
    {"Charts and Inspector", "charts.html"},
    {"New with Seed, Save, Open", "worlds.html"},
    {"Options", "options.html"},
    {"Batch runs and sweeps", "batch.html"},
};

}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
  setObjectName("frmHelp");
  setWindowTitle("Keldor Help");
  auto* layout = new QHBoxLayout(this);
  auto* splitter = new QSplitter(this);
  pages_ = new QListWidget(splitter);
  pages_->setObjectName("lstHelpPages");
  for (const HelpPage& page : Pages) pages_->addItem(page.Title);
  browser_ = new QTextBrowser(splitter);
  browser_->setObjectName("txtHelp");
  browser_->setSearchPaths({":/help"});
  browser_->setOpenExternalLinks(true);
  splitter->addWidget(pages_);
  splitter->addWidget(browser_);
  splitter->setStretchFactor(1, 1);
  layout->addWidget(splitter);
  // Links between pages move the list's choice along.
  connect(browser_, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) {
    for (int i = 0; i < PageCount(); ++i) {
      if (url.fileName() == Pages[i].File && pages_->currentRow() != i) pages_->setCurrentRow(i);
    }
  });
  connect(pages_, &QListWidget::currentRowChanged, this, [this](int row) { ShowPage(row); });
  const int wide = fontMetrics().horizontalAdvance('x');
  pages_->setMaximumWidth(30 * wide);
  resize(QSize(125 * wide, 48 * fontMetrics().height()).boundedTo(AvailableSize(*this)));
  ShowPage(0);
}

int HelpWindow::PageCount() const { return static_cast<int>(std::size(Pages)); }

QString HelpWindow::PageTitle(int page) const { return Pages[page].Title; }

void HelpWindow::ShowPage(int page) {
  if (page < 0 || page >= PageCount()) return;
  const QUrl url(QString("qrc:/help/") + Pages[page].File);
  if (browser_->source() != url) browser_->setSource(url);
  if (pages_->currentRow() != page) pages_->setCurrentRow(page);
}

int HelpWindow::CurrentPage() const { return pages_->currentRow(); }

QString HelpWindow::PageText() const { return browser_->toPlainText(); }

}  // namespace keldor
