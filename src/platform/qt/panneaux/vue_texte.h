// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// A web panel drawn by Qt's own rich-text engine: the game's pages read from
// disk, or pages fetched from the advert server with Qt Network. Nothing
// outside what `autorise` allows is ever requested, redirects are not
// followed, and the view takes no event. The page is laid out once at the
// view's designed size and drawn at the table's scale (its "zoomFactor", as
// a web view has), so it wraps alike at every size and stays sharp.
#include <QHash>
#include <QSet>
#include <QTextBrowser>
#include <QUrl>
#include <functional>

class QNetworkAccessManager;
class QNetworkReply;

class VueTexte : public QTextBrowser {
public:
  // `autorise` says whether an address may be loaded (and counts refusals);
  // `place` is the view's geometry in its panel at the designed size.
  VueTexte(QWidget *parent, const QRect &place, QNetworkAccessManager &réseau,
           std::function<bool(const QUrl &)> autorise);

  // Opens a page; a page that can't be had leaves the view as it was.
  void Ouvre(const QUrl &adresse);
  QUrl Adresse() const { return adresse; }

protected:
  QVariant loadResource(int type, const QUrl &nom) override;
  void paintEvent(QPaintEvent *e) override;
  bool event(QEvent *e) override;

private:
  void Montre(const QByteArray &octets);
  QNetworkReply *Récupère(const QUrl &url, std::function<void(const QByteArray &)> suite);

  QNetworkAccessManager &réseau;
  std::function<bool(const QUrl &)> autorise;
  QUrl adresse;
  QString texte;                  // the page shown, kept to lay it out again
  QHash<QUrl, QByteArray> reçues; // pictures fetched from the server
  QSet<QUrl> demandées;
  QNetworkReply *enCours = nullptr; // the page being fetched
};
