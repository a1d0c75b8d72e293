#pragma once

#include "host/SysAdapterUI/FieldSource.h"

#include <QHash>

/// A tab of the sheet of a layer.
struct SheetTab {
  char const* name;
  char const* caption;  ///< a text of “LayerSheet”

  /// In their order. The field that a path of the table names stands on the tab, with all that lies in it but for what
  /// a longer path gives to another tab; the first tab has what no path names.
  static QVector<SheetTab> const& all();

  /// The tab on which a field stands.
  static int of(QStringList const& path);
};

/// Those fields of a source that stand on one tab. An object that is there for the tab's sake alone is opened.
class TabFields final : public SysAdapterUI::FieldSource {
public:
  /// `whole` is borrowed.
  TabFields(SysAdapterUI::FieldSource& whole, int tab) : whole_(whole), tab_(tab) {}

  QVector<SysUtility::SheetField> fields() override;
  QStringList placeOf(SysUtility::SheetField const& field) const override { return places_.value(field.key()); }
  QStringList attributes() const override { return whole_.attributes(); }
  QStringList namesFor(QStringList const& path) const override { return whole_.namesFor(path); }
  bool canChoose(SysUtility::TextKind kind) const override { return whole_.canChoose(kind); }
  std::optional<QString> choose(QStringList const& path, QString const& now, QWidget* parent) override {
    return whole_.choose(path, now, parent);
  }
  QString set(QStringList const& path, SysUtility::NewValue const& value, QString const& joining) override {
    return whole_.set(path, value, joining);
  }

private:
  void collect(QVector<SysUtility::SheetField> const& from, QStringList const& outer,
               QVector<SysUtility::SheetField>& found);

  SysAdapterUI::FieldSource& whole_;
  int const tab_;
  QHash<QString, QStringList> places_;
};
