// viewShot: one registered view drawn on its model, for tests that check what is drawn. The
// picture is also saved as `name`.png in TINDRA_SCREENSHOTS when that is set, to be looked at.
#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QUrl>

#include "activity/activity_kind.h"
#include "views/view_registry.h"

namespace tindra {

// A null image when the view does not load.
QImage viewShot(const QUrl& source, QObject* model, QSize size, const QString& name);
// A QML view by its source, or a compact view drawn in C++ by its maker.
QImage viewShot(const ViewRegistry::View& view, QObject* model, QSize size, const QString& name);

// Saves `picture` as `name`.png in TINDRA_SCREENSHOTS when that is set.
void keepScreenshot(const QImage& picture, const QString& name);

// The compact view `Provider` declares for `kind`, found as the app finds it; throws (failing the
// test) when it declares none.
template <class Provider>
ViewRegistry::View compactView(ActivityKind kind) {
  const ViewRegistry views({{Provider::id, Provider::views()}});
  return views.compact(kind).value();
}

}  // namespace tindra
