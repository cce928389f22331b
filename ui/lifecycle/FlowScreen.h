// What a family's sheet holds as QML sees it: the pages on one another, and where they lead.
#pragma once

#include "core/lifecycle/StyleFlow.h"
#include "ui/lifecycle/AssignScreen.h"
#include "ui/lifecycle/StyleScreen.h"

#include <QObject>
#include <QQmlEngine>
#include <QVariantList>

#include <memory>
#include <vector>

namespace vitrelle::ui {

class FlowScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the family makes it")
  /// From the bottom; never empty.
  Q_PROPERTY(QVariantList pages READ pages NOTIFY changed)
  /// Over the gallery; null while there is none.
  Q_PROPERTY(vitrelle::ui::AssignScreen* assignSheet READ assignSheet NOTIFY changed)
  Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY changed)

 public:
  FlowScreen(const Platform& platform, std::shared_ptr<StyleFlow> flow);
  ~FlowScreen() override;

  QVariantList pages() const;
  AssignScreen* assignSheet() const { return assignSheet_; }
  bool canGoBack() const { return flow_->canGoBack(); }

  Q_INVOKABLE void pickKind(int index);
  Q_INVOKABLE void saveSetup() { flow_->saveSetup(); }
  /// Whether it was stored.
  Q_INVOKABLE bool saveSecond() { return flow_->saveSecond() == Saved::stored; }
  Q_INVOKABLE bool saveLink() { return flow_->saveLink() == Saved::stored; }
  Q_INVOKABLE void edit(int index) { flow_->edit({index}); }
  Q_INVOKABLE void assign(int index) { flow_->assign({index}); }
  Q_INVOKABLE void dismissAssign() { flow_->dismissAssign(); }
  Q_INVOKABLE void back() { flow_->back(); }
  Q_INVOKABLE void close() { flow_->close(); }

 Q_SIGNALS:
  void changed();

 private:
  struct Shown {
    const void* screen; ///< of the logic, to know it by
    StyleScreen* view;
  };
  void follow();

  const Platform& platform_;
  std::shared_ptr<StyleFlow> flow_;
  std::vector<Shown> pages_;
  AssignScreen* assignSheet_ = nullptr;
  Subscription view_;
};

} // namespace vitrelle::ui
