// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The table's keys: one list of keys, each with what it does, read by the
// window whatever widget holds the keyboard (so no key waits for the window
// to be made active); the keyboard frame over the human's cards; the order
// of Tab over the buttons; the key names shown in the tooltips.

#include <QKeySequence>
#include <QObject>
#include <QRect>
#include <functional>
#include <vector>

#include "table/controles.h"

class FenêtreTable;
class PlateformeQt;
class QKeyEvent;
class QWidget;
class TroisNiveaux;

class Clavier : public QObject {
public:
  Clavier(FenêtreTable &fenêtre, TroisNiveaux &t, PlateformeQt &plateforme);

  // A key that reached the window; true when it did something.
  bool Touche(QKeyEvent *e);

  // A key of the table. `action` says whether it acted; a key with several
  // entries tries them in order. Keys added later (panels of their own) go
  // through here too.
  void Ajoute(QKeyCombination touche, std::function<bool()> action);
  // A key that presses the first of `cibles` that stands live on the table,
  // and names itself in their tooltips.
  void AjoutePourContrôles(QKeyCombination touche,
                           std::vector<std::pair<const Contrôle *, std::function<void()>>> cibles);

  // A panel laid over the table and the key that opens and closes it. While
  // it stands, Échap closes it too and no key of the table acts behind it
  // (F11 and Ctrl+Q aside).
  void AjoutePanneau(QWidget *panneau, QKeyCombination touche, std::function<void()> bascule);

  // The keyboard frame: the human's place (0..12) it stands on.
  int PlaceDuCadre() const { return place; }
  bool CadreVisible() const;
  void CacheCadre();
  // The frame follows its card after a change of scale.
  void ChangeÉchelle();
  // After the widgets follow the model: the names panel takes the keyboard
  // as it opens and gives it back to the table as it closes.
  void AprèsSynchronisation();

  // How a key is written in the table's tooltips: the names of a French
  // keyboard ("Échap", "Entrée"), or of the language spoken.
  static QString NomDeTouche(QKeyCombination touche);

protected:
  bool eventFilter(QObject *objet, QEvent *e) override;
  bool event(QEvent *e) override;

private:
  FenêtreTable &fenêtre;
  TroisNiveaux &t;
  PlateformeQt &plateforme;
  struct Raccourci {
    QKeyCombination touche;
    std::function<bool()> action;
  };
  std::vector<Raccourci> raccourcis;
  struct Panneau {
    QWidget *vue;
    QKeyCombination touche;
    std::function<void()> bascule;
  };
  std::vector<Panneau> panneaux;
  QWidget *cadre = nullptr;
  int place = 0;
  bool panneauOuvert = false;

  // The controls whose tooltip names their key, in the order they were added.
  std::vector<std::pair<const Contrôle *, QKeyCombination>> bulles;
  void Bulle(const Contrôle &c, QKeyCombination touche);
  void BullesParticulières();
  bool Saisie() const;
  bool CartesVivantes() const;
  void DéplaceCadre(int dx, int dy);
  void MontreCadre();
  QRect PartieVisible() const;
  bool Espace();
  void OrdreDeTabulation();
};
