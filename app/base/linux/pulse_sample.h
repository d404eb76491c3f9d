// PulseSample: a short sound kept in the sound server's sample cache under its own name. It is
// uploaded each time the connection becomes ready (a restarted server has an empty cache), and
// playing it is one request naming the sink: Tindra streams and decodes nothing at play time.
#pragma once

#include <pulse/pulseaudio.h>

#include <QByteArray>
#include <QString>
#include <optional>

#include "base/linux/pulse_connection.h"

namespace tindra {

class PulseSample : public QObject {
  Q_OBJECT

 public:
  // 16-bit PCM from a WAV file's bytes; none for anything else. The frames of a `wav` that
  // borrows its bytes (QByteArray::fromRawData) borrow them too; others are copied.
  struct Sound {
    pa_sample_spec format;
    QByteArray frames;
  };
  static std::optional<Sound> fromWav(const QByteArray& wav);
  // The sound compiled in at the resource `path`; read where it lies when stored uncompressed,
  // so the program holds no copy of it.
  static std::optional<Sound> fromResource(const QString& path);

  PulseSample(PulseConnection& connection, QByteArray name, std::optional<Sound> sound,
              QObject* parent = nullptr);

  // Plays on `sink`; on the default output when it is empty.
  void play(const QString& sink);

 private:
  void upload();

  PulseConnection& connection_;
  QByteArray name_;
  std::optional<Sound> sound_;
};

}  // namespace tindra
