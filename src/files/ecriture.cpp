// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <QSaveFile>
#include <cerrno>
#include <sys/stat.h>

#include "files/format.h"

namespace {

// A link to a regular file is followed, and the file it points to written.
bool RemplaçableOuAbsent(const std::string &nom) {
  struct stat état {};
  return stat(nom.c_str(), &état) == 0 ? S_ISREG(état.st_mode) : errno == ENOENT;
}

// Whether the open file is the file itself rather than a temporary beside
// it: the folder refused new files, so the file is written in place.
bool ÉcritEnPlace(const QSaveFile &fichier, const std::string &nom) {
  struct stat ouvert {
  }, cible{};
  return fstat(fichier.handle(), &ouvert) == 0 && stat(nom.c_str(), &cible) == 0 &&
         ouvert.st_dev == cible.st_dev && ouvert.st_ino == cible.st_ino;
}

} // namespace

namespace format {

Écriture ÉcritFichier(const std::string &nom, std::string_view octets, bool enPlaceSiBesoin) {
  Écriture é;
  if (!RemplaçableOuAbsent(nom)) {
    é.pasUnFichier = true;
    return é;
  }
  QSaveFile fichier(QString::fromStdString(nom));
  fichier.setDirectWriteFallback(enPlaceSiBesoin);
  errno = 0;
  // The flush comes before the commit: a commit whose own flush fails still
  // renames the empty temporary file over the old one. The name is looked at
  // again just before the rename, should a pipe have taken its place.
  const bool ouvert = fichier.open(QIODevice::WriteOnly);
  é.enPlace = ouvert && ÉcritEnPlace(fichier, nom);
  é.réussi = ouvert &&
             fichier.write(octets.data(), static_cast<qint64>(octets.size())) ==
                 static_cast<qint64>(octets.size()) &&
             fichier.flush() && RemplaçableOuAbsent(nom) && fichier.commit();
  é.errnoÉcriture = errno;
  é.ressource = fichier.error() == QFileDevice::ResourceError;
  if (!é.réussi) {
    fichier.cancelWriting();
    é.pasUnFichier = !RemplaçableOuAbsent(nom);
  }
  return é;
}

} // namespace format
