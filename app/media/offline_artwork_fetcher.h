// OfflineArtworkFetcher: the fake backends' network: it never fetches, so a run with invented
// data never contacts a server.
#pragma once

#include "media/artwork_fetcher.h"

namespace tindra {

class OfflineArtworkFetcher final : public ArtworkFetcher {
 public:
  void fetch(const QUrl&, qint64, Done done) override {
    done(std::nullopt, QStringLiteral("offline: invented data asks for nothing"));
  }
};

}  // namespace tindra
