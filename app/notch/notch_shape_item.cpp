#include "notch/notch_shape_item.h"

#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QtQml>

namespace tindra {

NotchShapeItem::NotchShapeItem(QQuickItem* parent) : QQuickItem(parent) {
  setFlag(ItemHasContents);
}

QSGNode* NotchShapeItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
  // Tindra renders with the software scene graph only (main sets it); a picture of the shape for
  // another API would be code no run of ours ever draws, so the shape is left out, loudly.
  if (window()->rendererInterface()->graphicsApi() != QSGRendererInterface::Software) {
    static const bool warned = [] {
      qWarning("NotchShape draws only with the software scene graph; the notch has no outline");
      return true;
    }();
    (void)warned;
    delete old;
    return nullptr;
  }
  auto* node = old ? static_cast<NotchShapeNode*>(old) : new NotchShapeNode(window());
  node->setLook(look_);
  return node;
}

}  // namespace tindra
