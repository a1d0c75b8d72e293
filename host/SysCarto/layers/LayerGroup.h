#pragma once

#include "host/SysUtility/ChangeMark.h"

#include <SysCarto/Export.h>
#include <SysUtility/CRef.h>
#include <SysUtility/Ptr.h>

#include <QString>
#include <QVector>

namespace SysCarto {

/// What layers of a map have in common that stand together in the contents: a name, and whether they show. Which layers
/// belong to it is said by them (`LayerHost::groups`), so that a group without a layer is none.
class SYSCARTO_EXPORT LayerGroup final : public SysUtility::CRef {
public:
  ~LayerGroup() override;

  QString const& name() const { return name_; }
  void setName(QString const& name) { change_.set(name_, name); }

  /// Its own switch; the groups that it lies in have theirs.
  bool isVisible() const { return isVisible_; }
  void setVisible(bool visible);

  // As of a layer (`LayerHost`).
  quint64 look() const { return look_; }
  quint64 lastChange() const { return change_.time(); }

private:
  QString name_;
  bool isVisible_ = true;
  quint64 look_ = 0;
  SysUtility::ChangeMark change_;
};

/// The groups in which a layer lies, the outermost first. Layers of one group have the same ones down to it, and stand
/// side by side in their map.
using LayerGroups = QVector<SysUtility::_ptr_t<LayerGroup>>;

}  // namespace SysCarto
