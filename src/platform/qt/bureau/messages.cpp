// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/bureau/messages.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QtGlobal>
#include <algorithm>

#include "platform/qt/bureau/langue.h"

namespace {

const char Contexte[] = "Messages";

// Every message the player can get, %1, %2... standing for what changes.
const char *const Modèles[] = {
    QT_TRANSLATE_NOOP("Messages",
                      "Le fichier « %1 » (%2) est introuvable. La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP(
        "Messages",
        "Le fichier « %1 » (%2) n'est pas un fichier ordinaire. La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP("Messages", "Le fichier « %1 » (%2) ne peut pas être lu (droits insuffisants "
                                  "?). La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP("Messages", "Le fichier « %1 » (%2) est trop grand pour être un fichier du "
                                  "jeu (plus de 1 Mo). La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP(
        "Messages",
        "Le fichier « %1 » (%2) ne contient aucun nom. La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP(
        "Messages",
        "Le fichier « %1 » (%2) ne contient aucun score. La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP("Messages", "Le fichier « %1 » (%2) contient un seul nom au lieu de quatre. "
                                  "La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP("Messages", "Le fichier « %1 » (%2) contient un seul score au lieu de "
                                  "quatre. La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP("Messages", "Le fichier « %1 » (%2) contient seulement deux noms au lieu de "
                                  "quatre. La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP("Messages", "Le fichier « %1 » (%2) contient seulement deux scores au lieu "
                                  "de quatre. La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP("Messages", "Le fichier « %1 » (%2) contient seulement trois noms au lieu de "
                                  "quatre. La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP("Messages", "Le fichier « %1 » (%2) contient seulement trois scores au lieu "
                                  "de quatre. La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP("Messages", "Le fichier « %1 » (%2) : la ligne %3 n'est pas un nom entre "
                                  "guillemets. La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP("Messages", "Le fichier « %1 » (%2) : la ligne %3 n'est pas un nombre "
                                  "entier. La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP("Messages",
                      "Le fichier « %1 » (%2) : la ligne %3 contient un nombre trop grand (un "
                      "score va de -2147483648 à 2147483647). La partie ne peut pas commencer."),
    QT_TRANSLATE_NOOP("Messages", "Impossible d'enregistrer le fichier « %1 » (%2) : %3. La partie "
                                  "continue ; le fichier a pu rester incomplet."),
    QT_TRANSLATE_NOOP("Messages", "Impossible d'enregistrer le fichier « %1 » (%2) : %3. La partie "
                                  "continue ; l'ancien fichier est conservé."),
    QT_TRANSLATE_NOOP("Messages", "Impossible d'enregistrer le fichier « %1 » (%2) : %3. La partie "
                                  "continue sans ce fichier."),
    QT_TRANSLATE_NOOP("Messages", "L'historique des scores ne peut pas être enregistré dans le "
                                  "fichier « %1 » (%2). La partie continue sans lui."),
    QT_TRANSLATE_NOOP("Messages", "Le dossier « %1 » ne peut pas être créé."),
    QT_TRANSLATE_NOOP("Messages", "Le dossier « %1 » refuse la création d'un dossier (%2)."),
    QT_TRANSLATE_NOOP("Messages", "Le fichier « %1 » ne peut pas être copié dans « %2 » (%3)."),
    QT_TRANSLATE_NOOP("Messages",
                      "Les fichiers « Noms » et « Scores » livrés avec le jeu sont introuvables "
                      "(cherchés dans : %1). Le dossier « %2 » ne peut pas être préparé."),
};

// The reasons a file was not written, which stand in the messages above.
[[maybe_unused]] const char *const Raisons[] = {
    QT_TRANSLATE_NOOP("Messages", "le dossier des données n'existe plus"),
    QT_TRANSLATE_NOOP("Messages", "un dossier porte ce nom"),
    QT_TRANSLATE_NOOP("Messages", "ce nom n'est pas celui d'un fichier ordinaire (un tube, un "
                                  "périphérique ou un lien vers l'un d'eux)"),
    QT_TRANSLATE_NOOP("Messages", "le disque est plein"),
    QT_TRANSLATE_NOOP("Messages", "la taille permise aux fichiers est dépassée"),
    QT_TRANSLATE_NOOP("Messages", "le disque est en lecture seule"),
    QT_TRANSLATE_NOOP("Messages", "le dossier est protégé en écriture"),
    QT_TRANSLATE_NOOP("Messages", "le fichier est protégé en écriture"),
    QT_TRANSLATE_NOOP("Messages", "le système a refusé l'écriture"),
    QT_TRANSLATE_NOOP("Messages", "aucun dossier"),
};

QRegularExpression Motif(const QString &modèle) {
  QString motif = QRegularExpression::escape(modèle);
  motif.replace(QRegularExpression(R"(\\%\d)"), "(.*?)");
  return QRegularExpression("^" + motif + "$");
}

} // namespace

QString TraduitMessage(const QString &message) {
  if (LangueParlée() == QLatin1String("fr"))
    return message;
  for (const char *modèle : Modèles) {
    const QRegularExpressionMatch trouvé = Motif(QString::fromUtf8(modèle)).match(message);
    if (!trouvé.hasMatch())
      continue;
    // A reason within the message is translated too; a name or a path is
    // left as it is, being no text of the game.
    QString parties[3];
    for (int n = 1; n <= std::min(3, trouvé.lastCapturedIndex()); ++n)
      parties[n - 1] = QCoreApplication::translate(Contexte, trouvé.captured(n).toUtf8());
    // In one pass: a path holding "%2" stays as it is.
    const QString traduit = QCoreApplication::translate(Contexte, modèle);
    switch (trouvé.lastCapturedIndex()) {
    case 1:
      return traduit.arg(parties[0]);
    case 2:
      return traduit.arg(parties[0], parties[1]);
    default:
      return traduit.arg(parties[0], parties[1], parties[2]);
    }
  }
  return message;
}
