// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// What the game asks of the machine it runs on. The engine sees only this
// interface: the Qt window implements it for play, the headless one for tests
// and the command-line tool.

#include <cstdint>
#include <string>

// One display mode as the display layer reports it and accepts it.
// dmFields tells which of the four values a change is to apply.
struct EnregistrementAffichage {
  int16_t dmPelsWidth = 0;
  int16_t dmPelsHeight = 0;
  int16_t dmBitsPerPel = 0;
  int16_t dmDisplayFrequency = 0;
  uint32_t dmFields = 0;
};

// The three web views of the table.
enum class VueWeb { Pub0Web, Pub1Web, LogoWeb };

class Plateforme {
public:
  virtual ~Plateforme() = default;

  // One turn of the event loop: waiting events and timers run here.
  virtual void TourDeBoucle() = 0;
  // The sweep's turn at the head of group `groupe` (0..1286) of seat `siège`:
  // a window paces the sweep here, a headless run just turns the loop.
  virtual void TourDeBalayage(int siège, int groupe) {
    (void)siège;
    (void)groupe;
    TourDeBoucle();
  }
  // The session is over: leave the event loop.
  virtual void Quitte() = 0;

  // Seconds since midnight, as the game's clock reads them.
  virtual float SecondesDepuisMinuit() = 0;

  // Folder of the data files, chosen once before the session starts: the
  // program's own folder or the player's data folder.
  virtual std::string DossierDesDonnées() = 0;

  // Display mode: read the current one, make the record's mode current.
  virtual void EnumDisplaySettings(EnregistrementAffichage &enregistrement) = 0;
  virtual void ChangeDisplaySettings(const EnregistrementAffichage &enregistrement) = 0;
  // Shows the dialog that asks leave to change the display mode; true when
  // the player agrees, or when no change can be had and nothing is asked.
  virtual bool DemandeChangementRésolution() = 0;

  // Whether the machine is on line.
  virtual bool EstConnecté() = 0;

  // Opens a page in one of the web views; an empty address leaves it black.
  virtual void Navigue(VueWeb vue, const std::string &adresse) = 0;

  // A French message for the player: a start-up failure or a file that
  // could not be written. The game goes on after it unless it says otherwise.
  virtual void SignaleErreur(const std::string &message) = 0;
};
