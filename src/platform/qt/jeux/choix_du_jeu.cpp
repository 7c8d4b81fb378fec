// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/jeux/choix_du_jeu.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <cmath>

#include "platform/qt/jeux/jeux_de_cartes.h"

namespace {

// The name of the deck, a moment over the middle of the table; it follows
// the window's size and lets the clicks through.
class ÉtiquetteNom : public QLabel {
public:
  explicit ÉtiquetteNom(QWidget *fenêtre) : QLabel(fenêtre) {
    setObjectName("nomDuJeu");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignCenter);
    setStyleSheet("QLabel { color: white; background: rgba(0, 0, 0, 190); "
                  "border: 1px solid rgb(200, 200, 200); border-radius: 6px; }");
    minuterie.setSingleShot(true);
    minuterie.setInterval(2000);
    connect(&minuterie, &QTimer::timeout, this, &QWidget::hide);
    fenêtre->installEventFilter(this);
    hide();
  }

  void Montre(const QString &texte) {
    setText(texte);
    Place();
    show();
    raise();
    minuterie.start();
  }

protected:
  bool eventFilter(QObject *objet, QEvent *e) override {
    if (objet == parent() && e->type() == QEvent::Resize && isVisible())
      Place();
    return false;
  }

private:
  QTimer minuterie;

  void Place() {
    const QWidget *fenêtre = parentWidget();
    QFont f("Liberation Sans");
    f.setBold(true);
    f.setPixelSize(std::max(10, static_cast<int>(std::lround(fenêtre->height() * 0.035))));
    setFont(f);
    const QSize texte = QFontMetrics(f).size(0, text());
    const QSize taille(texte.width() + f.pixelSize() * 2, texte.height() + f.pixelSize());
    move((fenêtre->width() - taille.width()) / 2, fenêtre->height() * 2 / 5);
    resize(taille);
  }
};

// Where F8 stands in the list: a deck that fails to load is passed over,
// not started over from the first.
int curseur = 0;

} // namespace

QLabel *ÉtiquetteDuJeu(QWidget *fenêtre) { return fenêtre->findChild<QLabel *>("nomDuJeu"); }

void JeuSuivant(QWidget *fenêtre) {
  auto *étiquette = static_cast<ÉtiquetteNom *>(ÉtiquetteDuJeu(fenêtre));
  const int nombre = static_cast<int>(jeux::Installés().size());
  if (nombre == 0) {
    étiquette->Montre(QCoreApplication::translate(
        "Jeux", "Jeu de TroisNiveaux : aucun autre jeu de cartes installé"));
    return;
  }
  curseur = (curseur + 1) % (nombre + 1);
  const int numéro = curseur;
  const QString nom = jeux::NomDuChoix(numéro);
  étiquette->Montre(nom);
  QPointer<ÉtiquetteNom> suivie(étiquette);
  jeux::Choisit(numéro, [numéro, nom, suivie](bool réussi) {
    jeux::Retient(réussi ? numéro : 0);
    if (!réussi && suivie)
      suivie->Montre(QCoreApplication::translate(
                         "Jeux", "Le jeu « %1 » ne peut pas être lu : jeu de TroisNiveaux")
                         .arg(nom));
  });
}

void InstalleChoixDuJeu(QWidget *fenêtre) {
  new ÉtiquetteNom(fenêtre);
  QPointer<QWidget> suivie(fenêtre);
  // New pictures: every card on the table is painted again, once.
  jeux::QuandNouvellesImages([suivie] {
    if (suivie)
      for (QWidget *w : suivie->findChildren<QWidget *>())
        w->update();
  });
  curseur = jeux::Retrouve();
  jeux::Choisit(curseur);
}

bool JoueCeJeu(const QString &id) {
  for (std::size_t n = 0; n < jeux::Installés().size(); ++n)
    if (jeux::Installés()[n].id == id) {
      curseur = static_cast<int>(n) + 1;
      jeux::Choisit(curseur);
      return true;
    }
  return false;
}
