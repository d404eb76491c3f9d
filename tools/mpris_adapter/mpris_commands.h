// The adapter's one-shot runs: `send CODE`, `seek MICROS`, `shuffle CODE`, `repeat CODE` carried
// out on the player the notch shows, and `test`, the self-test. Each returns the exit status.
#pragma once

#include <QDBusConnection>
#include <QStringList>

namespace tindra::MprisCommands {

// Exit statuses besides 0.
inline constexpr int badArguments = 64;
inline constexpr int noPlayer = 1;
inline constexpr int noSessionBus = 2;
inline constexpr int busDoesNotAnswer = 3;
inline constexpr int playerRefused = 4;

// `words` are the arguments after the program name.
int run(QDBusConnection bus, const QStringList& words);

// 0 when the session bus answers and can be searched for players.
int selfTest(QDBusConnection bus);

}  // namespace tindra::MprisCommands
