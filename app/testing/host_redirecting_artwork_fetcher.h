// HostRedirectingArtworkFetcher: the app's network fetcher with some public hosts moved onto a
// test's loopback server: an address on one of `hosts` is fetched from `loopback` with its path
// and query kept, over real HTTP. Any other host is refused without a connection, and every
// address asked for is kept, so a test can tell which hosts the app would have contacted.
#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

#include "media/network_artwork_fetcher.h"

namespace tindra {

class HostRedirectingArtworkFetcher final : public ArtworkFetcher {
 public:
  HostRedirectingArtworkFetcher(QUrl loopback, QStringList hosts);

  void fetch(const QUrl& url, qint64 maxBytes, Done done) override;

  const QList<QUrl>& asked() const { return asked_; }
  bool askedForHost(const QString& host) const;

 private:
  NetworkArtworkFetcher network_;
  QUrl loopback_;
  QStringList hosts_;
  QList<QUrl> asked_;
};

}  // namespace tindra
