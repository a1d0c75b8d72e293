#include "RecordingSurface.h"

#include <SysFramework/BaseTool.h>
#include <SysFramework/DesktopCommand.h>

using namespace SysFramework;

namespace {

class PlainHook : public IApplicationHook {
public:
  _ptr_t<SysCarto::ActiveView> GetActiveView() override { return view; }
  _ptr_t<SysCarto::PageLayout> GetPageLayout() override { return nullptr; }
  SysCarto::IKdxContents* GetContents() override { return nullptr; }
  _ptr_t<SysCarto::ActiveView> view;
};

class DesktopHook final : public PlainHook, public IDesktop {
public:
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

// A hook reaches a command as the bare address of its `IApplicationHook` face.
void* address(IApplicationHook& hook) { return &hook; }

}  // namespace

class FrameworkTest : public QObject {
  Q_OBJECT

private slots:
  void aNewCommandIsDisabledAndBoundToNothing() {
    Command command;
    QVERIFY(!command.IsEnable());
    QVERIFY(!command.IsChecked());
    QVERIFY(!command.hook());
    command.enabled_ = true;
    QVERIFY(command.IsEnable());
  }

  void theDesktopIsFoundBehindTheHook() {
    DesktopHook desktop;
    Command command;
    command.OnCreate(address(desktop));
    QCOMPARE(command.hook(), static_cast<IApplicationHook*>(&desktop));
    QCOMPARE(command.desktop_, static_cast<IDesktop*>(&desktop));

    PlainHook plain;
    command.OnCreate(address(plain));
    QCOMPARE(command.hook(), static_cast<IApplicationHook*>(&plain));
    QVERIFY(!command.desktop_);

    command.OnCreate(nullptr);
    QVERIFY(!command.hook());
  }

  void aCopyIsAnObjectOfItsOwn() {
    DesktopHook desktop;
    auto const original = make<Command>();
    original->OnCreate(address(desktop));
    original->enabled_ = true;
    auto const other = original;
    {
      auto const copy = make<Command>(*original);
      QVERIFY(copy->IsEnable());
      QCOMPARE(copy->desktop_, original->desktop_);
    }
    QCOMPARE(Command::destroyed, 1 + 2);  // and those of the two functions before
  }

  void aToolHasOneCountForAllItsFaces() {
    _ptr_t<SysUI::ICommand> const command = make<Tool>();
    QVERIFY(ptr_cast<SysUI::ITool>(command));
    QCOMPARE(command->AddRef(), 2ul);
    QCOMPARE(ptr_cast<SysUI::ITool>(command)->Release(), 2ul);
  }

  void theCursorIsKeptAndReachesTheViewThatIsShown() {
    PlainHook hook;
    QStringList calls;
    RecordingSurface surface(calls);
    auto const tool = make<Tool>();
    QVERIFY(tool->Activate() && tool->IsChecked());
    tool->SetCurrentCursor(Qt::CrossCursor);
    tool->OnCreate(address(hook));
    tool->SetCurrentCursor(Qt::CrossCursor);
    hook.view = make<SysCarto::PageLayout>();
    tool->SetCurrentCursor(Qt::CrossCursor);
    QCOMPARE(tool->GetCursor().shape(), Qt::CrossCursor);
    hook.view->setSurface(&surface);
    tool->SetCurrentCursor(Qt::WaitCursor);
    QCOMPARE(calls, QStringList(QString("cursor %1").arg(Qt::WaitCursor)));
    QCOMPARE(tool->GetCursor().shape(), Qt::WaitCursor);
    QVERIFY(tool->Deactivate() && !tool->IsChecked());
  }
};

QTEST_MAIN(FrameworkTest)
#include "tst_framework.moc"
