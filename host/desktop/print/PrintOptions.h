#pragma once

#include "PosterPlan.h"

#include "host/SysCarto/document/OutputSettings.h"
#include "host/desktop/SettingsSource.h"

#include <QImage>
#include <QWidget>

namespace SysAdapterUI {
class PropertySheet;
}
class QLabel;

/// How sheets of paper lie on a page: what each shows, what two show alike, and which is which.
class SheetsPreview final : public QWidget {
  Q_OBJECT

public:
  SheetsPreview(QImage page, QWidget* parent);
  void show(PosterPlan const& plan);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  QImage const page_;
  PosterPlan plan_;
};

/// The choices of a document for paper, with a preview; a tab of a print dialog.
class PrintOptions final : public QWidget {
  Q_OBJECT

public:
  /// `page` is a picture of it, of any size.
  PrintOptions(SysCarto::PrintSettings const& settings, QSizeF const& pageCm, QImage const& page, QWidget* parent);
  ~PrintOptions() override;

  /// With the value that is being edited.
  SettingsSource<SysCarto::PrintSettings> const& taken();

private:
  void follow();

  SettingsSource<SysCarto::PrintSettings> source_;
  QSizeF const pageCm_;
  SysAdapterUI::PropertySheet* const sheet_;
  SheetsPreview* const preview_;
  QLabel* const sentence_;
};
