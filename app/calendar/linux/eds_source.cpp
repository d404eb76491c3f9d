#include "calendar/linux/eds_source.h"

#include <QColor>
#include <QLocale>
#include <set>

namespace tindra {

namespace {

const QString dataSource = QStringLiteral("Data Source");
const QString calendarGroup = QStringLiteral("Calendar");
const QString taskListGroup = QStringLiteral("Task List");
const QString collectionGroup = QStringLiteral("Collection");

// A key file's escapes: \s, \n, \t, \r and \\; any other backslash stays as it is.
QString unescaped(QStringView value) {
  QString text;
  text.reserve(value.size());
  for (qsizetype i = 0; i < value.size(); ++i) {
    if (value[i] != u'\\' || i + 1 == value.size()) {
      text.append(value[i]);
      continue;
    }
    const QChar next = value[++i];
    switch (next.unicode()) {
      case 's':
        text.append(u' ');
        break;
      case 'n':
        text.append(u'\n');
        break;
      case 't':
        text.append(u'\t');
        break;
      case 'r':
        text.append(u'\r');
        break;
      case '\\':
        text.append(u'\\');
        break;
      default:
        text.append(u'\\').append(next);
    }
  }
  return text;
}

// group -> key (with its [locale], if any) -> value
using KeyFile = std::map<QString, std::map<QString, QString>>;

KeyFile keyFile(const QString& data) {
  KeyFile groups;
  std::map<QString, QString>* group = nullptr;
  for (QStringView line : QStringView(data).split(u'\n')) {
    line = line.trimmed();
    if (line.isEmpty() || line.startsWith(u'#')) continue;
    if (line.startsWith(u'[') && line.endsWith(u']')) {
      group = &groups[line.mid(1, line.size() - 2).toString()];
      continue;
    }
    const qsizetype equals = line.indexOf(u'=');
    if (group == nullptr || equals <= 0) continue;
    (*group)[line.left(equals).trimmed().toString()] = unescaped(line.mid(equals + 1).trimmed());
  }
  return groups;
}

bool isFalse(const QString& value) {
  return value.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0 ||
         value == QLatin1String("0");
}

std::optional<CalendarEventInfo::Color> colorOf(const QString& text) {
  const QColor color = QColor::fromString(text.trimmed());
  if (!color.isValid()) return std::nullopt;
  return CalendarEventInfo::Color{color.redF(), color.greenF(), color.blueF()};
}

}  // namespace

QStringList EdsSource::userLanguages() {
  const QString name = QLocale().name();  // "nb_NO"
  QStringList languages{name};
  if (const qsizetype underscore = name.indexOf(u'_'); underscore > 0) {
    languages.append(name.left(underscore));
  }
  return languages;
}

EdsSource EdsSource::parse(const QString& uid, const QString& data, const QStringList& languages) {
  const KeyFile groups = keyFile(data);
  EdsSource source;
  source.uid = uid;
  const auto value = [&](const QString& group, const QString& key) -> std::optional<QString> {
    const auto found = groups.find(group);
    if (found == groups.end()) return std::nullopt;
    const auto entry = found->second.find(key);
    if (entry == found->second.end()) return std::nullopt;
    return entry->second;
  };
  for (const QString& language : languages) {
    if (auto name = value(dataSource, QStringLiteral("DisplayName[%1]").arg(language))) {
      source.name = *name;
      break;
    }
  }
  if (source.name.isEmpty())
    source.name = value(dataSource, QStringLiteral("DisplayName")).value_or(uid);
  source.parent = value(dataSource, QStringLiteral("Parent")).value_or(QString());
  source.enabled = !isFalse(value(dataSource, QStringLiteral("Enabled")).value_or(QString()));
  for (const auto& [group, kind] :
       {std::pair{calendarGroup, Kind::events}, std::pair{taskListGroup, Kind::tasks}}) {
    if (!groups.contains(group)) continue;
    source.kind = kind;
    source.color = colorOf(value(group, QStringLiteral("Color")).value_or(QString()));
    break;
  }
  source.calendarsOff =
      isFalse(value(collectionGroup, QStringLiteral("CalendarEnabled")).value_or(QString()));
  return source;
}

std::vector<EdsCalendar> EdsCalendar::among(const std::map<QString, EdsSource>& sources) {
  std::vector<EdsCalendar> calendars;
  for (const auto& [uid, source] : sources) {
    if (source.kind == EdsSource::Kind::other || !source.enabled) continue;
    bool on = true;
    std::set<QString> seen{uid};  // a loop of parents ends the walk
    for (auto above = sources.find(source.parent);
         on && above != sources.end() && seen.insert(above->first).second;
         above = sources.find(above->second.parent)) {
      on = above->second.enabled && !above->second.calendarsOff;
    }
    if (!on) continue;
    const auto account = sources.find(source.parent);
    calendars.push_back({uid, source.name,
                         account == sources.end() ? QString() : account->second.name, source.kind,
                         source.color});
  }
  return calendars;
}

}  // namespace tindra
