#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QWidget>

#include "platform/qt/pages_web.h"

#ifdef TN_WEBENGINE
#include <QWebEngineView>
#endif

namespace {

// A tiny web server on the loopback address: every page it serves asks for
// a picture from another host, which the views must refuse.
class Serveur : public QTcpServer {
public:
  QStringList demandes;
  Serveur() {
    connect(this, &QTcpServer::newConnection, this, [this] {
      while (QTcpSocket *client = nextPendingConnection()) {
        connect(client, &QTcpSocket::readyRead, client, [this, client] {
          const QByteArray requête = client->readAll();
          demandes << QString::fromLatin1(requête.split(' ').value(1));
          const QByteArray page = "<html><body style='background:#000'>Publicité"
                                  "<img src='http://exemple.invalid/pixel.png'></body></html>";
          client->write(
              "HTTP/1.1 200 OK\r\nContent-Type: text/html; charset=utf-8\r\nContent-Length: " +
              QByteArray::number(page.size()) + "\r\nConnection: close\r\n\r\n" + page);
          client->disconnectFromHost();
        });
      }
    });
    listen(QHostAddress::LocalHost);
  }
  QString Base() const { return QString("http://127.0.0.1:%1/").arg(serverPort()); }
};

} // namespace

TEST(PagesWeb, SeulsLeServeurConfiguréEtLeLogoLocalSontPermis) {
  const QString avant = PagesWeb::Base();
  PagesWeb::DéfinitBase("http://127.0.0.1:8765/");
  EXPECT_TRUE(PagesWeb::Permis("http://127.0.0.1:8765/pub0.htm"));
  EXPECT_FALSE(PagesWeb::Permis("http://127.0.0.1:9999/pub0.htm"));
  EXPECT_FALSE(PagesWeb::Permis("https://exemple.com/pub0.htm"));
  EXPECT_TRUE(PagesWeb::Permis(
      QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + "/logomdc200.htm").toString()));
  EXPECT_FALSE(PagesWeb::Permis(QUrl::fromLocalFile("/etc/passwd").toString()));
  PagesWeb::DéfinitBase("");
  EXPECT_TRUE(PagesWeb::Base().startsWith("file://")) << "by default the program's own folder";
  PagesWeb::DéfinitBase(avant);
}

TEST(PagesWeb, LaPageVientDuServeurEtLesAutresHôtesSontRefusés) {
#if !defined(TN_WEBENGINE) || defined(TN_SANS_CHROMIUM)
  GTEST_SKIP() << "built without the web engine";
#else
  Serveur serveur;
  ASSERT_TRUE(serveur.isListening());
  PagesWeb::DéfinitBase(serveur.Base());
  QWidget panneau;
  panneau.resize(800, 155);
  PagesWeb pages(&panneau, nullptr, nullptr);
  const int refuséesAvant = PagesWeb::Refusées();
  pages.Navigue(VueWeb::Pub0Web, "pub0.htm");
  QCoreApplication::processEvents();
  EXPECT_EQ(pages.Vue(VueWeb::Pub0Web), nullptr) << "no view before the window is drawn";
  panneau.show();
  QTRY_VERIFY_WITH_TIMEOUT(pages.Vue(VueWeb::Pub0Web) != nullptr, 5000);
  auto *vue = static_cast<QWebEngineView *>(pages.Vue(VueWeb::Pub0Web));
  EXPECT_EQ(vue->parentWidget(), &panneau);
  EXPECT_EQ(vue->geometry(), QRect(0, 14, 816, 157)) << "larger than its panel, which clips it";
  EXPECT_TRUE(vue->testAttribute(Qt::WA_TransparentForMouseEvents));
  QTRY_VERIFY_WITH_TIMEOUT(serveur.demandes.contains("/pub0.htm"), 60000);
  QTRY_VERIFY_WITH_TIMEOUT(PagesWeb::Refusées() > refuséesAvant, 30000);
  PagesWeb::DéfinitBase("");
#endif
}
