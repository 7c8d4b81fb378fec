// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "table/controles.h"

#include <QtGlobal>
#include <string>

#include "core/table_state.h"

namespace {

void Place(Contrôle &c, std::string nom, Genre genre, const Contrôle *parent, int left, int top,
           int width, int height) {
  c.Nom = std::move(nom);
  c.genre = genre;
  c.Parent = parent;
  c.Left = left;
  c.Top = top;
  c.Width = width;
  c.Height = height;
}

std::string Indice(const char *famille, int i) {
  return std::string(famille) + "(" + std::to_string(i) + ")";
}

Police Arial(double taille) { return Police{"Arial", taille, true}; }

void Bouton(Contrôle &c, std::string nom, const Contrôle *parent, int left, int top, int width,
            int height, std::string caption) {
  Place(c, std::move(nom), Genre::Bouton, parent, left, top, width, height);
  c.Caption = std::move(caption);
  c.BackColor = CouleurSystèmeBouton;
  c.police = Arial(14.25);
  c.MousePointer = FlècheHaut;
}

void Panneau(Contrôle &c, std::string nom, const Contrôle *parent, int left, int top, int width,
             int height, uint32_t couleur, bool visible = true) {
  Place(c, std::move(nom), Genre::Panneau, parent, left, top, width, height);
  c.BackColor = couleur;
  c.Visible = visible;
}

void Étiquette(Contrôle &c, std::string nom, const Contrôle *parent, int left, int top, int width,
               int height, uint32_t texte, uint32_t fond, Police police,
               Alignement alignement = Alignement::Gauche) {
  Place(c, std::move(nom), Genre::Étiquette, parent, left, top, width, height);
  c.ForeColor = texte;
  c.BackColor = fond;
  c.police = std::move(police);
  c.alignement = alignement;
}

// Where each payment label sits in its panel, by seat and opponent: in the
// corner that points to the opponent's place at the table.
constexpr int PositionPaie[4][4][2] = {
    {{0, 0}, {15, 180}, {445, 360}, {15, 540}},
    {{15, 180}, {0, 0}, {445, 180}, {255, 540}},
    {{15, 360}, {445, 180}, {0, 0}, {445, 540}},
    {{15, 540}, {255, 180}, {445, 540}, {0, 0}},
};

const char *const NomsNiveaux[3] = {QT_TRANSLATE_NOOP("Table", "NIVEAU 1"),
                                    QT_TRANSLATE_NOOP("Table", "NIVEAU 2"),
                                    QT_TRANSLATE_NOOP("Table", "NIVEAU 3")};

constexpr int PanneauxSièges[4][2] = {{60, 2415}, {4035, 60}, {8010, 2415}, {4035, 4800}};

} // namespace

Contrôles::Contrôles() {
  Place(Form, "TroisNiveaux", Genre::Fenêtre, nullptr, 0, 0, 15360, 11520);
  Form.Caption = "MAISONDUCARRE";
  Form.BackColor = 0x000000;

  // ---- Seats
  for (int s = 0; s <= 3; ++s) {
    Panneau(SSJoueur[s], Indice("SSJoueur", s), nullptr, PanneauxSièges[s][0], PanneauxSièges[s][1],
            3945, 4155, CouleurSiège[s]);
    Étiquette(JoueursLabel[s], Indice("JoueursLabel", s), &SSJoueur[s], 0, 0, 0, 330,
              CouleurSystèmeTexte, CouleurSiège[s], Arial(14.25));
    JoueursLabel[s].AjusteAuTexte = true;
    Étiquette(ExtraLabel[s], Indice("ExtraLabel", s), &SSJoueur[s], 2160, 60, 1695, 255, 0x0000FF,
              CouleurSiège[s], Arial(12), Alignement::Centre);
    Étiquette(ScoreLabel[s], Indice("ScoreLabel", s), &SSJoueur[s], 120, 3780, 930, 330, 0,
              CouleurSiège[s], Arial(14.25));
    Étiquette(TotalLabel[s], Indice("TotalLabel", s), &SSJoueur[s], s == 0 ? 3120 : 3135, 3780, 525,
              285, 0, CouleurSiège[s], Arial(14.25), Alignement::Centre);
    Panneau(SSJoueurFond[s], Indice("SSJoueurFond", s), &SSJoueur[s], 75, 360, 3765, 3420,
            CouleurSiège[s]);

    // The cards overlap like a fan: level 1 at the bottom, level 3 on top.
    for (int k = 0; k <= 12; ++k) {
      const int slot = 13 * s + k;
      const int left = k < 10 ? 360 * (k % 5) : 360 * (k - 9);
      const int top = k < 5 ? 2280 : k < 10 ? 1140 : 0;
      Contrôle &carte = CartesJeu[slot];
      Place(carte, Indice("CartesJeu", slot), Genre::Image, &SSJoueurFond[s], left, top, 1350,
            2025);
      carte.Picture = PasDeCarte;
      if (s == 3) {
        carte.Enabled = false;
        carte.MousePointer = FlècheHaut;
      }
    }

    for (int r = 0; r <= 2; ++r) {
      const int p = 3 * s + r;
      Panneau(SSPaie[p], Indice("SSPaie", p), &SSJoueurFond[s], 2805, 2280 - 1140 * r, 960, 1140,
              CouleurSiègeSombre[s]);
      const int niveau = 3 * s + 2 - r; // these run the other way round
      Étiquette(NiveauLabel[niveau], Indice("NiveauLabel", niveau), &SSPaie[p], 0, 855, 0, 240,
                0x00FFFF, SansFond, Arial(9.75));
      NiveauLabel[niveau].Caption = NomsNiveaux[r];
      NiveauLabel[niveau].AjusteAuTexte = true;

      const int enchèreLeft[3] = {1800, 1800, 1440}, enchèreTop[3] = {3120, 1980, 840};
      Contrôle &enchère = EnchèreLabel[p];
      Étiquette(enchère, Indice("EnchèreLabel", p), &SSJoueurFond[s], enchèreLeft[r], enchèreTop[r],
                990, 300, 0x00FFFF, CouleurSiègeSombre[s], Arial(9.75), Alignement::Centre);
      enchère.Bordure = true;
      enchère.Visible = false;

      for (int j = 0; j <= 2; ++j) {
        const int adversaire = j < s ? j : j + 1;
        const int i = 3 * p + j;
        Étiquette(LabelPaie[i], Indice("LabelPaie", i), &SSPaie[p], PositionPaie[s][adversaire][0],
                  PositionPaie[s][adversaire][1], 435, 315, 0, CouleurSiège[adversaire], Arial(12),
                  Alignement::Centre);
        LabelPaie[i].Bordure = true;
      }
    }
  }
  LabelPaie[22].Top = 80;
  // A hidden holder for the picture of a card picked up by the human.
  Place(CartesJeu[52], "CartesJeu(52)", Genre::Image, &SSJoueurFond[3], 0, 0, 1350, 2025);
  CartesJeu[52].Picture = PasDeCarte;
  CartesJeu[52].Visible = false;

  // ---- Clock and progress bar, in the geometry of DEBUTANT
  Panneau(TempsSS, "TempsSS", nullptr, 4020, 4260, 3975, 510, CouleurSystèmeBouton);
  Panneau(TempsFondSS, "TempsFondSS", &TempsSS, 30, 30, 3900, 435, 0x80C0FF);
  Place(TempsShape, "TempsShape", Genre::Barre, &TempsFondSS, -3900, 0, 3915, 450);
  TempsShape.BackColor = 0x00FF00;
  // The label lies over the bar.
  Étiquette(TempsLabel, "TempsLabel", &TempsFondSS, 3660, -30, 0, 480, 0x0000FF, SansFond,
            Arial(20.25), Alignement::Droite);
  TempsLabel.AjusteAuTexte = true;

  // ---- Menu
  Panneau(MenuSS, "MenuSS", nullptr, 8010, 6600, 3945, 2355, 0x808080);
  Bouton(NouveauJeu, "NouveauJeu", &MenuSS, 120, 120, 1800, 1545,
         QT_TRANSLATE_NOOP("Table", "JOUER"));
  NouveauJeu.police = Arial(20.25);
  Bouton(Scoresà0, "Scoresà0", &MenuSS, 1920, 120, 1935, 345,
         QT_TRANSLATE_NOOP("Table", "SCORES A 0"));
  Bouton(NomsJoueurs, "NomsJoueurs", &MenuSS, 1920, 480, 1935, 345,
         QT_TRANSLATE_NOOP("Table", "JOUEURS"));
  Bouton(Mode, "Mode", &MenuSS, 1920, 840, 1935, 345, QT_TRANSLATE_NOOP("Table", "DEBUTANT"));
  Mode.BackColor = 0x80C0FF;
  Bouton(Rejoue, "Rejoue", &MenuSS, 1920, 1200, 1935, 345, QT_TRANSLATE_NOOP("Table", "REJOUE"));
  Bouton(Arrêt, "Arrêt", &MenuSS, 1920, 1560, 1935, 345, QT_TRANSLATE_NOOP("Table", "STOP"));
  Bouton(Fin, "Fin", &MenuSS, 1920, 1920, 1935, 345, QT_TRANSLATE_NOOP("Table", "QUITTER"));
  Bouton(VoirOrdi[0], "VoirOrdi(0)", &MenuSS, 120, 1680, 600, 600, "");
  VoirOrdi[0].Picture = ImageOrdinateur;
  VoirOrdi[0].Visible = false;
  Bouton(VoirOrdi[1], "VoirOrdi(1)", &MenuSS, 120, 1680, 600, 600,
         QT_TRANSLATE_NOOP("Table", "OK"));
  VoirOrdi[1].Visible = false;
  // The book lies over its OK button, so the book is what shows at first.
  Bouton(VoirRègles[1], "VoirRègles(1)", &MenuSS, 720, 1680, 600, 600, "OK");
  Bouton(VoirRègles[0], "VoirRègles(0)", &MenuSS, 720, 1680, 600, 600, "");
  VoirRègles[0].Picture = ImageLivre;
  Bouton(Joue, "Joue", &MenuSS, 1320, 1680, 600, 600, QT_TRANSLATE_NOOP("Table", "GO"));
  Joue.Visible = false;

  // ---- Rules book
  Panneau(RèglesText, "RèglesText", nullptr, 60, 6600, 3945, 2355, 0x808080, false);
  Étiquette(AfficheRègles, "AfficheRègles", &RèglesText, 60, 75, 2895, 2100, 0x00FFFF, 0x808080,
            Arial(8.25));
  AfficheRègles.RetourLigne = true;
  Étiquette(TextCombien, "TextCombien", &RèglesText, 2940, 120, 900, 375, 0x00FFFF, 0x808080,
            Arial(15.75), Alignement::Centre);
  Bouton(TextScroll[0], "TextScroll(0)", &RèglesText, 3120, 600, 600, 600, "");
  TextScroll[0].Picture = ImageMainHaut;
  Bouton(TextScroll[1], "TextScroll(1)", &RèglesText, 3120, 1440, 600, 600, "");
  TextScroll[1].Picture = ImageMainBas;

  // ---- Names panel
  Panneau(NomsJoueursSS, "NomsJoueursSS", nullptr, 4755, 3360, 2550, 2400, 0x808080, false);
  for (int s = 0; s <= 3; ++s) {
    Place(NomsJoueursText[s], Indice("NomsJoueursText", s), Genre::Texte, &NomsJoueursSS, 90,
          105 + 360 * s, 2295, 360);
    NomsJoueursText[s].BackColor = CouleurSiège[s];
    NomsJoueursText[s].police = Arial(9.75);
  }
  Bouton(EnregistreNoms, "EnregistreNoms", &NomsJoueursSS, 90, 1575, 2310, 330,
         QT_TRANSLATE_NOOP("Table", "ENREGISTRE"));
  Bouton(AnnuleNoms, "AnnuleNoms", &NomsJoueursSS, 90, 1905, 2310, 330,
         QT_TRANSLATE_NOOP("Table", "ANNULE"));

  // ---- Title picture
  Panneau(SSImage, "SSImage", nullptr, 555, 510, 2925, 1380, CouleurSystèmeFenêtre);
  Place(ImageTitre, "ImageTitre", Genre::Image, &SSImage, 0, 0, 2895, 1350);
  ImageTitre.Picture = ::ImageTitre;

  // ---- Connection notice and advert panels
  Panneau(NonConnectéPic, "NonConnectéPic", nullptr, (15360 - 7095) / 2, (11520 - 3615) / 2, 7095,
          3615, 0x000000, false);
  // At 9.75 points the whole notice fits the label's 385 pixels.
  Étiquette(NonConnectéLbl, "NonConnectéLbl", &NonConnectéPic, 600, 1440, 5775, 375, 0xFFFFFF,
            0x000000, Arial(9.75), Alignement::Centre);
  NonConnectéLbl.Caption =
      QT_TRANSLATE_NOOP("Table", " Vous devez être connecté à internet pour utiliser ce logiciel");
  Bouton(NonConnectéCmd, "NonConnectéCmd", &NonConnectéPic, 2640, 2280, 1695, 615, "OK");
  Panneau(LogoFondPic, "LogoFondPic", &NonConnectéPic, 2040, 360, 3000, 570, 0x0000FF);
  Place(LogoWeb, "LogoWeb", Genre::Web, &LogoFondPic, 0, 0, 3390, 900);
  Panneau(Pub0Pic, "Pub0Pic", nullptr, 0, 8700, 12000, 2325, 0x000000);
  Place(Pub0Web, "Pub0Web", Genre::Web, &Pub0Pic, 0, 210, 12240, 2355);
  Panneau(Pub1Pic, "Pub1Pic", nullptr, 11940, 0, 3405, 11805, 0x000000);
  Place(Pub1Web, "Pub1Web", Genre::Web, &Pub1Pic, 285, 0, 3360, 11805);

  Panneau(SSCartes, "SSCartes", nullptr, 0, -9000, 6015, 5295, 0x000040);

  EtoilesTimer = {true, 1};
  TempsTimer = {false, 1000};
  NonConnectéTimer = {true, 20000};

  const Contrôle *empilement[NombrePanneauxHaut] = {
      &NomsJoueursSS, &SSJoueur[3],    &RèglesText, &MenuSS,      &Pub0Pic,
      &Pub1Pic,       &NonConnectéPic, &SSImage,    &SSJoueur[1], &TempsSS,
      &SSCartes,      &SSJoueur[2],    &SSJoueur[0]};
  for (int i = 0; i < NombrePanneauxHaut; ++i)
    Empilement[i] = empilement[i];
}
