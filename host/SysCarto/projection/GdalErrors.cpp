#include "GdalErrors.h"

namespace SysCarto {

GdalErrors::GdalErrors() { CPLPushErrorHandlerEx(&GdalErrors::collect, this); }
GdalErrors::~GdalErrors() { CPLPopErrorHandler(); }

QString GdalErrors::reason() const { return failure_.isEmpty() ? warning_ : failure_; }

void CPL_STDCALL GdalErrors::collect(CPLErr kind, CPLErrorNum, char const* text) {
  auto* const self = static_cast<GdalErrors*>(CPLGetErrorHandlerUserData());
  if (self && (kind == CE_Warning || kind == CE_Failure || kind == CE_Fatal)) self->add(kind, QString::fromUtf8(text));
}

void GdalErrors::add(CPLErr kind, QString const& message) {
  QString line = message.simplified();
  while (line.endsWith(QLatin1Char('.'))) line.chop(1);
  if (line.isEmpty()) return;
  (kind == CE_Warning ? warning_ : failure_) = line;
}

}  // namespace SysCarto
