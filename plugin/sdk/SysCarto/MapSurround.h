#pragma once

#include <SysCarto/Element.h>
#include <SysDisplay/MarkerSymbol.h>

#include <QList>
#include <QString>

#include <memory>

namespace SysCarto {

class Map;

/// The values of `MapSurround::kind`. 0, 4, 5 and 10 upwards are reserved: such surrounds draw themselves.
namespace SurroundKind {
enum : int { Legend = 1, ScaleLine = 2, ScaleText = 3, NorthArrow = 6 };

/// Whether a surround of the kind is drawn through its elements, and can be converted to them.
constexpr bool isMadeOfElements(int kind) { return (kind >= 1 && kind <= 3) || (kind >= 6 && kind <= 9); }
}  // namespace SurroundKind

/// Something that explains a map and follows it: a legend, a scale bar, a scale text, a north arrow. It lies in a
/// `MapSurroundFrame`.
class SYSCARTO_EXPORT MapSurround : public SysUtility::CRef {
public:
  ~MapSurround() override;

  /// Plain graphic elements in page centimetres that draw the surround as it is now, laid out in its frame: new
  /// objects, the caller's. A surround without a map answers none, nor does one whose map no data frame shows.
  virtual QList<SysUtility::_ptr_t<Element>> GetElements() = 0;

  /// Ties the surround to a map; an empty pointer unties it.
  virtual void SetMap(SysUtility::_ptr_t<Map> const& map);

  /// One of `SurroundKind`.
  int kind;

  SysUtility::_ptr_t<Map> GetMap() const;

  /// The rectangle of the frame in page centimetres.
  SysGeometry::Envelope const& rectangle() const;
  virtual SysUtility::_ptr_t<MapSurround> Clone() const = 0;

  /// What a person calls this kind of surround.
  virtual QString title() const;

protected:
  explicit MapSurround(int kind);
  MapSurround(MapSurround const&);

  /// Whether there is a map on the page to explain and a rectangle to do it in.
  bool hasPlace() const;

private:
  friend struct MapSurroundHost;

  /// Why the surround can't be shown as it was asked for and has no elements, and what to do, as the end of a sentence;
  /// empty where it can.
  virtual QString problem() const;

  struct Private;
  std::unique_ptr<Private> d;
};

/// The layers that the map shows at its scale, each with its classes: those that it was told of in that order, then the
/// others, the topmost first. In columns where one would be too high, and smaller where it would not fit otherwise.
class SYSCARTO_EXPORT Legend final : public MapSurround {
public:
  Legend();
  Legend(Legend const&);
  ~Legend() override;
  QList<SysUtility::_ptr_t<Element>> GetElements() override;
  SysUtility::_ptr_t<MapSurround> Clone() const override;
  QString title() const override;

private:
  friend struct LegendSettings;
  struct Private;
  std::unique_ptr<Private> d;
};

/// A bar of lengths of ground: those asked for, or round ones, as long as its frame allows. True at the map's centre,
/// as is the map's scale; a map without layers has none. One of a length that is asked for and too long for its frame
/// is not shown.
class SYSCARTO_EXPORT ScaleLine final : public MapSurround {
public:
  ScaleLine();
  ScaleLine(ScaleLine const&);
  ~ScaleLine() override;
  QList<SysUtility::_ptr_t<Element>> GetElements() override;
  SysUtility::_ptr_t<MapSurround> Clone() const override;
  QString title() const override;

private:
  QString problem() const override;

  friend struct ScaleLineSettings;
  struct Private;
  std::unique_ptr<Private> d;
};

/// The map's scale as a text, 1:25,000,000 or 1 cm = 250 km, to four digits.
class SYSCARTO_EXPORT ScaleText final : public MapSurround {
public:
  ScaleText();
  ScaleText(ScaleText const&);
  ~ScaleText() override;
  QList<SysUtility::_ptr_t<Element>> GetElements() override;
  SysUtility::_ptr_t<MapSurround> Clone() const override;
  QString title() const override;

private:
  friend struct ScaleTextSettings;
  struct Private;
  std::unique_ptr<Private> d;
};

/// A marker symbol, as large as its frame allows, that points upwards or, where asked, to true north at the map's
/// centre.
class SYSCARTO_EXPORT MarkerNorthArrow final : public MapSurround {
public:
  MarkerNorthArrow();
  MarkerNorthArrow(MarkerNorthArrow const&);
  ~MarkerNorthArrow() override;
  QList<SysUtility::_ptr_t<Element>> GetElements() override;
  SysUtility::_ptr_t<MapSurround> Clone() const override;
  QString title() const override;

  /// An empty pointer brings back the symbol of a new arrow.
  void SetMarkerSymbol(SysUtility::_ptr_t<SysDisplay::MarkerSymbol> const& symbol);
  SysUtility::_ptr_t<SysDisplay::MarkerSymbol> GetMarkerSymbol() const;

private:
  friend struct NorthArrowSettings;
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
