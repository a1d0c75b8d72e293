#pragma once

#include "host/SysCarto/layers/DataCatalogue.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <memory>

/// Describes files of data on another thread, so that a large one keeps nobody waiting.
class FileDescriptions final : public QObject {
  Q_OBJECT

public:
  explicit FileDescriptions(QObject* parent);

  /// What is still being read is given up.
  ~FileDescriptions() override;

  /// Files are told one by one, in their order; after each of them the layers whose number of features or extent its
  /// file does not say.
  void describe(QStringList const& files);

  /// Describes one layer of a table anew, by other columns.
  void measure(SysCarto::SourceSettings const& source);

  bool isBusy() const;

signals:
  void described(SysCarto::DataFile const& file);

  /// `layer` has the columns that were asked for, or an `error`.
  void measured(SysCarto::SourceSettings const& source, SysCarto::LayerDescription const& layer, QString const& error);

  /// Nothing is being read any more.
  void finished();

private:
  struct Mailbox;
  void takeMail();

  std::shared_ptr<Mailbox> const mailbox_;
  QTimer timer_;
};
