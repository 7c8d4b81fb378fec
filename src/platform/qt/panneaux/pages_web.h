// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The three web views of the table, each inside its panel widget. They load
// nothing but the pages of the configured server and the local logo page,
// and take no event. By default Qt's own rich-text view shows them; a build
// with Qt WebEngine shows full web pages, its views made once the window is
// up.
#include <QString>
#include <string>

#include "platform/plateforme.h"

class QWidget;

// Settings the web engine needs before the application object exists.
void PrépareWebEngine();

class PagesWeb {
public:
  // Each view is created as a child of its panel at the view's own geometry
  // (relative to the panel), so the panel clips it. A null panel has no view.
  PagesWeb(QWidget *panneauPub0, QWidget *panneauPub1, QWidget *panneauLogo);
  ~PagesWeb();
  PagesWeb(const PagesWeb &) = delete;
  PagesWeb &operator=(const PagesWeb &) = delete;

  // Opens `page` (a bare file name such as "pub0.htm"): the advert pages
  // from the server's base address, the logo from the game's own pages.
  void Navigue(VueWeb vue, const std::string &page);

  // The server's base address: a setting of the build, by default the
  // folder of the game's own pages. Tests point it elsewhere.
  static QString Base();
  static void DéfinitBase(const QString &base);
  // The folder of the game's own pages: the program's folder unless set
  // (an installed game keeps them in its data folder).
  static void DéfinitDossierLocal(const QString &dossier);
  // Whether the views may load this address.
  static bool Permis(const QString &adresse);
  // Requests refused so far, for tests.
  static int Refusées();

  // The view of a panel, or null while it has none.
  QWidget *Vue(VueWeb vue) const;

private:
  struct Détail;
  Détail *détail;
};
