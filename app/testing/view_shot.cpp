#include "testing/view_shot.h"

#include <QDir>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QQuickWindow>
#include <QTest>
#include <memory>

#include "views/notch_appearance.h"

void qml_register_types_Tindra();

namespace tindra {

namespace {

QImage shoot(QQuickWindow& window, QSize size, const QString& name) {
  window.resize(size);
  window.show();
  if (!QTest::qWaitForWindowExposed(&window)) return {};
  QTest::qWait(50);
  const QImage picture = window.grabWindow();
  keepScreenshot(picture, name);
  return picture;
}

}  // namespace

QImage viewShot(const QUrl& source, QObject* model, QSize size, const QString& name) {
  static const bool registered = (qml_register_types_Tindra(), true);
  Q_UNUSED(registered);
  QQuickView view;
  view.engine()->addImportPath(QStringLiteral("qrc:/"));
  view.setColor(Qt::black);
  view.setResizeMode(QQuickView::SizeRootObjectToView);
  view.setInitialProperties({{QStringLiteral("model"), QVariant::fromValue(model)}});
  view.setSource(source);
  if (view.rootObject() == nullptr) return {};
  return shoot(view, size, name);
}

QImage viewShot(const ViewRegistry::View& view, QObject* model, QSize size, const QString& name) {
  if (!view.make) return viewShot(view.source, model, size, name);
  static const NotchAppearance look(nullptr);
  QQuickWindow window;
  const std::unique_ptr<QQuickItem> item(view.make(model, look));  // goes before the window
  if (!item) return {};
  window.setColor(Qt::black);
  item->setParentItem(window.contentItem());
  item->setSize(size);
  return shoot(window, size, name);
}

void keepScreenshot(const QImage& picture, const QString& name) {
  if (const QString folder = qEnvironmentVariable("TINDRA_SCREENSHOTS"); !folder.isEmpty()) {
    QDir().mkpath(folder);
    picture.save(QDir(folder).filePath(name + QStringLiteral(".png")));
  }
}

}  // namespace tindra
