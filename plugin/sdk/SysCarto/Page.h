#pragma once

#include <SysCarto/FrameProperties.h>
#include <SysCarto/Paper.h>

#include <memory>

namespace SysCarto {

/// The sheet of a layout: its form, orientation, border, background and shadow.
class SYSCARTO_EXPORT Page : public SysUtility::CRef, public IFrameProperties {
public:
  /// A4, portrait, white, without a border.
  Page();
  ~Page() override;

  /// Index of a form of `Paper`; 12 is the custom size.
  virtual int GetFormID() const;

  /// Takes a form. Form 12 copies the custom size of `Paper`, also when the page's form was 12 already. A form that
  /// does not exist is ignored.
  virtual void SetFormID(int id);
  virtual short GetOrientation() const;  ///< 1 portrait, 2 landscape

  /// 2 swaps the listed sizes of the form. Other values than 1 and 2 are ignored.
  virtual void SetOrientation(short orientation);

  /// The size of the sheet in centimetres, as it lies.
  virtual void QuerySize(double& width, double& height) const;
  virtual void DrawBackground(QPainter& painter,
                              SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation);
  virtual void DrawBorder(QPainter& painter,
                          SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation);

  /// The whole sheet, (0, 0) to (width, height); a new object. It is also the margin rectangle.
  SysUtility::_ptr_t<SysGeometry::Envelope> GetPageEnvelope() const;
  SysUtility::_ptr_t<Paper> GetPaper() const;

  SysUtility::_ptr_t<IBorder> GetBorder() const override;
  void SetBorder(SysUtility::_ptr_t<IBorder> const& border) override;
  SysUtility::_ptr_t<IBackground> GetBackground() const override;
  void SetBackGround(SysUtility::_ptr_t<IBackground> const& background) override;
  SysUtility::_ptr_t<IShadow> GetShadow() const override;
  void SetShadow(SysUtility::_ptr_t<IShadow> shadow) override;

private:
  friend struct PageHost;
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
