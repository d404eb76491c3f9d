// viewShot: one registered QML view drawn on its model, for tests that check what is drawn. The
// picture is also saved as `name`.png in TINDRA_SCREENSHOTS when that is set, to be looked at.
#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QUrl>

namespace tindra {

// A null image when the view does not load.
QImage viewShot(const QUrl& source, QObject* model, QSize size, const QString& name);

// Saves `picture` as `name`.png in TINDRA_SCREENSHOTS when that is set.
void keepScreenshot(const QImage& picture, const QString& name);

}  // namespace tindra
