#include "shell/autostart_entry.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

#include "base/qt_text.h"
#include "settings/durable_file.h"

namespace tindra {

namespace {

// The Exec key's quoting: the path in double quotes, with ", `, $ and \ escaped.
QString quoted(const QString& program) {
  QString escaped;
  for (const QChar c : program) {
    if (c == u'"' || c == u'`' || c == u'$' || c == u'\\') escaped += u'\\';
    escaped += c;
  }
  return u'"' + escaped + u'"';
}

}  // namespace

AutostartEntry::AutostartEntry(std::filesystem::path configFolder, QString program)
    : configFolder_(std::move(configFolder)), program_(std::move(program)) {}

AutostartEntry AutostartEntry::forThisProgram() {
  return AutostartEntry(
      QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString(),
      QCoreApplication::applicationFilePath());
}

bool AutostartEntry::enabled() const {
  QFile entry(QString::fromStdString(file().string()));
  if (!entry.open(QIODevice::ReadOnly)) return false;
  return !entry.readAll().contains("\nHidden=true");
}

QString AutostartEntry::text() const {
  return QStringLiteral(
             "[Desktop Entry]\n"
             "Type=Application\n"
             "Name=Tindra\n"
             "Comment=The notch as a small live display\n"
             "Exec=%1\n"
             "Icon=com.brenvik.Tindra\n"
             "X-GNOME-Autostart-enabled=true\n"
             "NoDisplay=true\n")
      .arg(quoted(program_));
}

Sentence AutostartEntry::setEnabled(bool enabled) const {
  if (!enabled) {
    std::error_code error;
    std::filesystem::remove(file(), error);
    return error ? Sentence::in("Autostart",
                                QT_TRANSLATE_NOOP("Autostart", "could not remove %1: %2"))
                       .arg(toQString(file().string()), toQString(error.message()))
                 : Sentence();
  }
  const auto written = DurableFile(file()).write(text().toStdString());
  return written ? Sentence() : Sentence::verbatim(toQString(written.error().message(file())));
}

}  // namespace tindra
