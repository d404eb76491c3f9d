#include "views/view_registry.h"

#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <memory>

#include "activity/activity_kind.h"
#include "testing/sample_view_models.h"
#include "tindra_providers.h"
#include "views/notch_appearance.h"

void qml_register_types_Tindra();

namespace tindra {
namespace {

// Every registered view loads, on its provider's view model, without a single QML warning: a
// view that fails to load leaves an empty notch and nothing else says so.
TEST(ViewRegistryTest, EveryViewLoadsOnItsProvidersModelWithoutWarnings) {
  qml_register_types_Tindra();
  QQmlEngine engine;
  engine.addImportPath(QStringLiteral("qrc:/"));
  QList<QQmlError> warnings;
  QObject::connect(&engine, &QQmlEngine::warnings,
                   [&](const QList<QQmlError>& more) { warnings += more; });

  SampleViewModels samples;
  const std::map<QString, QObject*> models = samples.byProvider();

  const ViewRegistry registry(TindraProviders::views());
  std::vector<ViewRegistry::View> views = registry.idleItems();
  for (const auto& section : registry.sections()) {
    views.insert(views.end(), section.views.begin(), section.views.end());
  }
  // A compact view drawn in C++ takes the model its provider really gives.
  const NotchAppearance look(nullptr);
  for (const ActivityKind kind : allCases<ActivityKind>()) {
    const auto view = registry.compact(kind);
    if (view && !view->make) views.push_back(*view);
    if (view && view->make) {
      ASSERT_TRUE(models.contains(view->provider));
      const std::unique_ptr<QQuickItem> item(view->make(models.at(view->provider), look));
      EXPECT_TRUE(item) << view->provider.toStdString();
    }
  }
  for (const ViewRegistry::View& view : views) {
    SCOPED_TRACE(view.source.toString().toStdString());
    ASSERT_TRUE(models.contains(view.provider));
    QQmlComponent component(&engine, view.source);
    if (component.isError()) {
      ADD_FAILURE() << component.errorString().toStdString();
      continue;
    }
    std::unique_ptr<QObject> item(component.createWithInitialProperties(
        {{"model", QVariant::fromValue(models.at(view.provider))}}));
    EXPECT_TRUE(item) << component.errorString().toStdString();
  }
  for (const QQmlError& warning : warnings) ADD_FAILURE() << warning.toString().toStdString();
}

}  // namespace
}  // namespace tindra
