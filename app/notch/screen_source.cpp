#include "notch/screen_source.h"

namespace tindra {

QString ScreenSource::builtInName() {
  return tr("Built-in display");
}

void ScreenSource::nameScreens(std::vector<PlatformScreen>& screens) {
  std::vector<DisplayIdentity> identities;
  for (const PlatformScreen& screen : screens) identities.push_back(screen.identity);
  const std::vector<std::string> names =
      DisplayNaming::names(identities, builtInName().toStdString());
  for (std::size_t i = 0; i < screens.size(); ++i) {
    screens[i].candidate.name = names[i];
    screens[i].candidate.isBuiltIn = DisplayNaming::isBuiltInConnector(identities[i].connector);
  }
}

bool ScreenSource::refersTo(const PlatformScreen& screen, std::string_view stored) {
  return screen.candidate.name == stored ||
         DisplayNaming::refersTo(stored, screen.identity, builtInName().toStdString());
}

}  // namespace tindra
