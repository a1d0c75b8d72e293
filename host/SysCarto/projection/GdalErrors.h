#pragma once

#include <SysCarto/Export.h>

#include <QString>

#include <cpl_error.h>

namespace SysCarto {

/// While it lives, GDAL, OGR and PROJ print nothing on this thread: what they report is collected, and the error that
/// GDAL noted before is kept for whoever asks for it. Scopes may be nested; the innermost collects.
class SYSCARTO_EXPORT GdalErrors {
public:
  GdalErrors();
  ~GdalErrors();
  GdalErrors(GdalErrors const&) = delete;
  GdalErrors& operator=(GdalErrors const&) = delete;

  /// The latest failure, or where there was none the latest warning; empty where nothing was reported. On one line,
  /// without a full stop.
  QString reason() const;

  bool hasFailure() const { return !failure_.isEmpty(); }

private:
  static void CPL_STDCALL collect(CPLErr kind, CPLErrorNum number, char const* text);
  void add(CPLErr kind, QString const& message);

  CPLErrorStateBackuper backup_;
  QString failure_;
  QString warning_;
};

}  // namespace SysCarto
