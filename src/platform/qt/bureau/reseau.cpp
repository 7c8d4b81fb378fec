// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/bureau/reseau.h"

#include <QNetworkInformation>
#include <QNetworkInterface>

namespace {
// Without a reachability backend: some interface other than loopback is up
// and holds an address.
bool InterfaceActive() {
  for (const QNetworkInterface &i : QNetworkInterface::allInterfaces()) {
    const auto drapeaux = i.flags();
    if (drapeaux.testFlag(QNetworkInterface::IsUp) &&
        drapeaux.testFlag(QNetworkInterface::IsRunning) &&
        !drapeaux.testFlag(QNetworkInterface::IsLoopBack) && !i.addressEntries().isEmpty())
      return true;
  }
  return false;
}
} // namespace

bool MachineEnLigne() {
  static const bool backend =
      QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability);
  if (backend && QNetworkInformation::instance()) {
    const auto joignable = QNetworkInformation::instance()->reachability();
    if (joignable != QNetworkInformation::Reachability::Unknown)
      return joignable == QNetworkInformation::Reachability::Online;
  }
  return InterfaceActive();
}
