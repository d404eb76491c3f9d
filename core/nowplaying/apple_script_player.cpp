#include "nowplaying/apple_script_player.h"

#include <charconv>
#include <cmath>
#include <string_view>
#include <vector>

#include "base/unicode_text.h"
#include "nowplaying/browser_tab_search.h"
#include "nowplaying/browser_tab_title.h"

namespace tindra {
namespace {

constexpr double maxSeconds = NowPlayingSnapshot::maxSeconds;
constexpr char fieldSeparator = '\x1f';

constexpr std::string_view handlers = R"(on textOf(value)
	if value is missing value then return ""
	try
		return value as text
	on error
		return ""
	end try
end textOf

on msOf(secs)
	try
		return (round (secs * 1000)) as text
	on error
		return ""
	end try
end msOf

on flag(value)
	if value is true then return "true"
	return "false"
end flag

)";

constexpr std::string_view stateJS =
    "(function(){var v=document.querySelector('video');if(!v)return '';"
    "return (v.paused?'paused':'playing')+','+Math.round(v.currentTime*1000)+','+"
    "(isFinite(v.duration)?Math.round(v.duration*1000):-1);})()";

bool isBrowser(AppleScriptPlayer player) {
  return player == AppleScriptPlayer::safari || player == AppleScriptPlayer::chrome;
}

std::string quoted(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

std::string applicationReference(AppleScriptPlayer player) {
  return "application id " + quoted(bundleIdentifier(player));
}

// "%.3f" in the C locale whatever the process locale: seeks must never read "12,500".
std::string threeDecimals(double value) {
  char buffer[64];
  const auto result =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 3);
  return std::string(buffer, result.ptr);
}

bool isSeekable(double seconds) {
  return std::isfinite(seconds) && seconds >= 0 && seconds <= maxSeconds;
}

// --- read scripts ---

// The words of a track read script that differ between Music and Spotify.
struct TrackWords {
  std::string_view durationMs;  // Music reports seconds, Spotify milliseconds
  std::string_view inTrack;     // more statements about `current track` t
  std::string_view afterTrack;  // statements after the track block
  std::string_view shuffle;     // the shuffle property
  std::string_view repeat;      // statements that set repeatText
};

std::string trackReadScript(AppleScriptPlayer player, const TrackWords& words) {
  const std::string app = applicationReference(player);
  return std::string(handlers) + "set sep to character id 31\nif " + app +
         " is not running then return \"notrunning\"\n"
         "with timeout of 3 seconds\n"
         "\ttell " +
         app +
         "\n"
         "\t\tif player state is stopped then return \"idle\"\n"
         "\t\tset playerState to \"playing\"\n"
         "\t\tif player state is paused then set playerState to \"paused\"\n"
         "\t\tset trackName to \"\"\n"
         "\t\tset trackArtist to \"\"\n"
         "\t\tset trackAlbum to \"\"\n"
         "\t\tset durationMs to \"\"\n"
         "\t\tset artworkLink to \"\"\n"
         "\t\ttry\n"
         "\t\t\tset t to current track\n"
         "\t\t\tset trackName to my textOf(name of t)\n"
         "\t\t\tset trackArtist to my textOf(artist of t)\n"
         "\t\t\tset trackAlbum to my textOf(album of t)\n"
         "\t\t\tset durationMs to " +
         std::string(words.durationMs) + "\n" + std::string(words.inTrack) + "\t\tend try\n" +
         std::string(words.afterTrack) +
         "\t\tset positionMs to my msOf(player position)\n"
         "\t\tset shuffleText to my flag(" +
         std::string(words.shuffle) + ")\n\t\tset repeatText to \"off\"\n" +
         std::string(words.repeat) +
         "\tend tell\n"
         "end timeout\n"
         "return \"track\" & sep & playerState & sep & trackName & sep & trackArtist & sep & "
         "trackAlbum & sep & durationMs & sep & positionMs & sep & shuffleText & sep & "
         "repeatText & sep & artworkLink\n";
}

std::string musicReadScript() {
  return trackReadScript(AppleScriptPlayer::music,
                         {.durationMs = "my msOf(duration of t)",
                          .inTrack = "",
                          // Radio streams have no track name, only a stream title.
                          .afterTrack = "\t\tif trackName is \"\" then\n"
                                        "\t\t\ttry\n"
                                        "\t\t\t\tset trackName to my textOf(current stream title)\n"
                                        "\t\t\tend try\n"
                                        "\t\tend if\n",
                          .shuffle = "shuffle enabled",
                          .repeat = "\t\tif song repeat is one then set repeatText to \"one\"\n"
                                    "\t\tif song repeat is all then set repeatText to \"all\"\n"});
}

std::string spotifyReadScript() {
  return trackReadScript(AppleScriptPlayer::spotify,
                         {.durationMs = "my textOf(duration of t)",
                          .inTrack = "\t\t\tset artworkLink to my textOf(artwork url of t)\n",
                          .afterTrack = "",
                          .shuffle = "shuffling",
                          .repeat = "\t\tif repeating then set repeatText to \"all\"\n"});
}

std::string isMediaURLHandler() {
  std::string prefixes;
  for (std::string_view prefix : BrowserTabSearch::mediaURLPrefixes) {
    if (!prefixes.empty()) prefixes += ", ";
    prefixes += quoted(prefix);
  }
  return "on isMediaURL(u)\n\trepeat with p in {" + prefixes +
         "}\n"
         "\t\tif u starts with (contents of p) then return true\n"
         "\tend repeat\n"
         "\treturn false\n"
         "end isMediaURL\n\n";
}

// The tab statements that differ between the browsers.
struct BrowserWords {
  std::string_view runStateJS;  // evaluates stateJS in tab t
  std::string_view tabName;     // the page title of tab t
  std::string_view runCommandJS;
};

BrowserWords browserWords(AppleScriptPlayer player) {
  if (player == AppleScriptPlayer::safari) {
    return {"do JavaScript stateJS in t", "name of t", "do JavaScript commandJS in chosenTab"};
  }
  return {"execute t javascript stateJS", "title of t", "execute chosenTab javascript commandJS"};
}

// Sets chosenTab, chosenName and chosenState: the first media tab, replaced by the first later
// one that plays. Errors in one window skip that window only.
std::string tabSearch(AppleScriptPlayer player, std::string_view whenNotRunning) {
  const BrowserWords words = browserWords(player);
  const std::string app = applicationReference(player);
  return "set sep to character id 31\n"
         "set stateJS to " +
         quoted(stateJS) + "\nif " + app + " is not running then return " + quoted(whenNotRunning) +
         "\n"
         "set chosenTab to missing value\n"
         "set chosenName to \"\"\n"
         "set chosenState to \"\"\n"
         "with timeout of 3 seconds\n"
         "\ttell " +
         app +
         "\n"
         "\t\trepeat with w in windows\n"
         "\t\t\ttry\n"
         "\t\t\t\tset tabURLs to URL of every tab of w\n"
         "\t\t\t\trepeat with i from 1 to count of tabURLs\n"
         "\t\t\t\t\tif my isMediaURL(my textOf(item i of tabURLs)) then\n"
         "\t\t\t\t\t\tset t to tab i of w\n"
         "\t\t\t\t\t\tset s to my textOf(" +
         std::string(words.runStateJS) +
         ")\n"
         "\t\t\t\t\t\tif chosenTab is missing value or s starts with \"playing\" then\n"
         "\t\t\t\t\t\t\tset chosenTab to t\n"
         "\t\t\t\t\t\t\tset chosenName to my textOf(" +
         std::string(words.tabName) +
         ")\n"
         "\t\t\t\t\t\t\tset chosenState to s\n"
         "\t\t\t\t\t\tend if\n"
         "\t\t\t\t\t\tif s starts with \"playing\" then exit repeat\n"
         "\t\t\t\t\tend if\n"
         "\t\t\t\tend repeat\n"
         "\t\t\tend try\n"
         "\t\t\tif chosenState starts with \"playing\" then exit repeat\n"
         "\t\tend repeat\n"
         "\tend tell\n"
         "end timeout\n";
}

std::string browserReadScript(AppleScriptPlayer player) {
  return std::string(handlers) + isMediaURLHandler() + tabSearch(player, "notrunning") +
         "if chosenTab is missing value then return \"idle\"\n"
         "return \"tab\" & sep & chosenName & sep & chosenState\n";
}

// --- command scripts ---

std::optional<std::string> musicStatement(const NowPlayingCommand& command) {
  struct Visitor {
    std::optional<std::string> operator()(const NowPlayingCommand::Seek& seek) const {
      if (!isSeekable(seek.to)) return std::nullopt;
      return "set player position to " + threeDecimals(seek.to);
    }
    std::optional<std::string> operator()(const NowPlayingCommand::SetShuffle& shuffle) const {
      return std::string("set shuffle enabled to ") +
             (shuffle.mode == ShuffleMode::off ? "false" : "true");
    }
    std::optional<std::string> operator()(const NowPlayingCommand::SetRepeat& repeat) const {
      const char* word = repeat.mode == RepeatMode::off     ? "off"
                         : repeat.mode == RepeatMode::track ? "one"
                                                            : "all";
      return std::string("set song repeat to ") + word;
    }
    std::optional<std::string> operator()(NowPlayingCommand::Play) const { return "play"; }
    std::optional<std::string> operator()(NowPlayingCommand::Pause) const { return "pause"; }
    std::optional<std::string> operator()(NowPlayingCommand::TogglePlayPause) const {
      return "playpause";
    }
    std::optional<std::string> operator()(NowPlayingCommand::NextTrack) const {
      return "next track";
    }
    std::optional<std::string> operator()(NowPlayingCommand::PreviousTrack) const {
      return "previous track";
    }
  };
  return std::visit(Visitor{}, command.value);
}

std::optional<std::string> spotifyStatement(const NowPlayingCommand& command) {
  if (const auto* shuffle = std::get_if<NowPlayingCommand::SetShuffle>(&command.value)) {
    return std::string("set shuffling to ") +
           (shuffle->mode == ShuffleMode::off ? "false" : "true");
  }
  if (const auto* repeat = std::get_if<NowPlayingCommand::SetRepeat>(&command.value)) {
    return std::string("set repeating to ") + (repeat->mode == RepeatMode::off ? "false" : "true");
  }
  return musicStatement(command);
}

std::optional<std::string> tabAction(const NowPlayingCommand& command) {
  struct Visitor {
    std::optional<std::string> operator()(const NowPlayingCommand::Seek& seek) const {
      if (!isSeekable(seek.to)) return std::nullopt;
      return "if(v)v.currentTime=" + threeDecimals(seek.to) + ";";
    }
    std::optional<std::string> operator()(NowPlayingCommand::Play) const {
      return "if(v)v.play();";
    }
    std::optional<std::string> operator()(NowPlayingCommand::Pause) const {
      return "if(v)v.pause();";
    }
    std::optional<std::string> operator()(NowPlayingCommand::TogglePlayPause) const {
      return "if(v){if(v.paused)v.play();else v.pause();}";
    }
    std::optional<std::string> operator()(NowPlayingCommand::NextTrack) const {
      return "var b=document.querySelector('.ytp-next-button, ytmusic-player-bar "
             ".next-button');if(b)b.click();";
    }
    std::optional<std::string> operator()(NowPlayingCommand::PreviousTrack) const {
      return std::nullopt;
    }
    std::optional<std::string> operator()(const NowPlayingCommand::SetShuffle&) const {
      return std::nullopt;
    }
    std::optional<std::string> operator()(const NowPlayingCommand::SetRepeat&) const {
      return std::nullopt;
    }
  };
  return std::visit(Visitor{}, command.value);
}

std::string applicationCommandScript(AppleScriptPlayer player, std::string_view statement) {
  const std::string app = applicationReference(player);
  return "if " + app +
         " is running then\n"
         "\twith timeout of 3 seconds\n"
         "\t\ttell " +
         app + " to " + std::string(statement) +
         "\n"
         "\tend timeout\n"
         "end if\n"
         "return \"ok\"\n";
}

std::string tabCommandScript(AppleScriptPlayer player, std::string_view action) {
  const std::string commandJS =
      "(function(){var v=document.querySelector('video');" + std::string(action) + "return '';})()";
  return std::string(handlers) + isMediaURLHandler() + tabSearch(player, "idle") +
         "if chosenTab is missing value then return \"idle\"\n"
         "set commandJS to " +
         quoted(commandJS) +
         "\n"
         "with timeout of 3 seconds\n"
         "\ttell " +
         applicationReference(player) + " to " + std::string(browserWords(player).runCommandJS) +
         "\nend timeout\n"
         "return \"ok\"\n";
}

// --- parsing ---

std::vector<std::string_view> fields(std::string_view output) {
  std::vector<std::string_view> parts;
  while (true) {
    const std::size_t end = output.find(fieldSeparator);
    parts.push_back(output.substr(0, end));
    if (end == std::string_view::npos) return parts;
    output.remove_prefix(end + 1);
  }
}

// Whole milliseconds as the scripts write them ("215000", or "2.15E+5" past AppleScript's
// integer range), in seconds; none when empty, unreadable or not finite.
std::optional<double> secondsFromMilliseconds(std::string_view text) {
  double ms = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), ms);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(ms)) {
    return std::nullopt;
  }
  return ms / 1000;
}

std::optional<double> within(std::optional<double> seconds, double low, bool lowIncluded) {
  if (!seconds) return std::nullopt;
  const bool aboveLow = lowIncluded ? *seconds >= low : *seconds > low;
  if (!aboveLow || *seconds > maxSeconds) return std::nullopt;
  return seconds;
}

std::optional<std::string> nonEmpty(std::string_view text) {
  if (text.empty()) return std::nullopt;
  return std::string(text);
}

std::optional<RepeatMode> repeatFromWord(std::string_view word) {
  if (word == "one") return RepeatMode::track;
  if (word == "all") return RepeatMode::all;
  if (word == "off") return RepeatMode::off;
  return std::nullopt;
}

NowPlayingSnapshot sampled(AppleScriptPlayer player, std::string title, bool isPlaying,
                           std::optional<double> duration, std::optional<double> position,
                           double sampledAt) {
  NowPlayingSnapshot snapshot;
  snapshot.bundleIdentifier = std::string(bundleIdentifier(player));
  snapshot.title = std::move(title);
  snapshot.isPlaying = isPlaying;
  snapshot.duration = within(duration, 0, false);
  snapshot.elapsed = within(position, 0, true);
  if (snapshot.elapsed) snapshot.elapsedTimestamp = sampledAt;
  snapshot.playbackRate = isPlaying ? 1 : 0;
  snapshot.capabilities = capabilities(player);
  return snapshot;
}

AppleScriptPlayerStatus parseTrack(AppleScriptPlayer player,
                                   const std::vector<std::string_view>& parts, double sampledAt) {
  if (parts.size() < 10) return AppleScriptPlayerStatus::unreadable();
  const std::string_view name = trimmedUnicodeWhitespace(parts[2]);
  if (name.empty()) return AppleScriptPlayerStatus::idle();
  NowPlayingSnapshot snapshot =
      sampled(player, std::string(name), parts[1] == "playing", secondsFromMilliseconds(parts[5]),
              secondsFromMilliseconds(parts[6]), sampledAt);
  snapshot.artist = nonEmpty(parts[3]);
  snapshot.album = nonEmpty(parts[4]);
  snapshot.shuffle = parts[7] == "true" ? ShuffleMode::tracks : ShuffleMode::off;
  snapshot.repeatMode = repeatFromWord(parts[8]);
  if (!parts[9].empty())
    snapshot.artwork = NowPlayingSnapshot::Artwork::remote(std::string(parts[9]));
  return AppleScriptPlayerStatus::playing(std::move(snapshot));
}

AppleScriptPlayerStatus parseTab(AppleScriptPlayer player,
                                 const std::vector<std::string_view>& parts, double sampledAt) {
  if (parts.size() < 3) return AppleScriptPlayerStatus::unreadable();
  std::optional<std::string> title = BrowserTabTitle::trackTitle(parts[1]);
  if (!title) return AppleScriptPlayerStatus::idle();
  std::string_view state = parts[2];
  const std::size_t firstComma = state.find(',');
  const std::string_view word = state.substr(0, firstComma);
  std::optional<double> position;
  std::optional<double> duration;
  if (firstComma != std::string_view::npos) {
    const std::string_view numbers = state.substr(firstComma + 1);
    const std::size_t secondComma = numbers.find(',');
    position = secondsFromMilliseconds(numbers.substr(0, secondComma));
    if (secondComma != std::string_view::npos) {
      duration = secondsFromMilliseconds(numbers.substr(secondComma + 1));
    }
  }
  return AppleScriptPlayerStatus::playing(
      sampled(player, std::move(*title), word == "playing", duration, position, sampledAt));
}

}  // namespace

std::string_view bundleIdentifier(AppleScriptPlayer player) {
  switch (player) {
    case AppleScriptPlayer::music:
      return "com.apple.Music";
    case AppleScriptPlayer::spotify:
      return "com.spotify.client";
    case AppleScriptPlayer::safari:
      return "com.apple.Safari";
    case AppleScriptPlayer::chrome:
      return "com.google.Chrome";
  }
  return "com.apple.Music";
}

NowPlayingCapabilities capabilities(AppleScriptPlayer player) {
  if (!isBrowser(player)) return NowPlayingCapabilities::all();
  return NowPlayingCapabilities::playPause() | NowPlayingCapabilities::nextTrack() |
         NowPlayingCapabilities::seek();
}

std::string readScript(AppleScriptPlayer player) {
  switch (player) {
    case AppleScriptPlayer::music:
      return musicReadScript();
    case AppleScriptPlayer::spotify:
      return spotifyReadScript();
    case AppleScriptPlayer::safari:
    case AppleScriptPlayer::chrome:
      return browserReadScript(player);
  }
  return musicReadScript();
}

std::optional<std::string> commandScript(AppleScriptPlayer player,
                                         const NowPlayingCommand& command) {
  if (isBrowser(player)) {
    const std::optional<std::string> action = tabAction(command);
    if (!action) return std::nullopt;
    return tabCommandScript(player, *action);
  }
  const std::optional<std::string> statement =
      player == AppleScriptPlayer::music ? musicStatement(command) : spotifyStatement(command);
  if (!statement) return std::nullopt;
  return applicationCommandScript(player, *statement);
}

AppleScriptPlayerStatus parse(AppleScriptPlayer player, std::string_view output, double sampledAt) {
  const std::vector<std::string_view> parts = fields(output);
  const std::string_view kind = parts.front();
  if (kind == "notrunning") return AppleScriptPlayerStatus::notRunning();
  if (kind == "idle") return AppleScriptPlayerStatus::idle();
  if (kind == "track" && !isBrowser(player)) return parseTrack(player, parts, sampledAt);
  if (kind == "tab" && isBrowser(player)) return parseTab(player, parts, sampledAt);
  return AppleScriptPlayerStatus::unreadable();
}

}  // namespace tindra
