#include "base/serial_worker.h"

#include <algorithm>

namespace tindra {

SerialWorker::SerialWorker(QObject* parent)
    : QObject(parent), thread_([this](const std::stop_token& stop) { run(stop); }) {}

SerialWorker::~SerialWorker() {
  thread_.request_stop();
  thread_.join();
}

void SerialWorker::enqueue(QObject* receiver, Task task) {
  std::lock_guard lock(mutex_);
  std::erase_if(waiting_, [&](const Job& job) { return job.receiver == receiver; });
  waiting_.push_back({receiver, std::move(task)});
  wake_.notify_one();
}

void SerialWorker::run(const std::stop_token& stop) {
  std::unique_lock lock(mutex_);
  while (wake_.wait(lock, stop, [this] { return !waiting_.empty(); })) {
    Finished finished;
    {
      Job job = std::move(waiting_.front());
      waiting_.pop_front();
      lock.unlock();
      finished = {std::move(job.receiver), job.task()};
    }  // the task's own copies go here, off the lock
    lock.lock();
    finished_.push_back(std::move(finished));
    // One delivery carries everything finished before it runs.
    if (finished_.size() == 1) {
      QMetaObject::invokeMethod(this, &SerialWorker::deliver, Qt::QueuedConnection);
    }
  }
}

void SerialWorker::deliver() {
  std::deque<Finished> finished;
  {
    std::lock_guard lock(mutex_);
    finished.swap(finished_);
  }
  // A result may end its receiver, another receiver, or the worker itself.
  const QPointer<SerialWorker> self(this);
  for (Finished& result : finished) {
    if (!self) return;
    if (result.receiver) result.then();
  }
}

}  // namespace tindra
