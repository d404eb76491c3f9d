#include "base/serial_worker.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QThread>
#include <atomic>
#include <latch>
#include <memory>
#include <vector>

namespace tindra {
namespace {

// Keeps the worker's thread on one task until opened, so a test knows which tasks have begun.
class Gate {
 public:
  // Its task answers 0 with `done`.
  template <class Done>
  void hold(SerialWorker& worker, QObject& receiver, Done done) {
    worker.post(
        &receiver,
        [this] {
          began_.count_down();
          open_.wait();
          return 0;
        },
        std::move(done));
    began_.wait();
  }
  void open() { open_.count_down(); }

 private:
  std::latch began_{1};
  std::latch open_{1};
};

// Waits until everything posted before it has been answered.
void drain(SerialWorker& worker) {
  QObject marker;
  bool answered = false;
  worker.post(
      &marker, [] { return 0; }, [&](int) { answered = true; });
  ASSERT_TRUE(QTest::qWaitFor([&] { return answered; }, 5000));
}

TEST(SerialWorkerTest, RunsTasksOneAtATimeOffTheMainThreadAndAnswersInOrder) {
  SerialWorker worker;
  std::vector<std::unique_ptr<QObject>> receivers(20);
  std::atomic<int> running = 0;
  std::atomic<int> mostAtOnce = 0;
  std::atomic<bool> onMainThread = false;
  std::vector<int> answers;
  bool answeredElsewhere = false;
  for (int i = 0; i < 20; ++i) {
    receivers[i] = std::make_unique<QObject>();
    worker.post(
        receivers[i].get(),
        [&, i] {
          mostAtOnce = std::max(mostAtOnce.load(), ++running);
          onMainThread = onMainThread || QThread::currentThread() == qApp->thread();
          QThread::usleep(500);
          --running;
          return i;
        },
        [&](int i) {
          answeredElsewhere |= QThread::currentThread() != qApp->thread();
          answers.push_back(i);
        });
  }
  drain(worker);
  ASSERT_EQ(answers.size(), 20U);
  for (int i = 0; i < 20; ++i) EXPECT_EQ(answers[i], i);
  EXPECT_EQ(mostAtOnce, 1);
  EXPECT_FALSE(onMainThread);
  EXPECT_FALSE(answeredElsewhere);
}

TEST(SerialWorkerTest, ANewerTaskReplacesOnlyTheSameReceiversTaskNotYetBegun) {
  SerialWorker worker;
  QObject busy, feed, other;
  std::vector<std::pair<QObject*, int>> answers;
  std::atomic<bool> replacedRan = false;
  const auto answer = [&](QObject* receiver) {
    return [&answers, receiver](int value) { answers.emplace_back(receiver, value); };
  };
  Gate gate;
  gate.hold(worker, busy, answer(&busy));
  worker.post(
      &busy, [] { return 1; }, answer(&busy));  // the task under way stays
  worker.post(
      &feed,
      [&] {
        replacedRan = true;
        return 1;
      },
      answer(&feed));
  worker.post(
      &other, [] { return 1; }, answer(&other));
  worker.post(
      &feed, [] { return 2; }, answer(&feed));
  gate.open();
  drain(worker);
  EXPECT_FALSE(replacedRan);
  const std::vector<std::pair<QObject*, int>> expected{
      {&busy, 0}, {&busy, 1}, {&other, 1}, {&feed, 2}};
  EXPECT_EQ(answers, expected);
}

TEST(SerialWorkerTest, AReceiverGoneBeforeItsAnswerHearsNothingAndTheOthersStillDo) {
  SerialWorker worker;
  auto running = std::make_unique<QObject>();
  auto waiting = std::make_unique<QObject>();
  QObject staying;
  std::vector<QObject*> answered;
  const auto answer = [&](QObject* receiver) {
    return [&answered, receiver](int) { answered.push_back(receiver); };
  };
  Gate gate;
  gate.hold(worker, *running, answer(running.get()));
  worker.post(
      waiting.get(), [] { return 0; }, answer(waiting.get()));
  worker.post(
      &staying, [] { return 0; }, answer(&staying));
  running.reset();  // while its task runs
  waiting.reset();  // while its task waits
  gate.open();
  drain(worker);
  EXPECT_EQ(answered, std::vector<QObject*>{&staying});
}

}  // namespace
}  // namespace tindra
