// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The window as plain data: every control that the game reads or sets, with
// the properties it uses. Sizes and positions are in twips (15 to a pixel),
// colours are 0xBBGGRR. Nothing here knows about any toolkit.

#include <cstdint>
#include <string>

enum class Genre : uint8_t { Panneau, Étiquette, Texte, Bouton, Image, Barre, Web, Fenêtre };
enum class Alignement : uint8_t { Gauche, Centre, Droite };

// The window's system colours, kept apart from real colours so that the
// window can take them from the desktop.
constexpr uint32_t CouleurSystèmeBouton = 0x8000000Fu;
constexpr uint32_t CouleurSystèmeFenêtre = 0x80000005u;
constexpr uint32_t CouleurSystèmeTexte = 0x80000012u;
constexpr uint32_t SansFond = 0xFFFFFFFFu;

constexpr int16_t FlècheHaut = 10;   // mouse pointer: up arrow
constexpr int16_t SensInterdit = 12; // mouse pointer: no-drop sign

struct Police {
  std::string Nom = "Arial";
  double Taille = 0; // points; 0 for a control without text
  bool Gras = false;
};

struct Contrôle {
  std::string Nom; // as in the game's design, "CartesJeu(17)"
  Genre genre = Genre::Panneau;
  const Contrôle *Parent = nullptr; // null: the window itself
  int Left = 0, Top = 0, Width = 0, Height = 0;
  bool Visible = true;
  bool Enabled = true;
  uint32_t BackColor = 0;
  uint32_t ForeColor = 0;
  std::string Caption; // UTF-8
  std::string Text;    // text boxes only
  int16_t MousePointer = 0;
  int Picture = -1; // images: index into the card pictures, -1 none
  Police police;
  Alignement alignement = Alignement::Gauche;
  bool AjusteAuTexte = false; // the label's width follows its text
  bool Bordure = false;       // thin border
  bool RetourLigne = false;   // text wraps at word ends
};

struct Minuterie {
  bool Enabled = false;
  int Interval = 0; // ms
};

// Pictures that image controls can show besides the 55 card pictures.
enum ImageBouton : int {
  ImageCartes = 0, // 0..54: the card pictures by code, 54 the back
  ImageTitre = 100,
  ImageOrdinateur = 101,
  ImageLivre = 102,
  ImageMainHaut = 103,
  ImageMainBas = 104,
};

struct Contrôles {
  Contrôles(); // the first state of the window's design
  // Parents point inside the object, so it is never copied.
  Contrôles(const Contrôles &) = delete;
  Contrôles &operator=(const Contrôles &) = delete;

  Contrôle Form; // the window: Width, Height, Caption, BackColor

  // Seats
  Contrôle SSJoueur[4], SSJoueurFond[4];
  Contrôle JoueursLabel[4], ExtraLabel[4], ScoreLabel[4], TotalLabel[4];
  Contrôle CartesJeu[53];
  Contrôle SSPaie[12], NiveauLabel[12], EnchèreLabel[12];
  Contrôle LabelPaie[36];

  // Clock and progress bar
  Contrôle TempsSS, TempsFondSS, TempsLabel, TempsShape;

  // Menu
  Contrôle MenuSS, NouveauJeu, Scoresà0, NomsJoueurs, Mode, Rejoue, Arrêt, Fin;
  Contrôle VoirOrdi[2], VoirRègles[2], Joue;

  // Rules book
  Contrôle RèglesText, AfficheRègles, TextCombien, TextScroll[2];

  // Names panel
  Contrôle NomsJoueursSS, NomsJoueursText[4], EnregistreNoms, AnnuleNoms;

  // Title picture
  Contrôle SSImage, ImageTitre;

  // Connection notice and advert panels
  Contrôle NonConnectéPic, NonConnectéLbl, NonConnectéCmd, LogoFondPic, LogoWeb;
  Contrôle Pub0Pic, Pub0Web, Pub1Pic, Pub1Web;

  // Store of the card pictures, never seen
  Contrôle SSCartes;

  Minuterie EtoilesTimer, TempsTimer, NonConnectéTimer;

  // The top-level panels, topmost first, as they lie over each other.
  static constexpr int NombrePanneauxHaut = 13;
  const Contrôle *Empilement[NombrePanneauxHaut] = {};
};
