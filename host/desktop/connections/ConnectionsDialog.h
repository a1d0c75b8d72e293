#pragma once

#include "KeptConnections.h"

#include <QDialog>

class QListWidget;
class QPushButton;

/// The connections of a person: a list, whose entries are made, changed, tried and removed. What is done is kept at
/// once.
class ConnectionsDialog final : public QDialog {
  Q_OBJECT

public:
  explicit ConnectionsDialog(QWidget* parent);
  ~ConnectionsDialog() override;

private:
  QString current() const;
  void fill(QString const& chosen);
  void showState();
  QString freeName();
  void edit(bool isNew);
  void remove();
  void test();
  void keep(QString const& chosen);
  void tell(bool isProblem, QString const& sentence);

  KeptConnections kept_;
  QListWidget* const list_;
  QPushButton *edit_, *remove_, *test_;
};
