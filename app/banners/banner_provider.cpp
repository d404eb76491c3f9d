#include "banners/banner_provider.h"
#include "banners/fake_notification_source.h"
#include "base/backend_selection.h"
#include "settings/settings_store.h"

#include "base/activity_center.h"
#include "base/diagnostics_log.h"
#include "base/logging_categories.h"
#include "base/qt_text.h"
#include "settings/durable_file.h"
#include "settings/settings_keys.h"

namespace tindra {

BannerProvider::BannerProvider(ProviderContext context, std::unique_ptr<NotificationSource> source,
                               std::shared_ptr<FocusStatusSource> focus,
                               std::unique_ptr<ApplicationOpener> opener, BannerApps apps,
                               QObject* parent)
    : Provider(context, id, parent),
      source_(std::move(source)),
      focus_(std::move(focus)),
      opener_(std::move(opener)),
      apps_(std::move(apps)),
      viewModel_([this] { openSender(); }) {
  connect(source_.get(), &NotificationSource::notified, this, &BannerProvider::onNotified);
  connect(source_.get(), &NotificationSource::closed, this, &BannerProvider::onClosed);
  connect(source_.get(), &NotificationSource::serverGone, this, &BannerProvider::clearAll);
  ringLimit_.setSingleShot(true);
  ringLimit_.setInterval(longestRing);
  connect(&ringLimit_, &QTimer::timeout, this, [this] { setRinging(std::nullopt); });
  connect(focus_.get(), &FocusStatusSource::focusedChanged, this, [this] {
    if (focus_->focused().value_or(false)) clearAll();
  });
}

BannerApps BannerProvider::userApps(const std::filesystem::path& file) {
  const std::expected<std::string, int> text = DurableFile(file).read();
  return text ? BannerApps::decode(*text) : BannerApps::defaults();
}

void BannerProvider::start() {
  observation_ = settings().observe({std::string(settings::experimentalCallNotices.name),
                                     std::string(settings::experimentalMessageNotices.name)},
                                    [this](std::string_view) { follow(); });
  followCheck(lcBanners(), *source_);
  follow();
}

// Notifications are read only while calls or messages are wanted.
void BannerProvider::follow() {
  const bool calls = settings().read(settings::experimentalCallNotices);
  const bool messages = settings().read(settings::experimentalMessageNotices);
  if (!calls) setRinging(std::nullopt);
  if (!messages) clearMessage();
  if (calls || messages) {
    source_->start();
  } else {
    source_->stop();
  }
}

void BannerProvider::onNotified(const DesktopNotification& sent) {
  if (focus_->focused().value_or(false)) return;  // the desktop shows no banners either
  // The installed entry's name: for the button, and for GLib's notifications, which name only
  // their application's id.
  const QString installed = opener_->displayName(toQString(sent.desktopEntry));
  DesktopNotification notification = sent;
  if (notification.appName.empty()) notification.appName = installed.toStdString();
  const std::optional<BannerEvent> event = classifyNotification(
      notification, apps_, settings().read(settings::experimentalMessageNotices),
      settings().read(settings::experimentalCallNotices));
  const QString app = toQString(notification.app());
  if (event && event->isIncomingCall()) {
    setRinging(notification.id, app);
    return;
  }
  // A ringing notification replaced by anything else has stopped ringing; one replaced by
  // something we do not show is gone.
  if (ringingId_ == notification.id) setRinging(std::nullopt);
  const BannerEvent::Notice* notice = event ? event->asNotice() : nullptr;
  if (!notice) {
    if (messageId_ == notification.id) clearMessage();
    return;
  }
  messageId_ = notification.id;
  messageEntry_ = toQString(notification.desktopEntry);
  viewModel_.setMessage(BannerViewModel::Message{
      toQString(notice->app), toQString(notice->title), toQString(notice->body.value_or("")),
      notice->isCall, installed.isEmpty() ? QString() : tr("Open %1").arg(installed)});
  qCInfo(lcBanners).noquote() << (notice->isCall ? "missed call from" : "message from") << app;
  activities().offer(ActivityEvent::began(ActivityKind::message, messageDuration));
}

void BannerProvider::onClosed(quint32 id) {
  if (ringingId_ == id) setRinging(std::nullopt);
  if (messageId_ == id) clearMessage();
}

void BannerProvider::setRinging(std::optional<quint32> id, const QString& app) {
  const bool wasRinging = ringingId_.has_value();
  ringingId_ = id;
  if (id) {
    ringLimit_.start();
  } else {
    ringLimit_.stop();
  }
  viewModel_.setRinging(id.has_value(), id ? app : viewModel_.callApp());
  if (wasRinging == id.has_value()) return;
  qCInfo(lcBanners).noquote() << "Call" << viewModel_.callApp()
                              << (id ? "ringing" : "no longer ringing");
  activities().offer(id ? ActivityEvent::began(ActivityKind::incomingCall)
                        : ActivityEvent::ended(ActivityKind::incomingCall));
}

void BannerProvider::clearMessage() {
  if (!messageId_) return;
  messageId_.reset();
  messageEntry_.clear();
  viewModel_.setMessage(std::nullopt);
  activities().offer(ActivityEvent::ended(ActivityKind::message));
}

void BannerProvider::clearAll() {
  setRinging(std::nullopt);
  clearMessage();
}

void BannerProvider::openSender() {
  if (!messageEntry_.isEmpty()) opener_->open(messageEntry_);
}

std::unique_ptr<BannerProvider> BannerProvider::make(ProviderContext& context) {
  SharedBackends& shared = *context.shared;
  return std::make_unique<BannerProvider>(
      context,
      chooseBackend(
          id, shared, [] { return std::make_unique<FakeNotificationSource>(); },
          [&] { return NotificationSource::forPlatform(shared); }),
      FocusStatusSource::shared(shared), ApplicationOpener::forPlatform(),
      userApps(context.settings.file().parent_path() / "banner-apps.json"));
}

// A call or a message is a section only while it shows, after the level indicator.
ProviderViews BannerProvider::views() {
  return {.compact = {{ActivityKind::message, QStringLiteral("banners/MessageCompact.qml")},
                      {ActivityKind::incomingCall, QStringLiteral("banners/CallCompact.qml")}},
          .sections = {{.name = QStringLiteral("banners"),
                        .rank = 10,
                        .file = QStringLiteral("banners/BannerPanel.qml"),
                        .transient = true}}};
}

}  // namespace tindra
