#pragma once

#include <QString>
#include <QStringList>

class OGRFeature;

namespace SysCarto {

class FeatureStore;
class GeometryProjector;
class Renderer;

/// Those of a layer that its filter lets through, and whether they are to be seen.
class AdmittedFeatures {
public:
  /// `source` as sentences call it. The projector must outlive this.
  AdmittedFeatures(QString const& source, GeometryProjector const& projector)
      : source_(source), projector_(projector) {}

  void add(OGRFeature const& feature);

  /// What is to be told once all were read: that none has a place, that what the store holds is not, or not all, what
  /// the renderer draws, that some lie beyond the globe or have no size. A layer of which a filter lets nothing through
  /// is meant to be empty.
  QStringList warnings(bool hasFilter, FeatureStore const& store, Renderer const& renderer) const;

  /// Of a source that is known to lie elsewhere.
  static QString nowhere(QString const& source);

private:
  QString const source_;
  GeometryProjector const& projector_;
  qint64 count_ = 0, withGeometry_ = 0, beyondGlobe_ = 0, atOnePlace_ = 0;
};

}  // namespace SysCarto
