// The whole picture of what is shared, on a checkerboard where one can see through it.
#pragma once

#include "ui/parts/PaintedItem.h"
#include "ui/share/SharedItem.h"

namespace vitrelle::ui {

class SharePreview : public vitrelle::ui::PaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(vitrelle::ui::SharedItem item MEMBER item_ NOTIFY itemChanged)

 public:
  explicit SharePreview(QQuickItem* parent = nullptr);

 Q_SIGNALS:
  void itemChanged();

 protected:
  QImage picture() override;

 private:
  SharedItem item_;
};

} // namespace vitrelle::ui
