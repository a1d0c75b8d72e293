#pragma once

#include <SysCarto/Element.h>
#include <SysDisplay/MarkerSymbol.h>

#include <QList>

#include <memory>

namespace SysCarto {

class Map;

/// Something that explains a map and follows it: a legend, a scale bar, a scale text, a north arrow. It lies in a
/// `MapSurroundFrame`.
class SYSCARTO_EXPORT MapSurround : public SysUtility::CRef {
public:
  ~MapSurround() override;

  /// Plain graphic elements in page centimetres that draw the surround as it is now, laid out in its frame: new
  /// objects, the caller's. An unbound surround answers none.
  virtual QList<SysUtility::_ptr_t<Element>> GetElements() = 0;

  /// Ties the surround to a map; an empty pointer unties it.
  virtual void SetMap(SysUtility::_ptr_t<Map> const& map);

  /// 1 legend, 2 scale line, 3 scale text, 6 north arrow. 0, 4, 5 and 10 upwards are reserved: such surrounds draw
  /// themselves and are not converted to graphics.
  int kind;

  // Beyond what the commands of a plug-in need.

  SysUtility::_ptr_t<Map> GetMap() const;

  /// The rectangle of the frame in page centimetres; told by the frame.
  void setRectangle(SysGeometry::Envelope const& rectangle);
  SysGeometry::Envelope const& rectangle() const;
  virtual SysUtility::_ptr_t<MapSurround> Clone() const = 0;

protected:
  explicit MapSurround(int kind);
  MapSurround(MapSurround const&);

private:
  struct Private;
  std::unique_ptr<Private> d;
};

class SYSCARTO_EXPORT Legend final : public MapSurround {
public:
  Legend();
  Legend(Legend const&);
  ~Legend() override;
  QList<SysUtility::_ptr_t<Element>> GetElements() override;
  SysUtility::_ptr_t<MapSurround> Clone() const override;
};

class SYSCARTO_EXPORT ScaleLine final : public MapSurround {
public:
  ScaleLine();
  ScaleLine(ScaleLine const&);
  ~ScaleLine() override;
  QList<SysUtility::_ptr_t<Element>> GetElements() override;
  SysUtility::_ptr_t<MapSurround> Clone() const override;
};

class SYSCARTO_EXPORT ScaleText final : public MapSurround {
public:
  ScaleText();
  ScaleText(ScaleText const&);
  ~ScaleText() override;
  QList<SysUtility::_ptr_t<Element>> GetElements() override;
  SysUtility::_ptr_t<MapSurround> Clone() const override;
};

class SYSCARTO_EXPORT MarkerNorthArrow final : public MapSurround {
public:
  MarkerNorthArrow();
  MarkerNorthArrow(MarkerNorthArrow const&);
  ~MarkerNorthArrow() override;
  QList<SysUtility::_ptr_t<Element>> GetElements() override;
  SysUtility::_ptr_t<MapSurround> Clone() const override;

  void SetMarkerSymbol(SysUtility::_ptr_t<SysDisplay::MarkerSymbol> const& symbol);
  SysUtility::_ptr_t<SysDisplay::MarkerSymbol> GetMarkerSymbol() const;

private:
  SysUtility::_ptr_t<SysDisplay::MarkerSymbol> symbol_;
};

}  // namespace SysCarto
