#include "banners/banner_provider.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>
#include <fstream>

#include "banners/fake_notification_source.h"
#include "focus/fake_focus_status_source.h"
#include "settings/settings_keys.h"
#include "testing/picture_checks.h"
#include "testing/provider_test_context.h"
#include "testing/view_shot.h"

namespace tindra {
namespace {

class RecordingOpener final : public ApplicationOpener {
 public:
  QString displayName(const QString& entry) const override {
    return entry == QLatin1String("org.example.Chat") ? QStringLiteral("Chat") : QString();
  }
  bool open(const QString& entry) override {
    opened << entry;
    return true;
  }
  QStringList opened;
};

class BannerProviderTest : public ::testing::Test {
 protected:
  BannerProviderTest() {
    auto source = std::make_unique<FakeNotificationSource>();
    source_ = source.get();
    auto opener = std::make_unique<RecordingOpener>();
    opener_ = opener.get();
    provider_ = std::make_unique<BannerProvider>(context_, std::move(source), focus_,
                                                 std::move(opener), BannerApps::defaults());
  }

  void enable(bool calls, bool messages) {
    ASSERT_TRUE(context_.settings().write(settings::experimentalCallNotices, calls));
    ASSERT_TRUE(context_.settings().write(settings::experimentalMessageNotices, messages));
  }

  static DesktopNotification message(quint32 id, std::string body = "See you at <b>noon</b>") {
    return {.id = id,
            .appName = "Chat",
            .desktopEntry = "org.example.Chat",
            .summary = "Ana",
            .body = std::move(body),
            .category = "im.received"};
  }
  static DesktopNotification call(quint32 id, std::string category = "call.incoming") {
    return {.id = id, .appName = "Phone", .summary = "Ana", .category = std::move(category)};
  }

  ProviderTestContext context_;
  std::shared_ptr<FakeFocusStatusSource> focus_ = std::make_shared<FakeFocusStatusSource>();
  FakeNotificationSource* source_ = nullptr;
  RecordingOpener* opener_ = nullptr;
  std::unique_ptr<BannerProvider> provider_;
};

TEST_F(BannerProviderTest, NotificationsAreReadOnlyWhileCallsOrMessagesAreWanted) {
  provider_->start();
  EXPECT_FALSE(source_->running());
  enable(false, true);
  EXPECT_TRUE(source_->running());
  enable(false, false);
  EXPECT_FALSE(source_->running());
}

TEST_F(BannerProviderTest, ARingingCallLastsUntilItsNotificationCloses) {
  enable(true, false);
  provider_->start();
  source_->send(call(4));
  EXPECT_EQ(context_.activities().current(), ActivityKind::incomingCall);
  EXPECT_TRUE(provider_->viewModel()->ringing());
  EXPECT_EQ(provider_->viewModel()->callApp(), "Phone");

  source_->close(3);  // someone else's
  EXPECT_EQ(context_.activities().current(), ActivityKind::incomingCall);
  source_->close(4);
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);
  EXPECT_FALSE(provider_->viewModel()->showing());

  // A call nobody withdraws (its program died) stops ringing on its own.
  source_->send(call(6));
  EXPECT_TRUE(provider_->viewModel()->ringing());
  auto* limit = provider_->findChild<QTimer*>();
  ASSERT_NE(limit, nullptr);
  EXPECT_TRUE(limit->isActive());
  EXPECT_EQ(limit->intervalAsDuration(), BannerProvider::longestRing);
  limit->start(1);  // two minutes are long for a test
  EXPECT_TRUE(QTest::qWaitFor([&] { return !provider_->viewModel()->ringing(); }));
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);

  // A ringing notification replaced by the missed call stops ringing, and the missed call shows
  // with the calls, though messages are off.
  source_->send(call(5));
  source_->send(call(5, "call.unanswered"));
  EXPECT_FALSE(provider_->viewModel()->ringing());
  EXPECT_EQ(context_.activities().current(), ActivityKind::message);
  EXPECT_TRUE(provider_->viewModel()->missedCall());
}

TEST_F(BannerProviderTest, AMessageShowsWhoAndWhatWithAButtonThatOpensItsSender) {
  enable(true, true);
  provider_->start();
  source_->send(message(7));
  EXPECT_EQ(context_.activities().current(), ActivityKind::message);
  BannerViewModel& view = *provider_->viewModel();
  EXPECT_EQ(view.app(), "Chat");
  EXPECT_EQ(view.title(), "Ana");
  EXPECT_EQ(view.body(), "See you at noon");
  EXPECT_EQ(view.openText(), "Open Chat");
  view.open();
  EXPECT_EQ(opener_->opened, QStringList{"org.example.Chat"});

  // Closed: a green bubble on the left ear, the sender on the right one.
  const QImage compact = viewShot(compactView<BannerProvider>(ActivityKind::message), &view,
                                  {260, 32}, "message-compact");
  EXPECT_GT(countPixels(compact, hueOf("#30d158"), {0, 0, 40, 32}), 100);
  EXPECT_GT(countPixels(compact, near(Qt::white), rightHalf(compact)), 20);
  // Opened, from the top: the app in grey, the sender large, the text, the blue Open button with
  // its label.
  const QImage panel =
      viewShot(QUrl("qrc:/Tindra/banners/BannerPanel.qml"), &view, {280, 110}, "message-panel");
  EXPECT_GT(countPixels(panel, near("#a1a1a6"), {0, 0, 280, 14}), 20);
  EXPECT_GE(drawnArea(panel, {0, 16, 280, 24}).height(), 10);
  EXPECT_GT(countPixels(panel, isDrawn, {0, 44, 280, 18}), 60);
  const QRect button{0, 64, 280, 30};
  EXPECT_GT(countPixels(panel, hueOf("#0a84ff"), button), 800);
  EXPECT_GT(countPixels(panel, near(Qt::white), button), 40);

  source_->close(7);
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);
  EXPECT_FALSE(view.hasMessage());
}

TEST_F(BannerProviderTest, NothingShowsWhileTheDesktopKeepsBannersQuiet) {
  enable(true, true);
  provider_->start();
  source_->send(call(1));
  source_->send(message(2));
  focus_->setFocused(true);  // do-not-disturb takes away what shows
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);
  source_->send(call(3));
  source_->send(message(4));
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);
  EXPECT_FALSE(provider_->viewModel()->showing());
}

TEST_F(BannerProviderTest, HostileTextIsShownPlainAndShort) {
  enable(false, true);
  provider_->start();
  std::string body = "<a href='x'>\xff\xfe</a>" + std::string(2'000'000, 'z') + "<b>";
  DesktopNotification hostile = message(9, body);
  hostile.summary = "<i>Ana</i>\x01";
  hostile.desktopEntry = "../../../bin/sh";
  source_->send(hostile);
  BannerViewModel& view = *provider_->viewModel();
  EXPECT_EQ(view.title(), "Ana");
  EXPECT_TRUE(view.body().startsWith(QStringLiteral("\uFFFD\uFFFDzzz")));
  EXPECT_LE(view.body().size(), 300);
  EXPECT_TRUE(view.openText().isEmpty());
  view.open();
  EXPECT_EQ(opener_->opened, QStringList{"../../../bin/sh"});  // the opener refuses paths
}

TEST_F(BannerProviderTest, TheUsersOwnAppListIsReadBesideTheSettings) {
  const std::filesystem::path file = context_.filePath("banner-apps.json").toStdString();
  std::ofstream(file) << R"({"messageApps": ["mail"]})";
  EXPECT_EQ(BannerProvider::userApps(file).messages, std::vector<std::string>{"mail"});
  EXPECT_EQ(BannerProvider::userApps(context_.filePath("none.json").toStdString()).messages,
            BannerApps::defaults().messages);
}

}  // namespace
}  // namespace tindra
