#pragma once

#include "PageGesture.h"

/// Turns the selection about the middle of its rectangle. Shift keeps to steps of 15 degrees.
class TurnGesture final : public PageGesture {
public:
  TurnGesture(SysCarto::PageLayout& layout, QPointF const& press);

protected:
  Outlines outlines() const override;
  void commit() override;
  QString numbers() const override;

private:
  double degrees() const;

  QPointF const middle_;
};

/// Turns the selected elements that can be turned counterclockwise about the middle of their rectangle, as one step of
/// the history. Answers false, with nothing done, where there is none.
bool turnSelection(SysCarto::PageLayout& layout, double degrees);
