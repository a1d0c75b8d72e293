#pragma once

#include "Elements.h"

#include "host/SysCarto/elements/EditorHost.h"
#include "host/SysCarto/maps/ActiveViewHost.h"

#include <SysFramework/BaseCommand.h>
#include <SysFramework/IApplicationHook.h>

#include <functional>

/// Writes down what a view asks of its screen.
class RecordingSurface final : public SysCarto::ViewSurface {
public:
  explicit RecordingSurface(QStringList& calls) : calls_(calls) {}

  void beginTracker() override { calls_ << "begin"; }
  void endTracker() override { calls_ << "end"; }
  void trackerOffset(double dx, double dy) override { calls_ << QString("offset %1 %2").arg(dx).arg(dy); }
  void trackerShape(SysDisplay::Symbol const& symbol, _ptr_t<SysGeometry::Geometry> const& geometry,
                    _ptr_t<SysDisplay::DisplayTransformation> const& transformation) override {
    auto const box = geometry->GetEnvelope();
    calls_ << QString::asprintf("%s %g %g %g at scale %g",
                                symbol.GetType() == SysDisplay::SymbolType::Line ? "line" : "fill", box->GetXMin(),
                                box->GetXMax(), box->GetYMax(), transformation->GetPageScale());
  }
  void trackerText(QString const& text, QPointF const&) override { calls_ << "text " + text; }
  void refresh(int phase) override {
    calls_ << QString("refresh %1").arg(phase);
    if (onRefresh) onRefresh();
  }
  void clearOverlay() override { calls_ << "clear"; }
  void setCursor(QCursor const& cursor) override { calls_ << QString("cursor %1").arg(cursor.shape()); }

  std::function<void()> onRefresh;

private:
  QStringList& calls_;
};

/// A host without a window: it shows a layout, a map of it, or nothing, and notes in `calls` what the layout asks of
/// its screen.
class LayoutHook : public IApplicationHook {
public:
  explicit LayoutHook(_ptr_t<SysCarto::PageLayout> const& layout) : layout(layout), view(layout) {
    SysCarto::EditorHost::setHistory(&history);
    SysCarto::ActiveViewHost::setSurface(*layout, &surface);
  }
  ~LayoutHook() override {
    SysCarto::EditorHost::setHistory(nullptr);
    SysCarto::ActiveViewHost::setSurface(*layout, nullptr);
  }

  _ptr_t<SysCarto::ActiveView> GetActiveView() override { return view; }
  _ptr_t<SysCarto::PageLayout> GetPageLayout() override { return layout; }
  SysCarto::IKdxContents* GetContents() override { return nullptr; }

  /// A command as a host binds it.
  template <class Command>
  _ptr_t<Command> bound() {
    auto const command = make<Command>();
    command->OnCreate(pointer());
    return command;
  }

  /// What `OnCreate` receives.
  void* pointer() { return static_cast<IApplicationHook*>(this); }

  _ptr_t<SysCarto::PageLayout> layout;
  _ptr_t<SysCarto::ActiveView> view;
  QUndoStack history;
  QStringList calls;
  RecordingSurface surface{calls};
};

/// How a row of a test makes its command.
using MakeCommand = _ptr_t<SysFramework::BaseCommand> (*)();

template <class Command>
_ptr_t<SysFramework::BaseCommand> made() {
  return make<Command>();
}

/// A layout with an empty page of its own size, shown whole.
inline _ptr_t<SysCarto::PageLayout> emptyLayout(double widthCm, double heightCm) {
  auto const page = make<SysCarto::Page>();
  SysCarto::Paper::SetCustomSize(widthCm, heightCm);
  page->SetFormID(SysCarto::customPageForm);
  page->SetOrientation(1);
  auto const layout = make<SysCarto::PageLayout>();
  layout->SetPage(page);
  layout->ZoomToWholePage();
  return layout;
}
