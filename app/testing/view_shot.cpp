#include "testing/view_shot.h"

#include <QDir>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

void qml_register_types_Tindra();

namespace tindra {

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
  view.resize(size);
  view.show();
  if (!QTest::qWaitForWindowExposed(&view)) return {};
  QTest::qWait(50);
  const QImage picture = view.grabWindow();
  keepScreenshot(picture, name);
  return picture;
}

void keepScreenshot(const QImage& picture, const QString& name) {
  if (const QString folder = qEnvironmentVariable("TINDRA_SCREENSHOTS"); !folder.isEmpty()) {
    QDir().mkpath(folder);
    picture.save(QDir(folder).filePath(name + QStringLiteral(".png")));
  }
}

}  // namespace tindra
