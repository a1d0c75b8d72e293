#pragma once

#include "desktop/RandomPerson.h"
#include "desktop/WorldWindow.h"

#include "host/SysAdapterUI/ContentsTree.h"
#include "host/SysAdapterUI/PropertySheet.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/desktop/ElementList.h"

#include <QUndoStack>

/// Lets what follows an event in turns of its own come about.
inline void settle() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
}

/// What a hand does to a window, by one seed.
class RandomHand {
public:
  RandomHand(MainWindow& window, quint32 seed, QString const& folder)
      : window_(window), page_(window.bench()), dice_(seed), person_(dice_, folder) {}

  void act() {
    roll();
    if (said().isEmpty()) command();  // there was nothing to do it to
  }

  bool isMixed() const { return isMixed_; }
  QString said() const { return (said_ + person_.said()).join(", "); }
  QStringList commands() const { return commands_ + person_.chosen(); }

private:
  void roll() {
    int const kind = dice_.upTo(99);
    if (kind < 24) return command();
    if (kind < 35) return mouse();
    if (kind < 41) return keys();
    if (kind < 48) return moveInHistory();
    if (kind < 56) return contents();
    if (kind < 60) return elementList();
    if (kind < 65) return select();
    if (kind < 77) return property();
    if (kind < 84) return useTool();
    if (kind < 90) return edit();
    if (kind < 94) return interruptDrag();
    if (kind < 98) return person_.touchOpen();
    say("save");
    page_.bench.session().save();
  }

  void say(QString const& what) { said_ << what; }

  // Those that take long, or lead to another document, come less often.
  void command() {
    static QRegularExpression const rare("New|Open|Export|Print|PageSetting|ChangePageLayout|Series|About|AddLayer");
    auto const& all = page_.bench.commands().commands();
    for (int tries = 0; tries < 30; ++tries) {
      HostedCommand const& one = dice_.of(all);
      QString const identifier = one.entry.identifier;
      if (identifier == "Host_Quit" || (rare.match(identifier).hasMatch() && !dice_.oneIn(4))) continue;
      QAction* const action = window_.actions().find(identifier);
      if (!action || !action->isEnabled() || !one.command->IsEnable()) continue;
      return trigger(identifier);
    }
  }

  void trigger(QString const& identifier) {
    say(identifier);
    commands_ << identifier;
    window_.actions().find(identifier)->trigger();
  }

  QPoint anywhere() { return {dice_.upTo(page_.shown().width() - 1), dice_.upTo(page_.shown().height() - 1)}; }

  Qt::KeyboardModifiers modifiers() {
    static QVector<Qt::KeyboardModifiers> const all{
        Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,  Qt::NoModifier,
        Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier | Qt::ControlModifier};
    return dice_.of(all);
  }

  // A place on the page where there is something: in an element, or on its edge.
  QPoint place() {
    auto const layout = page_.layout();
    auto const elements = layout ? page_.container().GetElements() : QList<_ptr_t<SysCarto::Element>>();
    if (elements.isEmpty() || dice_.oneIn(3) || window_.bench().views().kind() == DocumentViews::Kind::Map)
      return anywhere();
    QRectF const box = placeOf(*dice_.of(elements));
    QPointF const at = dice_.oneIn(2) ? box.center() : QPointF(dice_.oneIn(2) ? box.left() : box.right(), box.bottom());
    QPoint const pixel = page_.pixel(at.x(), at.y());
    constexpr int far = 10000;  // no mouse gets beyond that
    return {qBound(-far, pixel.x(), far), qBound(-far, pixel.y(), far)};
  }

  void mouse() {
    QPoint const from = place(),
                 to = dice_.oneIn(2) ? from + QPoint(dice_.upTo(80) - 40, dice_.upTo(80) - 40) : place();
    auto const keys = modifiers();
    say(QString("mouse %1,%2 to %3,%4 with %5")
            .arg(from.x())
            .arg(from.y())
            .arg(to.x())
            .arg(to.y())
            .arg(int(keys), 0, 16));
    switch (dice_.upTo(9)) {
      case 0: return page_.wheel({0, dice_.oneIn(2) ? 120 : -120}, keys);
      case 1:
        say("double");
        page_.click(from, keys);
        page_.mouse(QEvent::MouseButtonDblClick, from, keys);
        return page_.mouse(QEvent::MouseButtonRelease, from, keys);
      case 2: {
        say("menu");
        QContextMenuEvent event(QContextMenuEvent::Mouse, from, page_.shown().mapToGlobal(from), keys);
        QApplication::sendEvent(&page_.shown(), &event);
        return;
      }
      case 3:
      case 4:
      case 5: return page_.click(from, keys);
      case 6:  // given up on the way
        say("Escape");
        page_.mouse(QEvent::MouseButtonPress, from, keys);
        page_.mouse(QEvent::MouseMove, to, keys);
        page_.key(Qt::Key_Escape);
        return page_.mouse(QEvent::MouseButtonRelease, to, keys);
      default: return page_.drag(from, to, keys);
    }
  }

  void keys() {
    static QVector<Qt::Key> const all{Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,       Qt::Key_Down,
                                      Qt::Key_Tab,    Qt::Key_Escape, Qt::Key_Return,   Qt::Key_Insert,
                                      Qt::Key_Delete, Qt::Key_F2,     Qt::Key_Space,    Qt::Key_PageUp,
                                      Qt::Key_A,      Qt::Key_T,      Qt::Key_Backspace};
    bool const isOnPage = dice_.oneIn(2) || !window_.focusWidget();
    QWidget& widget = isOnPage ? page_.shown() : *window_.focusWidget();
    for (int i = dice_.upTo(3); i >= 0; --i) {
      auto const key = dice_.of(all);
      auto const with = modifiers();
      say(QString("key %1 with %2 in %3").arg(key, 0, 16).arg(int(with), 0, 16).arg(widget.metaObject()->className()));
      QPointer<QWidget> const there(&widget);
      QTest::keyClick(&widget, key, with);
      if (!there) return;
    }
  }

  // A new thing, or another tool, and what is done with it.
  void useTool() {
    QStringList tools;
    for (HostedCommand const& one : page_.bench.commands().commands())
      if (one.tool && window_.actions().find(one.entry.identifier)->isEnabled()) tools << one.entry.identifier;
    if (tools.isEmpty()) return command();
    trigger(dice_.of(tools));
    for (int i = dice_.upTo(3); i >= 0; --i) mouse();
    if (dice_.oneIn(2)) QTest::keyClick(&page_.shown(), dice_.oneIn(2) ? Qt::Key_Return : Qt::Key_Escape);
  }

  // Vertices, a text on the page or labels; an element is chosen before.
  void edit() {
    if (dice_.oneIn(2)) page_.click(place());
    settle();
    if (!window_.actions().find("Host_Edit")->isEnabled()) return;
    trigger("Host_Edit");
    settle();
    for (int i = dice_.upTo(4); i >= 0; --i) {
      QWidget* const focused = window_.focusWidget();
      if (focused && focused != &page_.shown() && dice_.oneIn(2)) {
        say("typed");
        QTest::keyClicks(focused, person_.text());
      } else if (dice_.oneIn(2)) {
        mouse();
      } else {
        keys();
      }
    }
  }

  // A command by its key while a button of the mouse is down.
  void interruptDrag() {
    QPoint const from = place(), to = from + QPoint(dice_.upTo(90) - 45, dice_.upTo(90) - 45);
    say("while the mouse is down");
    page_.mouse(QEvent::MouseButtonPress, from);
    page_.mouse(QEvent::MouseMove, to);
    dice_.oneIn(2) ? moveInHistory() : command();
    settle();
    page_.mouse(QEvent::MouseMove, to + QPoint(3, 3));
    page_.mouse(QEvent::MouseButtonRelease, to + QPoint(3, 3));
    isMixed_ = true;
  }

  void moveInHistory() {
    if (dice_.oneIn(4)) {
      auto* const history = SysCarto::MapDocumentHost::history(window_.bench().session().document());
      int const place = dice_.upTo(history->count());
      say(QString("back or forth to %1").arg(place));
      history->setIndex(place);
      return;
    }
    QString const identifier = dice_.oneIn(3) ? "Host_Redo" : "Host_Undo";
    for (int i = dice_.upTo(4); i >= 0; --i) {
      QCoreApplication::processEvents();
      if (window_.actions().find(identifier)->isEnabled()) trigger(identifier);
    }
  }

  template <class View>
  void inTree(View& tree) {
    QModelIndexList rows;
    collect(*tree.model(), {}, rows);
    if (rows.isEmpty()) return;
    QModelIndex const row = dice_.of(rows);
    tree.scrollTo(row);
    QPoint const at = tree.visualRect(row).center();
    say(QString("row “%1”").arg(row.data().toString()));
    switch (dice_.upTo(7)) {
      case 0: {
        bool const isOn = row.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        say("checked otherwise");
        tree.model()->setData(row, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        return;
      }
      case 1: {
        QModelIndex const onto = dice_.of(rows);
        QMimeData* const data = tree.model()->mimeData({row});
        if (!data) return;
        std::unique_ptr<QMimeData> const owned(data);
        say(QString("dropped on “%1”").arg(onto.data().toString()));
        int const place = dice_.oneIn(2) ? -1 : onto.row();
        QModelIndex const in = place < 0 ? onto : onto.parent();
        auto const action = dice_.oneIn(3) ? Qt::CopyAction : Qt::MoveAction;
        if (tree.model()->canDropMimeData(data, action, place, 0, in))
          tree.model()->dropMimeData(data, action, place, 0, in);
        return;
      }
      case 2:
        if (!(row.flags() & Qt::ItemIsEditable)) break;
        say("renamed");
        tree.model()->setData(row, person_.text(), Qt::EditRole);
        return;
      case 3: {
        say("menu");
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, tree.viewport()->mapToGlobal(at));
        QApplication::sendEvent(tree.viewport(), &event);
        return;
      }
      default: break;
    }
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, dice_.oneIn(3) ? Qt::ControlModifier : Qt::NoModifier, at);
  }

  static void collect(QAbstractItemModel const& model, QModelIndex const& parent, QModelIndexList& rows) {
    constexpr int maxRows = 300;
    for (int i = 0; i < model.rowCount(parent) && rows.size() < maxRows; ++i) {
      rows << model.index(i, 0, parent);
      collect(model, rows.last(), rows);
    }
  }

  void contents() {
    auto& tree = *window_.findChild<SysAdapterUI::ContentsTree*>();
    inTree(tree);
    if (dice_.oneIn(2)) return;
    QList<QAction*> enabled;
    QCoreApplication::processEvents();
    for (QAction* const action : window_.actions().ofContents())
      if (action->isEnabled()) enabled << action;
    if (enabled.isEmpty()) return;
    QAction* const action = dice_.of(enabled);
    say(action->text());
    action->trigger();
  }

  void elementList() {
    auto& list = *window_.findChild<ElementList*>();
    if (list.isVisible()) inTree(list);
  }

  void select() {
    say("select");
    if (!page_.layout()) return;
    IElementContainer& container = page_.container();
    container.UnselectAllElements();
    for (auto const& element : container.GetElements())
      if (dice_.oneIn(3)) container.SelectElement(element);
    window_.actions().refreshSoon();
  }

  void property() {
    auto& sheet = *window_.findChild<QDockWidget*>("dockWidget_Properties")->findChild<SysAdapterUI::PropertySheet*>();
    if (!sheet.isVisible()) return trigger("Host_Properties");
    auto& model = sheet.model();
    QModelIndexList rows;
    collect(model, {}, rows);
    if (rows.isEmpty()) return;
    QModelIndex const index = dice_.of(rows);
    auto const row = model.row(index);
    say("property " + row.path.join('/'));
    if (row.isList() || (row.isEntry && dice_.oneIn(2))) return changeList(model, index);
    auto const& info = row.field->info;
    if (row.part == SysAdapterUI::PropertyPart::Field &&
        (info.kind == SysUtility::FieldInfo::Kind::Flag || info.kind == SysUtility::FieldInfo::Kind::Object)) {
      model.setData(index.siblingAtColumn(1), dice_.oneIn(2) ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
      return;
    }
    QJsonValue const value = valueFor(info, row.field->value);
    say(QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact)));
    model.take(index, value, "x");
  }

  void changeList(SysAdapterUI::PropertyModel& model, QModelIndex const& index) {
    switch (dice_.upTo(4)) {
      case 0: say("removed"); return model.removeEntry(index);
      case 1:
        say("duplicated");
        model.duplicateEntry(index);
        return;
      case 2:
        say("moved");
        model.moveEntry(index, dice_.oneIn(2) ? 1 : -1);
        return;
      default:
        say("added");
        model.addEntry(index);
        return;
    }
  }

  QJsonValue valueFor(SysUtility::FieldInfo const& info, QJsonValue const& now) {
    auto const& range = info.rules.range;
    double const low = qMax(range.min, -1000.0), high = qMin(range.max, 1000.0);
    auto const number = [&] {
      return dice_.oneIn(6) ? range.min : dice_.oneIn(6) ? range.max : dice_.between(low, high);
    };
    switch (info.kind) {
      case SysUtility::FieldInfo::Kind::Number: return number();
      case SysUtility::FieldInfo::Kind::Integer: return std::floor(qBound(-1e9, number(), 1e9));
      case SysUtility::FieldInfo::Kind::Text:
        if (dice_.oneIn(2) && info.rules.textKind == SysUtility::TextKind::Color) return "#a0c04020";
        if (dice_.oneIn(2) && info.rules.textKind == SysUtility::TextKind::File) return "picture.png";
        if (dice_.oneIn(2) && info.rules.textKind == SysUtility::TextKind::CoordinateSystem) return "EPSG:3857";
        [[fallthrough]];
      case SysUtility::FieldInfo::Kind::Texts:
        return info.kind == SysUtility::FieldInfo::Kind::Text ? QJsonValue(person_.text()) : QJsonArray{person_.text()};
      case SysUtility::FieldInfo::Kind::Choice:
      case SysUtility::FieldInfo::Kind::Variant:
        return info.choices.isEmpty() ? QJsonValue() : QString::fromUtf8(dice_.of(info.choices).name);
      default: break;
    }
    QJsonArray numbers;
    for (QJsonValue const& one : now.toArray()) numbers.append(dice_.oneIn(2) ? one : QJsonValue(number()));
    return numbers.isEmpty() ? QJsonArray{1, 2} : numbers;
  }

  MainWindow& window_;
  WorkbenchPage page_;
  Dice dice_;
  RandomPerson person_;
  QStringList said_, commands_;
  bool isMixed_ = false;  // moved in the history and changed something, perhaps
};
