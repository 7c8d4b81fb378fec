// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/bureau/reglages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "files/format.h"

namespace {

// Far above the few lines the game keeps there.
constexpr std::size_t TailleMaximale = 64 * 1024;

// QSettings opens its file itself, and would wait for ever on a pipe and
// replace it on the first change. So it works on a private copy of what the
// bounded reader found, and the copy goes back through the data files' writer.
class RéglagesCopiés : public QSettings {
public:
  RéglagesCopiés(std::unique_ptr<QTemporaryDir> dossier, const QString &copie, QString cible,
                 std::string lus, bool remplaçable)
      : QSettings(copie, QSettings::IniFormat), dossier(std::move(dossier)),
        cible(std::move(cible)), lus(std::move(lus)), remplaçable(remplaçable) {}

  ~RéglagesCopiés() override {
    sync();
    if (!remplaçable)
      return;
    const auto après = format::LitFichier(fileName().toStdString(), TailleMaximale);
    if (après.état != format::Lecture::Lu || après.octets == lus)
      return;
    QDir().mkpath(QFileInfo(cible).absolutePath());
    format::ÉcritFichier(cible.toStdString(), après.octets, false);
  }

private:
  std::unique_ptr<QTemporaryDir> dossier;
  QString cible;
  std::string lus;
  bool remplaçable;
};

} // namespace

QString FichierDesRéglages() {
  const QString application = QCoreApplication::applicationName();
  QString organisation = QCoreApplication::organizationName();
  if (organisation.isEmpty())
    organisation = application;
  return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
      .filePath(organisation + "/" + application + ".conf");
}

std::unique_ptr<QSettings> RéglagesDuJoueur() {
  const QString cible = FichierDesRéglages();
  // A change cut short by a crash leaves its temporary file; any look at the
  // settings clears it away, the first of a session among them.
  const QFileInfo info(cible);
  format::NettoieRestes(info.absolutePath().toStdString(), {info.fileName().toStdString()});
  auto lecture = format::LitFichier(cible.toStdString(), TailleMaximale);
  const bool lu = lecture.état == format::Lecture::Lu && !lecture.tronqué;
  const bool remplaçable = lu || lecture.état == format::Lecture::Absent;
  if (!lu)
    lecture.octets.clear();
  auto dossier = std::make_unique<QTemporaryDir>();
  // Without a temporary folder the copy goes where no file can ever be (under
  // a device): the settings then live in memory for this once.
  const QString copie =
      dossier->isValid() ? dossier->filePath("reglages.conf") : "/dev/null/reglages.conf";
  if (dossier->isValid())
    format::ÉcritFichier(copie.toStdString(), lecture.octets, false);
  return std::make_unique<RéglagesCopiés>(std::move(dossier), copie, cible,
                                          std::move(lecture.octets), remplaçable);
}
