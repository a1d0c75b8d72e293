#pragma once

#include "host/SysCarto/layers/FeatureStore.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <SysCarto/Map.h>

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

class QPainter;

/// From map units to the pixels of a view in which the map fills a rectangle.
QTransform mapToView(SysCarto::Map const& map, QRectF const& placePx);

/// Features that the views mark over what they show: those chosen in a table, or found under the mouse. Nothing of it
/// is printed, saved, or a step of the history.
class FeatureHighlight final : public QObject {
  Q_OBJECT

public:
  /// Features by their numbers in the source of the layer.
  struct Marked {
    SysUtility::_ptr_t<SysCarto::Map> map;
    SysUtility::_ptr_t<SysCarto::VectorLayer> layer;
    std::vector<qint64> ids;
  };

  explicit FeatureHighlight(QObject* parent);
  ~FeatureHighlight() override;

  /// Marks these and no others; flashing, they catch the eye for a moment.
  void show(Marked const& marked, bool flashes = false);
  void clear();
  Marked const& marked() const { return marked_; }

  /// Paints over a map that fills a rectangle of a view.
  void paint(QPainter& painter, SysCarto::Map const& map, QRectF const& placePx) const;

  /// What the features cover, in map units; of nothing where none of them has a geometry there.
  static SysCarto::Box boxOf(SysCarto::VectorLayer const& layer, std::vector<qint64> const& ids);

signals:
  void changed();

private:
  Marked marked_;
  int flashes_ = 0;  // that are still to come
  QTimer flashing_;

  // Of the layer as it looked then.
  struct Found {
    quint64 look;
    std::shared_ptr<SysCarto::FeatureStore const> store;
    std::vector<int> numbers;
  };
  Found const& found() const;
  mutable std::optional<Found> found_;
};
