// SerialWorker: a thread of its own that runs tasks one at a time, in the order they are posted,
// for work too slow for the event loop that must still never run two at once (libical keeps
// global state). Each task's result is handed back on the thread that made the worker, in the
// same order, and only while the object it was posted for still lives. Made, posted to and
// destroyed on one thread.
#pragma once

#include <QObject>
#include <QPointer>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace tindra {

class SerialWorker final : public QObject {
  Q_OBJECT

 public:
  explicit SerialWorker(QObject* parent = nullptr);
  // Waits for the task under way; those still waiting never run, and nothing more comes back.
  ~SerialWorker() override;

  // Runs `work` on the worker after every task posted before it, then `done` with its result
  // here, unless `receiver` is gone by then. A task for the same receiver that has not begun yet
  // is dropped: only a receiver's newest request is worth the work.
  template <class Work, class Done>
  void post(QObject* receiver, Work work, Done done) {
    enqueue(receiver, [work = std::move(work), done = std::move(done)]() mutable -> Then {
      return [result = work(), done = std::move(done)]() mutable { done(std::move(result)); };
    });
  }

 private:
  using Then = std::move_only_function<void()>;
  using Task = std::move_only_function<Then()>;
  struct Job {
    QPointer<QObject> receiver;
    Task task;
  };
  struct Finished {
    QPointer<QObject> receiver;
    Then then;
  };

  void enqueue(QObject* receiver, Task task);
  void run(const std::stop_token& stop);
  void deliver();

  std::mutex mutex_;
  std::condition_variable_any wake_;
  std::deque<Job> waiting_;
  std::deque<Finished> finished_;
  std::jthread thread_;  // last: stopped and joined before the queues go
};

}  // namespace tindra
