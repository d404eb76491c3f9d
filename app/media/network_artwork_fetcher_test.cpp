#include "media/network_artwork_fetcher.h"

#include <gtest/gtest.h>

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

namespace tindra {
namespace {

// A few fixed answers on 127.0.0.1, enough to see the fetcher's limits at work.
class LocalServer {
 public:
  LocalServer() {
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::newConnection, [this] {
      QTcpSocket* socket = server_.nextPendingConnection();
      QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket] { answer(*socket); });
    });
  }
  QUrl url(const QString& path) const {
    return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(server_.serverPort()).arg(path));
  }

 private:
  static void answer(QTcpSocket& socket) {
    const QByteArray request = socket.readAll();
    const QByteArray path = request.split(' ').value(1);
    QByteArray reply;
    if (path == "/ok") {
      reply = "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello";
    } else if (path == "/moved") {
      reply = "HTTP/1.1 302 Found\r\nLocation: /ok\r\nContent-Length: 0\r\n\r\n";
    } else if (path == "/loop") {
      reply = "HTTP/1.1 302 Found\r\nLocation: /loop\r\nContent-Length: 0\r\n\r\n";
    } else if (path == "/big") {
      reply = "HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n" + QByteArray(100000, 'x');
    } else if (path == "/silent") {
      return;  // never answers
    } else {
      reply = "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n";
    }
    socket.write(reply);
    socket.flush();
  }

  QTcpServer server_;
};

struct Answer {
  bool arrived = false;
  std::optional<QByteArray> bytes;
  QString problem;
};

Answer fetch(NetworkArtworkFetcher& fetcher, const QUrl& url, qint64 maxBytes = 1000) {
  Answer answer;
  fetcher.fetch(url, maxBytes, [&](std::optional<QByteArray> bytes, const QString& problem) {
    answer = {true, std::move(bytes), problem};
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return answer.arrived; }, 5000))
      << url.toString().toStdString();
  return answer;
}

TEST(NetworkArtworkFetcherTest, LimitsOnSizeTimeRedirectsAndSchemes) {
  LocalServer server;
  NetworkArtworkFetcher fetcher(300);
  EXPECT_EQ(fetch(fetcher, server.url("/ok")).bytes, QByteArray("hello"));
  EXPECT_EQ(fetch(fetcher, server.url("/moved")).bytes, QByteArray("hello"));
  EXPECT_FALSE(fetch(fetcher, server.url("/loop")).bytes);
  EXPECT_FALSE(fetch(fetcher, server.url("/missing")).bytes);
  const Answer big = fetch(fetcher, server.url("/big"));
  EXPECT_FALSE(big.bytes);
  EXPECT_TRUE(big.problem.contains("larger than 1000")) << big.problem.toStdString();
  EXPECT_FALSE(fetch(fetcher, server.url("/silent")).bytes);
  const Answer file = fetch(fetcher, QUrl("file:///etc/hostname"));
  EXPECT_FALSE(file.bytes);
  EXPECT_TRUE(file.problem.contains("not an http address"));
}

}  // namespace
}  // namespace tindra
