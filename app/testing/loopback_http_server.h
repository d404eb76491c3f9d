// LoopbackHTTPServer: a small HTTP/1.1 server on 127.0.0.1 for tests of network clients. Each
// path answers with the response set for it (404 otherwise), and every request is kept with its
// headers, so a test can see the conditional headers a client sends.
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPair>
#include <QTcpServer>
#include <QUrl>

namespace tindra {

class LoopbackHTTPServer {
 public:
  struct Response {
    int status = 200;
    QList<QPair<QByteArray, QByteArray>> headers;
    QByteArray body;
  };
  struct Request {
    QByteArray path;
    QMap<QByteArray, QByteArray> headers;  // names in lower case
  };

  LoopbackHTTPServer();

  QUrl url(const QString& path) const;
  void setResponse(const QByteArray& path, Response response) { responses_[path] = response; }
  const QList<Request>& requests() const { return requests_; }

 private:
  void answer(QTcpSocket& socket, QByteArray& buffer);

  QTcpServer server_;
  QMap<QByteArray, Response> responses_;
  QList<Request> requests_;
};

}  // namespace tindra
