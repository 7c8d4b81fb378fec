#include "platform/qt/bureau/reglages.h"

#include <QCoreApplication>

std::unique_ptr<QSettings> RéglagesDuJoueur() {
  if (QCoreApplication::organizationName().isEmpty())
    return std::make_unique<QSettings>(QCoreApplication::applicationName(),
                                       QCoreApplication::applicationName());
  return std::make_unique<QSettings>();
}
