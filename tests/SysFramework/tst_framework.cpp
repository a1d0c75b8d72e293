#include "LayoutHook.h"

#include <SysFramework/BaseTool.h>
#include <SysFramework/DesktopCommand.h>

using namespace SysFramework;

namespace {

class DesktopHook final : public LayoutHook, public IDesktop {
public:
  using LayoutHook::LayoutHook;
  SysCarto::MapDocument* GetMapDocument() override { return nullptr; }
  SysCarto::IKdxContents* GetActiveContents() override { return nullptr; }
  SysAdapterUI::TOCControl* GetTOCControl() override { return nullptr; }
  _ptr_t<IContentsSite> GetContentsSite() override { return nullptr; }
};

class Command final : public DesktopCommand {
public:
  Command() = default;
  Command(Command const&) = default;
  ~Command() override { ++destroyed; }
  using DesktopCommand::desktop_;
  using DesktopCommand::enabled_;
  using DesktopCommand::hook;
  static inline int destroyed = 0;
};

class Tool final : public BaseTool {
public:
  using BaseTool::SetCurrentCursor;
};

}  // namespace

class FrameworkTest : public QObject {
  Q_OBJECT

private slots:
  void theDesktopIsFoundBehindTheHook() {
    DesktopHook desktop(make<SysCarto::PageLayout>());
    Command command;
    QVERIFY(!command.IsEnable() && !command.hook());
    command.OnCreate(desktop.pointer());
    QCOMPARE(command.hook(), static_cast<IApplicationHook*>(&desktop));
    QCOMPARE(command.desktop_, static_cast<IDesktop*>(&desktop));

    LayoutHook plain(make<SysCarto::PageLayout>());
    command.OnCreate(plain.pointer());
    QCOMPARE(command.hook(), static_cast<IApplicationHook*>(&plain));
    QVERIFY(!command.desktop_);

    command.OnCreate(nullptr);
    QVERIFY(!command.hook());
  }

  void aCopyIsAnObjectOfItsOwn() {
    DesktopHook desktop(make<SysCarto::PageLayout>());
    auto const original = make<Command>();
    original->OnCreate(desktop.pointer());
    original->enabled_ = true;
    int const before = Command::destroyed;
    {
      auto const copy = make<Command>(*original);
      QVERIFY(copy->IsEnable());
      QCOMPARE(copy->desktop_, original->desktop_);
    }
    QCOMPARE(Command::destroyed, before + 1);
  }

  void aToolHasOneCountForAllItsFaces() {
    _ptr_t<SysUI::ICommand> const command = make<Tool>();
    QVERIFY(ptr_cast<SysUI::ITool>(command));
    QCOMPARE(command->AddRef(), 2ul);
    QCOMPARE(ptr_cast<SysUI::ITool>(command)->Release(), 2ul);
  }

  void theCursorIsKeptAndReachesTheViewThatIsShown() {
    LayoutHook hook(make<SysCarto::PageLayout>());
    hook.view = nullptr;
    auto const tool = make<Tool>();
    QVERIFY(tool->Activate() && tool->IsChecked());
    tool->SetCurrentCursor(Qt::CrossCursor);
    tool->OnCreate(hook.pointer());
    tool->SetCurrentCursor(Qt::CrossCursor);
    hook.view = make<SysCarto::PageLayout>();
    tool->SetCurrentCursor(Qt::CrossCursor);
    QCOMPARE(tool->GetCursor().shape(), Qt::CrossCursor);
    SysCarto::ActiveViewHost::setSurface(*hook.view, &hook.surface);
    tool->SetCurrentCursor(Qt::WaitCursor);
    QCOMPARE(hook.calls, QStringList(QString("cursor %1").arg(Qt::WaitCursor)));
    QCOMPARE(tool->GetCursor().shape(), Qt::WaitCursor);
    QVERIFY(tool->Deactivate() && !tool->IsChecked());
  }
};

QTEST_MAIN(FrameworkTest)
#include "tst_framework.moc"
