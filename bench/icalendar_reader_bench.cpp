// Loading a year's busy calendar: 5,000 events, 500 of them recurring (daily, weekly on days,
// monthly) with exclusions and edited occurrences, in a zone of the document's own naming,
// read into the events of the nine days the notch needs. Against libical's bare parse of the
// same text (the floor for any reader built on it).
#include <benchmark/benchmark.h>
#include <libical/ical.h>

#include <string>

#include "icalendar/icalendar_reader.h"

namespace {

std::string two(int n) {
  return (n < 10 ? "0" : "") + std::to_string(n);
}

// `counted` makes a fifth of the series daily with a count of 400 from 2025, which libical
// can only walk from their first day on; otherwise they end on a date.
std::string busyYear(bool counted) {
  std::string text = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Tindra bench//EN\r\n";
  for (int i = 0; i < 4500; ++i) {
    const int month = 1 + i % 12;
    const int day = 1 + (i / 12) % 28;
    const int hour = 8 + i % 9;
    text += "BEGIN:VEVENT\r\nUID:single-" + std::to_string(i) +
            "@example.org\r\nSUMMARY:Meeting number " + std::to_string(i) +
            "\r\nDTSTART;TZID=Europe/Oslo:2026" + two(month) + two(day) + "T" + two(hour) +
            "0000\r\nDTEND;TZID=Europe/Oslo:2026" + two(month) + two(day) + "T" + two(hour) +
            "3000\r\nLOCATION:Room " + std::to_string(i % 40) +
            "\r\nDESCRIPTION:Agenda and notes. Join: https://example.zoom.us/j/" +
            std::to_string(1000000 + i) +
            "\r\nATTENDEE;PARTSTAT=ACCEPTED:mailto:me@example.org\r\nEND:VEVENT\r\n";
  }
  const char* rules[] = {"FREQ=DAILY;BYDAY=MO,TU,WE,TH,FR", "FREQ=WEEKLY;BYDAY=TU,TH",
                         "FREQ=WEEKLY;INTERVAL=2;BYDAY=MO", "FREQ=MONTHLY;BYMONTHDAY=15",
                         counted ? "FREQ=DAILY;COUNT=400" : "FREQ=DAILY;UNTIL=20270301T000000Z"};
  for (int i = 0; i < 500; ++i) {
    const std::string uid = "series-" + std::to_string(i) + "@example.org";
    const int hour = 8 + i % 9;
    text += "BEGIN:VEVENT\r\nUID:" + uid + "\r\nSUMMARY:Series " + std::to_string(i) +
            "\r\nDTSTART;TZID=Europe/Oslo:2025" + two(1 + i % 12) + "05T" + two(hour) +
            "0000\r\nDURATION:PT45M\r\nRRULE:" + rules[i % 5] +
            "\r\nEXDATE;TZID=Europe/Oslo:20261027T" + two(hour) +
            "0000\r\nEND:VEVENT\r\n"
            "BEGIN:VEVENT\r\nUID:" +
            uid + "\r\nRECURRENCE-ID;TZID=Europe/Oslo:20261028T" + two(hour) +
            "0000\r\nSUMMARY:Series moved\r\nDTSTART;TZID=Europe/Oslo:20261028T" + two(hour + 1) +
            "0000\r\nDURATION:PT45M\r\nEND:VEVENT\r\n";
  }
  return text + "END:VCALENDAR\r\n";
}

const std::string& feed(bool counted = false) {
  static const std::string text = busyYear(false);
  static const std::string countedText = busyYear(true);
  return counted ? countedText : text;
}

void BM_ReadAndExpand(benchmark::State& state) {
  const bool counted = state.range(0) != 0;
  tindra::ICalendarReadOptions options;
  options.windowStart = 1792886400;  // 2026-10-25 00:00 UTC, the day before Monday
  options.windowEnd = options.windowStart + 9 * 86400;
  options.timeZone = "Europe/Oslo";
  options.ownerAddresses = {"me@example.org"};
  options.idPrefix = "bench";
  std::size_t events = 0;
  for (auto _ : state) {
    auto document = tindra::ICalendarReader::read(feed(counted), options);
    events = document ? document->events.size() : 0;
    benchmark::DoNotOptimize(document);
  }
  state.counters["events_in_window"] = static_cast<double>(events);
  state.counters["bytes"] = static_cast<double>(feed().size());
}
BENCHMARK(BM_ReadAndExpand)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_LibicalParseOnly(benchmark::State& state) {
  for (auto _ : state) {
    icalcomponent* root = icalparser_parse_string(feed().c_str());
    benchmark::DoNotOptimize(root);
    icalcomponent_free(root);
  }
}
BENCHMARK(BM_LibicalParseOnly)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
