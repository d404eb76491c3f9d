#include "levels/linux/pulse_volume_backend.h"

#include <algorithm>
#include <cmath>

#include "base/assign_if_changed.h"
#include "power/bluetooth_address.h"

namespace tindra {

PulseVolumeBackend::PulseVolumeBackend(std::shared_ptr<PulseConnection> connection, QObject* parent)
    : VolumeBackend(parent),
      connection_(std::move(connection)),
      tick_(*connection_, "tindra-volume-tick",
            PulseSample::fromResource(QStringLiteral(":/sounds/tindra-volume-tick.wav"))) {
  setCheck(DiagnosticsLog::Outcome::ok, Sentence(QT_TR_NOOP("connecting to the sound server"), tr));
  connect(connection_.get(), &PulseConnection::readyChanged, this, [this](bool ready) {
    answered_ = answered_ || ready;
    if (ready) {
      setCheck(DiagnosticsLog::Outcome::ok,
               Sentence(QT_TR_NOOP("following the sound server's default output"), tr));
      readDefaultSink();
    } else {
      setCheck(DiagnosticsLog::Outcome::degraded,
               Sentence(QT_TR_NOOP("the sound server went away: no volume until it returns"), tr));
      publish(std::nullopt);
    }
  });
  // Until a server has answered once, "connecting" would read as working: say there is none.
  connect(connection_.get(), &PulseConnection::unanswered, this, [this] {
    if (answered_) return;
    setCheck(DiagnosticsLog::Outcome::degraded,
             Sentence(QT_TR_NOOP("no sound server answers: the volume shows as soon as PipeWire "
                                 "or PulseAudio runs"),
                      tr));
  });
  connect(connection_.get(), &PulseConnection::changed, this, &PulseVolumeBackend::readDefaultSink);
}

void PulseVolumeBackend::start() {
  connection_->start();
}

AudioTransport PulseVolumeBackend::transportOf(const QString& bus, const QString& nameAndPort) {
  const QString name = nameAndPort.toLower();
  if (bus == QLatin1String("bluetooth")) return AudioTransport::bluetooth;
  if (bus == QLatin1String("usb")) return AudioTransport::usb;
  if (name.contains(QLatin1String("hdmi"))) return AudioTransport::hdmi;
  if (name.contains(QLatin1String("displayport"))) return AudioTransport::displayPort;
  if (bus == QLatin1String("pci") || bus == QLatin1String("isa")) return AudioTransport::builtIn;
  return AudioTransport::other;
}

std::optional<std::string> PulseVolumeBackend::bluetoothAddressOf(const QString& bus,
                                                                  const QString& address,
                                                                  const QString& deviceString,
                                                                  const QString& name) {
  if (bus != QLatin1String("bluetooth")) return std::nullopt;
  for (const QString& candidate : {address, deviceString, name.section(u'.', 1, 1)}) {
    if (auto canonical = BluetoothAddress::normalized(candidate.toStdString())) return canonical;
  }
  return std::nullopt;
}

void PulseVolumeBackend::readDefaultSink() {
  connection_->run([this](pa_context* context) {
    auto request = std::make_unique<PulseRequest<PulseVolumeBackend>>(connection_.get(), this);
    // "@DEFAULT_SINK@" follows the server's current default.
    pa_operation* operation = pa_context_get_sink_info_by_name(
        context, "@DEFAULT_SINK@",
        [](pa_context*, const pa_sink_info* sink, int last, void* data) {
          auto* request = static_cast<PulseRequest<PulseVolumeBackend>*>(data);
          if (last < 0) {
            // No default output (the server has none): nothing to set, the keys go back.
            request->answer([](PulseVolumeBackend& backend) { backend.publish(std::nullopt); });
          }
          if (last != 0 || sink == nullptr) return;
          VolumeReading reading;
          reading.output = QString::fromUtf8(sink->name);
          reading.level = static_cast<double>(pa_cvolume_avg(&sink->volume)) /
                          static_cast<double>(PA_VOLUME_NORM);
          reading.muted = sink->mute != 0;
          reading.volumeSettable = sink->volume.channels > 0;
          const QString port =
              sink->active_port ? QString::fromUtf8(sink->active_port->name) : QString();
          const QString bus = pulseProperty(sink->proplist, PA_PROP_DEVICE_BUS);
          reading.transport = transportOf(bus, reading.output + u' ' + port);
          reading.bluetoothAddress = bluetoothAddressOf(
              bus, pulseProperty(sink->proplist, "api.bluez5.address"),
              pulseProperty(sink->proplist, PA_PROP_DEVICE_STRING), reading.output);
          const int channels = sink->volume.channels;
          request->answer([reading, channels](PulseVolumeBackend& backend) {
            backend.channels_ = channels;
            backend.publish(reading);
          });
        },
        request.get());
    keepUntilDone(operation, std::move(request));
  });
}

void PulseVolumeBackend::setLevel(double level) {
  if (!reading()) return;
  const QByteArray sink = reading()->output.toUtf8();
  const double clamped = std::clamp(level, 0.0, 1.0);
  const int channels = channels_;
  connection_->run([sink, clamped, channels](pa_context* context) {
    pa_cvolume volume;
    pa_cvolume_set(&volume, static_cast<unsigned>(channels),
                   static_cast<pa_volume_t>(std::lround(clamped * PA_VOLUME_NORM)));
    pa_operation* operation =
        pa_context_set_sink_volume_by_name(context, sink.constData(), &volume, nullptr, nullptr);
    if (operation) pa_operation_unref(operation);
  });
}

void PulseVolumeBackend::setMuted(bool muted) {
  if (!reading()) return;
  const QByteArray sink = reading()->output.toUtf8();
  connection_->run([sink, muted](pa_context* context) {
    pa_operation* operation = pa_context_set_sink_mute_by_name(context, sink.constData(),
                                                               muted ? 1 : 0, nullptr, nullptr);
    if (operation) pa_operation_unref(operation);
  });
}

void PulseVolumeBackend::playFeedback() {
  if (reading()) tick_.play(reading()->output);
}

}  // namespace tindra
