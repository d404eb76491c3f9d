#include "base/dbus/dbus_value.h"

#include <gtest/gtest.h>

#include <limits>

namespace tindra::dbus {
namespace {

TEST(DBusValueTest, AnIntegerIsTakenFromAnyIntegerTypeThatHoldsIt) {
  EXPECT_EQ(typed<int>(QVariant::fromValue<uchar>(200)), 200);
  EXPECT_EQ(typed<uchar>(QVariant(255u)), 255);
  EXPECT_FALSE(typed<uchar>(QVariant(256u)));
  EXPECT_FALSE(typed<uint>(QVariant(-1)));
  constexpr qlonglong largest = std::numeric_limits<qlonglong>::max();
  EXPECT_EQ(typed<qlonglong>(QVariant::fromValue<qulonglong>(largest)), largest);
  EXPECT_FALSE(typed<qlonglong>(QVariant::fromValue<qulonglong>(qulonglong(largest) + 1)));
  // A truth value, a fraction or text is no integer, nor an integer a fraction or a truth value.
  EXPECT_FALSE(typed<int>(QVariant(true)));
  EXPECT_FALSE(typed<int>(QVariant(2.0)));
  EXPECT_FALSE(typed<int>(QVariant(QStringLiteral("2"))));
  EXPECT_FALSE(typed<double>(QVariant(2)));
  EXPECT_FALSE(typed<bool>(QVariant(1)));
}

TEST(DBusValueTest, TakeKeepsTheFieldWhenTheValueIsMissingOrWrong) {
  const QVariantMap properties{{"Percentage", 42.5}, {"State", 2u}, {"Vendor", 7}};
  double percentage = 0;
  int state = 0;
  QString vendor = QStringLiteral("before");
  EXPECT_TRUE(take(properties, QStringLiteral("Percentage"), percentage));
  EXPECT_TRUE(take(properties, QStringLiteral("State"), state));
  EXPECT_FALSE(take(properties, QStringLiteral("Vendor"), vendor));
  EXPECT_FALSE(take(properties, QStringLiteral("Missing"), state));
  EXPECT_EQ(percentage, 42.5);
  EXPECT_EQ(state, 2);
  EXPECT_EQ(vendor, "before");
}

}  // namespace
}  // namespace tindra::dbus
