// NetworkArtworkFetcher: ArtworkFetcher over Qt Network. Only http and https; at most three
// redirects and none from https to http; a reply that says or turns out to be larger than the
// limit is aborted while it arrives; a transfer silent for the time limit is given up.
#pragma once

#include <QNetworkAccessManager>

#include "media/artwork_fetcher.h"

namespace tindra {

class NetworkArtworkFetcher final : public ArtworkFetcher {
 public:
  static constexpr int timeoutMilliseconds = 10'000;
  static constexpr int maxRedirects = 3;

  explicit NetworkArtworkFetcher(int timeout = timeoutMilliseconds) : timeout_(timeout) {}

  void fetch(const QUrl& url, qint64 maxBytes, Done done) override;

 private:
  QNetworkAccessManager network_;
  int timeout_;
};

}  // namespace tindra
