// AdapterLaunch: how this platform runs the now-playing adapter: the program, the words that go
// before each run's own, and the files that must exist. On a Mac that is perl with the bundled
// script and framework (and the test client for the self-test); on the desktop it is the
// tindra-mpris-adapter helper alone. One adapter source serves both.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tindra {

struct AdapterLaunch {
  std::string program;
  std::vector<std::string> leadingWords;      // before the words of every run but the self-test
  std::vector<std::string> testLeadingWords;  // before "test"
  std::vector<std::string> requiredFiles;     // missing ones make the adapter "not bundled"
  std::string missingHint;                    // what a person does about missing files

  // "/usr/bin/perl" with script and framework; the self-test adds the test client.
  static AdapterLaunch perlScript(std::string_view scriptPath, std::string_view frameworkPath,
                                  std::string_view testClientPath);
  // A helper program that takes the adapter's words itself.
  static AdapterLaunch helperProgram(std::string_view programPath);

  // The arguments after the program for a run of `words` (a stream or a command).
  std::vector<std::string> arguments(const std::vector<std::string>& words) const;
  // The arguments after the program for the self-test.
  std::vector<std::string> testArguments() const;

  friend bool operator==(const AdapterLaunch&, const AdapterLaunch&) = default;
};

}  // namespace tindra
