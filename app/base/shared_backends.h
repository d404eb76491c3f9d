// SharedBackends: the backends more than one provider follows (the output volume, the desktop's
// do-not-disturb, the sound server, the notice sounds, the network), each made by the first
// provider that asks and kept here for the others; and the invented backends made because
// TINDRA_FAKE asks for them, which the demo finds here by their type to play them. Owned by the
// app, it outlives every provider. Main thread only.
#pragma once

#include <QObject>
#include <QPointer>
#include <map>
#include <memory>
#include <typeindex>

namespace tindra {

class SharedBackends {
 public:
  // The one `T`, made by `make()` (a std::shared_ptr<T>) on the first call.
  template <class T, class Make>
  std::shared_ptr<T> get(Make make) {
    std::shared_ptr<void>& kept = shared_[std::type_index(typeid(T))];
    if (!kept) kept = std::shared_ptr<T>(make());
    return std::static_pointer_cast<T>(kept);
  }

  // Keeps `invented` to be found by its type while it lives.
  template <class T>
  void remember(T& invented) {
    invented_[std::type_index(typeid(T))] = &invented;
  }
  // The invented `T` made in this run; null when none was (TINDRA_FAKE did not ask for it).
  template <class T>
  T* find() const {
    const auto found = invented_.find(std::type_index(typeid(T)));
    return found == invented_.end() ? nullptr : static_cast<T*>(found->second.data());
  }

 private:
  std::map<std::type_index, std::shared_ptr<void>> shared_;
  std::map<std::type_index, QPointer<QObject>> invented_;
};

}  // namespace tindra
