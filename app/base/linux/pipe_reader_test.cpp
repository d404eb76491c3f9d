#include "base/linux/pipe_reader.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QTest>

namespace tindra {
namespace {

struct Pipe {
  int read = -1;
  int write = -1;
  Pipe() {
    int fds[2];
    EXPECT_EQ(pipe(fds), 0);
    read = fds[0];
    write = fds[1];
  }
  ~Pipe() {
    if (write >= 0) close(write);
  }
  void closeWriter() { close(std::exchange(write, -1)); }
};

TEST(PipeReaderTest, HandsOverEverythingOnceTheWriterCloses) {
  Pipe pipe;
  std::optional<std::optional<QByteArray>> got;
  PipeReader reader(pipe.read, [&](std::optional<QByteArray> data) { got = std::move(data); });
  // More than one read's worth, in pieces, with the event loop turning between them.
  const QByteArray piece(3000, 'x');
  for (int i = 0; i < 3; ++i) {
    ASSERT_EQ(write(pipe.write, piece.constData(), piece.size()), piece.size());
    QTest::qWait(10);
  }
  EXPECT_FALSE(got) << "nothing is handed over before the end";
  pipe.closeWriter();
  ASSERT_TRUE(QTest::qWaitFor([&] { return got.has_value(); }, 2000));
  ASSERT_TRUE(got->has_value());
  EXPECT_EQ((*got)->size(), 9000);
}

TEST(PipeReaderTest, GivesUpOnAWriterThatNeverCloses) {
  Pipe pipe;
  std::optional<std::optional<QByteArray>> got;
  PipeReader reader(
      pipe.read, [&](std::optional<QByteArray> data) { got = std::move(data); }, 100);
  ASSERT_EQ(write(pipe.write, "file:///a\r\n", 11), 11);
  ASSERT_TRUE(QTest::qWaitFor([&] { return got.has_value(); }, 2000));
  EXPECT_FALSE(got->has_value()) << "a half-written list is no list";
}

}  // namespace
}  // namespace tindra
