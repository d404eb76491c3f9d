// BusLevelCommandSource: `tindra level …` commands on the session bus. The running Tindra owns
// the name "com.brenvik.Tindra" and answers Press(key, fine) on /com/brenvik/Tindra/Levels with
// whether it stepped the level; `send` is the command's side.
#pragma once

#include <QDBusConnection>

#include "levels/level_command_source.h"

namespace tindra {

class BusLevelCommandSource final : public LevelCommandSource {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "com.brenvik.Tindra.Levels")

 public:
  static inline const QString service = QStringLiteral("com.brenvik.Tindra");
  static inline const QString path = QStringLiteral("/com/brenvik/Tindra/Levels");
  static inline const QString interface = QStringLiteral("com.brenvik.Tindra.Levels");

  explicit BusLevelCommandSource(QDBusConnection bus, QObject* parent = nullptr);
  ~BusLevelCommandSource() override;

  void start() override;

  // The command's side: 0 when the running Tindra stepped the level, else 1 with why on `err`.
  static int send(const QDBusConnection& bus, const LevelCommand& command, QTextStream& err);

 public slots:
  Q_SCRIPTABLE bool Press(const QString& key, bool fine);

 private:
  QDBusConnection bus_;
  bool registered_ = false;
};

}  // namespace tindra
