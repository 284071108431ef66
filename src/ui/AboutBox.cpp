#include "ui/AboutBox.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "window/SystemInfo.h"
#include "ui/ButtonPictures.h"
#include "ui/AppTexts.h"

namespace keldor {

AboutBox::AboutBox(Registry& registry, ProgramStarter& starter, MessageBox& messages, QWidget* parent)
    : QDialog(parent), registry_(registry), starter_(starter), messages_(messages) {
  setObjectName("frmAbout");
  setWindowTitle(QString("About ") + ApplicationTitle);
  setModal(true);

  auto* picIcon = new QLabel;
  picIcon->setObjectName("picIcon");
  picIcon->setPixmap(AppIconPixmap(48));
  auto* lblTitle = new QLabel(ApplicationTitle);
  lblTitle->setObjectName("lblTitle");
  QFont titleFont = lblTitle->font();
  titleFont.setPointSize(titleFont.pointSize() + 8);
  titleFont.setBold(true);
  lblTitle->setFont(titleFont);
  auto* lblTitle2 = new QLabel("Ant Colony");
  lblTitle2->setObjectName("lblTitle2");
  auto* lblDescription = new QLabel(AuthorshipText);
  lblDescription->setObjectName("lblDescription");
  auto* lblDisclaimer =
      new QLabel(QString("Keldor is freeware: you may use and share it freely.\n") + WebAddressText);
  lblDisclaimer->setObjectName("lblDisclaimer");
  lblDisclaimer->setWordWrap(true);

  auto* cmdOK = new QPushButton("OK");
  cmdOK->setObjectName("cmdOK");
  cmdOK->setDefault(true);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  auto* cmdSysInfo = new QPushButton("&System Info...");
  cmdSysInfo->setObjectName("cmdSysInfo");
  connect(cmdSysInfo, &QPushButton::clicked, this, [this] { StartSysInfo(registry_, starter_, messages_); });

  // The icon, the title lines and the buttons side by side, each column
  // packed at the top; the notice below across the whole width.
  auto* titles = new QVBoxLayout;
  titles->setSpacing(2);
  titles->addWidget(lblTitle);
  titles->addWidget(lblTitle2);
  titles->addSpacing(6);
  titles->addWidget(lblDescription);
  titles->addStretch();
  auto* buttons = new QVBoxLayout;
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdSysInfo);
  buttons->addStretch();
  auto* grid = new QGridLayout(this);
  grid->addWidget(picIcon, 0, 0, Qt::AlignTop);
  grid->addLayout(titles, 0, 1);
  grid->addLayout(buttons, 0, 2);
  grid->addWidget(lblDisclaimer, 1, 0, 1, 3);
  grid->setColumnStretch(1, 1);
  setMinimumWidth(420);
}

}  // namespace keldor
