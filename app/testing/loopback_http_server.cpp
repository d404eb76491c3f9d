#include "testing/loopback_http_server.h"

#include <QTcpSocket>
#include <memory>

namespace tindra {

LoopbackHTTPServer::LoopbackHTTPServer() {
  server_.listen(QHostAddress::LocalHost);
  QObject::connect(&server_, &QTcpServer::newConnection, [this] {
    QTcpSocket* socket = server_.nextPendingConnection();
    auto buffer = std::make_shared<QByteArray>();
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket, buffer] {
      buffer->append(socket->readAll());
      answer(*socket, *buffer);
    });
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  });
}

QUrl LoopbackHTTPServer::url(const QString& path) const {
  return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(server_.serverPort()).arg(path));
}

// Answers once the request's head is complete; GET requests have no body.
void LoopbackHTTPServer::answer(QTcpSocket& socket, QByteArray& buffer) {
  const qsizetype end = buffer.indexOf("\r\n\r\n");
  if (end < 0) return;
  const QList<QByteArray> lines = buffer.left(end).split('\n');
  buffer.remove(0, end + 4);
  Request request;
  request.path = lines.value(0).split(' ').value(1);
  for (qsizetype i = 1; i < lines.size(); ++i) {
    const qsizetype colon = lines[i].indexOf(':');
    if (colon > 0) {
      request.headers[lines[i].left(colon).trimmed().toLower()] = lines[i].mid(colon + 1).trimmed();
    }
  }
  requests_.append(request);
  const Response response =
      responses_.value(request.path, Response{404, {}, QByteArrayLiteral("not here")});
  QByteArray reply = "HTTP/1.1 " + QByteArray::number(response.status) + " Answer\r\n";
  for (const auto& [name, value] : response.headers) reply += name + ": " + value + "\r\n";
  reply += "Content-Length: " + QByteArray::number(response.body.size()) +
           "\r\nConnection: close\r\n\r\n" + response.body;
  socket.write(reply);
  socket.disconnectFromHost();
}

}  // namespace tindra
