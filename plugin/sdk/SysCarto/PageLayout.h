#pragma once

#include <SysCarto/ActiveView.h>
#include <SysCarto/MapFrameElement.h>
#include <SysCarto/Page.h>

#include <QList>

namespace SysCarto {

class Map;

/// The printable page with its elements, as a view in page centimetres.
class SYSCARTO_EXPORT PageLayout final : public ActiveView {
public:
  PageLayout();
  ~PageLayout() override;

  bool GetAlignToMargins() const;
  void SetAlignToMargins(bool on);

  // Where a new element of that kind is placed, in page centimetres: new objects. An empty envelope without a page.
  SysUtility::_ptr_t<SysGeometry::Envelope> GetDefaultDataFrameEnvelope() const;
  SysUtility::_ptr_t<SysGeometry::Envelope> GetDefaultLegendEnvelope() const;
  SysUtility::_ptr_t<SysGeometry::Envelope> GetDefaultNorthArrowEnvelope() const;
  SysUtility::_ptr_t<SysGeometry::Envelope> GetDefaultScaleBarEnvelope() const;
  SysUtility::_ptr_t<SysGeometry::Envelope> GetDefaultScaleTextEnvelope() const;

  /// The data frame whose map has the focus; empty where the layout has no data frame.
  SysUtility::_ptr_t<MapFrameElement> GetFocusMapFrameElement() const;

  /// Fills the list with the maps of all data frames, in the order of the elements.
  void GetMaps(QList<SysUtility::_ptr_t<Map>>& maps) const;

  /// The page's size in pixels at a resolution: trunc(centimetres / 2.54 × dpi). 0 and 0 without a page.
  void QueryOutputSize(int dpi, int& width, int& height) const;

  /// Borrowed; null when the layout has no page.
  virtual Page* GetPage() const;

  /// Shows the page at a zoom: 1.0 is 96 device pixels an inch. The centre stays.
  virtual void ZoomToRatio(double ratio);
  virtual void ZoomToWholePage();

  /// Gives the layout's data frames these maps, paired by order, and rebinds the surrounds; those of a map that no data
  /// frame showed follow none. A data frame left over keeps its place with an empty map, and gives the focus to the
  /// first map with layers; for a map left over a data frame is added.
  virtual void ReplaceMaps(QList<SysUtility::_ptr_t<Map>> const& maps);

  SysUtility::_ptr_t<Map> GetFocusMap() const override;

  /// A map that is not in the layout gives way to the first one.
  void SetFocusMap(SysUtility::_ptr_t<Map> const& map) override;
  IElementContainer* GetGraphicsContainer() const override;

  /// Gives the layout a page; an empty pointer takes it away.
  void SetPage(SysUtility::_ptr_t<Page> const& page);

protected:
  void applyExtent(SysGeometry::Envelope const& extent) override;

private:
  friend struct PageLayoutHost;
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
