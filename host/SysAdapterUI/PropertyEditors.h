#pragma once

#include "host/SysUtility/FieldTree.h"

#include <QJsonValue>
#include <QVariant>
#include <QWidget>

#include <functional>
#include <optional>

namespace SysAdapterUI {

/// An editor for the value of a field, by its kind. The widget owns it.
class FieldEditor : public QObject {
  Q_OBJECT

public:
  /// Lets a person choose a text; given is the one that there is. Empty where that can't be done.
  using Choose = std::function<std::optional<QString>(QString const& now, QWidget* parent)>;

  /// `suggestions` are texts to choose from, beside any other.
  static FieldEditor* create(SysUtility::FieldInfo const& info, QStringList const& suggestions, Choose const& choose,
                             QWidget* parent);

  /// The editor to which a widget belongs; null for none.
  static FieldEditor* of(QWidget* widget);

  QWidget& widget() const { return *widget_; }

  /// Shows a value as a document has it, or a text that was refused. It then counts as not changed.
  virtual void show(QVariant const& value) = 0;

  virtual bool isChanged() const = 0;

  /// As a document would have it, and as it was entered. What is no number stays a text, for a reader to refuse.
  virtual QJsonValue value() const = 0;
  virtual QString text() const = 0;

signals:
  /// A person has chosen something, so that there is nothing left to edit.
  void finished();

protected:
  explicit FieldEditor(QWidget* widget);

private:
  QWidget* const widget_;
};

}  // namespace SysAdapterUI
