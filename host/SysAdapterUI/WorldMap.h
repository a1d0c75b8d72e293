#pragma once

#include "host/SysCarto/projection/GlobeBox.h"

#include <QPainterPath>
#include <QWidget>

namespace SysAdapterUI {

/// The whole world with its meridians upright (plate carrée), and two parts of it: where a coordinate system is meant
/// to be used, and what a map shows.
class WorldMap final : public QWidget {
  Q_OBJECT

public:
  explicit WorldMap(QWidget* parent);

  // Of nothing for none.
  void setUse(SysCarto::GlobeBox const& use);
  void setExtent(SysCarto::GlobeBox const& extent);

  QSize sizeHint() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return width / 2; }

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  SysCarto::GlobeBox use_, extent_;
  QPainterPath const land_;  // in degrees, y upwards
};

}  // namespace SysAdapterUI
