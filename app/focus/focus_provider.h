// FocusProvider ("focus"): a Focus turning on or changing shows in the notch for 2.5 seconds with
// its name and symbol, and with `focusKeepsIndicator` a mark stays while it lasts. The name and
// symbol come from the Focus filter state that `tindra focus` writes to `focusFilterState`; the
// desktop's do-not-disturb, from the status source, is an unnamed Focus. `focusShown` off shows
// nothing.
#pragma once

#include <memory>
#include <optional>

#include "base/provider.h"
#include "base/provider_views.h"
#include "focus/focus_presentation.h"
#include "focus/focus_status_source.h"
#include "focus/focus_view_model.h"
#include "settings/settings_store.h"

namespace tindra {

class FocusProvider final : public Provider {
  Q_OBJECT

 public:
  static constexpr std::string_view id = "focus";
  // With the backends this platform gives it (the fake ones when TINDRA_FAKE names "focus").
  static std::unique_ptr<FocusProvider> make(ProviderContext& context);
  static ProviderViews views();

  // `status` may be shared with the banner provider, which keeps quiet while a Focus is on.
  FocusProvider(ProviderContext context, std::shared_ptr<FocusStatusSource> status,
                QObject* parent = nullptr);

  void start() override;
  FocusViewModel* viewModel() override { return &viewModel_; }

  const std::optional<FocusPresentation::Shown>& shown() const { return shown_; }
  const std::optional<FocusPresentation::Shown>& lastTurnedOff() const { return lastTurnedOff_; }

 private:
  void update();

  std::shared_ptr<FocusStatusSource> status_;
  SettingsObservation observation_;
  std::optional<FocusPresentation::Shown> shown_;
  std::optional<FocusPresentation::Shown> lastTurnedOff_;
  FocusViewModel viewModel_;
};

}  // namespace tindra
