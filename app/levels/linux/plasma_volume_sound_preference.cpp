#include "levels/linux/plasma_volume_sound_preference.h"

#include <QFile>
#include <QStandardPaths>

#include "hud/volume_feedback_policy.h"

namespace tindra {

namespace {

constexpr bool plasmaDefault = true;

// A KDE config line's key without its markers: "AudioFeedback[$i]" is AudioFeedback, locked.
QByteArray keyOf(const QByteArray& line) {
  const qsizetype equals = line.indexOf('=');
  QByteArray key = line.left(equals).trimmed();
  if (const qsizetype marker = key.indexOf('['); marker >= 0) key.truncate(marker);
  return key;
}

}  // namespace

QString PlasmaVolumeSoundPreference::defaultFile() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/plasmaparc");
}

bool PlasmaVolumeSoundPreference::audioFeedbackIn(const QByteArray& config) {
  bool inGeneral = false;
  std::optional<bool> found;
  for (const QByteArray& raw : config.split('\n')) {
    const QByteArray line = raw.trimmed();
    if (line.isEmpty() || line.startsWith('#')) continue;
    if (line.startsWith('[')) {
      // "[General][Sub]" is a group of its own.
      inGeneral = line == "[General]";
      continue;
    }
    if (!inGeneral || !line.contains('=') || keyOf(line) != "AudioFeedback") continue;
    const QByteArray value = line.mid(line.indexOf('=') + 1);
    // A later entry overrides an earlier one, as KConfig reads them.
    found = VolumeFeedbackPolicy::systemSetting(JSONValue(value.toStdString()));
  }
  return found.value_or(plasmaDefault);
}

PlasmaVolumeSoundPreference::PlasmaVolumeSoundPreference(const QString& file, QObject* parent)
    : VolumeSoundPreference(parent), file_(file) {
  setCheck(DiagnosticsLog::Outcome::ok,
           Sentence(QT_TR_NOOP("the volume sound follows the audio feedback setting of "
                               "Plasma's volume applet"),
                    tr));
  connect(&file_, &WatchedFile::changed, this, [this] {
    if (started_) read();
  });
}

void PlasmaVolumeSoundPreference::start() {
  started_ = true;
  read();
}

void PlasmaVolumeSoundPreference::read() {
  QFile file(file_.path());
  // A missing or unreadable file is Plasma's default.
  const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  publish(audioFeedbackIn(text));
}

}  // namespace tindra
