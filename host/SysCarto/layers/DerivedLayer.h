#pragma once

#include <QString>
#include <QStringList>

#include <ogrsf_frmts.h>

namespace SysCarto {

/// A layer whose features are made of those of another one, each with the same number.
class DerivedLayer : public OGRLayer {
public:
  ~DerivedLayer() override;

  void ResetReading() override { base_.ResetReading(); }
  OGRFeature* GetNextFeature() override;
  OGRFeature* GetFeature(GIntBig number) override;
  GIntBig GetFeatureCount(int isForced) override;
  OGRFeatureDefn* GetLayerDefn() override { return definition_; }
  int TestCapability(char const* capability) override;

  /// What is to be said of the features that were read so far, as sentences.
  virtual QStringList notes() const { return {}; }

protected:
  /// The layer below is borrowed. What its fields are called and how they follow each other is for derived classes to
  /// list in `definition()`.
  explicit DerivedLayer(OGRLayer& base);

  OGRLayer& base() const { return base_; }
  OGRFeatureDefn& definition() const { return *definition_; }

  /// Fills a feature of this layer, without its number.
  virtual void derive(OGRFeature& from, OGRFeature& to) = 0;

private:
  OGRFeature* derived(OGRFeature& from);

  OGRLayer& base_;
  OGRFeatureDefn* const definition_;  // counted
};

/// How many features a layer has, where that is known without reading them; −1 where it is not. GDAL's own function
/// reads some formats to their end all the same.
qint64 knownCount(OGRLayer& layer);

/// The place of a field, by its name in any case; −1 where there is none.
int fieldIndex(OGRLayer& layer, QString const& name);

/// Has a layer read the fields of these names alone, where it can, and geometries where a name begins with OGR_, as
/// that of what a condition asks of them does.
void readOnly(OGRLayer& layer, QStringList const& names);

/// The names of a layer's fields for a message, not all of very many.
QString fieldNames(OGRLayer& layer);

}  // namespace SysCarto
