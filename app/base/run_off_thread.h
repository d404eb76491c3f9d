// runOffThread: work too slow for the event loop, run on Qt's thread pool, with its result
// handed to `done` on the thread of `context`, unless `context` is gone by then.
#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QtConcurrent/QtConcurrentRun>
#include <utility>

namespace tindra {

template <class Work, class Done>
void runOffThread(QObject* context, Work work, Done done) {
  using Result = std::invoke_result_t<Work>;
  // A watcher owned by `context`, not a continuation: a context destroyed first takes its
  // watcher with it, and the result is dropped as it arrives (a continuation would find its
  // context gone, which Qt asserts on).
  auto* watcher = new QFutureWatcher<Result>(context);
  QObject::connect(watcher, &QFutureWatcherBase::finished, context,
                   [watcher, done = std::move(done)]() mutable {
                     watcher->deleteLater();
                     done(watcher->future().takeResult());
                   });
  watcher->setFuture(QtConcurrent::run(std::move(work)));
}

}  // namespace tindra
