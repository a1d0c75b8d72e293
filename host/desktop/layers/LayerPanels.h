#pragma once

#include <SysCarto/Layer.h>
#include <SysCarto/Map.h>

#include <QObject>

class AttributePanel;
class IdentifyPanel;
class QMainWindow;
class Workbench;

/// The panels of a window that show the features of layers: their attributes, and what lies at a place.
class LayerPanels final : public QObject {
  Q_OBJECT

public:
  /// Both are borrowed; the window owns the panels, hidden at first.
  LayerPanels(Workbench& bench, QMainWindow& window);
  ~LayerPanels() override;

  /// The row of the contents that is current now; without a layer for that of a map.
  void choose(SysUtility::_ptr_t<SysCarto::Map> const& map, SysUtility::_ptr_t<SysCarto::Layer> const& layer);

  /// Whether the current row is that of a layer of features, whose table can be shown.
  bool hasTable() const;
  void showTable();

signals:
  /// A sentence for the person.
  void told(QString const& sentence);

private:
  AttributePanel* attributes_;
  IdentifyPanel* features_;
  SysUtility::_ptr_t<SysCarto::Map> map_;
  SysUtility::_ptr_t<SysCarto::Layer> layer_;
};
