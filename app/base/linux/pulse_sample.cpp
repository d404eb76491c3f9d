#include "base/linux/pulse_sample.h"

#include <QResource>
#include <QtEndian>

#include "base/logging_categories.h"

namespace tindra {

namespace {

struct Upload {
  QByteArray frames;
  QByteArray name;
};

// libpulse's thread: writes the frames once the upload stream is ready.
void onUploadState(pa_stream* stream, void* data) {
  auto* upload = static_cast<Upload*>(data);
  switch (pa_stream_get_state(stream)) {
    case PA_STREAM_READY:
      pa_stream_write(stream, upload->frames.constData(),
                      static_cast<size_t>(upload->frames.size()), nullptr, 0, PA_SEEK_RELATIVE);
      pa_stream_finish_upload(stream);
      break;
    case PA_STREAM_FAILED:
      qCWarning(lcHud) << "the sound server did not take the sound" << upload->name;
      [[fallthrough]];
    case PA_STREAM_TERMINATED:
      pa_stream_set_state_callback(stream, nullptr, nullptr);
      pa_stream_unref(stream);
      delete upload;
      break;
    default:
      break;
  }
}

}  // namespace

std::optional<PulseSample::Sound> PulseSample::fromWav(const QByteArray& wav) {
  if (wav.size() < 12 || !wav.startsWith("RIFF") || wav.mid(8, 4) != "WAVE") return std::nullopt;
  std::optional<pa_sample_spec> format;
  qsizetype at = 12;
  while (at + 8 <= wav.size()) {
    const QByteArray id = wav.mid(at, 4);
    const auto size = qFromLittleEndian<quint32>(wav.constData() + at + 4);
    const qsizetype body = at + 8;
    if (size > static_cast<quint32>(wav.size() - body)) return std::nullopt;
    if (id == "fmt " && size >= 16) {
      const auto encoding = qFromLittleEndian<quint16>(wav.constData() + body);  // 1: PCM
      const auto channels = qFromLittleEndian<quint16>(wav.constData() + body + 2);
      const auto rate = qFromLittleEndian<quint32>(wav.constData() + body + 4);
      const auto bits = qFromLittleEndian<quint16>(wav.constData() + body + 14);
      if (encoding != 1 || bits != 16) return std::nullopt;
      format = pa_sample_spec{PA_SAMPLE_S16LE, rate, static_cast<uint8_t>(channels)};
      if (pa_sample_spec_valid(&*format) == 0) return std::nullopt;
    } else if (id == "data" && format) {
      const auto length = static_cast<qsizetype>(size);
      // Bytes without a capacity of their own are borrowed (fromRawData).
      const bool borrowed = wav.capacity() == 0;
      return Sound{*format, borrowed ? QByteArray::fromRawData(wav.constData() + body, length)
                                     : wav.mid(body, length)};
    }
    at = body + static_cast<qsizetype>(size) + (size % 2);
  }
  return std::nullopt;
}

std::optional<PulseSample::Sound> PulseSample::fromResource(const QString& path) {
  const QResource resource(path);
  if (!resource.isValid()) return std::nullopt;
  if (resource.compressionAlgorithm() != QResource::NoCompression) {
    return fromWav(resource.uncompressedData());
  }
  return fromWav(QByteArray::fromRawData(reinterpret_cast<const char*>(resource.data()),
                                         static_cast<qsizetype>(resource.size())));
}

PulseSample::PulseSample(PulseConnection& connection, QByteArray name, std::optional<Sound> sound,
                         QObject* parent)
    : QObject(parent), connection_(connection), name_(std::move(name)), sound_(std::move(sound)) {
  if (!sound_) qCWarning(lcHud) << "the sound" << name_ << "is not 16-bit PCM; it stays silent";
  connect(&connection_, &PulseConnection::readyChanged, this, [this](bool ready) {
    if (ready) upload();
  });
  if (connection_.isReady()) upload();
}

void PulseSample::upload() {
  if (!sound_ || sound_->frames.isEmpty()) return;
  connection_.run([this](pa_context* context) {
    pa_stream* stream = pa_stream_new(context, name_.constData(), &sound_->format, nullptr);
    if (stream == nullptr) return;
    pa_stream_set_state_callback(stream, &onUploadState, new Upload{sound_->frames, name_});
    pa_stream_connect_upload(stream, static_cast<size_t>(sound_->frames.size()));
  });
}

void PulseSample::play(const QString& sink) {
  const QByteArray sinkName = sink.toUtf8();
  connection_.run([this, sinkName](pa_context* context) {
    // No sink named: the default output.
    pa_operation* operation = pa_context_play_sample(
        context, name_.constData(), sinkName.isEmpty() ? nullptr : sinkName.constData(),
        PA_VOLUME_INVALID, nullptr, nullptr);
    if (operation) pa_operation_unref(operation);
  });
}

}  // namespace tindra
