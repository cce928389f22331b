// The gate before a family's entry as QML sees it, and the entry once it is open.
#pragma once

#include "core/lifecycle/Gate.h"
#include "ui/lifecycle/FamilyScreen.h"

#include <QObject>
#include <QQmlEngine>

#include <memory>
#include <utility>

namespace vitrelle::ui {

class GateScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(bool waits READ waits NOTIFY changed)
  Q_PROPERTY(bool refuses READ refuses NOTIFY changed)
  /// Null while the gate is not open.
  Q_PROPERTY(vitrelle::ui::FamilyScreen* family READ family NOTIFY changed)
  // What the refusal shows; empty where it has no such thing.
  Q_PROPERTY(QString symbol READ symbol CONSTANT)
  Q_PROPERTY(QString picture READ picture CONSTANT)
  Q_PROPERTY(QString title READ title CONSTANT)
  Q_PROPERTY(QString message READ message CONSTANT)
  Q_PROPERTY(qreal messageSize READ messageSize CONSTANT)
  Q_PROPERTY(bool messageOnPanel READ isMessageOnPanel CONSTANT)
  Q_PROPERTY(QString offer READ offer CONSTANT)
  Q_PROPERTY(QString offerSymbol READ offerSymbol CONSTANT)
  Q_PROPERTY(QString button READ button CONSTANT)
  Q_PROPERTY(QString buttonSymbol READ buttonSymbol CONSTANT)
  Q_PROPERTY(QString arrow READ arrow CONSTANT)

 public:
  /// Of a family that has one.
  GateScreen(const Platform& platform, const StyleFamily& family)
      : platform_(platform),
        family_(family),
        gate_(family.gate(platform)),
        view_(gate_->onChange([this] { follow(); })) {
    follow();
  }
  ~GateScreen() override { delete entry_; }

  bool waits() const { return gate_->state() == GateState::waiting; }
  bool refuses() const { return gate_->state() == GateState::refused; }
  FamilyScreen* family() const { return entry_; }
  QString symbol() const { return qText(gate_->refusal().symbol); }
  QString picture() const { return qText(gate_->refusal().picture); }
  QString title() const { return qText(gate_->refusal().title); }
  QString message() const { return qText(gate_->refusal().message); }
  qreal messageSize() const { return gate_->refusal().messageSize; }
  bool isMessageOnPanel() const { return gate_->refusal().isMessageOnPanel; }
  QString offer() const { return qText(gate_->refusal().offer); }
  QString offerSymbol() const { return qText(gate_->refusal().offerSymbol); }
  QString button() const { return qText(gate_->refusal().button); }
  QString buttonSymbol() const { return qText(gate_->refusal().buttonSymbol); }
  static QString arrow() { return qText(gateArrow); }

  Q_INVOKABLE void appear() { gate_->appear(); }
  Q_INVOKABLE void press() { gate_->press(); }

 Q_SIGNALS:
  void changed();

 private:
  void follow() {
    const bool open = gate_->state() == GateState::open;
    if (entry_ != nullptr && !open) leaveToQml(std::exchange(entry_, nullptr));
    if (entry_ == nullptr && open) entry_ = new FamilyScreen(platform_, family_);
    Q_EMIT changed();
  }

  const Platform& platform_;
  const StyleFamily& family_;
  std::unique_ptr<Gate> gate_;
  FamilyScreen* entry_ = nullptr;
  Subscription view_; ///< last, for it calls this object
};

} // namespace vitrelle::ui
