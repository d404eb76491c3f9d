#include "nowplaying/adapter_launch.h"

namespace tindra {

AdapterLaunch AdapterLaunch::perlScript(std::string_view scriptPath, std::string_view frameworkPath,
                                        std::string_view testClientPath) {
  const std::string script(scriptPath);
  const std::string framework(frameworkPath);
  const std::string testClient(testClientPath);
  return {"/usr/bin/perl",
          {script, framework},
          {script, framework, testClient},
          {script, framework, testClient},
          "Run scripts/fetch-mediaremote-adapter.sh on the Mac, then rebuild."};
}

AdapterLaunch AdapterLaunch::helperProgram(std::string_view programPath) {
  return {std::string(programPath),
          {},
          {},
          {std::string(programPath)},
          "Build the tools (make build) or reinstall Tindra, which places tindra-mpris-adapter "
          "beside tindra."};
}

std::vector<std::string> AdapterLaunch::arguments(const std::vector<std::string>& words) const {
  std::vector<std::string> all = leadingWords;
  all.insert(all.end(), words.begin(), words.end());
  return all;
}

std::vector<std::string> AdapterLaunch::testArguments() const {
  std::vector<std::string> all = testLeadingWords;
  all.emplace_back("test");
  return all;
}

}  // namespace tindra
