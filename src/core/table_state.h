// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The table state: the one record of the game, and the procedures that work
// on it. Most procedures take no arguments and return nothing: they find what
// they need in the record and in the window's controls. The others take only
// what the caller alone knows (a control's index, a seat, a card slot, a
// display mode, the names to write, the menu on or off, whether to tell a
// failure), and three return a flag (NetworkStatus, LitNoms, LitScores).
// Their definitions are spread over the subsystem folders, one subsystem to
// a file.

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/aleatoire.h"
#include "platform/plateforme.h"
#include "table/controles.h"

constexpr int NombreRangements = 72072;
constexpr uint8_t PasDeCarte = 54; // no card drawn yet; also the back's picture

// Colours of the seats and their darker shades (0xBBGGRR).
constexpr uint32_t CouleurSiège[4] = {0xC0C000, 0x00C000, 0x00C0C0, 0xC0C0C0};
constexpr uint32_t CouleurSiègeSombre[4] = {0x808000, 0x008000, 0x008080, 0x808080};
constexpr uint32_t CouleurSiègeClaire[4] = {0xFFFF00, 0x00FF00, 0x00FFFF, 0xE0E0E0};

// The four names a seat falls back on.
extern const char *const NomsParDéfaut[4];

// Display mode kept by the display-mode procedures: width, height, depth, frequency.
struct ModeAffichage {
  int16_t largeur = 0, hauteur = 0, couleurs = 0, fréquence = 0;
};

struct IndexBalayage; // computer/balayage_rapide.h

class TroisNiveaux {
public:
  explicit TroisNiveaux(Plateforme &plateforme);

  Plateforme &plateforme;
  Contrôles Fenêtre;
  Aléatoire Générateur;

  // ---- The record ------------------------------------------------------
  // Row 0 stays all zero; rows 1..72072 are the arrangements.
  std::vector<std::array<uint8_t, 13>> Rangements;
  uint8_t Mains[5][13] = {};
  uint8_t CartesTirées[52] = {};
  uint8_t Niveau1[5] = {}, Niveau2[5] = {}, Niveau3[3] = {};
  double Valeur1 = 0, Valeur2 = 0, Valeur3 = 0;
  double Somme = 0;
  float MeilleureValeur = 0;
  int32_t MeilleurRangement[4] = {};
  uint8_t EmplacementLevé = 0;
  uint8_t CarteLevée = 0;
  uint8_t Joueur = 0;
  uint8_t NombreParRang[13] = {};
  bool EstPaire = false, EstDeuxPaires = false, EstBrelan = false, EstFull = false;
  bool EstCarré = false, EstFlush = false, EstQuinte = false, EstQF = false;
  bool ToutQuinteVu = false, ToutFlushVu = false;
  bool ToutQuinte[4] = {}, ToutFlush[4] = {}, SixPaires[4] = {}, MégaQuinte[4] = {};
  int RangHaut = 0;
  uint8_t RangBas = 0;
  int16_t PasProgrès = 0;
  double ValeursNiveau1[5] = {}, ValeursNiveau2[5] = {};
  float ValeursNiveau3[5] = {};
  double PaieNiveau1[4][4] = {}, PaieNiveau2[4][4] = {};
  int16_t PaieNiveau3[4][4] = {};
  int32_t Scores[4] = {};
  uint8_t Mode = 0;
  bool ScoresÉcrits = false;
  int32_t TotauxDonne[4] = {};
  int16_t BaseMain[8] = {};
  bool ScoresRemisà0 = false;
  uint8_t CartesMontrées[5][13] = {};
  int16_t TempsÉcoulé = 0;
  double TempsExpert = 0;
  int16_t TempsDébutant = 0;

  std::string TextesRègles[14];
  uint8_t PageRègles = 0;

  float EtoileX[51] = {}, EtoileY[51] = {}, EtoileVitesse[51] = {};
  int16_t EtoileRayon[51] = {};

  // Display mode of the session.
  ModeAffichage ModeInitial, ModeDemandé;
  EnregistrementAffichage EnregistrementÉcran;

  // ---- Outside the game's record ----------------------------------------
  // Set by QUITTER or the closing of the window: a running sweep is
  // abandoned on the spot and nothing more happens.
  bool SessionTerminée = false;
  // Set when the session could not start (refused display mode, unreadable
  // Noms or Scores); the program then ends with a non-zero status.
  bool DémarrageRefusé = false;
  std::string ErreurDémarrage;
  // True while OrdiJoue is on the stack, so that no sweep starts inside another.
  bool BalayageEnCours = false;
  // The mode of the last sweep of this deal: GO in DEBUTANT after an EXPERT
  // sweep first finds the human's solution.
  uint8_t ModeDuBalayage = 0;
  // Where each arrangement's levels fall among the seat's 5- and 3-card sets,
  // derived from Rangements at the first sweep (computer/).
  std::shared_ptr<const IndexBalayage> IndexDuBalayage;
  // What the deal's totals really added to Scores: less than the totals where
  // a score met its 32-bit limit. The solution view takes back just that.
  int32_t AjoutéAuxScores[4] = {};
  // Data files whose last write failed and was told to the player: told once,
  // until a write of that file works again.
  std::vector<std::string> FichiersNonÉcrits;

  // ---- Session (core/) ----------------------------------------------------
  void Form_Load();
  void Form_QueryUnload();
  void Fin_MouseUp();
  void ConstruitRangements();
  void Init();
  void Distribue(); // the deal inside NouveauJeu_MouseUp, Tirage written
  void PlaceLesÉtoiles();
  void ComposeTextesRègles();

  // ---- Hand values (valuation/) -------------------------------------------
  void Résultat1();
  void Résultat2();
  void Résultat3();
  void Décompte1();
  void Décompte2();
  void Décompte3();

  // ---- Computer players (computer/) ---------------------------------------
  void OrdiJoue();                  // the sweep as the game runs it
  void OrdiJoueLittéral();          // the same, row by row: the reference for tests
  void ComptePaires(uint8_t siège); // pair count of Mains(siège, ·)
  // One seat's whole sweep in one go: no turn of the event loop, no bar, no
  // STOP test; then its pair count. For GO after a change to DEBUTANT.
  void ChercheSiège(uint8_t siège);

  // ---- Showdown (showdown/) -------------------------------------------------
  void AfficheRésultat();

  // ---- Event procedures (table/) --------------------------------------------
  void NouveauJeu_MouseUp();
  void Arrêt_MouseUp();
  void Mode_MouseUp();
  void Scoresà0_MouseUp();
  void CartesJeu_MouseUp(int index);
  void Joue_Click();
  void Rejoue_MouseUp();
  void VoirOrdi_Click(int index);
  void TempsTimer_Timer();
  void EtoilesTimer_Timer();
  void VoirRègles_Click(int index);
  void TextScroll_Click(int index);
  void NomsJoueurs_MouseUp();
  void EnregistreNoms_MouseUp();
  void AnnuleNoms_MouseUp();

  // ---- Platform services (platform/) ----------------------------------------
  void VérifieRésolution();
  void RestaureRésolution();
  void ChangeRésolution(const int16_t &largeur, const int16_t &hauteur, const int16_t &couleurs,
                        const int16_t &fréquence);
  void MémoriseRésolution(int16_t largeur, int16_t hauteur, int16_t couleurs, int16_t fréquence,
                          const std::string &cas);
  bool NetworkStatus();
  void NonConnectéTimer_Timer();
  void NonConnectéCmd_Click();

  // ---- Data files (files/) --------------------------------------------------
  // Form_Load's readers: false, with ErreurDémarrage set, when the file is
  // missing or unreadable.
  bool LitNoms();
  bool LitScores();
  void ÉcritNoms(const std::string (&noms)[4]);
  void ÉcritScores();
  void LitTempsDuMode(); // last step of Init
  // End of a showdown; a replay passes over a failure silently.
  void ÉcritTempsDuMode(bool signaleÉchec = true);
  void ÉcritTirage();
  void LitTirage(); // Rejoue_MouseUp, every failure passed over
  // Removes what a write cut short by a crash left beside the data files.
  void NettoieFichiersTemporaires();

  // Shows picture `code` in slot `slot`; a code with no picture is passed over.
  void MontreCarte(int slot, int code);
  // The buttons that deal, value, pay or leave the table, on or off together.
  void ActiveMenu(bool actif);
  // The clock's first value at the start of a deal or replay.
  void DémarreHorloge();
  // The start and the end of a deal, shared by JOUER, GO and the replay.
  void OuvreLaDonne();
  void Abattage(bool signaleÉchecTemps = true);
};
