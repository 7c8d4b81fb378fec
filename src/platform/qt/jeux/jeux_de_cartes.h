// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// Card decks that the desktop ships as SVG (a folder carddecks/svg-*/ with an
// index.desktop naming the deck and one SVG element per card). The chosen
// deck's pictures are rendered off the event loop's thread, once per size,
// so the stars and the clicks never wait on them; the game's own drawn deck
// stays the default and stands in wherever a deck has no picture.

#include <QImage>
#include <QMap>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QStringList>
#include <atomic>
#include <functional>
#include <optional>
#include <vector>

class QPainter;

struct JeuDeCartes {
  QString id;                  // the folder's name, e.g. "svg-oxygen": what the settings keep
  QString nom;                 // the name to show, in French where the deck has one
  QMap<QString, QString> noms; // Name[xx] by language xx, "" for Name
  QString fichier;             // the SVG or SVGZ file
};

// A clear image of `taille` logical pixels at `ratio`, with `dessin` painted
// into it smoothly: how every picture of the cards is made, the decks' and
// the game's own.
QImage Peint(QSize taille, qreal ratio, const std::function<void(QPainter &)> &dessin);

// The SVG element of a picture of the game (0..51 by card code, 52 and 53
// the red and black jokers, 54 the back).
QString ÉlémentDeCarte(int code);

// The deck that an index.desktop describes, or nothing when it names no SVG
// file that exists.
std::optional<JeuDeCartes> LitJeu(const QString &dossier);

// The most a deck's file may weigh, and its SVG once unpacked: three times
// the largest deck known, far below what would strain the memory.
inline constexpr qint64 TailleMaximaleJeu = 16 * 1024 * 1024;
inline constexpr qint64 TailleMaximaleSvg = 48 * 1024 * 1024;

// A deck's SVG as the renderer may take it: read and unpacked within those
// bounds, every reference to another file blanked. Nothing when it is no
// regular file, is too large, declares entities (they could hide such a
// reference) or rendering is being abandoned.
std::optional<QByteArray> ContenuDuJeu(const QString &fichier);

// The pictures of a deck at one size: a null image where the deck has no
// element for a code. Nothing when the file cannot be read as SVG or lacks a
// face or the back. With `suivante`, only the codes it hands out, one at a
// time, each picture given to `reçue` as soon as drawn: threads share a deck
// out that way, each reading it for itself.
std::optional<std::vector<QImage>>
RendJeu(const QString &fichier, QSize taille, qreal ratio, std::atomic<int> *suivante = nullptr,
        const std::function<void(int code, QImage image)> &reçue = {});

namespace jeux {

// Folders searched for carddecks/; by default the desktop's data folders.
void DéfinitRacines(const QStringList &racines);
// The installed decks, sorted by name; read once, again after DéfinitRacines.
const std::vector<JeuDeCartes> &Installés();

// 0 is the game's own deck, n the n-th installed deck.
int Choisi();
QString NomDuChoix(int numéro);
// Makes deck `numéro` the chosen one and starts rendering it; `prêt` runs on
// the event loop's thread once its pictures are in (false: it failed to load
// and the game's own deck stands).
void Choisit(int numéro, std::function<void(bool réussi)> prêt = {});
// The chosen deck remembered in the user's settings, and read back.
void Retient(int numéro);
int Retrouve();
// Called whenever new pictures are ready: the window repaints its cards.
void QuandNouvellesImages(std::function<void()> rappel);

// The chosen deck's picture of `code`, or a null pixmap when the game's own
// drawing is to be used. A size not rendered yet gets the nearest one scaled
// while the exact one is made in the background.
QPixmap Image(int code, QSize taille, qreal ratio);

// Waits for the rendering under way, for tests and captures.
void AttendsLeRendu();

// At the end of the session: the rendering under way is abandoned. Should it
// not come back within a moment (a deck the renderer takes long over), the
// process ends there with `code`, as nothing of the player's waits on it.
int FinDuRendu(int code);

} // namespace jeux
