// Runs in: private-session --xvfb
#include "base/linux/xcb_connection.h"

#include <gtest/gtest.h>

#include <QTest>

namespace tindra {
namespace {

class XcbConnectionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (qEnvironmentVariableIsEmpty("DISPLAY")) GTEST_SKIP() << "no X display";
  }
};

// A round trip, after which the server has done everything asked before it.
void roundTrip(XcbConnection& connection) {
  connection.reply(xcb_get_input_focus_reply, xcb_get_input_focus(connection.get()));
}

TEST_F(XcbConnectionTest, EventsThatCameAlongWithAReplyStillReachTheirSubscribers) {
  XcbConnection ours;
  XcbConnection theirs;  // another client, whose changes ours follows
  ASSERT_TRUE(ours.isOpen());
  const xcb_window_t window = xcb_generate_id(ours.get());
  const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(ours.get(), XCB_COPY_FROM_PARENT, window, ours.root(), 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &mask);
  roundTrip(ours);

  QObject receiver;
  std::vector<xcb_atom_t> changed;
  ours.subscribe(&receiver, {XCB_PROPERTY_NOTIFY}, [&](const xcb_generic_event_t& event) {
    changed.push_back(reinterpret_cast<const xcb_property_notify_event_t&>(event).atom);
  });
  int heardWhenGone = 0;
  {
    QObject gone;
    ours.subscribe(&gone, {XCB_PROPERTY_NOTIFY},
                   [&](const xcb_generic_event_t&) { ++heardWhenGone; });
  }

  const auto [name] = theirs.internAtoms(std::array<std::string_view, 1>{"TINDRA_TEST"});
  xcb_change_property(theirs.get(), XCB_PROP_MODE_REPLACE, window, name, XCB_ATOM_STRING, 8, 2,
                      "on");
  roundTrip(theirs);
  // Waiting for this reply reads the event off the socket into xcb's queue, where the socket
  // notifier never sees it.
  roundTrip(ours);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !changed.empty(); }, 2000));
  EXPECT_EQ(changed, std::vector<xcb_atom_t>{name});
  EXPECT_EQ(heardWhenGone, 0);
}

TEST_F(XcbConnectionTest, AtomsAskedTogetherComeBackInTheOrderAsked) {
  XcbConnection connection;
  const std::array<xcb_atom_t, 3> atoms =
      connection.internAtoms(std::array<std::string_view, 3>{"WM_CLASS", "PRIMARY", "STRING"});
  EXPECT_EQ(atoms,
            (std::array<xcb_atom_t, 3>{XCB_ATOM_WM_CLASS, XCB_ATOM_PRIMARY, XCB_ATOM_STRING}));
}

}  // namespace
}  // namespace tindra
