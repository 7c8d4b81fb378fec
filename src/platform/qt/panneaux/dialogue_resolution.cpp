// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/panneaux/dialogue_resolution.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include "platform/qt/panneaux/pages_web.h"

namespace {

QColor Couleur(uint32_t bgr) { return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF); }

// A black field in a raised frame of white and dark grey.
class AfficheForm : public QDialog {
public:
  AfficheForm() {
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setFixedSize(320, 139);
    auto *logoFond = new QWidget(this);
    logoFond->setObjectName("LogoFondPic");
    logoFond->setGeometry(61, 12, 200, 38);
    logoFond->setAutoFillBackground(true);
    QPalette fond = logoFond->palette();
    fond.setColor(QPalette::Window, Couleur(0x0000FF));
    logoFond->setPalette(fond);
    // The logo's view stands 2 pixels up and left of its panel, which clips
    // it; the view is made inside this frame at the frame's corner.
    auto *logoWeb = new QWidget(logoFond);
    logoWeb->setObjectName("LogoWeb");
    logoWeb->setGeometry(-2, -2, 226, 60);
    pages = std::make_unique<PagesWeb>(nullptr, nullptr, logoWeb);
    pages->Navigue(VueWeb::LogoWeb, "logomdc200.htm");
    const auto étiquette = [this](const char *texte, int top) {
      auto *l = new QLabel(QCoreApplication::translate("Resolution", texte), this);
      l->setGeometry(8, top, 306, 17);
      l->setAlignment(Qt::AlignCenter);
      QFont f("Liberation Sans");
      f.setPixelSize(11);
      f.setBold(true);
      l->setFont(f);
      l->setStyleSheet("color: white");
    };
    étiquette(QT_TRANSLATE_NOOP("Resolution", "La résolution doit être changée en 1024 X 768"), 56);
    étiquette(QT_TRANSLATE_NOOP("Resolution", "Elle sera restituée en sortant du programme"), 72);
    const auto bouton = [this](const char *texte, int left, uint32_t couleur) {
      auto *b = new QPushButton(QCoreApplication::translate("Resolution", texte), this);
      b->setGeometry(left, 96, 140, 33);
      QFont f("Liberation Sans");
      f.setPixelSize(12); // the longer caption fits its button
      b->setFont(f);
      // Flat in its own colour, with a raised edge that sinks when pressed:
      // a colour alone would let the style paint its gradient over it.
      const QString c = Couleur(couleur).name();
      b->setStyleSheet(QString("QPushButton { background-color: %1; border: 2px outset %1; }"
                               "QPushButton:pressed { border-style: inset; }")
                           .arg(c));
      return b;
    };
    connect(bouton(QT_TRANSLATE_NOOP("Resolution", "Je suis d'accord"), 165, 0xC0FFC0),
            &QPushButton::clicked, this, &QDialog::accept);
    connect(bouton(QT_TRANSLATE_NOOP("Resolution", "Je ne suis pas d'accord"), 16, 0xC0C0FF),
            &QPushButton::clicked, this, &QDialog::reject);
  }

protected:
  void paintEvent(QPaintEvent *) override {
    QPainter p(this);
    p.fillRect(rect(), Qt::black);
    p.setPen(Qt::white);
    p.drawLine(0, 0, width() - 1, 0);
    p.drawLine(0, 0, 0, height() - 1);
    p.setPen(QColor(128, 128, 128));
    p.drawLine(0, height() - 1, width() - 1, height() - 1);
    p.drawLine(width() - 1, 0, width() - 1, height() - 1);
  }

private:
  std::unique_ptr<PagesWeb> pages;
};

} // namespace

bool DemandeAccordRésolution() {
  AfficheForm dialogue;
  return dialogue.exec() == QDialog::Accepted;
}
