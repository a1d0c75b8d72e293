#pragma once

#include <SysCarto/Element.h>

#include <QList>

namespace SysCarto {

/// Elements that are moved, scaled and drawn as one. A clone clones its members.
class SYSCARTO_EXPORT GroupElement final : public Element {
public:
  GroupElement();
  GroupElement(GroupElement const&);
  ~GroupElement() override;

  /// Appends a member on top. From then on it belongs to the group.
  void AddElement(SysUtility::_ptr_t<Element> const& element);
  QList<SysUtility::_ptr_t<Element>> GetElements() const;

  void Move(double dx, double dy) override;
  void Scale(SysUtility::_ptr_t<SysGeometry::Point> const& origin, double sx, double sy) override;
  int GetType() const override;
  SysUtility::_ptr_t<SysGeometry::Geometry> GetGeometry() const override;
  void SetGeometry(SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle) override;
  SysUtility::_ptr_t<SysGeometry::Envelope> GetEnvelope() const override;
  void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) override;
  SysUtility::_ptr_t<SysGeometry::Geometry> GetBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation) const override;
  SysUtility::_ptr_t<Element> Clone() const override;

private:
  void containerChanged() override;

  QList<SysUtility::_ptr_t<Element>> members_;
};

}  // namespace SysCarto
