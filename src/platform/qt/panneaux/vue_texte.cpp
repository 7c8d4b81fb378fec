// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/panneaux/vue_texte.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QStringDecoder>
#include <QTextDocument>

#include "files/format.h"

namespace {
// Far above any page or picture of a panel; anything larger is not one.
constexpr qint64 TailleMaximale = 2 * 1024 * 1024;

QByteArray LitFichier(const QUrl &url) {
  const auto lu = format::LitFichier(QFile::encodeName(url.toLocalFile()).toStdString(),
                                     static_cast<std::size_t>(TailleMaximale));
  if (lu.état != format::Lecture::Lu || lu.tronqué)
    return {};
  return QByteArray::fromStdString(lu.octets);
}
// A picture written into the page itself ("data:image/png;base64,...").
QByteArray DonnéesEnLigne(const QUrl &url) {
  const QByteArray texte = url.toEncoded(QUrl::FullyEncoded);
  const qsizetype virgule = texte.indexOf(',');
  if (virgule < 0)
    return {};
  const QByteArray entête = texte.left(virgule);
  const QByteArray corps = QByteArray::fromPercentEncoding(texte.mid(virgule + 1));
  return entête.endsWith(";base64") ? QByteArray::fromBase64(corps) : corps;
}
} // namespace

VueTexte::VueTexte(QWidget *parent, const QRect &place, QNetworkAccessManager &réseau,
                   std::function<bool(const QUrl &)> autorise)
    : QTextBrowser(parent), réseau(réseau), autorise(std::move(autorise)) {
  setGeometry(place);
  setLineWrapMode(QTextEdit::FixedPixelWidth);
  setLineWrapColumnOrWidth(place.width());
  setProperty("zoomFactor", 1.0);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  setContextMenuPolicy(Qt::NoContextMenu);
  setOpenLinks(false);
  setOpenExternalLinks(false);
  setUndoRedoEnabled(false);
  document()->setDocumentMargin(0);
  // Black until a page says otherwise, like the panel around it.
  QPalette palette = viewport()->palette();
  palette.setColor(QPalette::Base, Qt::black);
  palette.setColor(QPalette::Text, QColor(0xee, 0xee, 0xee));
  viewport()->setPalette(palette);
  viewport()->setAutoFillBackground(true);
}

void VueTexte::Ouvre(const QUrl &nouvelle) {
  if (enCours) {
    enCours->abort();
    enCours = nullptr;
  }
  if (!autorise(nouvelle))
    return;
  adresse = nouvelle;
  if (nouvelle.isLocalFile()) {
    const QByteArray octets = LitFichier(nouvelle);
    if (!octets.isEmpty())
      Montre(octets);
    return;
  }
  enCours = Récupère(nouvelle, [this](const QByteArray &octets) { Montre(octets); });
}

void VueTexte::Montre(const QByteArray &octets) {
  QStringDecoder décodeur = QStringDecoder::decoderForHtml(octets);
  texte = décodeur.isValid() ? décodeur.decode(octets) : QString::fromUtf8(octets);
  document()->setBaseUrl(adresse);
  setHtml(texte);
  document()->setBaseUrl(adresse);
  verticalScrollBar()->setValue(0);
}

// One GET, never redirected: a 3xx answer or an error leaves `suite` uncalled.
QNetworkReply *VueTexte::Récupère(const QUrl &url, std::function<void(const QByteArray &)> suite) {
  QNetworkRequest requête(url);
  requête.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                       QNetworkRequest::ManualRedirectPolicy);
  requête.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  requête.setTransferTimeout(30000);
  QNetworkReply *réponse = réseau.get(requête);
  QPointer<VueTexte> vue(this);
  connect(réponse, &QNetworkReply::downloadProgress, réponse, [réponse](qint64 reçus, qint64) {
    if (reçus > TailleMaximale)
      réponse->abort();
  });
  connect(réponse, &QNetworkReply::finished, this, [this, vue, réponse, suite] {
    réponse->deleteLater();
    if (!vue)
      return;
    if (enCours == réponse)
      enCours = nullptr;
    const int statut = réponse->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (réponse->error() != QNetworkReply::NoError || statut < 200 || statut >= 300)
      return; // redirects included: they are not followed
    suite(réponse->readAll());
  });
  return réponse;
}

// The layout of the designed size, drawn at the zoom: text is drawn by the
// scaled painter at its final size, not stretched from a small image.
void VueTexte::paintEvent(QPaintEvent *e) {
  const double zoom = std::max(0.05, property("zoomFactor").toDouble());
  QPainter p(viewport());
  p.fillRect(e->rect(), viewport()->palette().color(QPalette::Base));
  p.setRenderHint(QPainter::SmoothPixmapTransform);
  p.scale(zoom, zoom);
  QAbstractTextDocumentLayout::PaintContext contexte;
  contexte.palette = viewport()->palette();
  contexte.clip = QRectF(e->rect().x() / zoom, e->rect().y() / zoom, e->rect().width() / zoom,
                         e->rect().height() / zoom);
  p.setClipRect(contexte.clip);
  document()->documentLayout()->draw(&p, contexte);
}

bool VueTexte::event(QEvent *e) {
  if (e->type() == QEvent::DynamicPropertyChange)
    viewport()->update();
  return QTextBrowser::event(e);
}

// Pictures and style sheets of a page: from the allowed places only. Those
// from the server come later; the page is then laid out again with them.
QVariant VueTexte::loadResource(int type, const QUrl &nom) {
  const QUrl url = document()->baseUrl().resolved(nom);
  if (const auto trouvée = reçues.constFind(url); trouvée != reçues.constEnd())
    return *trouvée;
  // Each address is asked for once, refused or not.
  if (demandées.contains(url))
    return {};
  demandées.insert(url);
  if (!autorise(url))
    return {};
  if (url.isLocalFile() || url.scheme() == "data") {
    const QByteArray octets = url.isLocalFile() ? LitFichier(url) : DonnéesEnLigne(url);
    reçues.insert(url, octets);
    return octets.isEmpty() ? QVariant() : QVariant(octets);
  }
  Récupère(url, [this, url, type](const QByteArray &octets) {
    reçues.insert(url, octets);
    if (type == QTextDocument::ImageResource || type == QTextDocument::StyleSheetResource) {
      setHtml(texte);
      document()->setBaseUrl(adresse);
    }
  });
  return {};
}
