#pragma once

#include "ServerDatabase.h"

#include "host/SysCarto/layers/ConditionSql.h"

#include <ogrsf_frmts.h>

#include <deque>
#include <memory>

namespace SysCarto {

/// A table of a database of PostGIS. Columns that are not ignored, the filter's box, and what a condition implies are
/// part of what the server is asked; features come in batches. Where it does not answer any more, that is told to
/// GDAL's error handler, and they end.
class ServerLayer final : public OGRLayer, public Narrowing {
public:
  /// `inner` is of the session's dataset, `definition` a copy of its own, `key` the column of its numbers or empty.
  ServerLayer(std::shared_ptr<ServerSession> session, ServerTable table, OGRLayer& inner, OGRFeatureDefn* definition,
              QByteArray key);
  ~ServerLayer() override;

  void ResetReading() override;
  OGRFeature* GetNextFeature() override;
  OGRFeature* GetFeature(GIntBig number) override;
  OGRFeatureDefn* GetLayerDefn() override { return definition_.get(); }
  char const* GetFIDColumn() override { return key_.constData(); }
  OGRErr SetIgnoredFields(char const** names) override;
  using OGRLayer::GetExtent;
  OGRErr GetExtent(OGREnvelope* extent, int isForced) override;
  GIntBig GetFeatureCount(int isForced) override;
  int TestCapability(char const* capability) override;

  /// As the server keeps them for its own plans, for nothing; −1 where it has not looked yet.
  qint64 toldCount() const;
  qint64 toldBytes() const;

  SqlColumn column(int field) const override;
  QByteArray quoted(QByteArray const& text) const override;
  void narrow(QByteArray const& sql) override;

private:
  struct Facts;
  struct Reading;

  Facts const& facts() const;
  bool hasGeometry() const;
  QByteArray geometryColumn() const;
  QByteArray box() const;
  std::shared_ptr<Reading> reading() const;
  bool fetch();
  void tell(bool isAnswered, QString const& problem) const;

  std::shared_ptr<ServerSession> session_;
  ServerTable const table_;
  OGRLayer& inner_;
  std::shared_ptr<OGRFeatureDefn> const definition_;
  QByteArray const key_;
  QByteArray narrowing_;
  mutable std::unique_ptr<Facts> facts_;
  std::deque<OGRFeatureUniquePtr> batch_;
  std::shared_ptr<Reading> reading_;  // that has begun
  bool isAtEnd_ = false;
};

}  // namespace SysCarto
