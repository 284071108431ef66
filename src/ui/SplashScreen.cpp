#include "ui/SplashScreen.h"

#include <QLabel>
#include <QPainter>

#include "ui/AppTexts.h"
#include "ui/ButtonPictures.h"

namespace keldor {

SplashScreen::SplashScreen(std::function<void()> showMain, QWidget* parent)
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
  timer_.setInterval(SplashTimerIntervalMs);
  connect(&timer_, &QTimer::timeout, this, &SplashScreen::CountTick);
  timer_.start();
}

void SplashScreen::paintEvent(QPaintEvent*) {
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

void SplashScreen::CountTick() {
  if (counter_.Tick()) HandOver();
}

void SplashScreen::mousePressEvent(QMouseEvent*) { HandOver(); }

void SplashScreen::keyPressEvent(QKeyEvent*) { HandOver(); }

void SplashScreen::HandOver() {
  if (handedOver_) return;
  handedOver_ = true;
  timer_.stop();
  showMain_();
  close();
}

}  // namespace keldor
