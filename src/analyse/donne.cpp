// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// `troisniveaux-analyse donne`: one deal of a Tirage file played through the
// game's own handlers, as a replay, in a session of its own.
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "analyse/texte.h"
#include "core/table_state.h"
#include "files/format.h"
#include "platform/sans_fenetre.h"

namespace {

const char *const AideDonne =
    "Usage : troisniveaux-analyse donne --tirage FICHIER [--expert | --debutant]\n"
    "                                   [--humain C1 ... C13] [--json]\n"
    "\n"
    "Rejoue la donne du fichier Tirage (52 codes, un par ligne) comme le bouton REJOUE,\n"
    "dans une séance à part : scores à 0, un dossier temporaire ; les fichiers du joueur\n"
    "ne sont ni lus ni écrits. Affiche la table après l'abattage : les niveaux de chaque\n"
    "joueur et leur classe, les mains spéciales, les 36 paiements, les totaux et scores.\n"
    "\n"
    "  --tirage FICHIER   le fichier de la donne (obligatoire)\n"
    "  --debutant         mode DEBUTANT (par défaut) ; --expert : mode EXPERT\n"
    "  --humain C1..C13   la disposition du joueur humain, ses 13 cartes dans l'ordre\n"
    "                     des places 0 à 12 (par défaut : dans l'ordre de la donne) ;\n"
    "                     cartes écrites comme pour la commande main\n"
    "  --json             une seule ligne JSON\n";

// A folder of its own for the session, removed at the end; the current
// folder, which the session moves into, is given back.
class Dossier {
public:
  Dossier() {
    std::error_code e;
    départ = std::filesystem::current_path(e);
    std::filesystem::path base = std::filesystem::temp_directory_path(e);
    if (e)
      base = "/tmp";
    std::string modèle = (base / "troisniveaux-donne-XXXXXX").string();
    if (mkdtemp(modèle.data()) != nullptr)
      chemin = modèle;
  }
  ~Dossier() {
    std::error_code e;
    if (!départ.empty())
      std::filesystem::current_path(départ, e);
    if (!chemin.empty())
      std::filesystem::remove_all(chemin, e);
  }
  Dossier(const Dossier &) = delete;
  Dossier &operator=(const Dossier &) = delete;
  bool Écrit(const std::string &nom, const std::string &octets) const {
    std::ofstream fichier(chemin / nom, std::ios::binary);
    return static_cast<bool>(fichier << octets);
  }
  std::filesystem::path chemin;

private:
  std::filesystem::path départ;
};

std::string Chaîne(const std::string &s) {
  std::string j = "\"";
  for (char c : s) {
    if (c == '"' || c == '\\')
      j += '\\';
    j += c;
  }
  return j + "\"";
}

template <typename F> std::string Liste(int n, F élément) {
  std::string s = "[";
  for (int i = 0; i < n; ++i)
    s += (i ? ", " : "") + élément(i);
  return s + "]";
}

// The labels and cards of the table as they stand.
std::string Table(const TroisNiveaux &t) {
  const auto &f = t.Fenêtre;
  std::string s;
  s += "\"ExtraLabel\": " + Liste(4, [&](int i) { return Chaîne(f.ExtraLabel[i].Caption); });
  s += ", \"LabelPaie\": " + Liste(36, [&](int i) { return Chaîne(f.LabelPaie[i].Caption); });
  s += ", \"TotalLabel\": " + Liste(4, [&](int i) { return Chaîne(f.TotalLabel[i].Caption); });
  s += ", \"ScoreLabel\": " + Liste(4, [&](int i) { return Chaîne(f.ScoreLabel[i].Caption); });
  s += ", \"EnchèreLabel\": " + Liste(12, [&](int i) {
         return "{\"Caption\": " + Chaîne(f.EnchèreLabel[i].Caption) +
                ", \"Visible\": " + (f.EnchèreLabel[i].Visible ? "true" : "false") + "}";
       });
  s += ", \"CartesJeu\": " +
       Liste(52, [&](int i) { return std::to_string(f.CartesJeu[i].Picture); });
  return s;
}

// The table after the showdown; the solution view's fields follow when asked.
std::string Json(const TroisNiveaux &t) {
  std::string s = "{\"Mode\": " + std::to_string(t.Mode);
  s += ", \"MeilleurRangement\": " +
       Liste(4, [&](int i) { return std::to_string(t.MeilleurRangement[i]); });
  s += ", \"ValeursNiveau1\": " +
       Liste(5, [&](int i) { return texte::Nombre(t.ValeursNiveau1[i]); });
  s += ", \"ValeursNiveau2\": " +
       Liste(5, [&](int i) { return texte::Nombre(t.ValeursNiveau2[i]); });
  s += ", \"ValeursNiveau3\": " +
       Liste(5, [&](int i) { return texte::Nombre(t.ValeursNiveau3[i]); });
  return s + ", " + Table(t);
}

const char *const NomsDesSièges[4] = {"Siège 0", "Siège 1", "Siège 2", "Siège 3 (humain)"};

void Lisible(std::ostream &o, const TroisNiveaux &t) {
  const auto &f = t.Fenêtre;
  o << "Mode " << (t.Mode ? "DEBUTANT" : "EXPERT") << "\n";
  for (int s = 0; s <= 3; ++s) {
    o << "\n" << NomsDesSièges[s] << " — " << f.JoueursLabel[s].Caption;
    if (s < 3)
      o << ", rangement " << t.MeilleurRangement[s];
    else if (t.Mode == 1)
      o << ", solution de l'ordinateur : rangement " << t.MeilleurRangement[3];
    o << "\n";
    if (!f.ExtraLabel[s].Caption.empty())
      o << "  " << f.ExtraLabel[s].Caption << "\n";
    // The human's own layout sits at index 4 while the real showdown is shown.
    const int index = s == 3 && f.VoirOrdi[0].Visible ? 4 : s;
    const double valeurs[3] = {t.ValeursNiveau1[index], t.ValeursNiveau2[index],
                               t.ValeursNiveau3[index]};
    o << "  paiements contre les sièges";
    for (int j = 0; j <= 2; ++j)
      o << (j ? ", " : " ") << (j < s ? j : j + 1);
    o << "\n";
    for (int n = 0; n <= 2; ++n) {
      o << "  NIVEAU " << n + 1 << " :";
      const int première = n == 0 ? 0 : n == 1 ? 5 : 10, nombre = n == 2 ? 3 : 5;
      for (int k = première; k < première + nombre; ++k)
        o << " " << texte::Carte(f.CartesJeu[13 * s + k].Picture);
      const Contrôle &classe = f.EnchèreLabel[3 * s + n];
      o << "  " << (classe.Visible ? classe.Caption : "-") << " ("
        << (n == 2 ? texte::Nombre(static_cast<float>(valeurs[n])) : texte::Nombre(valeurs[n]))
        << ")";
      o << "  paiements :";
      for (int j = 0; j <= 2; ++j)
        o << " " << f.LabelPaie[9 * s + 3 * n + j].Caption;
      o << "\n";
    }
    o << "  total " << f.TotalLabel[s].Caption << ", score " << f.ScoreLabel[s].Caption << "\n";
  }
}

struct Options {
  std::string fichier;
  uint8_t mode = 1;
  bool json = false;
  std::optional<std::vector<uint8_t>> humain;
};

// The exit status when the command ends here (help or a bad argument), or
// nothing when it goes on.
std::optional<int> LitArguments(const std::vector<std::string> &arguments, Options &o) {
  bool avecTirage = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string &a = arguments[i];
    if (a == "--help" || a == "-h") {
      std::cout << AideDonne;
      return 0;
    } else if (a == "--json") {
      o.json = true;
    } else if (a == "--expert") {
      o.mode = 0;
    } else if (a == "--debutant") {
      o.mode = 1;
    } else if (a == "--tirage") {
      if (++i == arguments.size()) {
        std::cerr << "--tirage attend un nom de fichier.\n";
        return 2;
      }
      o.fichier = arguments[i];
      avecTirage = true;
    } else if (a == "--humain") {
      o.humain.emplace();
      while (i + 1 < arguments.size() && arguments[i + 1].rfind("--", 0) != 0) {
        const auto code = texte::LitCarte(arguments[++i]);
        if (!code) {
          std::cerr << "Carte inconnue : « " << arguments[i] << " ».\n";
          return 2;
        }
        o.humain->push_back(*code);
      }
    } else {
      std::cerr << "Argument inconnu : « " << a << " ». Voir troisniveaux-analyse donne --help.\n";
      return 2;
    }
  }
  if (!avecTirage) {
    std::cerr << "Il faut un fichier de donne : --tirage FICHIER. Voir troisniveaux-analyse donne "
                 "--help.\n";
    return 2;
  }
  return std::nullopt;
}

bool MêmesCartes(const uint8_t (&main)[13], std::vector<uint8_t> cartes) {
  std::vector<uint8_t> donnée(main, main + 13);
  std::sort(donnée.begin(), donnée.end());
  std::sort(cartes.begin(), cartes.end());
  return donnée == cartes;
}

bool CinquanteDeuxCartes(const TroisNiveaux &t) {
  bool vue[52] = {};
  for (int s = 0; s <= 3; ++s)
    for (uint8_t c : t.Mains[s]) {
      if (c > 51 || vue[c])
        return false;
      vue[c] = true;
    }
  return true;
}

} // namespace

int CommandeDonne(const std::vector<std::string> &arguments) {
  Options options;
  if (const auto statut = LitArguments(arguments, options))
    return *statut;
  // Only a regular file is read: a pipe or a device would block or never end.
  const auto lecture = format::LitFichier(options.fichier, 1024 * 1024);
  if (lecture.état == format::Lecture::PasUnFichier) {
    std::cerr << "Le fichier « " << options.fichier
              << " » ne peut pas être lu : ce n'est pas un fichier ordinaire.\n";
    return 2;
  }
  if (lecture.état != format::Lecture::Lu) {
    std::cerr << "Le fichier « " << options.fichier << " » ne peut pas être lu.\n";
    return 2;
  }
  const std::string &octets = lecture.octets;

  Dossier dossier;
  if (dossier.chemin.empty() ||
      !dossier.Écrit("Noms",
                     "\"MicroProc\"\r\n\"GigaOctets\"\r\n\"M\xE9gaBytes\"\r\n\"Bibi\"\r\n") ||
      !dossier.Écrit("Scores", "0\r\n0\r\n0\r\n0\r\n") || !dossier.Écrit("Tirage", octets)) {
    std::cerr << "Impossible de préparer un dossier temporaire pour la séance.\n";
    return 1;
  }
  PlateformeSansFenêtre plateforme(dossier.chemin.string());
  TroisNiveaux t(plateforme);
  t.Form_Load();
  if (t.DémarrageRefusé) {
    std::cerr << t.ErreurDémarrage << "\n";
    return 1;
  }
  if (t.Mode != options.mode)
    t.Mode_MouseUp();

  // The cards as the replay will read them.
  t.LitTirage();
  if (!CinquanteDeuxCartes(t))
    std::cerr
        << "Attention : « " << options.fichier
        << " » ne donne pas 52 cartes différentes ; la donne est jouée telle que le jeu la lit.\n";
  if (const auto &humain = options.humain) {
    if (humain->size() != 13 || !MêmesCartes(t.Mains[3], *humain)) {
      std::cerr
          << "--humain doit donner les 13 cartes du siège 3 de ce tirage, chacune une fois.\n";
      return 2;
    }
    // Laid out by the human's own clicks, at the sweep's first turn.
    plateforme.script = [&t, &humain](int tour) {
      if (tour != 1)
        return;
      for (int k = 0; k <= 12; ++k)
        for (int j = k + 1; j <= 12; ++j)
          if (t.Mains[4][j] == (*humain)[k]) {
            t.CartesJeu_MouseUp(39 + k);
            t.CartesJeu_MouseUp(39 + j);
          }
    };
  }
  t.Rejoue_MouseUp();
  plateforme.script = nullptr;

  if (!options.json) {
    Lisible(std::cout, t);
    return 0;
  }
  std::string ligne = Json(t);
  if (t.Mode == 1 && t.Fenêtre.VoirOrdi[0].Visible) {
    t.VoirOrdi_Click(0);
    ligne += ", \"solution\": {" + Table(t) + "}";
    t.VoirOrdi_Click(1);
    ligne += ", \"retour\": {" + Table(t) + "}";
  }
  std::cout << ligne << "}\n";
  return 0;
}
