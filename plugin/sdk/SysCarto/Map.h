#pragma once

#include <SysCarto/ActiveView.h>
#include <SysCarto/Layer.h>

#include <QList>
#include <QString>

namespace SysCarto {

/// A map: layers in one coordinate system, and graphics on top of them. As a view it shows itself alone.
///
/// Its transformation has the exact aspect of the frame on paper, whatever window shows it. The map scale is a value of
/// the map, from its extent and the size of the frame, with ground metres taken at the map's centre.
class SYSCARTO_EXPORT Map final : public ActiveView {
public:
  Map();
  ~Map() override;

  /// Maps the extent onto the frame, measured in micrometres of paper. Drawing sets a device frame on a clone.
  SysUtility::_ptr_t<SysDisplay::DisplayTransformation> GetDisplayTransformation() const override;

  virtual QString const& GetName() const;
  virtual void SetName(QString const& name);
  virtual int GetLayerCount() const;

  /// Layers in drawing order, 0 drawn first; empty where there is no layer of that index.
  virtual SysUtility::_ptr_t<Layer> GetLayer(int index) const;
  virtual QList<SysUtility::_ptr_t<Layer>> const& GetLayers() const;

  SysUtility::_ptr_t<SysGeometry::Envelope> GetExtent() const override;
  SysUtility::_ptr_t<Map> GetFocusMap() const override;
  IElementContainer* GetGraphicsContainer() const override;

  /// Appends a layer on top. It must hold its data in the map's coordinate system.
  void AddLayer(SysUtility::_ptr_t<Layer> const& layer);

  /// The coordinate system, as an authority's code ("EPSG:8857"), WKT or a PROJ text; empty for plain coordinates.
  QString GetCoordinateSystem() const;

  /// Set before layers are added: they are projected when they are opened.
  void SetCoordinateSystem(QString const& definition);

  /// Degrees, counterclockwise, by which the map is turned about its centre; its frame stays as it is. The extent is
  /// what the frame would show without that.
  double GetRotation() const;

  /// Degrees, counterclockwise from up on the page, to true north at the map's centre. In plain coordinates and at a
  /// pole, to where up on the map is.
  double GetNorthAngle() const;

  /// The denominator of the scale; 0 for a map without layers, whose extent means nothing.
  double scale() const;

protected:
  void applyExtent(SysGeometry::Envelope const& extent) override;

private:
  friend struct MapHost;
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
