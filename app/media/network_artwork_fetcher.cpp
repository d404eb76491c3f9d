#include "media/network_artwork_fetcher.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <memory>

namespace tindra {

void NetworkArtworkFetcher::fetch(const QUrl& url, qint64 maxBytes, Done done) {
  if (url.scheme() != QLatin1String("https") && url.scheme() != QLatin1String("http")) {
    done(std::nullopt, QStringLiteral("not an http address: %1").arg(url.toString()));
    return;
  }
  QNetworkRequest request(url);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                       QNetworkRequest::NoLessSafeRedirectPolicy);
  request.setMaximumRedirectsAllowed(maxRedirects);
  request.setTransferTimeout(timeout_);
  QNetworkReply* reply = network_.get(request);
  auto tooLarge = std::make_shared<bool>(false);
  QObject::connect(reply, &QNetworkReply::downloadProgress, reply,
                   [reply, maxBytes, tooLarge](qint64 received, qint64 total) {
                     if (received > maxBytes || total > maxBytes) {
                       *tooLarge = true;
                       reply->abort();
                     }
                   });
  QObject::connect(reply, &QNetworkReply::finished, reply,
                   [reply, maxBytes, tooLarge, done = std::move(done)] {
                     reply->deleteLater();
                     if (*tooLarge) {
                       done(std::nullopt, QStringLiteral("larger than %1 bytes").arg(maxBytes));
                     } else if (reply->error() != QNetworkReply::NoError) {
                       done(std::nullopt, reply->errorString());
                     } else {
                       done(reply->readAll(), QString());
                     }
                   });
}

}  // namespace tindra
