// The request for a review as QML sees it.
#pragma once

#include "core/centre/ReviewQuestion.h"

#include <QObject>
#include <QQmlEngine>

namespace vitrelle::ui {

class ReviewAnswer : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell has it")
  Q_PROPERTY(bool shown READ isShown NOTIFY changed)

 public:
  explicit ReviewAnswer(const Platform& platform)
      : question_(platform), view_(question_.onChange([this] { Q_EMIT changed(); })) {}

  void ask() { question_.ask(); }
  bool isShown() const { return question_.shown(); }

  Q_INVOKABLE void dismiss() { question_.dismiss(); }
  Q_INVOKABLE void close() { question_.close(); }

 Q_SIGNALS:
  void changed();

 private:
  ReviewQuestion question_;
  Subscription view_;
};

} // namespace vitrelle::ui
