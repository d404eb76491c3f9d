// tindra-mpris-adapter: the desktop's now-playing adapter. It speaks the adapter's command line
// and JSON-lines protocol over MPRIS on the session bus:
//   stream --micros --debounce=N [--no-artwork]   the chosen player's state, full then diffs
//   send 0|1|2|4|5, seek MICROS, shuffle 1|2|3, repeat 1|2|3   a command to that player
//   test                                          0 when the session bus answers
// The stream runs until its parent, its standard input or its bus ends (see StreamLifetime).
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDateTime>
#include <QFile>
#include <cstdio>

#include "mpris_commands.h"
#include "mpris_payload.h"
#include "mpris_session.h"
#include "payload_stream.h"
#include "stream_lifetime.h"

namespace {

std::int64_t nowMicros() {
  return QDateTime::currentMSecsSinceEpoch() * 1000;
}

std::optional<std::string> readFile(const QString& path, std::size_t limit) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly) || static_cast<std::size_t>(file.size()) > limit) {
    return std::nullopt;
  }
  return file.readAll().toStdString();
}

// Taken before anything else runs, so that a parent gone in between is seen, and before Qt
// opens a descriptor that could take the number of a closed standard input.
struct Start {
  pid_t parent = ::getppid();
  bool inputOpen = ::fcntl(STDIN_FILENO, F_GETFD) != -1;
};

int stream(const QStringList& words, const Start& start) {
  int debounce = 100;
  bool artwork = true;
  for (const QString& word : words.mid(1)) {
    if (word.startsWith(QLatin1String("--debounce="))) debounce = word.mid(11).toInt();
    if (word == QLatin1String("--no-artwork")) artwork = false;
  }
  if (!tindra::StreamLifetime::tieToParent(start.parent)) return 0;  // nobody left to read it
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) {
    std::fprintf(stderr, "tindra-mpris-adapter: no session bus\n");
    return tindra::MprisCommands::noSessionBus;
  }
  // Without a standard input there is nothing to watch; the parent and the bus still count.
  tindra::StreamLifetime lifetime(bus, start.inputOpen ? STDIN_FILENO : -1);
  QObject::connect(&lifetime, &tindra::StreamLifetime::ended, [](const QString& reason) {
    std::fprintf(stderr, "tindra-mpris-adapter: stream ends: %s\n", qPrintable(reason));
    QCoreApplication::quit();
  });
  tindra::MprisSession session(bus, nowMicros);
  tindra::PayloadStream output(
      debounce, [&] { return tindra::MprisPayload::make(session.chosen(), artwork, readFile); },
      [](const std::string& line) {
        std::fwrite(line.data(), 1, line.size(), stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
      });
  QObject::connect(&session, &tindra::MprisSession::changed, &output,
                   &tindra::PayloadStream::touch);
  session.start();
  output.touch();  // the first, full message, even when nothing plays
  return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char* argv[]) {
  const Start start;
  QCoreApplication app(argc, argv);
  const QStringList words = QCoreApplication::arguments().mid(1);
  if (words.isEmpty()) return tindra::MprisCommands::badArguments;
  if (words[0] == QLatin1String("stream")) return stream(words, start);
  if (words[0] == QLatin1String("test")) {
    return tindra::MprisCommands::selfTest(QDBusConnection::sessionBus());
  }
  return tindra::MprisCommands::run(QDBusConnection::sessionBus(), words);
}
