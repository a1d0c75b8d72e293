#pragma once

#include "host/SysCarto/layers/LayerGroup.h"
#include "host/SysUtility/FieldEdit.h"

#include <SysCarto/Layer.h>
#include <SysCarto/Map.h>
#include <SysCarto/MapDocument.h>

#include <functional>
#include <memory>

namespace SysCarto {

struct DocumentContext;

/// Something of a document whose fields a person looks at and changes one by one: the document itself, the page, an
/// element, a map, a layer, a group of layers.
/// It stays usable for as long as the document lives; what it names may have gone meanwhile.
class SYSCARTO_EXPORT Editable {
public:
  using Pointer = std::shared_ptr<Editable const>;
  using List = QVector<Pointer>;

  virtual ~Editable();

  /// As people are told: the name that it has, or its kind with its handle.
  virtual QString name() const = 0;

  /// The names that a field of `TextKind::Attribute` may take: those of the attributes that the features of a layer
  /// have, or those of the layers that a legend may list, those first that it has no entry for.
  virtual QStringList attributes() const { return {}; }

  /// The layer that it is; empty for all else.
  virtual SysUtility::_ptr_t<Layer> layer() const { return nullptr; }

  /// The fields of each as they are; none where it has gone.
  static QVector<QVector<SysUtility::SheetField>> fields(MapDocument const& document, List const& things);

  /// What the document says of itself.
  static Pointer document(MapDocument const& document);
  /// Null where the page is missing.
  static Pointer page(MapDocument const& document);
  /// What the layout says of a series of pages, whether there is one or not; null without a layout.
  static Pointer series(MapDocument const& document);
  static Pointer element(MapDocument const& document, ElementHandle handle);
  static Pointer map(SysUtility::_ptr_t<Map> const& map);
  /// Null for a layer of a kind that can't be stored.
  static Pointer layer(SysUtility::_ptr_t<Map> const& map, SysUtility::_ptr_t<Layer> const& layer);
  static Pointer layerGroup(SysUtility::_ptr_t<LayerGroup> const& group);

  /// Those that a text names: `document`, `page`, `series`, `selection`, the NAME of elements or `#HANDLE`, `map:NAME`
  /// or `layer:MAP/LAYER` (maps and layers by number, too: `map:#0`), where LAYER may be a group of layers. Empty where
  /// there are none.
  static List named(MapDocument const& document, QString const& text);

  /// Gives a field of all of them another value (`changeField`), in one step of the history. Answers a problem, with
  /// nothing changed, or an empty text; what else is to be said is added to `warnings`.
  static QString set(MapDocument const& document, List const& things, QStringList const& path,
                     SysUtility::NewValue const& value, QStringList& warnings);

protected:
  using Change = std::function<void(QString const& stepName, QStringList& warnings)>;

  // What they are told of the whole document is theirs to change.

  virtual void list(SysUtility::Fields& fields, DocumentContext& context) const = 0;

  /// Reads all fields, and answers what takes them over, for a reader that is `ok` afterwards.
  virtual Change read(SysUtility::Fields& reader, DocumentContext& context) const = 0;
};

}  // namespace SysCarto
