// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/fenetre/accessibilite.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QTextEdit>
#include <QTimer>
#include <algorithm>
#include <functional>

#include "core/table_state.h"
#include "platform/qt/fenetre/clavier.h"
#include "platform/qt/fenetre/fenetre_table.h"
#include "platform/qt/fenetre/fond_etoile.h"
#include "platform/qt/fenetre/vue_controle.h"

QString NomDeCarte(int code) {
  static const char *const rangs[13] = {
      QT_TRANSLATE_NOOP("Accessibilite", "deux"),   QT_TRANSLATE_NOOP("Accessibilite", "trois"),
      QT_TRANSLATE_NOOP("Accessibilite", "quatre"), QT_TRANSLATE_NOOP("Accessibilite", "cinq"),
      QT_TRANSLATE_NOOP("Accessibilite", "six"),    QT_TRANSLATE_NOOP("Accessibilite", "sept"),
      QT_TRANSLATE_NOOP("Accessibilite", "huit"),   QT_TRANSLATE_NOOP("Accessibilite", "neuf"),
      QT_TRANSLATE_NOOP("Accessibilite", "dix"),    QT_TRANSLATE_NOOP("Accessibilite", "valet"),
      QT_TRANSLATE_NOOP("Accessibilite", "dame"),   QT_TRANSLATE_NOOP("Accessibilite", "roi"),
      QT_TRANSLATE_NOOP("Accessibilite", "as")};
  static const char *const couleurs[4] = {
      QT_TRANSLATE_NOOP("Accessibilite", "trèfle"), QT_TRANSLATE_NOOP("Accessibilite", "carreau"),
      QT_TRANSLATE_NOOP("Accessibilite", "cœur"), QT_TRANSLATE_NOOP("Accessibilite", "pique")};
  if (code < 0 || code > 51)
    return QString();
  return QCoreApplication::translate("Accessibilite", "%1 de %2")
      .arg(QCoreApplication::translate("Accessibilite", rangs[code % 13]),
           QCoreApplication::translate("Accessibilite", couleurs[code / 13]));
}

// Texts for readers only are in the context "Accessibilite" of the
// translations, with the game's French as their source.
namespace {

// A widget set apart from the reader's tree (the keyboard frame, which only
// draws what the focus already says).
const char *const HorsLecture = "tnHorsLecture";
// Where a widget that is no control of the table reads among its siblings.
const char *const RangLecture = "tnRangLecture";

// The index of `c` in the family `famille`, or -1.
template <size_t N> int Index(const Contrôle &c, const Contrôle (&famille)[N]) {
  const std::less<const Contrôle *> avant;
  if (avant(&c, famille) || !avant(&c, famille + N))
    return -1;
  return static_cast<int>(&c - famille);
}

bool EstCarte(const Contrôle &c) { return c.Nom.rfind("CartesJeu(", 0) == 0; }

// Only the human's 13 places answer a release; the others only show cards.
bool EstPlaceHumaine(const Contrôle &c) {
  if (!EstCarte(c))
    return false;
  const int index = std::stoi(c.Nom.substr(10));
  return index >= 39 && index <= 51;
}

int NiveauDeLaPlace(int place) { return place < 5 ? 1 : place < 10 ? 2 : 3; }

QString NomDImage(int image) {
  switch (image) {
  case ImageOrdinateur:
    return QCoreApplication::translate("Accessibilite", "Solution de l'ordinateur");
  case ImageLivre:
    return QCoreApplication::translate("Accessibilite", "Règles du jeu");
  case ImageMainHaut:
    return QCoreApplication::translate("Accessibilite", "Page précédente");
  case ImageMainBas:
    return QCoreApplication::translate("Accessibilite", "Page suivante");
  case ImageTitre:
    return QCoreApplication::translate("Accessibilite", "Trois Niveaux");
  default:
    return QString();
  }
}

QString NomDePanneau(const Contrôle &c) {
  if (c.Nom == "MenuSS")
    return QCoreApplication::translate("Accessibilite", "Menu");
  if (c.Nom == "RèglesText")
    return QCoreApplication::translate("Accessibilite", "Règles du jeu");
  if (c.Nom == "NomsJoueursSS")
    return QCoreApplication::translate("Accessibilite", "Noms des joueurs");
  if (c.Nom == "TempsSS")
    return QCoreApplication::translate("Accessibilite", "Horloge");
  if (c.Nom == "NonConnectéPic")
    return QCoreApplication::translate("Accessibilite", "Connexion");
  return QString();
}

QString Joueur(const Contrôles &f, int siège) {
  return Texte(f.JoueursLabel[siège].Caption).simplified();
}

// The table as a player reads it: the title, the seats in their order, the
// clock, the menu, then the panels that open over the table. In a seat: the
// name, its levels from the top of the table down (cards, class, payments),
// then its total and score.
int RangDeLecture(const Contrôle &c, const Contrôles &f) {
  const Contrôle *hauts[] = {&f.SSImage,       &f.SSJoueur[0],    &f.SSJoueur[1], &f.SSJoueur[2],
                             &f.SSJoueur[3],   &f.TempsSS,        &f.MenuSS,      &f.RèglesText,
                             &f.NomsJoueursSS, &f.NonConnectéPic, &f.Pub0Pic,     &f.Pub1Pic};
  const Contrôle *menu[] = {&f.NouveauJeu,  &f.Joue,          &f.Arrêt,         &f.Rejoue,
                            &f.Mode,        &f.NomsJoueurs,   &f.Scoresà0,      &f.VoirOrdi[0],
                            &f.VoirOrdi[1], &f.VoirRègles[0], &f.VoirRègles[1], &f.Fin};
  for (int k = 0; k < 12; ++k)
    if (hauts[k] == &c || menu[k] == &c)
      return 10 * k;
  if (Index(c, f.JoueursLabel) >= 0)
    return 0;
  if (Index(c, f.ExtraLabel) >= 0)
    return 1;
  if (Index(c, f.SSJoueurFond) >= 0)
    return 2;
  if (Index(c, f.TotalLabel) >= 0)
    return 3;
  if (Index(c, f.ScoreLabel) >= 0)
    return 4;
  // Inside a seat's playing area, 20 ranks to a level, level 3 first.
  const auto niveau = [](int n) { return (3 - n) * 20; };
  if (int i = Index(c, f.CartesJeu); i >= 0) {
    if (i == 52)
      return 1000;
    const int place = i % 13;
    return niveau(NiveauDeLaPlace(place)) + place % 5;
  }
  if (int i = Index(c, f.EnchèreLabel); i >= 0)
    return niveau(i % 3 + 1) + 10;
  if (int i = Index(c, f.SSPaie); i >= 0)
    return niveau(i % 3 + 1) + 11;
  if (int i = Index(c, f.LabelPaie); i >= 0)
    return 1 + i % 3; // after the panel's "NIVEAU n"
  if (&c == &f.TempsShape)
    return 0;
  if (&c == &f.TempsLabel)
    return 1; // after the bar
  return 500;
}

int Rang(const QWidget *w) {
  if (const auto *vue = dynamic_cast<const VueContrôle *>(w))
    if (const auto *fenêtre = dynamic_cast<const FenêtreTable *>(w->window()))
      return RangDeLecture(vue->modèle, fenêtre->Table().Fenêtre);
  const QVariant rang = w->property(RangLecture);
  return rang.isValid() ? rang.toInt() : 500;
}

QWidgetList EnfantsLus(const QWidget *parent) {
  QWidgetList enfants;
  for (QObject *objet : parent->children()) {
    auto *w = qobject_cast<QWidget *>(objet);
    if (w && !w->isWindow() && !w->property(HorsLecture).toBool())
      enfants.push_back(w);
  }
  std::stable_sort(enfants.begin(), enfants.end(),
                   [](const QWidget *a, const QWidget *b) { return Rang(a) < Rang(b); });
  return enfants;
}

// A widget whose children a reader meets in the table's order.
class Ordonné : public QAccessibleWidget {
public:
  using QAccessibleWidget::QAccessibleWidget;
  int childCount() const override { return static_cast<int>(EnfantsLus(widget()).size()); }
  QAccessibleInterface *child(int index) const override {
    const QWidgetList enfants = EnfantsLus(widget());
    if (index < 0 || index >= enfants.size())
      return nullptr;
    return QAccessible::queryAccessibleInterface(enfants[index]);
  }
  int indexOfChild(const QAccessibleInterface *enfant) const override {
    if (!enfant || !enfant->object() || !enfant->object()->isWidgetType())
      return -1;
    return static_cast<int>(EnfantsLus(widget()).indexOf(static_cast<QWidget *>(enfant->object())));
  }
};

class FenêtreAccessible : public Ordonné {
public:
  explicit FenêtreAccessible(QWidget *w) : Ordonné(w, QAccessible::Window) {}
  QString text(QAccessible::Text t) const override {
    return t == QAccessible::Name ? QCoreApplication::translate("Accessibilite", "Trois Niveaux")
                                  : Ordonné::text(t);
  }
};

// The result's sentence: a widget of no size that only holds the focus.
class RésuméWidget : public QWidget {
public:
  explicit RésuméWidget(QWidget *parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setProperty(RangLecture, 55); // after the seats and the clock
    setGeometry(0, 0, 1, 1);
  }
  QString phrase;
  std::function<QString()> refait; // the sentence as it stands, in the language spoken

protected:
  // F12 touches no control of the table: the sentence must follow on its own.
  void changeEvent(QEvent *e) override {
    if (e->type() == QEvent::LanguageChange && !phrase.isEmpty() && refait) {
      phrase = refait();
      if (hasFocus()) {
        QAccessibleEvent nom(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&nom);
      }
    }
    QWidget::changeEvent(e);
  }
};

class RésuméAccessible : public QAccessibleWidget {
public:
  explicit RésuméAccessible(RésuméWidget *w) : QAccessibleWidget(w, QAccessible::StaticText) {}
  QString text(QAccessible::Text t) const override {
    return t == QAccessible::Name ? static_cast<RésuméWidget *>(widget())->phrase
                                  : QAccessibleWidget::text(t);
  }
  QAccessible::State state() const override {
    QAccessible::State s = QAccessibleWidget::state();
    s.invisible = static_cast<RésuméWidget *>(widget())->phrase.isEmpty();
    s.focusable = true;
    return s;
  }
};

// A text panel read as plain text: Qt's own interface gives the document's
// frame markers away to the reader.
class TexteAccessible : public QAccessibleWidget, public QAccessibleTextInterface {
public:
  explicit TexteAccessible(QTextEdit *w) : QAccessibleWidget(w, QAccessible::Document) {}
  void *interface_cast(QAccessible::InterfaceType t) override {
    if (t == QAccessible::TextInterface)
      return static_cast<QAccessibleTextInterface *>(this);
    return QAccessibleWidget::interface_cast(t);
  }
  QString text(QAccessible::Text t) const override {
    return t == QAccessible::Value ? Plain() : QAccessibleWidget::text(t);
  }
  void selection(int, int *début, int *fin) const override { *début = *fin = 0; }
  int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  QString text(int début, int fin) const override { return Plain().mid(début, fin - début); }
  int characterCount() const override { return static_cast<int>(Plain().size()); }
  QRect characterRect(int) const override { return QRect(); }
  int offsetAtPoint(const QPoint &) const override { return -1; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int, int *début, int *fin) const override {
    *début = 0;
    *fin = characterCount();
    return QString();
  }

private:
  QString Plain() const { return static_cast<QTextEdit *>(widget())->toPlainText(); }
};

const QString &PresserAction() {
  static const QString nom = QStringLiteral("hurry");
  return nom;
}

// A press from a reader is posted: the reader gets its answer at once, and
// the game runs it from the event loop as it would a click (JOUER runs the
// whole paced search).
void Poste(VueContrôle *vue) {
  QTimer::singleShot(0, vue, [vue] {
    if (vue->relâché && vue->modèle.Enabled)
      vue->relâché();
  });
}

class VueAccessible : public Ordonné, public QAccessibleValueInterface {
public:
  explicit VueAccessible(VueContrôle *vue) : Ordonné(vue, Rôle(vue->modèle)) {}

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

  void *interface_cast(QAccessible::InterfaceType t) override {
    if (t == QAccessible::ValueInterface && Vue()->modèle.genre == Genre::Barre)
      return static_cast<QAccessibleValueInterface *>(this);
    return Ordonné::interface_cast(t);
  }

  QString text(QAccessible::Text t) const override {
    const Contrôle &c = Vue()->modèle;
    if (t == QAccessible::Name) {
      const FenêtreTable *fenêtre = Fenêtre();
      if (!fenêtre)
        return NomAccessible(c);
      // Said in the name too: a reader tells a name's change on the focus
      // whatever the object's kind.
      if (state().checked)
        return QCoreApplication::translate("Accessibilite", "%1, levée")
            .arg(NomAccessible(c, fenêtre->Table().Fenêtre));
      return NomAccessible(c, fenêtre->Table().Fenêtre);
    }
    if (t == QAccessible::Description && !widget()->toolTip().isEmpty())
      return widget()->toolTip();
    return Ordonné::text(t);
  }

  QStringList actionNames() const override {
    QStringList noms = Ordonné::actionNames();
    const Contrôle &c = Vue()->modèle;
    if (c.genre == Genre::Barre) {
      if (Vue()->relâché && Fenêtre() && Fenêtre()->Table().BalayageEnCours)
        noms.prepend(PresserAction());
    } else if (Vue()->relâché && c.Enabled && (c.genre == Genre::Bouton || EstPlaceHumaine(c))) {
      noms.prepend(pressAction());
    }
    return noms;
  }

  void doAction(const QString &action) override {
    if ((action == pressAction() || action == PresserAction()) && actionNames().contains(action))
      Poste(Vue());
    else
      Ordonné::doAction(action);
  }

  QString localizedActionName(const QString &action) const override {
    if (action == PresserAction())
      return QCoreApplication::translate("Accessibilite", "presser");
    return Ordonné::localizedActionName(action);
  }
  QString localizedActionDescription(const QString &action) const override {
    if (action == PresserAction())
      return QCoreApplication::translate("Accessibilite",
                                         "L'ordinateur finit sa recherche sans attendre");
    return Ordonné::localizedActionDescription(action);
  }

  QAccessible::State state() const override {
    QAccessible::State s = Ordonné::state();
    if (Recouvert()) {
      s.invisible = true;
      s.offscreen = true;
    }
    const Contrôle &c = Vue()->modèle;
    const FenêtreTable *fenêtre = Fenêtre();
    if (fenêtre && EstPlaceHumaine(c)) {
      const int index = std::stoi(c.Nom.substr(10));
      const TroisNiveaux &t = fenêtre->Table();
      // The keyboard frame is the focus of the cards; a card picked up is checked.
      const Clavier &clavier = fenêtre->Touches();
      s.focusable = true;
      s.focused = clavier.CadreVisible() && clavier.PlaceDuCadre() == index - 39 &&
                  fenêtre->focusWidget() == fenêtre;
      s.checkable = true;
      s.checked = s.selected = t.CarteLevée && t.EmplacementLevé == index;
      s.selectable = true;
    }
    return s;
  }

  QVariant currentValue() const override { return ProgrèsDeLaRecherche(Vue()->modèle); }
  void setCurrentValue(const QVariant &) override {}
  QVariant maximumValue() const override { return 100; }
  QVariant minimumValue() const override { return 0; }
  QVariant minimumStepSize() const override { return 1; }

private:
  // A control lying wholly under a sibling drawn above it (the "OK" under
  // the book) can't be seen or clicked: a reader should not offer it.
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
  const FenêtreTable *Fenêtre() const {
    return dynamic_cast<const FenêtreTable *>(widget()->window());
  }
};

QAccessibleInterface *Fabrique(const QString &, QObject *objet) {
  if (auto *vue = dynamic_cast<VueContrôle *>(objet))
    return new VueAccessible(vue);
  // The table is the application's window: a reader looks for a frame.
  if (auto *fenêtre = dynamic_cast<FenêtreTable *>(objet))
    return new FenêtreAccessible(fenêtre);
  if (auto *fond = dynamic_cast<FondÉtoilé *>(objet))
    return new Ordonné(fond, QAccessible::Pane);
  if (auto *résumé = dynamic_cast<RésuméWidget *>(objet))
    return new RésuméAccessible(résumé);
  if (auto *texte = qobject_cast<QTextEdit *>(objet);
      texte && texte->isReadOnly() && dynamic_cast<VueContrôle *>(texte->parentWidget()))
    return new TexteAccessible(texte);
  return nullptr;
}

} // namespace

QString NomAccessible(const Contrôle &c) {
  switch (c.genre) {
  case Genre::Bouton:
    return c.Caption.empty() ? NomDImage(c.Picture) : TexteAffiché(c).simplified();
  case Genre::Étiquette:
    return TexteAffiché(c).simplified();
  case Genre::Image:
    if (!EstCarte(c))
      return NomDImage(c.Picture);
    if (c.Picture < 0 || c.Picture > 51)
      return QCoreApplication::translate("Accessibilite", "carte cachée");
    return QCoreApplication::translate("Accessibilite", "%1, niveau %2")
        .arg(NomDeCarte(c.Picture))
        .arg(NiveauDeLaPlace(std::stoi(c.Nom.substr(10)) % 13));
  case Genre::Barre:
    return QCoreApplication::translate("Accessibilite", "Recherche de l'ordinateur");
  case Genre::Texte: // "NomsJoueursText(2)"
    return QCoreApplication::translate("Accessibilite", "Nom du joueur %1")
        .arg(c.Nom.empty() ? 0 : c.Nom[c.Nom.size() - 2] - '0' + 1);
  default:
    return NomDePanneau(c);
  }
}

QString NomAccessible(const Contrôle &c, const Contrôles &f) {
  const QString texte = TexteAffiché(c).simplified();
  if (int s = Index(c, f.SSJoueur); s >= 0)
    return Joueur(f, s);
  if (int s = Index(c, f.SSJoueurFond); s >= 0)
    return QCoreApplication::translate("Accessibilite", "jeu de %1").arg(Joueur(f, s));
  if (int s = Index(c, f.ScoreLabel); s >= 0)
    return QCoreApplication::translate("Accessibilite", "score de %1 : %2")
        .arg(Joueur(f, s), texte);
  if (texte.isEmpty() && c.genre == Genre::Étiquette && &c != &f.TempsLabel)
    return QString();
  if (int s = Index(c, f.TotalLabel); s >= 0)
    return QCoreApplication::translate("Accessibilite", "total de la donne de %1 : %2")
        .arg(Joueur(f, s), texte);
  if (int s = Index(c, f.ExtraLabel); s >= 0)
    return QCoreApplication::translate("Accessibilite", "%1 : %2").arg(Joueur(f, s), texte);
  if (int i = Index(c, f.EnchèreLabel); i >= 0)
    return QCoreApplication::translate("Accessibilite", "%1, niveau %2 : %3")
        .arg(Joueur(f, i / 3), QString::number(i % 3 + 1), texte);
  if (int i = Index(c, f.LabelPaie); i >= 0) {
    // LabelPaie(3 p + j) in SSPaie(p = 3 s + r): level r + 1 of seat s, against
    // the j-th of the other seats in rising order.
    const int p = i / 3, j = i % 3, s = p / 3;
    const int adversaire = j < s ? j : j + 1;
    return QCoreApplication::translate("Accessibilite", "%1, niveau %2 contre %3 : %4")
        .arg(Joueur(f, s), QString::number(p % 3 + 1), Joueur(f, adversaire), texte);
  }
  if (int i = Index(c, f.SSPaie); i >= 0)
    return QCoreApplication::translate("Accessibilite", "paiements de %1 au niveau %2")
        .arg(Joueur(f, i / 3), QString::number(i % 3 + 1));
  if (&c == &f.TextCombien) // " 3/14"
    return QCoreApplication::translate("Accessibilite", "page %1 sur %2")
        .arg(texte.section('/', 0, 0), texte.section('/', 1));
  if (&c == &f.TempsLabel)
    return texte.isEmpty()
               ? QCoreApplication::translate("Accessibilite", "horloge")
               : QCoreApplication::translate("Accessibilite", "horloge : %1").arg(texte);
  return NomAccessible(c);
}

QString RésuméDeLaDonne(const Contrôles &f) {
  QStringList phrases{QCoreApplication::translate("Accessibilite", "Fin de la donne.")};
  for (int s = 0; s <= 3; ++s) {
    const QString nom = Joueur(f, s), spéciale = TexteAffiché(f.ExtraLabel[s]).simplified(),
                  total = TexteAffiché(f.TotalLabel[s]).simplified(),
                  score = TexteAffiché(f.ScoreLabel[s]).simplified();
    phrases << (spéciale.isEmpty()
                    ? QCoreApplication::translate("Accessibilite",
                                                  "%1 : total de la donne %2, score %3.")
                          .arg(nom, total, score)
                    : QCoreApplication::translate("Accessibilite",
                                                  "%1 : %2, total de la donne %3, score %4.")
                          .arg(nom, spéciale, total, score));
  }
  return phrases.join(' ');
}

namespace {

// The solution view in words: the human's seat as the computer would lay it.
QString RésuméDeLaSolution(const Contrôles &f) {
  QStringList phrases{
      QCoreApplication::translate("Accessibilite", "Solution de l'ordinateur pour %1.")
          .arg(Joueur(f, 3))};
  const int premières[] = {10, 5, 0}, dernières[] = {12, 9, 4};
  for (int n = 0; n <= 2; ++n) {
    QStringList cartes;
    for (int k = premières[n]; k <= dernières[n]; ++k)
      cartes << NomDeCarte(f.CartesJeu[39 + k].Picture);
    const Contrôle &classe = f.EnchèreLabel[9 + 2 - n];
    phrases << QCoreApplication::translate("Accessibilite", "Niveau %1 : %2")
                       .arg(QString::number(3 - n), cartes.join(", ")) +
                   (classe.Visible ? ", " + TexteAffiché(classe).simplified() : QString()) + ".";
  }
  if (const QString spéciale = TexteAffiché(f.ExtraLabel[3]).simplified(); !spéciale.isEmpty())
    phrases << spéciale + ".";
  phrases << NomAccessible(f.TotalLabel[3], f) + ".";
  return phrases.join(' ');
}

} // namespace

int ProgrèsDeLaRecherche(const Contrôle &barre) {
  const int course = barre.Width - 15;
  if (course <= 0)
    return 0;
  return std::clamp((barre.Left + course) * 100 / course, 0, 100);
}

void SignaleAuLecteur(VueContrôle *vue, const Contrôle &avant) {
  if (!QAccessible::isActive())
    return;
  const Contrôle &m = vue->modèle;
  if ((m.Caption != avant.Caption || m.Picture != avant.Picture) && m.Nom != "TempsLabel") {
    QAccessibleEvent nom(vue, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&nom);
  }
  if (m.genre == Genre::Barre && ProgrèsDeLaRecherche(m) != ProgrèsDeLaRecherche(avant)) {
    QAccessibleValueChangeEvent valeur(vue, ProgrèsDeLaRecherche(m));
    QAccessible::updateAccessibility(&valeur);
  }
}

SuiviLecteur::SuiviLecteur(FenêtreTable &fenêtre, TroisNiveaux &t)
    : fenêtre(fenêtre), t(t), résumé(new RésuméWidget(fenêtre.Fond())) {
  static_cast<RésuméWidget *>(résumé)->refait = [this] {
    return solution ? RésuméDeLaSolution(this->t.Fenêtre) : RésuméDeLaDonne(this->t.Fenêtre);
  };
}

void SuiviLecteur::Annonce(const QString &phrase) {
  static_cast<RésuméWidget *>(résumé)->phrase = phrase;
  fenêtre.Touches().CacheCadre();
  if (fenêtre.focusWidget() == résumé) {
    QAccessibleEvent nom(résumé, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&nom);
  } else {
    résumé->setFocus(Qt::OtherFocusReason);
  }
}

void SuiviLecteur::AvantSynchronisation() {
  const auto &f = t.Fenêtre;
  const bool maintenantSolution = f.VoirOrdi[1].Visible;
  if (t.ScoresÉcrits && (!résultat || maintenantSolution != solution))
    Annonce(maintenantSolution ? RésuméDeLaSolution(f) : RésuméDeLaDonne(f));
  else if (t.ScoresÉcrits && !solution) // SCORES A 0, a renamed seat: said as the labels say it
    static_cast<RésuméWidget *>(résumé)->phrase = RésuméDeLaDonne(f);
  else if (!t.ScoresÉcrits && résultat) {
    // A new deal: last deal's sentence would only mislead.
    static_cast<RésuméWidget *>(résumé)->phrase.clear();
    if (fenêtre.focusWidget() == résumé)
      fenêtre.setFocus(Qt::OtherFocusReason);
  }
  résultat = t.ScoresÉcrits;
  solution = maintenantSolution;
  QWidget *livre = fenêtre.Vue(f.RèglesText);
  if (!f.RèglesText.Visible && règles && livre->isAncestorOf(fenêtre.focusWidget()))
    fenêtre.setFocus(Qt::OtherFocusReason);
}

void SuiviLecteur::AprèsSynchronisation() {
  const auto &f = t.Fenêtre;
  const bool maintenantGo = f.Joue.Visible && f.Joue.Enabled;
  if (maintenantGo && !go) {
    fenêtre.Touches().CacheCadre();
    fenêtre.Vue(f.Joue)->setFocus(Qt::OtherFocusReason);
  }
  go = maintenantGo;
  if (f.RèglesText.Visible && !règles)
    fenêtre.Vue(f.AfficheRègles)->setFocus(Qt::OtherFocusReason);
  règles = f.RèglesText.Visible;
  const int maintenantLevée = t.CarteLevée ? t.EmplacementLevé : -1;
  if (maintenantLevée != levée && QAccessible::isActive())
    for (const int index : {levée, maintenantLevée})
      if (index >= 39 && index <= 51) {
        QAccessible::State changé;
        changé.checked = changé.selected = true;
        QAccessibleStateChangeEvent état(fenêtre.Vue(f.CartesJeu[index]), changé);
        QAccessible::updateAccessibility(&état);
        QAccessibleEvent nom(fenêtre.Vue(f.CartesJeu[index]), QAccessible::NameChanged);
        QAccessible::updateAccessibility(&nom);
      }
  levée = maintenantLevée;
}

void InstalleAccessibilité() {
  static bool installée = false;
  if (!installée) {
    QAccessible::installFactory(Fabrique);
    installée = true;
  }
}
