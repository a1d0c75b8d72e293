#pragma once

#include "ActionTable.h"
#include "DocumentFiles.h"
#include "HistoryQuestion.h"
#include "Workbench.h"
#include "layers/LayerAdding.h"
#include "layers/LayerCommands.h"
#include "output/OutputCommands.h"
#include "print/PrintCommands.h"
#include "recovery/RecoveryCopy.h"

#include <SysAdapterUI/PageLayoutControl.h>
#include <SysAdapterUI/TOCControl.h>

#include <QMainWindow>

#include <array>

class QLabel;
class QLineEdit;
class ElementList;
class LayerPanels;
class NoticeBar;
class PropertyPanel;
class QTabBar;

/// The window: puts together the workbench, its actions, the table of contents and the status bar.
class MainWindow final : public QMainWindow {
  Q_OBJECT

public:
  MainWindow();
  ~MainWindow() override;

  /// Opens a document; a message box says why where it can't.
  bool open(QString const& path) { return files_.open(path); }

  /// Offers what was not saved when the program last ended; false where there is nothing, or it is left. A `path` that
  /// was to be opened is not then, which is told.
  bool recover(QString const& path = {});

  Workbench& bench() { return bench_; }
  ActionTable& actions() { return *actions_; }

protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

private:
  // Whoever installs a layout in the views tells the table of contents so.
  class Companion;

  void addWindowCommands(HostCommands& host);
  void buildContents();
  void buildProperties();
  void buildHistory();
  void buildViews();
  void finishTyping();
  void showRulers();
  void connectFiles();
  void buildStatusBar();
  void keepState();
  void restoreState();

  void showState();
  void showPointer(QPoint const& positionPx);
  void takeScale();
  void makeFromData();
  void showAbout();

  LayerCommands layers_{bench_};  // the workbench asks for them while it is made
  OutputCommands output_{bench_, *this};
  PrintCommands print_{bench_, *this};
  Workbench bench_;
  DocumentFiles files_;
  LayerAdding adding_;
  HistoryQuestion question_;
  RecoveryCopy recovery_;
  std::unique_ptr<ActionTable> actions_;
  std::unique_ptr<Companion> companion_;
  SysAdapterUI::TOCControl* contents_ = nullptr;
  ElementList* elements_ = nullptr;
  PropertyPanel* properties_ = nullptr;
  LayerPanels* panels_ = nullptr;
  QDockWidget* contentsDock_ = nullptr;
  QDockWidget* historyDock_ = nullptr;
  NoticeBar* notice_ = nullptr;
  std::array<QWidget*, 2> rulers_{};
  bool hasRulers_ = true;
  QTabBar* tabs_ = nullptr;
  QLabel* position_ = nullptr;
  QLineEdit* scale_ = nullptr;
  QLabel* zoom_ = nullptr;
};

/// Opens the window, with a document where `path` is not empty, and runs until it is closed.
int runWindow(QString const& path);
