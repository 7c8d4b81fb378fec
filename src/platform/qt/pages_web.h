#pragma once
// The three web views of the table, each inside its panel widget.
#include <string>

#include "platform/plateforme.h"

class QWidget;

// Settings the web engine needs before the application object exists.
void PrépareWebEngine();

class PagesWeb {
public:
  // Each view is created as a child of its panel at the view's own geometry
  // (pixels, relative to the panel), so the panel clips it.
  PagesWeb(QWidget *panneauPub0, QWidget *panneauPub1, QWidget *panneauLogo);
  ~PagesWeb();
  // Opens `page` (a bare file name such as "pub0.htm") in the view.
  void Navigue(VueWeb vue, const std::string &page);

private:
  struct Détail;
  Détail *détail;
};
