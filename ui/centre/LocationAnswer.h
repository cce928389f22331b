// The question for the user's position as QML sees it.
#pragma once

#include "core/centre/LocationQuestion.h"

#include <QObject>
#include <QQmlEngine>

namespace vitrelle::ui {

class LocationAnswer : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell has it")
  Q_PROPERTY(bool shown READ isShown NOTIFY changed)

 public:
  explicit LocationAnswer(const Platform& platform)
      : question_(platform), view_(question_.onChange([this] { Q_EMIT changed(); })) {}

  void ask() { question_.ask(); }
  bool isShown() const { return question_.shown(); }

  Q_INVOKABLE void allow() { question_.allow(); }
  Q_INVOKABLE void deny() { question_.deny(); }
  Q_INVOKABLE void dismiss() { question_.dismiss(); }

 Q_SIGNALS:
  void changed();

 private:
  LocationQuestion question_;
  Subscription view_;
};

} // namespace vitrelle::ui
