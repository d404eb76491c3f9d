#include "testing/host_redirecting_artwork_fetcher.h"

#include <algorithm>

namespace tindra {

HostRedirectingArtworkFetcher::HostRedirectingArtworkFetcher(QUrl loopback, QStringList hosts)
    : loopback_(std::move(loopback)), hosts_(std::move(hosts)) {}

bool HostRedirectingArtworkFetcher::askedForHost(const QString& host) const {
  return std::ranges::any_of(
      asked_, [&](const QUrl& url) { return url.host().compare(host, Qt::CaseInsensitive) == 0; });
}

void HostRedirectingArtworkFetcher::fetch(const QUrl& url, qint64 maxBytes, Done done) {
  asked_.append(url);
  if (!hosts_.contains(url.host(), Qt::CaseInsensitive)) {
    done(std::nullopt, QStringLiteral("%1 is not served in this test").arg(url.host()));
    return;
  }
  QUrl moved = url;
  moved.setScheme(loopback_.scheme());
  moved.setHost(loopback_.host());
  moved.setPort(loopback_.port());
  network_.fetch(moved, maxBytes, std::move(done));
}

}  // namespace tindra
