// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTextBrowser>
#include <QWidget>

#include "platform/qt/panneaux/pages_web.h"

#ifdef TN_WEBENGINE
#include <QWebEngineView>
#endif

namespace {

// A tiny web server on the loopback address. Every page it serves asks for
// a picture of its own, which it has not, and one from another host, which
// the views must refuse; pub1.htm sends to `ailleurs` when given.
class Serveur : public QTcpServer {
public:
  QStringList demandes;
  QByteArray ailleurs;

  Serveur() {
    connect(this, &QTcpServer::newConnection, this, [this] {
      while (QTcpSocket *client = nextPendingConnection()) {
        connect(client, &QTcpSocket::readyRead, client, [this, client] {
          const QString chemin = QString::fromLatin1(client->readAll().split(' ').value(1));
          demandes << chemin;
          if (chemin == "/image.png")
            client->write(
                "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
          else if (chemin == "/pub1.htm" && !ailleurs.isEmpty())
            client->write("HTTP/1.1 302 Found\r\nLocation: " + ailleurs +
                          "pub1.htm\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
          else
            client->write(Page("<html><body style='background:#000'>Publicité<img src='image.png'>"
                               "<img src='http://exemple.invalid/pixel.png'></body></html>"));
          client->disconnectFromHost();
        });
      }
    });
    listen(QHostAddress::LocalHost);
  }
  QString Base() const { return QString("http://127.0.0.1:%1/").arg(serverPort()); }
  static QByteArray Page(const QByteArray &page) {
    return "HTTP/1.1 200 OK\r\nContent-Type: text/html; charset=utf-8\r\nContent-Length: " +
           QByteArray::number(page.size()) + "\r\nConnection: close\r\n\r\n" + page;
  }
};

// Puts the base back whatever the test's outcome.
struct BaseEssai {
  explicit BaseEssai(const QString &base) { PagesWeb::DéfinitBase(base); }
  ~BaseEssai() {
    PagesWeb::DéfinitBase("");
    PagesWeb::DéfinitDossierLocal("");
  }
};

} // namespace

TEST(PagesWeb, SeulsLeServeurConfiguréEtLeLogoLocalSontPermis) {
  BaseEssai base("http://127.0.0.1:8765/");
  const QString ici =
      QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + "/logomdc200.htm").toString();
  for (const auto &[adresse, permise] :
       {std::pair<QString, bool>{"http://127.0.0.1:8765/pub0.htm", true},
        {"http://127.0.0.1:9999/pub0.htm", false},
        {"https://exemple.com/pub0.htm", false},
        {ici, true},
        {QUrl::fromLocalFile("/etc/passwd").toString(), false}})
    EXPECT_EQ(PagesWeb::Permis(adresse), permise) << adresse.toStdString();
  PagesWeb::DéfinitBase("");
  EXPECT_TRUE(PagesWeb::Base().startsWith("file://")) << "by default the game's own pages";
  PagesWeb::DéfinitDossierLocal("/usr/share/troisniveaux");
  EXPECT_EQ(PagesWeb::Base(), "file:///usr/share/troisniveaux/");
  EXPECT_TRUE(PagesWeb::Permis("file:///usr/share/troisniveaux/logomdc200.htm"));
  EXPECT_FALSE(PagesWeb::Permis(ici)) << "once installed, only the installed logo";
}

#ifndef TN_WEBENGINE

TEST(PagesWeb, LaPageVientDuServeurSansAutreHôteNiRedirection) {
  Serveur serveur, ailleurs;
  ASSERT_TRUE(serveur.isListening());
  ASSERT_TRUE(ailleurs.isListening());
  serveur.ailleurs = ailleurs.Base().toLatin1();
  BaseEssai base(serveur.Base());
  QWidget pub0, pub1;
  PagesWeb pages(&pub0, &pub1, nullptr);
  const int refuséesAvant = PagesWeb::Refusées();
  pages.Navigue(VueWeb::Pub0Web, "pub0.htm");
  pages.Navigue(VueWeb::Pub1Web, "pub1.htm");
  pub0.show();
  const auto texte = [&](VueWeb vue) {
    auto *page = qobject_cast<QTextBrowser *>(pages.Vue(vue));
    return page ? page->toPlainText() : QString();
  };
  QTRY_VERIFY_WITH_TIMEOUT(texte(VueWeb::Pub0Web).contains("Publicité"), 10000);
  QTRY_VERIFY_WITH_TIMEOUT(serveur.demandes.contains("/image.png"), 10000);
  QTRY_VERIFY_WITH_TIMEOUT(serveur.demandes.contains("/pub1.htm"), 10000);
  QTest::qWait(300);
  EXPECT_GT(PagesWeb::Refusées(), refuséesAvant) << "the other host's picture";
  EXPECT_TRUE(ailleurs.demandes.isEmpty()) << "a redirect is not followed";
  EXPECT_TRUE(texte(VueWeb::Pub1Web).isEmpty());
  EXPECT_EQ(serveur.demandes.count("/pub0.htm"), 1);
}

#endif

TEST(PagesWeb, LaPageVientDuServeurEtLesAutresHôtesSontRefusés) {
#if !defined(TN_WEBENGINE) || defined(TN_SANS_CHROMIUM)
  GTEST_SKIP() << "built without the web engine";
#else
  Serveur serveur;
  ASSERT_TRUE(serveur.isListening());
  BaseEssai base(serveur.Base());
  QWidget panneau;
  panneau.resize(800, 155);
  PagesWeb pages(&panneau, nullptr, nullptr);
  const int refuséesAvant = PagesWeb::Refusées();
  pages.Navigue(VueWeb::Pub0Web, "pub0.htm");
  QCoreApplication::processEvents();
  EXPECT_EQ(pages.Vue(VueWeb::Pub0Web), nullptr) << "no view before the window is drawn";
  panneau.show();
  QTRY_VERIFY_WITH_TIMEOUT(pages.Vue(VueWeb::Pub0Web) != nullptr, 5000);
  EXPECT_NE(qobject_cast<QWebEngineView *>(pages.Vue(VueWeb::Pub0Web)), nullptr);
  QTRY_VERIFY_WITH_TIMEOUT(serveur.demandes.contains("/pub0.htm"), 60000);
  QTRY_VERIFY_WITH_TIMEOUT(PagesWeb::Refusées() > refuséesAvant, 30000);
#endif
}
