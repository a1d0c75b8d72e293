#include "AddGridCommand.h"

#include <SysCarto/Graticule.h>
#include <SysFramework/HostAccess.h>

#include <QCoreApplication>
#include <QMessageBox>

using SysCarto::Graticule;
using SysCarto::MapFrameElement;
using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace Plugin {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(AddGridCommand)
};

_ptr_t<MapFrameElement> firstFrame(IElementContainer const& container) {
  for (auto const& element : container.GetElements())
    if (element->GetType() == SysCarto::ElementType::DataFrame) return ptr_cast<MapFrameElement>(element);
  return nullptr;
}

}  // namespace

void AddGridCommand::OnClick() {
  auto const layout = SysFramework::activePageLayout(*hook());
  if (!layout) return;
  IElementContainer* const container = layout->GetGraphicsContainer();
  if (auto const frame = firstFrame(*container)) {
    frame_ = frame;
    if (!mayAdd()) return;
    SysFramework::EditorOperation const operation(Texts::tr("Add a grid"));
    auto const copy = ptr_cast<MapFrameElement>(frame_->Clone());
    auto const grid = SysUtility::make<Graticule>();
    grid->SetName(GetGraticuleName());
    copy->AddMapGrid(grid);
    container->ReplaceElement(frame_->GetHandle(), copy);
  }
  layout->Refresh(0, false);
}

bool AddGridCommand::mayAdd() const {
  for (int i = 0; i < frame_->GetMapGridCount(); ++i)
    if (ptr_cast<Graticule>(frame_->GetMapGrid(i)))
      return QMessageBox::question(dialogParent(*hook()), Texts::tr("Grid"),
                                   Texts::tr("Grid already exists, continue to add new grid?"),
                                   QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton) == QMessageBox::Yes;
  return true;
}

// The number goes on from that of the last graticule alone. What stands before it is taken to be as long as the usual
// name, whatever it is.
QString AddGridCommand::GetGraticuleName() const {
  QString const series = QStringLiteral("Graticule");
  for (int i = frame_->GetMapGridCount() - 1; i >= 0; --i) {
    auto const grid = ptr_cast<Graticule>(frame_->GetMapGrid(i));
    if (!grid) continue;
    qint64 const number = grid->GetName().mid(series.size()).toInt();
    return number == -1 ? series : series + QString::number(number + 1);
  }
  return series;
}

}  // namespace Plugin
