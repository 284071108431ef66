#include "ui/frmSplash.h"

#include <QLabel>
#include <QPainter>

#include "ui/AppTexts.h"
#include "ui/ButtonPictures.h"

namespace keldor {

frmSplash::frmSplash(std::function<void()> showMain, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint), showMain_(std::move(showMain)) {
  setObjectName("frmSplash");
  setWindowTitle(ApplicationTitle);
  setAttribute(Qt::WA_DeleteOnClose);
  setFixedSize(420, 260);
  setFocusPolicy(Qt::StrongFocus);
  auto* label1 = new QLabel(AuthorshipText, this);
  label1->setObjectName("Label1");
  label1->setGeometry(20, 200, 380, 22);
  auto* label2 = new QLabel(WebAddressText, this);
  label2->setObjectName("Label2");
  label2->setGeometry(20, 222, 380, 22);
  for (QLabel* label : {label1, label2}) label->setStyleSheet("color: white;");
  timer1_.setInterval(SplashTimerIntervalMs);
  connect(&timer1_, &QTimer::timeout, this, &frmSplash::Timer1_Timer);
  timer1_.start();
}

void frmSplash::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  p.fillRect(rect(), QColor(70, 55, 40));
  p.drawPixmap(20, 20, AppIconPixmap(128));
  QFont title = font();
  title.setPointSize(34);
  title.setBold(true);
  p.setFont(title);
  p.setPen(QColor(255, 220, 120));
  p.drawText(QRect(160, 40, 250, 70), Qt::AlignLeft | Qt::AlignVCenter, ApplicationTitle);
  QFont subtitle = font();
  subtitle.setPointSize(12);
  p.setFont(subtitle);
  p.setPen(QColor(230, 220, 200));
  p.drawText(QRect(160, 105, 250, 30), Qt::AlignLeft | Qt::AlignVCenter, "Ant colony simulation");
}

void frmSplash::Timer1_Timer() {
  if (counter_.Tick()) Form_Click();
}

void frmSplash::mousePressEvent(QMouseEvent*) { Form_Click(); }

void frmSplash::keyPressEvent(QKeyEvent*) { Form_Click(); }

void frmSplash::Form_Click() {
  if (handedOver_) return;
  handedOver_ = true;
  timer1_.stop();
  showMain_();
  close();
}

}  // namespace keldor
