// BannerViewModel: what the call and message views draw: a ringing call (only that it rings and
// from which application), and the current message or missed call with its sender, text and the
// one button Tindra offers, opening the application that sent it.
#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <optional>

namespace tindra {

class BannerViewModel : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool ringing READ ringing NOTIFY ringingChanged)
  Q_PROPERTY(QString callApp READ callApp NOTIFY ringingChanged)
  Q_PROPERTY(bool hasMessage READ hasMessage NOTIFY messageChanged)
  Q_PROPERTY(QString app READ app NOTIFY messageChanged)
  Q_PROPERTY(QString title READ title NOTIFY messageChanged)
  Q_PROPERTY(QString body READ body NOTIFY messageChanged)
  Q_PROPERTY(bool missedCall READ missedCall NOTIFY messageChanged)
  // The button's text ("Open Signal"); empty when the sender has no installed desktop entry.
  Q_PROPERTY(QString openText READ openText NOTIFY messageChanged)
  // A call rings or a message is there: the opened notch shows them before anything else.
  Q_PROPERTY(bool showing READ showing NOTIFY showingChanged)

 public:
  struct Message {
    QString app;
    QString title;
    QString body;
    bool missedCall = false;
    QString openText;
    friend bool operator==(const Message&, const Message&) = default;
  };

  explicit BannerViewModel(std::function<void()> open, QObject* parent = nullptr)
      : QObject(parent), open_(std::move(open)) {}

  bool ringing() const { return ringing_; }
  QString callApp() const { return callApp_; }
  bool hasMessage() const { return hasMessage_; }
  QString app() const { return message_.app; }
  QString title() const { return message_.title; }
  QString body() const { return message_.body; }
  bool missedCall() const { return message_.missedCall; }
  QString openText() const { return message_.openText; }
  bool showing() const { return ringing_ || hasMessage_; }

  Q_INVOKABLE void open() { open_(); }

  void setRinging(bool ringing, const QString& app) {
    if (ringing_ == ringing && callApp_ == app) return;
    ringing_ = ringing;
    callApp_ = app;
    emit ringingChanged();
    emit showingChanged();
  }
  void setMessage(const std::optional<Message>& message) {
    if (hasMessage_ == message.has_value() && (!message || *message == message_)) return;
    hasMessage_ = message.has_value();
    message_ = message.value_or(Message{});
    emit messageChanged();
    emit showingChanged();
  }

 signals:
  void ringingChanged();
  void messageChanged();
  void showingChanged();

 private:
  std::function<void()> open_;
  bool ringing_ = false;
  QString callApp_;
  bool hasMessage_ = false;
  Message message_;
};

}  // namespace tindra
