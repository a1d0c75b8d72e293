#pragma once

#include <SysDisplay/Symbol.h>

#include <memory>

namespace SysDisplay {

/// Draws points, and for other geometries their anchor point.
class SYSDISPLAY_EXPORT MarkerSymbol : public Symbol {
public:
  ~MarkerSymbol() override;

  SymbolType GetType() const override;

  /// Points: the longer side of the marker.
  virtual double GetSize() const;
  virtual void SetSize(double points);

  /// Degrees, counterclockwise on the page.
  virtual double GetAngle() const;
  virtual void SetAngle(double degrees);

protected:
  MarkerSymbol();
  MarkerSymbol(MarkerSymbol const&);
  MarkerSymbol& operator=(MarkerSymbol const&);

private:
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysDisplay
