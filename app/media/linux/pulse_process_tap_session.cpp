#include "media/linux/pulse_process_tap_session.h"

#include <algorithm>

#include "base/logging_categories.h"
#include "nowplaying/audio_tap_target_selector.h"

namespace tindra {

namespace {

// Whether a stream's program belongs to the app: by its application id or its program name,
// also where the desktop entry is reverse-DNS ("org.mozilla.firefox") and the program carries a
// suffix ("firefox-esr").
bool belongsToApp(const PulseProcessTapSession::PlaybackStream& stream, const QString& app) {
  if (app.isEmpty()) return false;
  const std::string bundle = app.toLower().toStdString();
  const QString shortName = app.section(u'.', -1).toLower();
  for (const QString& name : {stream.applicationId.toLower(), stream.binary.toLower()}) {
    if (name.isEmpty()) continue;
    if (AudioTapTargetSelector::belongsTo(name.toStdString(), bundle)) return true;
    if (!shortName.isEmpty() && name.startsWith(shortName)) return true;
  }
  return false;
}

}  // namespace

// The open capture stream and what its callbacks need on libpulse's thread.
struct PulseProcessTapSession::Capture {
  pa_stream* stream = nullptr;
  Samples samples;
  int channels = 1;
  double rate = 0;
  QString what;
  PulseRequest<PulseProcessTapSession> owner;

  static void onRead(pa_stream* stream, size_t, void* data) {
    auto* capture = static_cast<Capture*>(data);
    const void* bytes = nullptr;
    size_t size = 0;
    while (pa_stream_peek(stream, &bytes, &size) == 0 && size > 0) {
      if (bytes != nullptr) {  // nullptr with a size: a hole in the stream
        capture->samples({static_cast<const float*>(bytes), size / sizeof(float)},
                         capture->channels);
      }
      pa_stream_drop(stream);
    }
  }

  static void onState(pa_stream* stream, void* data) {
    auto* capture = static_cast<Capture*>(data);
    switch (pa_stream_get_state(stream)) {
      case PA_STREAM_READY:
        capture->owner.answer([rate = capture->rate, what = capture->what](auto& session) {
          emit session.started(rate, what);
        });
        break;
      case PA_STREAM_FAILED:
      case PA_STREAM_TERMINATED:
        // The monitored stream or the server went away: look again.
        capture->owner.answer([capture](PulseProcessTapSession& session) {
          if (session.capture_.get() != capture) return;
          session.dropCapture();
          session.refresh();
        });
        break;
      default:
        break;
    }
  }
};

PulseProcessTapSession::PulseProcessTapSession(std::shared_ptr<PulseConnection> connection,
                                               QObject* parent)
    : ProcessTapSession(parent), connection_(std::move(connection)) {
  connect(connection_.get(), &PulseConnection::readyChanged, this, [this](bool ready) {
    if (!ready) dropCapture();
    refresh();
  });
  connect(connection_.get(), &PulseConnection::streamsChanged, this,
          &PulseProcessTapSession::refresh);
}

PulseProcessTapSession::~PulseProcessTapSession() {
  stop();
}

std::optional<PulseProcessTapSession::PlaybackStream> PulseProcessTapSession::choose(
    const std::vector<PlaybackStream>& streams, const SpectrumTarget& target) {
  std::vector<const PlaybackStream*> mine;
  if (target.processIdentifier) {
    for (const PlaybackStream& stream : streams) {
      if (stream.processIdentifier == *target.processIdentifier) mine.push_back(&stream);
    }
  }
  if (mine.empty()) {  // browsers play from helper processes of the same program
    for (const PlaybackStream& stream : streams) {
      if (belongsToApp(stream, target.bundleIdentifier) ||
          belongsToApp(stream, target.parentBundleIdentifier)) {
        mine.push_back(&stream);
      }
    }
  }
  if (mine.empty()) return std::nullopt;
  const auto playing =
      std::ranges::find_if(mine, [](const auto* stream) { return !stream->corked; });
  return playing != mine.end() ? **playing : *mine.front();
}

void PulseProcessTapSession::start(const SpectrumTarget& target, Samples samples) {
  const bool retarget = !active_ || target != target_;
  active_ = true;
  target_ = target;
  samples_ = std::move(samples);
  if (retarget) dropCapture();
  if (!connection_->isReady()) connection_->start();
  refresh();
}

void PulseProcessTapSession::stop() {
  active_ = false;
  lookingUp_ = false;
  dropCapture();
}

void PulseProcessTapSession::refresh() {
  if (!active_) return;
  if (!connection_->isReady()) {
    emit unavailable(tr("no sound server to listen to"));
    return;
  }
  connection_->run([this](pa_context* context) {
    struct Listing : PulseRequest<PulseProcessTapSession> {
      std::vector<PlaybackStream> streams;
    };
    auto listing = std::make_unique<Listing>(Listing{{connection_.get(), this}, {}});
    pa_operation* operation = pa_context_get_sink_input_info_list(
        context,
        [](pa_context*, const pa_sink_input_info* info, int last, void* data) {
          auto* listing = static_cast<Listing*>(data);
          if (last == 0 && info != nullptr) {
            PlaybackStream stream;
            stream.index = info->index;
            stream.sink = info->sink;
            stream.processIdentifier =
                pulseProperty(info->proplist, PA_PROP_APPLICATION_PROCESS_ID).toLongLong();
            stream.binary = pulseProperty(info->proplist, PA_PROP_APPLICATION_PROCESS_BINARY);
            stream.applicationId = pulseProperty(info->proplist, PA_PROP_APPLICATION_ID);
            stream.corked = info->corked != 0;
            stream.format = info->sample_spec;
            listing->streams.push_back(std::move(stream));
            return;
          }
          listing->answer([streams = std::move(listing->streams)](auto& session) {
            session.onStreams(streams);
          });
        },
        listing.get());
    keepUntilDone(operation, std::move(listing));
  });
}

void PulseProcessTapSession::onStreams(const std::vector<PlaybackStream>& streams) {
  if (!active_) return;
  const std::optional<PlaybackStream> mine = choose(streams, target_);
  const std::uint32_t wanted = mine ? mine->index : PA_INVALID_INDEX;
  // Already listening there, or about to.
  if ((capture_ && capturing_ == wanted) || (lookingUp_ && lookingFor_ == wanted)) return;
  lookingUp_ = true;
  lookingFor_ = wanted;
  if (mine) {
    readSink(QByteArray::number(mine->sink), mine->index, mine->format,
             tr("the player's own stream (%1)").arg(mine->binary));
  } else {
    readSink("@DEFAULT_SINK@", PA_INVALID_INDEX, std::nullopt, tr("the default output"));
  }
}

void PulseProcessTapSession::readSink(const QByteArray& sink, std::uint32_t streamIndex,
                                      std::optional<pa_sample_spec> format, const QString& what) {
  connection_->run([this, sink, streamIndex, format, what](pa_context* context) {
    struct Lookup : PulseRequest<PulseProcessTapSession> {
      std::uint32_t streamIndex;
      std::optional<pa_sample_spec> format;
      QString what;
    };
    const auto onSink = [](pa_context*, const pa_sink_info* info, int last, void* data) {
      auto* lookup = static_cast<Lookup*>(data);
      if (last == 0 && info != nullptr) {
        const Source source{info->monitor_source, lookup->format.value_or(info->sample_spec),
                            QString::fromUtf8(info->name)};
        lookup->answer([source, index = lookup->streamIndex, what = lookup->what](auto& session) {
          session.capture(source, index, what);
        });
        return;
      }
      if (last < 0) {
        lookup->answer([](PulseProcessTapSession& session) {
          session.lookingUp_ = false;
          emit session.unavailable(tr("the sound server has no output to listen to"));
        });
      }
    };
    auto lookup =
        std::make_unique<Lookup>(Lookup{{connection_.get(), this}, streamIndex, format, what});
    bool isIndex = false;
    const std::uint32_t index = sink.toUInt(&isIndex);
    pa_operation* operation =
        isIndex ? pa_context_get_sink_info_by_index(context, index, onSink, lookup.get())
                : pa_context_get_sink_info_by_name(context, sink.constData(), onSink, lookup.get());
    keepUntilDone(operation, std::move(lookup));
  });
}

void PulseProcessTapSession::capture(const Source& source, std::uint32_t streamIndex,
                                     const QString& what) {
  if (lookingFor_ == streamIndex) lookingUp_ = false;
  if (!active_) return;
  dropCapture();
  // Floats at the output's own rate and channel count; the spectrum mixes them to mono.
  const pa_sample_spec format{PA_SAMPLE_FLOAT32NE, source.format.rate,
                              std::clamp<std::uint8_t>(source.format.channels, 1, PA_CHANNELS_MAX)};
  auto capture = std::make_unique<Capture>(Capture{nullptr,
                                                   samples_,
                                                   format.channels,
                                                   double(format.rate),
                                                   what + tr(" on ") + source.sinkName,
                                                   {connection_.get(), this}});
  connection_->run([&](pa_context* context) {
    pa_proplist* properties = pa_proplist_new();
    pa_proplist_sets(properties, PA_PROP_MEDIA_NAME, "Live spectrum");
    // A monitor of what plays, not a recording: PipeWire and the desktops read these.
    pa_proplist_sets(properties, "media.category", "Monitor");
    pa_proplist_sets(properties, "stream.monitor", "true");
    pa_proplist_sets(properties, PA_PROP_APPLICATION_ID, "com.brenvik.tindra");
    capture->stream =
        pa_stream_new_with_proplist(context, "Live spectrum", &format, nullptr, properties);
    pa_proplist_free(properties);
    if (capture->stream == nullptr) return;
    if (streamIndex != PA_INVALID_INDEX) pa_stream_set_monitor_stream(capture->stream, streamIndex);
    pa_stream_set_read_callback(capture->stream, &Capture::onRead, capture.get());
    pa_stream_set_state_callback(capture->stream, &Capture::onState, capture.get());
    // 50 ms per delivery: fresh samples for every bar update (20 a second), few wake-ups.
    pa_buffer_attr buffer{};
    buffer.maxlength = static_cast<std::uint32_t>(-1);
    buffer.fragsize = static_cast<std::uint32_t>(pa_usec_to_bytes(50'000, &format));
    const QByteArray device = QByteArray::number(source.monitor);
    pa_stream_connect_record(
        capture->stream, device.constData(), &buffer,
        static_cast<pa_stream_flags_t>(PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE |
                                       PA_STREAM_DONT_INHIBIT_AUTO_SUSPEND));
  });
  if (capture->stream == nullptr) {
    emit unavailable(tr("the sound server refused a capture stream"));
    return;
  }
  qCInfo(lcNowPlaying).noquote() << "live spectrum: listening to" << capture->what;
  capture_ = std::move(capture);
  capturing_ = streamIndex;
}

void PulseProcessTapSession::endWhenConnected(pa_stream* stream, void*) {
  switch (pa_stream_get_state(stream)) {
    case PA_STREAM_READY:
      pa_stream_disconnect(stream);
      break;
    case PA_STREAM_FAILED:
    case PA_STREAM_TERMINATED:
      pa_stream_set_state_callback(stream, nullptr, nullptr);
      pa_stream_unref(stream);
      break;
    default:
      break;
  }
}

void PulseProcessTapSession::dropCapture() {
  if (capture_ == nullptr) return;
  pa_stream* stream = capture_->stream;
  connection_->locked([stream] {
    pa_stream_set_read_callback(stream, nullptr, nullptr);
    if (pa_stream_get_state(stream) == PA_STREAM_CREATING) {
      // Not connected yet, so it cannot be disconnected yet: that happens once it is.
      pa_stream_set_state_callback(stream, &PulseProcessTapSession::endWhenConnected, nullptr);
      return;
    }
    pa_stream_set_state_callback(stream, nullptr, nullptr);
    pa_stream_disconnect(stream);
    pa_stream_unref(stream);
  });
  capture_.reset();
  capturing_ = PA_INVALID_INDEX;
}

}  // namespace tindra
