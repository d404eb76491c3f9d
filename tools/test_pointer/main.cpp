// tindra-test-pointer: a pointer for tests on a wlroots compositor that has no input devices
// (headless sway). It joins a virtual pointer to the compositor's seat, so the seat gains a
// pointer that every client hears, then drives it from commands on standard input, one a line.
// Each command is answered by one line on standard output, "ok" or "error: <why>", once the
// compositor has handled it, so a test can wait for each step:
//   move X Y            the pointer to (X, Y) in the compositor's global layout, logical pixels;
//                       the layout is the outputs' bounds as xdg-output reports them
//   press, release      the left button; right-press, right-release the right one
//   scroll DX DY        one step of two fingers on a touchpad, pixels, positive down and right
//   scroll-stop         the fingers lift
//   wheel N             N detents of the wheel, positive down
//   drag-files URI...   starts dragging the files: a 64x64 surface of this program's own appears
//                       centred at the bottom of the first output, the pointer presses on it and
//                       a drag offering text/uri-list begins; the button stays held, so a "move"
//                       onto the target and a "release" drop the files there. The target must
//                       have answered first ("event: action copy" below): a release before that
//                       is a drop nobody accepted, and the compositor cancels the drag
//   quit                (or the end of the input) disconnects; the pointer leaves the seat
// What a drag's data source hears comes whenever it comes, on lines of its own: "event: accepted
// <type>|none", "event: action copy|move|ask|none", "event: dropped", "event: sent" (the list
// was written to the receiver), "event: finished", "event: cancelled". Any number of them may
// come before a command's answer.
#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "pointer_commands.h"
#include "virtual_pointer.h"
#include "wayland_client.h"

namespace {

void say(const std::string& line) {
  std::fputs((line + "\n").c_str(), stdout);
  std::fflush(stdout);
}

// Runs the complete lines that have come; false once the input ended or "quit" came.
bool runLines(std::string& pending, tindra::PointerCommands& commands) {
  char chunk[4096];
  const ssize_t got = read(STDIN_FILENO, chunk, sizeof chunk);
  if (got <= 0) return false;
  pending.append(chunk, static_cast<std::size_t>(got));
  for (std::size_t end; (end = pending.find('\n')) != std::string::npos;) {
    const std::string line = pending.substr(0, end);
    pending.erase(0, end + 1);
    say(commands.run(line));
    if (commands.quitting()) return false;
  }
  return true;
}

}  // namespace

int main() {
  // A receiver that closes its end early must not end the program.
  signal(SIGPIPE, SIG_IGN);
  std::string error;
  const auto wayland = tindra::WaylandClient::connect(error);
  if (!wayland) {
    std::fprintf(stderr, "tindra-test-pointer: %s\n", error.c_str());
    return 1;
  }
  tindra::VirtualPointer pointer(wayland->virtualPointers(), wayland->seat().seat());
  // The seat announces its new pointer, then this program's own wl_pointer is bound.
  wayland->roundtrip();
  wayland->roundtrip();
  tindra::PointerCommands commands(*wayland, pointer,
                                   [](const std::string& event) { say("event: " + event); });
  std::string pending;
  while (wayland->dispatchUntilReadable(STDIN_FILENO)) {
    if (!runLines(pending, commands)) break;
  }
  if (!wayland->isOpen()) {
    std::fprintf(stderr, "tindra-test-pointer: the compositor closed the connection\n");
    return 1;
  }
  return 0;
}
