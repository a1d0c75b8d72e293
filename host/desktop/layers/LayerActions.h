#pragma once

#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/maps/LayerTree.h"
#include "host/SysGeometry/Box.h"

#include <SysCarto/MapDocument.h>
#include <SysCarto/PageLayout.h>

#include <QCoreApplication>

/// What became of something done with layers. Where `problem` is not empty, nothing was.
struct LayerOutcome {
  QString problem = {};                   ///< a sentence
  QVector<SysCarto::LayerRow> rows = {};  ///< what is to be chosen afterwards
  QStringList warnings = {};              ///< sentences: such as those on data that can't be read
};

/// What is done with layers and their groups, by the contents, the commands of the window and `plotvane run` alike.
/// Rows are layers, groups with all that lies in them, or maps, which only some care about. Each is one step of the
/// history.
class LayerActions {
  Q_DECLARE_TR_FUNCTIONS(LayerActions)

public:
  using Rows = QVector<SysCarto::LayerRow>;

  static constexpr double roomAboutFeatures = 1.2;  ///< of their extent, so that one sees where they lie

  /// Those that a text names: `layer:MAP/LAYER`, where LAYER may be a group, or `map:MAP`; by number, too (`map:#0`).
  static Rows named(SysCarto::MapDocument const& document, QString const& text);

  /// Above the row, in the group that it lies in; of a map, above all of its layers.
  static SysCarto::LayerPlace above(SysCarto::LayerRow const& row);

  /// On top within a group or a map; above a layer.
  static SysCarto::LayerPlace inside(SysCarto::LayerRow const& row);

  /// The one on which something at that place lies; empty for the lowest place.
  static SysUtility::_ptr_t<SysCarto::Layer> layerBelow(SysCarto::LayerPlace const& place);

  // Layers that come to a map of another coordinate system are read anew for it.

  static LayerOutcome move(Rows const& rows, SysCarto::LayerPlace const& place);
  static LayerOutcome copy(Rows const& rows, SysCarto::LayerPlace const& place);
  static LayerOutcome remove(Rows const& rows);

  /// Copies lie above the topmost one.
  static LayerOutcome duplicate(Rows const& rows);

  /// To a place among the entries of its group or map; 1 is the topmost, and what is too much is the lowest.
  static LayerOutcome setOrder(SysCarto::LayerRow const& row, int fromTop);

  // By one place in the contents. What lies at the end of its group leaves it, past a group it goes as one.
  static LayerOutcome raise(Rows const& rows);
  static LayerOutcome lower(Rows const& rows);

  /// Into the group below it or, where none is, above it.
  static LayerOutcome enterGroup(Rows const& rows);
  static bool canEnterGroup(Rows const& rows);
  static LayerOutcome leaveGroup(Rows const& rows);

  /// Layers and groups of one map become a group, where the topmost lay. An empty name gives way to one of ours.
  static LayerOutcome group(Rows const& rows, QString const& name = QString());
  static bool canGroup(Rows const& rows);

  /// Layers stay hidden that the group hid.
  static LayerOutcome ungroup(Rows const& rows);
  static bool canUngroup(Rows const& rows);

  // Through the clipboard of the desktop, as text of its own type and as plain text.
  static LayerOutcome copyToClipboard(Rows const& rows);
  static LayerOutcome cut(Rows const& rows);
  static LayerOutcome paste(SysCarto::LayerPlace const& place);

  static LayerOutcome setVisible(Rows const& rows, bool visible);
  /// Hides them where one shows.
  static LayerOutcome toggleVisible(Rows const& rows);
  static LayerOutcome setOpacity(SysCarto::MapDocument const& document, Rows const& rows, double percent);
  /// Legends that name the layer go on showing it.
  static LayerOutcome rename(SysCarto::MapDocument const& document, SysCarto::LayerRow const& row, QString const& name);

  /// Shows all that the layers hold, or of a map all layers that are visible.
  static LayerOutcome zoomTo(SysCarto::PageLayout const& layout, Rows const& rows);
  /// Shows an extent, in map units, with room about it, or what is one place in the middle of the map. Answers why it
  /// can't.
  static QString zoomTo(SysCarto::PageLayout const& layout, SysCarto::Map& map, SysGeometry::Box const& box,
                        double room = roomAboutFeatures);
  /// Gives the map a scale at which the layer shows.
  static LayerOutcome zoomToScales(SysCarto::PageLayout const& layout, SysCarto::LayerRow const& row);

  /// Reads a layer from another file. Other layers whose file is missing are read from the same folder where it holds a
  /// file of that name.
  static LayerOutcome repair(SysCarto::MapDocument const& document, SysCarto::LayerRow const& row, QString const& file);

  /// Whether the document still has it: undo or a template may have taken it away.
  static bool isThere(SysCarto::MapDocument const& document, SysCarto::LayerRow const& row);

  /// Why the layer's data could not be read; empty for one that could.
  static QString problemOf(SysCarto::LayerRow const& row);

  /// Null for what has gone and for layers of a kind that can't be stored.
  static SysCarto::Editable::Pointer editable(SysCarto::LayerRow const& row);
};
