#pragma once

#include "LayoutView.h"
#include "MapView.h"
#include "layers/FeatureHighlight.h"
#include "layers/Identify.h"

#include "host/SysCarto/layers/WithoutWaiting.h"

#include <SysAdapterUI/PageLayoutControl.h>

#include <QStackedWidget>

namespace SysCarto {
class MapDocument;
}

/// The views of a document, one of which is shown: the page layout, or the map of its focus data frame.
class DocumentViews final : public QStackedWidget, public SysAdapterUI::PageLayoutControl {
  Q_OBJECT

public:
  enum class Kind { Layout, Map };

  /// `document` is borrowed and outlives the views.
  DocumentViews(SysCarto::MapDocument& document, QWidget* parent);
  ~DocumentViews() override;

  SysCarto::MapDocument const& document() const { return document_; }

  /// Shows the layout that the document holds now.
  void follow();

  /// Shows anew what a step of the history may have changed.
  void redraw();

  /// While they are paused, no map is drawn.
  void setPaused(bool isPaused);

  Kind kind() const { return static_cast<Kind>(currentIndex()); }
  void show(Kind kind);

  /// Makes the map the one that insertion and the map view work on. Like every change of the focus it is no step of
  /// undo.
  void focusOn(SysUtility::_ptr_t<SysCarto::Map> const& map);

  /// Empty where the document has no layout, or the map view is shown and there is no map.
  SysUtility::_ptr_t<SysCarto::ActiveView> activeView() const;
  LayoutView& layoutView() { return *layoutView_; }
  MapView& mapView() { return *mapView_; }

  /// What both views mark of the features of their maps.
  FeatureHighlight& highlight() { return *highlight_; }

  /// Hands on what was found at a place of a map.
  void tell(Identified const& found) { emit identified(found); }

  SysUtility::_ptr_t<SysCarto::PageLayout> GetPageLayout() const override;
  void SetPageLayout(SysUtility::_ptr_t<SysCarto::PageLayout> const& layout) override;
  SysAdapterUI::ICompanion* GetCompanion() override { return companion_; }

  /// Borrowed; null where nobody follows.
  void setCompanion(SysAdapterUI::ICompanion* companion) { companion_ = companion; }

signals:
  /// States that depend on the views may have changed.
  void changed();
  void identified(Identified const& found);

private:
  SysCarto::MapDocument& document_;
  LayoutView* layoutView_;
  MapView* mapView_;
  FeatureHighlight* highlight_;
  SysCarto::ReadingListener const listener_;
  SysAdapterUI::ICompanion* companion_ = nullptr;
};
