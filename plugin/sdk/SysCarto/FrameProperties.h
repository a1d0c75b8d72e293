#pragma once

#include <SysCarto/Export.h>
#include <SysDisplay/DisplayTransformation.h>

class QPainter;

namespace SysCarto {

/// A part of a frame: it draws itself around, behind or beside a rectangle in page centimetres.
class SYSCARTO_EXPORT FramePart : public SysUtility::CRef {
public:
  ~FramePart() override;

  virtual void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
                    SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle) const = 0;

  /// The rectangle that `Draw` covers, in page centimetres.
  virtual SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle) const = 0;

protected:
  FramePart();
  FramePart(FramePart const&);
  FramePart& operator=(FramePart const&);
};

class SYSCARTO_EXPORT IBorder : public FramePart {
public:
  ~IBorder() override;
};

class SYSCARTO_EXPORT IBackground : public FramePart {
public:
  ~IBackground() override;
};

class SYSCARTO_EXPORT IShadow : public FramePart {
public:
  ~IShadow() override;
};

/// The face of everything that has a frame: the page, data frames, map surround frames. A part may be empty; then it is
/// not drawn. The setters keep the object that they are given: clone it first where it is shared.
class SYSCARTO_EXPORT IFrameProperties {
public:
  virtual ~IFrameProperties();

  virtual SysUtility::_ptr_t<IBorder> GetBorder() const = 0;
  virtual void SetBorder(SysUtility::_ptr_t<IBorder> const& border) = 0;
  virtual SysUtility::_ptr_t<IBackground> GetBackground() const = 0;
  virtual void SetBackGround(SysUtility::_ptr_t<IBackground> const& background) = 0;
  virtual SysUtility::_ptr_t<IShadow> GetShadow() const = 0;
  virtual void SetShadow(SysUtility::_ptr_t<IShadow> shadow) = 0;
};

}  // namespace SysCarto
