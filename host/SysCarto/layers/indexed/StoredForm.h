#pragma once

#include <QJsonObject>

#include <ogr_feature.h>

#include <memory>
#include <optional>

class OGRLayer;
class OGRPoint;

namespace SysCarto {

/// How the features of a layer lie in a FlatGeobuf file, and what they are made of again. What the format does not
/// keep, their numbers, which have no place and of what kind that is, and how they are to be drawn, is in columns of
/// its own.
class StoredForm {
public:
  /// Of a layer; nothing where a file could not give back what it has.
  static std::optional<StoredForm> of(OGRLayer& layer);

  static std::optional<StoredForm> from(QJsonObject const& json);
  QJsonObject json() const;

  OGRFeatureDefn& definition() const { return *definition_; }

  /// Gives an empty layer of a file its columns.
  bool addColumns(OGRLayer& file) const;

  /// The feature as the file has it; where it has no place, it lies at another one.
  static void put(OGRFeature const& from, OGRPoint const& standIn, OGRFeature& to);

  /// The feature as it was.
  OGRFeatureUniquePtr take(OGRFeature& from) const;

  /// Has the layer of a file leave out what `definition` does.
  void ignoreIn(OGRLayer& file) const;

private:
  using Definition = std::shared_ptr<OGRFeatureDefn>;
  explicit StoredForm(Definition definition) : definition_(std::move(definition)) {}

  Definition definition_;
};

/// Of all that tells a feature from another one.
quint64 digestOf(OGRFeature const& feature);

}  // namespace SysCarto
