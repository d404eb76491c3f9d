// ProviderSet: the providers the app runs, one of each type in the list, made in its order with
// the backends this platform gives them (T::make) and reached by their type, never by a name.
// The list is the app's one registration of its providers.
#pragma once

#include <memory>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "base/provider.h"
#include "base/provider_views.h"

namespace tindra {

template <class... Providers>
class ProviderSet {
 public:
  // Each provider's name and its views, in registration order, for the view registry.
  static std::vector<std::pair<std::string_view, ProviderViews>> views() {
    return {{Providers::id, Providers::views()}...};
  }

  // Braced initialisation makes them in the list's order.
  explicit ProviderSet(ProviderContext& context) : providers_{Providers::make(context)...} {}

  template <class T>
  T& get() const {
    return *std::get<std::unique_ptr<T>>(providers_);
  }
  // Calls `visit(provider)` for each, in registration order.
  template <class Visit>
  void forEach(Visit visit) const {
    std::apply([&](const auto&... provider) { (visit(static_cast<Provider&>(*provider)), ...); },
               providers_);
  }

 private:
  std::tuple<std::unique_ptr<Providers>...> providers_;
};

}  // namespace tindra
