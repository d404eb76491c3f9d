#include "shell/focus_command.h"

#include <QCommandLineParser>

#include "base/qt_text.h"
#include "focus/focus_filter_state.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"

namespace tindra {

namespace {

QString symbolNames() {
  QStringList names;
  for (const FocusSymbol symbol : allCases<FocusSymbol>()) names << toQString(rawValue(symbol));
  return names.join(QStringLiteral(", "));
}

}  // namespace

QString FocusCommand::usage() {
  return QStringLiteral(
             "usage: tindra focus on [--name NAME] [--symbol SYMBOL]\n"
             "       tindra focus off\n"
             "Shows in the notch that a Focus is on, with its name and symbol.\n"
             "Symbols: %1\n")
      .arg(symbolNames());
}

int FocusCommand::run(const QStringList& arguments, SettingsStore& settings, double now,
                      QTextStream& out, QTextStream& err) {
  QCommandLineParser parser;
  const QCommandLineOption name(QStringLiteral("name"), QString(), QStringLiteral("name"));
  const QCommandLineOption symbol(QStringLiteral("symbol"), QString(), QStringLiteral("symbol"));
  parser.addOptions({name, symbol});
  parser.addPositionalArgument(QStringLiteral("state"), QString());
  const bool parsed = parser.parse(QStringList{QStringLiteral("focus")} + arguments);
  const QStringList state = parser.positionalArguments();
  const bool on = state == QStringList{QStringLiteral("on")};
  const bool off = state == QStringList{QStringLiteral("off")};
  if (!parsed || !(on || off) || (off && (parser.isSet(name) || parser.isSet(symbol)))) {
    if (!parsed) err << parser.errorText() << '\n';
    err << usage();
    return 2;
  }
  const FocusFilterState previous =
      FocusFilterState::decode(settings.read(settings::focusFilterState));
  FocusFilterState next(false, previous.name, previous.symbol, now);
  if (on) {
    const std::optional<FocusSymbol> chosen =
        parser.isSet(symbol) ? enumFromRaw<FocusSymbol>(parser.value(symbol).toStdString())
                             : std::optional(FocusSymbol::moon);
    if (!chosen) {
      err << QStringLiteral("tindra focus: unknown symbol \"%1\"; choose one of %2\n")
                 .arg(parser.value(symbol), symbolNames());
      return 2;
    }
    next = FocusFilterState(true, parser.value(name).toStdString(), *chosen, now);
  }
  if (const SettingsStore::WriteResult saved =
          settings.write(settings::focusFilterState, next.encoded());
      !saved) {
    err << QStringLiteral("tindra focus: the settings could not be saved: %1\n")
               .arg(toQString(saved.error().message(settings.file())));
    return 1;
  }
  out << (on ? QStringLiteral("Focus on%1\n")
                   .arg(next.name.empty() ? QString() : QStringLiteral(": ") + toQString(next.name))
             : QStringLiteral("Focus off\n"));
  return 0;
}

}  // namespace tindra
