// Finding the Join link in realistic invitations of about 5 KB, against a bare ICU scan of the
// same text with the same expression (the floor any ICU-based search can reach).
#include <benchmark/benchmark.h>
#include <unicode/regex.h>
#include <unicode/unistr.h>

#include <memory>
#include <string>

#include "calendar/meeting_link_parser.h"

namespace {

std::string repeated(const std::string& part, std::size_t atLeast) {
  std::string text;
  while (text.size() < atLeast) text += part;
  return text;
}

const std::string agenda = repeated(
    "<p>Agenda: review of the Q3 roadmap (see the shared folder /Planning/2026/Q3), open items "
    "from last week &amp; the hiring plan. Please read the notes beforehand &ndash; thanks!</p>\n"
    "<ul><li>Status per team (5 min each)</li><li>Budget: 12.5% over in travel</li></ul>\n",
    5200);

const std::string teamsInvitation =
    agenda.substr(0, 2600) +
    "<div style=\"width:100%\"><span style=\"white-space:nowrap;color:#5F5F5F\">"
    "________________________________________________________________________________</span>"
    "<div><span style=\"font-size:24px;font-weight:700\">Microsoft Teams meeting</span></div>"
    "<div><span style=\"font-size:14px\">Join on your computer, mobile app or room device</span>"
    "</div><a href=\"https://teams.microsoft.com/l/meetup-join/19%3ameeting_NjQ4ZTUxYjQtYjFk"
    "Ny00ZjJhLWE3YzUtODk2ZjA0MjUxZTRi%40thread.v2/0?context=%7b%22Tid%22%3a%2272f988bf-86f1-41af"
    "-91ab-2d7cd011db47%22%2c%22Oid%22%3a%22d2b8bd2a-2b4c-4bd4-8d65-3f6f0a2d1c70%22%7d\" "
    "target=\"_blank\">Click here to join the meeting</a><div>Meeting ID: 284 519 873 104<br>"
    "Passcode: Xy3vTq</div><a href=\"https://www.microsoft.com/en-us/microsoft-teams/"
    "download-app\">Download Teams</a> | <a href=\"https://www.microsoft.com/microsoft-teams/"
    "join-a-meeting\">Join on the web</a><div>Join with a video conferencing device<br>"
    "teams@vc.example.com<br>Video Conference ID: 118 022 495 3</div><a href=\"https://"
    "dialin.teams.microsoft.com/8551f4c1-bea3-441a-8738-69aa517a91c5?id=1180224953\">Alternate VTC "
    "instructions</a><div>Or call in (audio only)<br>+47 21 40 41 75,,771943212# Norway, Oslo"
    "</div><a href=\"https://aka.ms/JoinTeamsMeeting\">Learn More</a> | <a href=\"https://teams."
    "microsoft.com/meetingOptions/?organizerId=d2b8bd2a&amp;tenantId=72f988bf\">Meeting options"
    "</a></div>" +
    repeated("<p>This invitation and any attachments are confidential. </p>", 1200);

const std::string zoomInvitation =
    "Pat Example is inviting you to a scheduled Zoom meeting.\n\nTopic: Design review\n"
    "Time: Nov 23, 2026 10:00 AM Oslo\n\nJoin Zoom Meeting\n"
    "https://us02web.zoom.us/j/88123456789?pwd=aB3cD4eF5gH6iJ7kL8mN9oP0qR1sT2.1\n\n"
    "Meeting ID: 881 2345 6789\nPasscode: 482913\n\n---\n\nOne tap mobile\n" +
    repeated(
        "+4721930052,,88123456789#,,,,*482913# Norway\n+4723965014,,88123456789#,,,,*482913# "
        "Norway\n\nDial by your location\n• +47 2193 0052 Norway\n• +47 2396 5014 Norway\n"
        "• +1 646 558 8656 US (New York)\n• +1 669 900 6833 US (San Jose)\n",
        3800) +
    "\nFind your local number: https://us02web.zoom.us/u/kbXyZ12ab\n\nJoin by SIP\n"
    "• 88123456789@zoomcrc.com\n\nJoin by H.323\n• 162.255.37.11 (US West)\n" +
    agenda.substr(0, 600);

const std::string meetInvitation =
    agenda.substr(0, 1900) +
    "\n-::~:~::~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~::~:~::-"
    "\n"
    "Join with Google Meet: https://meet.google.com/abc-defg-hij\nOr dial: (NO) +47 21 93 98 46 "
    "PIN: 123 456 789#\nMore phone numbers: https://tel.meet/abc-defg-hij?pin=1234567890123\n\n"
    "Learn more about Meet at: https://support.google.com/a/users/answer/9282720\n\n"
    "Please do not edit this section.\n-::~:~::~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~:~::-\n"
    "Invitation from Google Calendar: https://calendar.google.com/calendar/\n\n"
    "You are receiving this email because you are an attendee of the event. To stop receiving "
    "future updates for this event, decline this event.\n\nForwarding this invitation could "
    "allow any recipient to send a response to the organizer, be added to the guest list, invite "
    "others regardless of their own invitation status, or modify your RSVP. Learn more "
    "https://support.google.com/calendar/answer/37135#forwarding\n" +
    agenda.substr(0, 1500);

const std::string plainNotes = agenda.substr(0, 5120);

void linkInEvent(benchmark::State& state, const std::string& notes) {
  for (auto _ : state) {
    auto link = tindra::MeetingLinkParser::link("https://intranet.example.com/events/4711",
                                                "Conference Room B (Oslo)", notes);
    benchmark::DoNotOptimize(link);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * notes.size()));
  state.counters["bytes"] = static_cast<double>(notes.size());
}

// Reference: convert once and run the bare expression over the whole text.
void icuScan(benchmark::State& state, const std::string& notes) {
  UErrorCode status = U_ZERO_ERROR;
  UParseError parseError;
  std::unique_ptr<icu::RegexPattern> pattern(icu::RegexPattern::compile(
      u"(?i)(?<![\\w.@/-])(?:(?:https|http|zoommtg|zoomus|msteams|facetime|facetime\\-audio):(?://)"
      u"?|(?=(?:[a-z0-9-]+\\.)*(?:zoom\\.us|zoomgov\\.com|meet\\.google\\.com|teams\\.microsoft"
      u"\\.com|teams\\.live\\.com|webex\\.com|facetime\\.apple\\.com)/"
      u"))[^\\s<>\"'()\\[\\]{}|\\\\^`]+",
      0, parseError, status));
  std::unique_ptr<icu::RegexMatcher> matcher(pattern->matcher(status));
  for (auto _ : state) {
    icu::UnicodeString input = icu::UnicodeString::fromUTF8(notes);
    matcher->reset(input);
    int matches = 0;
    while (matcher->find(status)) ++matches;
    benchmark::DoNotOptimize(matches);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * notes.size()));
}

BENCHMARK_CAPTURE(linkInEvent, teams, teamsInvitation)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(linkInEvent, zoom, zoomInvitation)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(linkInEvent, meet, meetInvitation)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(linkInEvent, plainNotes, plainNotes)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(icuScan, teams, teamsInvitation)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(icuScan, plainNotes, plainNotes)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
