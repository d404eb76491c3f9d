#include "testing/provider_test_context.h"

namespace tindra {

// The settings clock only names the copy of a settings file that does not read.
ProviderTestContext::ProviderTestContext(ActivityCenter::Clock clock,
                                         std::unique_ptr<OneShotScheduler> expiry)
    : settings_(dir_.filePath(QStringLiteral("settings.json")).toStdString(), [] { return 0.0; }),
      activities_(settings_, std::move(clock), std::move(expiry)) {}

}  // namespace tindra
