// BannerProvider ("banners"): calls and messages from the desktop's notifications. With
// `experimentalCallNotices` a ringing call shows only that it rings (incomingCall, until the
// notification closes); with `experimentalMessageNotices` a message or missed call shows who and
// what for seven seconds (message), withdrawn when its notification closes. The notifications
// are read only while one of the two is on, nothing shows while the desktop's do-not-disturb
// is on, and nothing is stored or sent.
#pragma once

#include <QTimer>
#include <chrono>
#include <filesystem>
#include <memory>

#include "banners/application_opener.h"
#include "banners/banner_view_model.h"
#include "banners/notification_source.h"
#include "base/provider.h"
#include "base/provider_views.h"
#include "focus/desktop_notification.h"
#include "focus/focus_status_source.h"
#include "settings/settings_store.h"

namespace tindra {

class BannerProvider final : public Provider {
  Q_OBJECT

 public:
  static constexpr std::string_view id = "banners";
  // With the backends this platform gives it (the fake ones when TINDRA_FAKE names "banners").
  static std::unique_ptr<BannerProvider> make(ProviderContext& context);
  static ProviderViews views();

  // Seconds a message or missed call stays, whatever the notice-length setting says.
  static constexpr double messageDuration = 7.0;
  // A call whose notification is never withdrawn (its program died) stops ringing after this.
  static constexpr std::chrono::seconds longestRing{120};

  // `focus` is the desktop's do-not-disturb, shared with the Focus provider. `apps` names the
  // call and message applications that send no category.
  BannerProvider(ProviderContext context, std::unique_ptr<NotificationSource> source,
                 std::shared_ptr<FocusStatusSource> focus,
                 std::unique_ptr<ApplicationOpener> opener, BannerApps apps,
                 QObject* parent = nullptr);

  // "banner-apps.json" beside the settings file: the user's own call and message applications.
  static BannerApps userApps(const std::filesystem::path& file);

  void start() override;
  BannerViewModel* viewModel() override { return &viewModel_; }

 private:
  void follow();
  void onNotified(const DesktopNotification& notification);
  void onClosed(quint32 id);
  void setRinging(std::optional<quint32> id, const QString& app = {});
  void clearMessage();
  void clearAll();
  void openSender();

  std::unique_ptr<NotificationSource> source_;
  std::shared_ptr<FocusStatusSource> focus_;
  std::unique_ptr<ApplicationOpener> opener_;
  BannerApps apps_;
  SettingsObservation observation_;
  std::optional<quint32> ringingId_;
  std::optional<quint32> messageId_;
  QString messageEntry_;
  QTimer ringLimit_{this};
  BannerViewModel viewModel_;
};

}  // namespace tindra
