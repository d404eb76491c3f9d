#include "media/fake_now_playing_source.h"

#include <QBuffer>
#include <QDateTime>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>

namespace tindra {

FakeNowPlayingSource::FakeNowPlayingSource(Clock now, QObject* parent)
    : NowPlayingSource(parent), now_(std::move(now)) {
  setCheck(DiagnosticsLog::Outcome::degraded,
           Sentence(QT_TR_NOOP("an invented track (TINDRA_FAKE asks for it)"), tr));
  if (!now_) {
    now_ = [] { return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0; };
  }
}

namespace {

// An invented cover: a diagonal gradient whose hues change with the track, as PNG bytes.
NowPlayingSnapshot::Artwork inventedCover(int number) {
  QImage image(128, 128, QImage::Format_RGB32);
  QPainter painter(&image);
  QLinearGradient gradient(0, 0, 128, 128);
  gradient.setColorAt(0, QColor::fromHsv((number * 67) % 360, 200, 250));
  gradient.setColorAt(1, QColor::fromHsv((number * 67 + 120) % 360, 220, 160));
  painter.fillRect(image.rect(), gradient);
  painter.end();
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return NowPlayingSnapshot::Artwork::embedded(
      std::span(reinterpret_cast<const std::uint8_t*>(png.constData()),
                static_cast<std::size_t>(png.size())));
}

}  // namespace

NowPlayingSnapshot FakeNowPlayingSource::track(int number, double now) {
  NowPlayingSnapshot snapshot;
  snapshot.bundleIdentifier = "tindra-demo";
  snapshot.title = "Invented Track " + std::to_string(number);
  snapshot.artist = "Tindra Demo";
  snapshot.album = "Made-up Album";
  snapshot.isPlaying = true;
  snapshot.duration = 214;
  snapshot.elapsed = 63;
  snapshot.elapsedTimestamp = now;
  snapshot.playbackRate = 1;
  snapshot.shuffle = ShuffleMode::off;
  snapshot.repeatMode = RepeatMode::off;
  snapshot.capabilities = NowPlayingCapabilities::all();
  snapshot.artwork = inventedCover(number);
  return snapshot;
}

void FakeNowPlayingSource::start() {
  report(track(number_, now_()));
}

void FakeNowPlayingSource::report(const std::optional<NowPlayingSnapshot>& snapshot) {
  if (stopped_) return;
  current_ = snapshot;
  emit snapshotArrived(current_);
}

void FakeNowPlayingSource::send(const NowPlayingCommand& command) {
  commands_.push_back(command);
  if (!current_ || stopped_) return;
  NowPlayingSnapshot next = *current_;
  const double now = now_();
  next.elapsed = current_->position(now);
  next.elapsedTimestamp = now;
  std::visit(
      [&](const auto& value) {
        using C = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<C, NowPlayingCommand::TogglePlayPause>) {
          next.isPlaying = !next.isPlaying;
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::Play>) {
          next.isPlaying = true;
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::Pause>) {
          next.isPlaying = false;
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::NextTrack>) {
          next = track(++number_, now);
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::PreviousTrack>) {
          next = track(number_ > 1 ? --number_ : number_, now);
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::Seek>) {
          next.elapsed = value.to;
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::SetShuffle>) {
          next.shuffle = value.mode;
        } else if constexpr (std::is_same_v<C, NowPlayingCommand::SetRepeat>) {
          next.repeatMode = value.mode;
        }
      },
      command.value);
  next.playbackRate = next.isPlaying ? 1 : 0;
  report(next);
}

}  // namespace tindra
