#pragma once

#include <SysCarto/PageLayout.h>

#include <QWidget>

#include <memory>

namespace Ui {
class PageSizeTabPage;
}

/// The tab for the form, the size and the orientation of a page. It shows the page as it is when the tab is made, and
/// changes it only in `ApplyToPage`.
class PageSizeTabPage : public QWidget {
  Q_OBJECT

public:
  /// `view` is a layout that has a page; the tab holds it.
  PageSizeTabPage(SysUtility::_ptr_t<SysCarto::ActiveView> const& view, QWidget* parent);
  ~PageSizeTabPage() override;

  /// Writes form, custom size and orientation to the page. Where the option for it is on, elements are then placed in
  /// the new page as they were in the old one: data frames grow with it, the others keep their size. Not undoable.
  void ApplyToPage();

signals:
  /// The person has changed something.
  void ValueChanged();

private slots:
  void slotPaperTypeChanged(int index);
  void slotCheckBoxScaleMapElemStateChanged(int state);
  void slotLineEditPageWidthTextEdited(const QString& text);
  void slotLineEditPageHeightTextEdited(const QString& text);
  void slotOrientationH();
  void slotOrientationV();

private:
  void showPage();
  void showSize(double widthCm, double heightCm);
  void connectWidgets();
  void enableSize(bool on);
  void setPortrait(bool isPortrait);
  void setCustomSize() const;
  void rescaleElements(double oldWidthCm, double oldHeightCm) const;

  std::unique_ptr<Ui::PageSizeTabPage> ui_;
  SysUtility::_ptr_t<SysCarto::ActiveView> view_;
  SysCarto::Page* page_ = nullptr;  // borrowed from the layout
  bool isPortrait_ = true;          // the way in which the fields show the page
};
