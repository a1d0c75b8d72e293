#pragma once

#include <SysCarto/FrameElementBase.h>
#include <SysCarto/MapSurround.h>

namespace SysCarto {

/// The rectangle of the page in which a map surround lies. A clone copies the surround; the copy follows the same map.
class SYSCARTO_EXPORT MapSurroundFrame final : public FrameElementBase {
public:
  MapSurroundFrame();
  MapSurroundFrame(MapSurroundFrame const&);
  ~MapSurroundFrame() override;

  /// Empty until one is set.
  SysUtility::_ptr_t<MapSurround> GetMapSurround() const;
  void SetMapSurround(SysUtility::_ptr_t<MapSurround> const& surround);

  int GetType() const override;

  /// Draws the frame's parts and the surround's elements, or a quiet placeholder where it answers none. An export asks
  /// the surround for its elements itself, so that no placeholder is printed.
  void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) override;
  SysUtility::_ptr_t<Element> Clone() const override;

protected:
  void rectangleChanged() override;

private:
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
