#pragma once

#include <SysUI/Export.h>

#include <QString>

namespace SysUI {

/// The host's persistent settings, texts under a group and a key.
class SYSUI_EXPORT EnvironmentSetting {
public:
  /// The one object of the process, borrowed.
  static EnvironmentSetting* Instance();

  /// The stored text, as it was set, commas included; null where nothing is stored.
  QString GetPropertyValue(QString const& group, QString const& key) const;
  void SetPropertyValue(QString const& group, QString const& key, QString const& value);

  /// The folder of the style libraries that came with the host, without a separator at its end.
  QString GetStyleDir() const;

private:
  EnvironmentSetting() = default;
};

}  // namespace SysUI
