// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The game's messages in the language spoken. The engine writes them in
// French, composed of a file's name, its path, a line number; here each is
// recognised by its French pattern and told again in the translation, with
// the same names and numbers. A message no pattern knows stays French.
#include <QString>
#include <string>

QString TraduitMessage(const QString &message);
inline QString TraduitMessage(const std::string &message) {
  return TraduitMessage(QString::fromStdString(message));
}
