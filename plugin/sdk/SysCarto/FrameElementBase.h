#pragma once

#include <SysCarto/Element.h>
#include <SysCarto/FrameProperties.h>

#include <memory>

namespace SysCarto {

/// An element in a rectangle that has a border, a background and a shadow.
class SYSCARTO_EXPORT FrameElementBase : public Element, public IFrameProperties {
public:
  ~FrameElementBase() override;

  void DrawBackground(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation);
  void DrawBorder(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation);
  void DrawShadow(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation);

  void Move(double dx, double dy) override;
  void Scale(SysUtility::_ptr_t<SysGeometry::Point> const& origin, double sx, double sy) override;
  SysUtility::_ptr_t<SysGeometry::Geometry> GetGeometry() const override;
  void SetGeometry(SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle) override;
  SysUtility::_ptr_t<SysGeometry::Envelope> GetEnvelope() const override;
  SysUtility::_ptr_t<SysGeometry::Geometry> GetBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation) const override;

  SysUtility::_ptr_t<IBorder> GetBorder() const override;
  void SetBorder(SysUtility::_ptr_t<IBorder> const& border) override;
  SysUtility::_ptr_t<IBackground> GetBackground() const override;
  void SetBackGround(SysUtility::_ptr_t<IBackground> const& background) override;
  SysUtility::_ptr_t<IShadow> GetShadow() const override;
  void SetShadow(SysUtility::_ptr_t<IShadow> shadow) override;

protected:
  FrameElementBase();
  FrameElementBase(FrameElementBase const&);

  /// Called after the rectangle has changed.
  virtual void rectangleChanged();

private:
  void place(SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle);

  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
