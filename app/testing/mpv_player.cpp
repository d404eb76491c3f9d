#include "testing/mpv_player.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>

namespace tindra {

namespace {

const QString mprisPlugin = QStringLiteral("/usr/lib/mpv-mpris/mpris.so");

}  // namespace

QString MpvPlayer::missing() {
  if (QStandardPaths::findExecutable(QStringLiteral("mpv")).isEmpty() ||
      !QFileInfo::exists(mprisPlugin) ||
      QStandardPaths::findExecutable(QStringLiteral("sox")).isEmpty()) {
    return QStringLiteral("mpv, mpv-mpris and sox are needed (scripts/install-deps installs them)");
  }
  return {};
}

MpvPlayer::MpvPlayer(const QStringList& tracks, int seconds) {
  QStringList arguments{QStringLiteral("--no-config"), QStringLiteral("--script=") + mprisPlugin,
                        qEnvironmentVariableIsSet("TINDRA_SOUND_SERVER")
                            ? QStringLiteral("--ao=pulse")
                            : QStringLiteral("--ao=null"),
                        QStringLiteral("--vo=null"), QStringLiteral("--really-quiet")};
  int pitch = 440;
  for (const QString& track : tracks) {
    const QString file = folder_.filePath(track + QStringLiteral(".wav"));
    QProcess::execute(QStringLiteral("sox"),
                      {"-n", "-r", "8000", "-c", "1", file, "synth", QString::number(seconds),
                       "sine", QString::number(pitch)});
    pitch += 220;
    arguments << file;
  }
  process_.start(QStringLiteral("mpv"), arguments);
  onBus_ = QTest::qWaitFor(
      [] {
        return QDBusConnection::sessionBus().interface()->isServiceRegistered(
            QStringLiteral("org.mpris.MediaPlayer2.mpv"));
      },
      10000);
}

void MpvPlayer::kill() {
  process_.kill();
  process_.waitForFinished(5000);
}

MpvPlayer::~MpvPlayer() {
  process_.terminate();
  if (!process_.waitForFinished(5000)) process_.kill();
}

}  // namespace tindra
