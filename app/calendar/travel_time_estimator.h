// TravelTimeEstimator: how long the trip to an event's place takes, from the platform's routing
// service. `available` is false where there is none; then nothing is asked, and no departure
// time is ever shown rather than a made-up one.
#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "calendar/calendar_event_info.h"
#include "calendar/travel_transport.h"

namespace tindra {

class TravelTimeEstimator {
 public:
  // This platform's routing service, or the do-nothing estimator where it has none (made in
  // the platform's folder).
  static std::unique_ptr<TravelTimeEstimator> forPlatform();

  // Seconds of travel, or none when no route is found.
  using Answer = std::function<void(std::optional<double> seconds)>;

  virtual ~TravelTimeEstimator() = default;
  virtual bool available() const = 0;
  // Why there are no travel times, for the settings, while `available` is false.
  virtual QString unavailableReason() const = 0;
  // Asks for the trip to `coordinate`, else to the place named `destination`.
  virtual void estimate(std::optional<CalendarEventInfo::Coordinate> coordinate,
                        const QString& destination, TravelTransport transport, Answer answer) = 0;
};

// Where no routing service exists: never available, never answers.
class NullTravelTimeEstimator final : public TravelTimeEstimator {
 public:
  bool available() const override { return false; }
  QString unavailableReason() const override {
    return QObject::tr(
        "Travel times are unavailable: no routing service is available on this "
        "system.");
  }
  void estimate(std::optional<CalendarEventInfo::Coordinate>, const QString&, TravelTransport,
                Answer) override {}
};

}  // namespace tindra
