#include "platform/qt/fenetre/accessibilite.h"

#include <QAccessibleWidget>

#include "platform/qt/fenetre/fenetre_table.h"
#include "platform/qt/fenetre/vue_controle.h"

QString NomDeCarte(int code) {
  static const char *const rangs[13] = {"deux", "trois", "quatre", "cinq", "six", "sept", "huit",
                                        "neuf", "dix",   "valet",  "dame", "roi", "as"};
  static const char *const couleurs[4] = {"trèfle", "carreau", "cœur", "pique"};
  if (code < 0 || code > 51)
    return QString();
  return QString("%1 de %2").arg(rangs[code % 13], couleurs[code / 13]);
}

namespace {

bool EstCarte(const Contrôle &c) { return c.Nom.rfind("CartesJeu(", 0) == 0; }

// Only the human's 13 places answer a release; the others only show cards.
bool EstPlaceHumaine(const Contrôle &c) {
  if (!EstCarte(c))
    return false;
  const int index = std::stoi(c.Nom.substr(10));
  return index >= 39 && index <= 51;
}

int NiveauDeLaPlace(const Contrôle &c) {
  const int index = std::stoi(c.Nom.substr(10));
  const int place = index % 13;
  return place < 5 ? 1 : place < 10 ? 2 : 3;
}

QString NomDImage(int image) {
  switch (image) {
  case ImageOrdinateur:
    return "Solution de l'ordinateur";
  case ImageLivre:
    return "Règles du jeu";
  case ImageMainHaut:
    return "Page précédente";
  case ImageMainBas:
    return "Page suivante";
  case ImageTitre:
    return "Trois Niveaux";
  default:
    return QString();
  }
}

QString NomDePanneau(const Contrôle &c) {
  if (c.Nom == "MenuSS")
    return "Menu";
  if (c.Nom == "RèglesText")
    return "Règles du jeu";
  if (c.Nom == "NomsJoueursSS")
    return "Noms des joueurs";
  if (c.Nom == "TempsSS")
    return "Horloge";
  if (c.Nom == "NonConnectéPic")
    return "Connexion";
  return QString();
}

class VueAccessible : public QAccessibleWidget {
public:
  explicit VueAccessible(VueContrôle *vue) : QAccessibleWidget(vue, Rôle(vue->modèle)) {}

  static QAccessible::Role Rôle(const Contrôle &c) {
    switch (c.genre) {
    case Genre::Bouton:
      return QAccessible::Button;
    case Genre::Étiquette:
      return QAccessible::StaticText;
    case Genre::Image:
      return QAccessible::Graphic;
    case Genre::Barre:
      return QAccessible::ProgressBar;
    case Genre::Texte:
      return QAccessible::Grouping;
    default:
      return QAccessible::Pane;
    }
  }

  QString text(QAccessible::Text t) const override {
    const Contrôle &c = Vue()->modèle;
    if (t == QAccessible::Name)
      return NomAccessible(c);
    if (t == QAccessible::Description && !widget()->toolTip().isEmpty())
      return widget()->toolTip();
    return QAccessibleWidget::text(t);
  }

  QStringList actionNames() const override {
    QStringList noms = QAccessibleWidget::actionNames();
    if (Vue()->relâché && Vue()->modèle.Enabled &&
        (Vue()->modèle.genre == Genre::Bouton || EstPlaceHumaine(Vue()->modèle)))
      noms.prepend(pressAction());
    return noms;
  }

  void doAction(const QString &action) override {
    if (action == pressAction() && Vue()->relâché && Vue()->modèle.Enabled)
      Vue()->relâché();
    else
      QAccessibleWidget::doAction(action);
  }

  // A control lying wholly under a sibling drawn above it (the "OK" under
  // the book) can't be seen or clicked: a reader should not offer it.
  QAccessible::State state() const override {
    QAccessible::State s = QAccessibleWidget::state();
    if (Recouvert()) {
      s.invisible = true;
      s.offscreen = true;
    }
    return s;
  }

private:
  bool Recouvert() const {
    const QWidget *w = widget();
    const QWidget *parent = w->parentWidget();
    if (!parent || !w->isVisible())
      return false;
    const QObjectList &frères = parent->children();
    for (qsizetype k = frères.indexOf(w) + 1; k < frères.size(); ++k) {
      const auto *v = dynamic_cast<const VueContrôle *>(frères[k]);
      if (v && v->isVisible() && v->geometry().contains(w->geometry()))
        return true;
    }
    return false;
  }

  VueContrôle *Vue() const { return static_cast<VueContrôle *>(widget()); }
};

QAccessibleInterface *Fabrique(const QString &, QObject *objet) {
  if (auto *vue = dynamic_cast<VueContrôle *>(objet))
    return new VueAccessible(vue);
  // The table is the application's window: a reader looks for a frame.
  if (auto *fenêtre = dynamic_cast<FenêtreTable *>(objet))
    return new QAccessibleWidget(fenêtre, QAccessible::Window);
  return nullptr;
}

} // namespace

QString NomAccessible(const Contrôle &c) {
  switch (c.genre) {
  case Genre::Bouton:
    return c.Caption.empty() ? NomDImage(c.Picture) : Texte(c.Caption).simplified();
  case Genre::Étiquette:
    return Texte(c.Caption).simplified();
  case Genre::Image:
    if (!EstCarte(c))
      return NomDImage(c.Picture);
    if (c.Picture < 0 || c.Picture > 51)
      return "carte cachée";
    return QString("%1, niveau %2").arg(NomDeCarte(c.Picture)).arg(NiveauDeLaPlace(c));
  case Genre::Barre:
    return "Recherche de l'ordinateur";
  case Genre::Texte: // "NomsJoueursText(2)"
    return QString("Nom du joueur %1").arg(c.Nom.empty() ? 0 : c.Nom[c.Nom.size() - 2] - '0' + 1);
  default:
    return NomDePanneau(c);
  }
}

void InstalleAccessibilité() {
  static bool installée = false;
  if (!installée) {
    QAccessible::installFactory(Fabrique);
    installée = true;
  }
}
