#include "base/qt_http_transport.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>
#include <memory>

namespace tindra {

namespace {

HTTPTransportError failureOf(QNetworkReply::NetworkError error) {
  switch (error) {
    case QNetworkReply::ConnectionRefusedError:
    case QNetworkReply::RemoteHostClosedError:
    case QNetworkReply::HostNotFoundError:
    case QNetworkReply::TimeoutError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::NetworkSessionFailedError:
    case QNetworkReply::ProxyConnectionRefusedError:
    case QNetworkReply::ProxyNotFoundError:
    case QNetworkReply::ProxyTimeoutError:
    case QNetworkReply::UnknownNetworkError:
      return HTTPTransportError::unreachable;
    case QNetworkReply::ProtocolFailure:
    case QNetworkReply::ProtocolUnknownError:
      return HTTPTransportError::notHTTP;
    default:
      return HTTPTransportError::other;
  }
}

}  // namespace

QtHTTPTransport::QtHTTPTransport(QNetworkAccessManager& network, Clock now)
    : network_(network), now_(std::move(now)) {}

void QtHTTPTransport::send(const HTTPRequest& request, Completion completion) {
  QNetworkRequest sent(QUrl(QString::fromStdString(request.url)));
  for (const auto& [name, value] : request.headers) {
    sent.setRawHeader(QByteArray::fromStdString(name), QByteArray::fromStdString(value));
  }
  sent.setTransferTimeout(static_cast<int>(request.timeout * 1000));
  QNetworkReply* reply =
      network_.sendCustomRequest(sent, QByteArray::fromStdString(request.method));
  auto tooLarge = std::make_shared<bool>(false);
  QObject::connect(reply, &QNetworkReply::downloadProgress, reply,
                   [reply, tooLarge](qint64 received, qint64) {
                     if (received <= maxBodyBytes) return;
                     *tooLarge = true;
                     reply->abort();
                   });
  QObject::connect(reply, &QNetworkReply::finished, reply,
                   [now = now_, reply, tooLarge, completion = std::move(completion)] {
                     reply->deleteLater();
                     const QVariant status =
                         reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
                     if (*tooLarge) return completion(std::unexpected(HTTPTransportError::other));
                     if (!status.isValid()) {
                       return completion(std::unexpected(failureOf(reply->error())));
                     }
                     HTTPResponse response;
                     response.status = status.toInt();
                     for (const auto& [name, value] : reply->rawHeaderPairs()) {
                       response.headers.emplace_back(name.toStdString(), value.toStdString());
                     }
                     response.body = reply->readAll().toStdString();
                     response.receivedAt = now();
                     completion(std::move(response));
                   });
}

}  // namespace tindra
