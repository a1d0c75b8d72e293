#pragma once

#include "LocalDataset.h"

#include <QString>
#include <QStringList>

#include <ogrsf_frmts.h>

#include <deque>
#include <memory>
#include <vector>

namespace SysCarto {

/// A database that a connection leads to. Whatever is asked of its server is asked on another thread and is waited for
/// no longer than the connection says; after that nothing more is asked, and the thread keeps what it uses.
class ServerDatabase {
public:
  struct Session;

  /// Whether it is asked for layers, or what there is, which a person alone asks for.
  enum class Use { Layers, Tables };

  /// Empty, with a sentence in `error`, where the connection is not known, is not allowed, or leads nowhere.
  static std::unique_ptr<ServerDatabase> open(QString const& connection, Use use, QString& error);
  ~ServerDatabase();

  /// The tables with geometries that the user may read, each as "schema.table".
  QStringList const& tables() const { return tables_; }

  /// A table of these, by its name; it may outlive the database. Empty, with a sentence in `error`, where there is no
  /// such one.
  std::unique_ptr<OGRLayer> layer(QString const& table, QString& error) const;

private:
  explicit ServerDatabase(std::shared_ptr<Session> session);

  std::shared_ptr<Session> session_;
  QStringList all_, tables_;
};

/// A table of it. Features come in batches; where the server does not answer any more, that is told to GDAL's error
/// handler, and they end.
class ServerLayer final : public OGRLayer {
public:
  /// `inner` is of the session's dataset, `definition` a copy of its own.
  ServerLayer(std::shared_ptr<ServerDatabase::Session> session, OGRLayer& inner, OGRFeatureDefn* definition);
  ~ServerLayer() override;

  void ResetReading() override;
  OGRFeature* GetNextFeature() override;
  OGRFeature* GetFeature(GIntBig number) override;
  OGRFeatureDefn* GetLayerDefn() override { return definition_; }
  OGRErr SetIgnoredFields(char const** names) override;
  int TestCapability(char const* capability) override;

private:
  bool fetch();

  std::shared_ptr<ServerDatabase::Session> session_;
  OGRLayer& inner_;
  OGRFeatureDefn* const definition_;  // counted
  std::vector<QByteArray> ignored_;
  std::deque<OGRFeatureUniquePtr> batch_;
  bool begins_ = true, isAtEnd_ = false;
};

}  // namespace SysCarto
