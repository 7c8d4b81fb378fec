// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <zlib.h>

#include "files/historique.h"
#include "platform/qt/bureau/dossier_donnees.h"
#include "platform/qt/bureau/ligne_de_commande.h"
#include "platform/qt/bureau/reglages.h"
#include "platform/qt/jeux/jeux_de_cartes.h"

namespace {

void Écrit(const QString &chemin, const QByteArray &octets) {
  QDir().mkpath(QFileInfo(chemin).absolutePath());
  QFile f(chemin);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(octets);
}

QByteArray Lit(const QString &chemin) {
  QFile f(chemin);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

const QByteArray Noms = "\"MicroProc\"\r\n\"GigaOctets\"\r\n\"M\xE9gaBytes\"\r\n\"Bibi\"\r\n";
const QByteArray Scores = "0\r\n0\r\n0\r\n0\r\n";

// A program folder, a home's data folder and an installed share folder.
struct Machine {
  QTemporaryDir racine;
  QString programme = racine.filePath("usr/bin");
  QString installé = racine.filePath("usr/share/troisniveaux");
  QString personnel = racine.filePath("home/.local/share/troisniveaux");
  Machine() {
    QDir().mkpath(programme);
    Écrit(installé + "/Noms", Noms);
    Écrit(installé + "/Scores", Scores);
    Écrit(installé + "/pub0.htm", "<p>page</p>");
    QFile::setPermissions(installé + "/Noms",
                          QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
  }
  DossierDesDonnéesChoisi Choisit() const {
    return ChoisitDossierDesDonnées(programme, personnel, {racine.filePath("ailleurs"), installé});
  }
};

} // namespace

// Portable beside the program, else the player's own folder, filled from
// the installed defaults at the first start only.
TEST(DossierDesDonnées, PortableOuCopiéChezLeJoueurAuPremierLancement) {
  Machine m;
  // A Noms beside the program makes it portable: every file lies there.
  Écrit(m.programme + "/Noms", Noms);
  const auto portable = m.Choisit();
  EXPECT_TRUE(portable.portable && portable.erreur.isEmpty());
  EXPECT_EQ(QStringList({portable.dossier, portable.pages}),
            QStringList({m.programme, m.programme}));
  EXPECT_FALSE(QFileInfo::exists(m.personnel)) << "the player's folder is left alone";
  QFile::remove(m.programme + "/Noms");

  const auto choix = m.Choisit();
  ASSERT_TRUE(choix.erreur.isEmpty()) << choix.erreur.toStdString();
  EXPECT_TRUE(!choix.portable && choix.créé);
  EXPECT_EQ(QStringList({choix.dossier, choix.pages}), QStringList({m.personnel, m.installé}));
  EXPECT_EQ(Lit(m.personnel + "/Noms") + Lit(m.personnel + "/Scores"), Noms + Scores);
  EXPECT_FALSE(QFileInfo::exists(m.personnel + "/pub0.htm")) << "pages stay installed";
  // Nothing is left beside it but the folder itself.
  EXPECT_EQ(QDir(QFileInfo(m.personnel).absolutePath())
                .entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList{"troisniveaux"});

  // The next start keeps what the player has, a damaged file included:
  // the start then reports it.
  Écrit(m.personnel + "/Scores", "12\r\n");
  QFile::remove(m.personnel + "/Noms");
  const auto ensuite = m.Choisit();
  EXPECT_TRUE(ensuite.erreur.isEmpty() && !ensuite.créé && ensuite.dossier == m.personnel);
  EXPECT_FALSE(QFileInfo::exists(m.personnel + "/Noms"));
  EXPECT_EQ(Lit(m.personnel + "/Scores"), "12\r\n");

  // Without installed defaults the start is refused, saying where it looked.
  Machine sans;
  QFile::remove(sans.installé + "/Scores");
  auto refus = sans.Choisit();
  EXPECT_TRUE(refus.erreur.contains("Scores") && refus.erreur.contains(sans.installé))
      << refus.erreur.toStdString();
  EXPECT_FALSE(QFileInfo::exists(sans.personnel));

  // A file where the parent folder should be: nothing can be made there.
  Machine bloquée;
  Écrit(QFileInfo(bloquée.personnel).absolutePath(), "pas un dossier");
  refus = bloquée.Choisit();
  EXPECT_TRUE(refus.erreur.contains(QFileInfo(bloquée.personnel).absolutePath()))
      << refus.erreur.toStdString();
  // The installed folders looked in start beside the program.
  QStringList dossiers = DossiersInstallés();
  ASSERT_FALSE(dossiers.isEmpty());
  EXPECT_TRUE(dossiers.first().endsWith("/troisniveaux")) << dossiers.first().toStdString();
  EXPECT_EQ(dossiers.removeDuplicates(), 0);
}

TEST(LigneDeCommande, AideEtVersionSeulement) {
  const std::tuple<const char *, std::optional<int>, const char *> cas[] = {
      {"--help", 0, "Utilisation : troisniveaux"},
      {nullptr, std::nullopt, ""},
      {"--plein-écran", 2, "option inconnue « --plein-écran »"},
      {"Noms", 2, "argument inattendu « Noms »"}};
  for (const auto &[option, statut, message] : cas) {
    const char *arguments[] = {"troisniveaux", option};
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_EQ(TraiteLigneDeCommande(option ? 2 : 1, arguments), statut) << message;
    const std::string sortie = testing::internal::GetCapturedStdout(),
                      erreurs = testing::internal::GetCapturedStderr();
    EXPECT_NE((statut == 0 ? sortie : erreurs).find(message), std::string::npos) << message;
  }
}

namespace {

// The settings in a folder of the test's own, the others' put back after.
struct RéglagesÀPart {
  QTemporaryDir d;
  QByteArray avant = qgetenv("XDG_CONFIG_HOME");
  RéglagesÀPart() { qputenv("XDG_CONFIG_HOME", d.filePath("config").toUtf8()); }
  ~RéglagesÀPart() { qputenv("XDG_CONFIG_HOME", avant); }
};

} // namespace

// Every reader passes over what is not its file, at once, in bounded memory,
// and no writer replaces a pipe or a device.
TEST(FichiersHostiles, ChaqueLecteurPasseSurTubeAppareilÉnormeEtTronqué) {
  alarm(60); // a reader that blocks ends the test program
  RéglagesÀPart réglages;
  QTemporaryDir &d = réglages.d;
  const QString jeu = d.filePath("svg-x"), svg = jeu + "/x.svgz";
  const QByteArray svgBon = "<svg xmlns='http://www.w3.org/2000/svg'><rect id='back'/></svg>";
  const auto Gzip = [&](const QByteArray &octets) {
    gzFile f = gzopen(QFile::encodeName(svg).constData(), "wb");
    gzwrite(f, octets.constData(), static_cast<unsigned>(octets.size()));
    gzclose(f);
    return Lit(svg);
  };
  const QByteArray index = "[KDE Backdeck]\nName=X\nSVG=x.svgz\n";
  Écrit(jeu + "/index.desktop", index);
  const QByteArray svgzBon = Gzip(svgBon);
  ASSERT_TRUE(ContenuDuJeu(svg).has_value());
  {
    // The same deck, unpacking past its bound, or pointing at other files.
    Gzip(QByteArray(TailleMaximaleSvg + 1, ' '));
    EXPECT_FALSE(ContenuDuJeu(svg));
    Écrit(svg, "<svg><image xlink:href=\"/dev/zero\"/><image href = '../../etc/passwd'/>"
               "<image xlink:href=\"data:image/png;base64,AA\"/><use href='#back'/></svg>");
    EXPECT_EQ(*ContenuDuJeu(svg), "<svg><image xlink:href=\"\"/><image href = ''/>"
                                  "<image xlink:href=\"data:image/png;base64,AA\"/>"
                                  "<use href='#back'/></svg>");
    Écrit(svg, "<!DOCTYPE svg [<!ENTITY e SYSTEM '/etc/passwd'>]><svg>&e;</svg>");
    EXPECT_FALSE(ContenuDuJeu(svg));
  }

  // The data files' own reader is the engine's, checked with it.
  const QString histoire = d.filePath("Historique");
  const QByteArray ligne = "2026-11-23 21:04:05;EXPERT;-5;21;-7;-9;120;-3;14;-131\r\n";
  struct Lecteur {
    const char *nom;
    QString chemin;
    QByteArray bon;
    std::function<bool()> passe; // the file was passed over or read in part
  };
  const std::vector<Lecteur> lecteurs = {
      {"history", histoire, ligne + ligne,
       [&] { return historique::Lit(histoire.toStdString()).entrées.size() < 2; }},
      {"settings", FichierDesRéglages(), "[cartes]\njeu=svg-oxygen\n",
       [&] { return RéglagesDuJoueur()->value("cartes/jeu").toString() != "svg-oxygen"; }},
      {"deck index", jeu + "/index.desktop", index, [&] { return !LitJeu(jeu); }},
      {"deck SVG", svg, svgzBon, [&] { return !ContenuDuJeu(svg); }},
  };
  // What a hostile or careless neighbour may leave at a file's name: a pipe,
  // a link to a device, a file far past every bound, a file cut short.
  const std::function<void(const Lecteur &)> poses[] = {
      [](const Lecteur &l) { ASSERT_EQ(mkfifo(QFile::encodeName(l.chemin).constData(), 0644), 0); },
      [](const Lecteur &l) { ASSERT_TRUE(QFile::link("/dev/zero", l.chemin)); },
      [](const Lecteur &l) {
        Écrit(l.chemin, {});
        EXPECT_TRUE(QFile::resize(l.chemin, 64LL << 20));
      },
      [](const Lecteur &l) { Écrit(l.chemin, l.bon.left(l.bon.size() / 2)); }};
  for (const Lecteur &l : lecteurs)
    for (std::size_t sorte = 0; sorte < std::size(poses); ++sorte) {
      QFile::remove(l.chemin);
      QDir().mkpath(QFileInfo(l.chemin).absolutePath());
      poses[sorte](l);
      EXPECT_TRUE(l.passe()) << l.nom << " " << sorte;
      QFile::remove(l.chemin);
      Écrit(l.chemin, l.bon);
      EXPECT_FALSE(l.passe()) << l.nom << " read back whole";
    }

  // A change of settings does not replace a pipe.
  QFile::remove(FichierDesRéglages());
  ASSERT_EQ(mkfifo(QFile::encodeName(FichierDesRéglages()).constData(), 0644), 0);
  RéglagesDuJoueur()->setValue("cartes/jeu", "svg-x");
  EXPECT_TRUE(QFileInfo(FichierDesRéglages()).exists() &&
              !QFileInfo(FichierDesRéglages()).isFile());
  alarm(0);
}
