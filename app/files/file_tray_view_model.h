// FileTrayViewModel: what the tray section draws: its items (name, file URL, whether the file is
// missing, whether it is the tray's own copy), the status line of the last drop, and the progress
// of a running copy with its button to stop it. The actions go back to the provider.
#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>
#include <functional>

namespace tindra {

class FileTrayViewModel : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool enabled READ enabled NOTIFY changed)
  Q_PROPERTY(QVariantList items READ items NOTIFY changed)
  Q_PROPERTY(QString status READ status NOTIFY changed)
  Q_PROPERTY(bool copying READ copying NOTIFY progressChanged)
  Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
  Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged)
  // Drawn while there is something to show; the tray also opens for a drag on its own.
  Q_PROPERTY(bool showing READ showing NOTIFY changed)

 public:
  struct Actions {
    std::function<void(const QString& id)> open;
    std::function<void(const QString& id)> remove;
    std::function<void()> removeAll;
    std::function<void()> cancelCopy;
  };

  explicit FileTrayViewModel(Actions actions, QObject* parent = nullptr)
      : QObject(parent), actions_(std::move(actions)) {}

  bool enabled() const { return enabled_; }
  QVariantList items() const { return items_; }
  QString status() const { return status_; }
  bool copying() const { return copying_; }
  double progress() const { return progress_; }
  QString progressText() const { return progressText_; }
  bool showing() const { return enabled_ && (!items_.isEmpty() || copying_ || !status_.isEmpty()); }

  Q_INVOKABLE void open(const QString& id) { actions_.open(id); }
  Q_INVOKABLE void remove(const QString& id) { actions_.remove(id); }
  Q_INVOKABLE void removeAll() { actions_.removeAll(); }
  Q_INVOKABLE void cancelCopy() { actions_.cancelCopy(); }

  void set(bool enabled, QVariantList items, QString status) {
    if (enabled == enabled_ && items == items_ && status == status_) return;
    enabled_ = enabled;
    items_ = std::move(items);
    status_ = std::move(status);
    emit changed();
  }
  void setProgress(bool copying, double progress, QString text) {
    if (copying == copying_ && progress == progress_ && text == progressText_) return;
    copying_ = copying;
    progress_ = progress;
    progressText_ = std::move(text);
    emit progressChanged();
    emit changed();
  }

 signals:
  void changed();
  void progressChanged();

 private:
  Actions actions_;
  bool enabled_ = false;
  QVariantList items_;
  QString status_;
  bool copying_ = false;
  double progress_ = 0;
  QString progressText_;
};

}  // namespace tindra
