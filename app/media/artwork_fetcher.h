// ArtworkFetcher: gets the bytes behind an http(s) address, for covers and catalogue searches,
// within a time limit and a size limit. The answer arrives on the main thread, once.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <functional>
#include <optional>

namespace tindra {

class ArtworkFetcher {
 public:
  // The bytes, or none with one sentence on what went wrong.
  using Done = std::function<void(std::optional<QByteArray> bytes, const QString& problem)>;

  virtual ~ArtworkFetcher() = default;
  virtual void fetch(const QUrl& url, qint64 maxBytes, Done done) = 0;
};

}  // namespace tindra
