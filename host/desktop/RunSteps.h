#pragma once

#include "DialogAnswers.h"
#include "Workbench.h"
#include "output/OutputCommands.h"
#include "print/PrintCommands.h"

#include "host/SysCarto/document/Editable.h"

#include <QStringList>

#include <functional>

struct LayerStep;

/// Work on a document without a person: steps that click commands, move the mouse and answer dialogs, on the very views
/// and commands of the window.
class RunSteps {
  Q_DECLARE_TR_FUNCTIONS(RunSteps)

public:
  /// `force`: a save asks for nobody's leave.
  explicit RunSteps(bool force);
  ~RunSteps();

  /// How the steps are written that are no command's identifier.
  static QStringList names();

  // Each answers an empty text, or a sentence that says what is wrong.

  /// Whether all steps can be understood; nothing is done.
  QString check(QStringList const& steps) const;
  QString open(QString const& document);
  QString run(QString const& step);

  /// Answers that were given after the last command.
  QString unusedAnswers();

private:
  struct Kind;
  static QVector<Kind> kindsOfLayers();
  static QVector<Kind> const& kinds();
  static Kind const* kindOf(QString const& step);

  QString runOnLayers(LayerStep const& step, QString const& value);
  QString click(QString const& identifier);
  QString select(QString const& names);
  QString show(QString const& view);
  QString focus(QString const& name);
  QString showPage(QString const& page) { return bench_.series().show(page); }
  QString clickAt(QString const& point);
  QString drag(QString const& points);
  QString setScale(QString const& scale);
  QString setExtent(QString const& sides);
  QString showLayers(QString const& name) { return setVisible(name, true); }
  QString hideLayers(QString const& name) { return setVisible(name, false); }
  QString setField(QString const& text);
  QString getField(QString const& text);
  QString classify(QString const& text);
  QString pinLabel(QString const& text);
  QString withThings(QString const& what, std::function<QString(SysCarto::Editable::List const&)> const& use);
  QString add(QString const& text);
  QString rotate(QString const& degrees);
  QString identify(QString const& place);
  QString attributes(QString const& text);
  QString answer(QString const& text);
  QString exportTo(QString const& file);
  QString print(QString const& target);
  QString save(QString const& file);
  QString info(QString const&);
  QString withMouse(QVector<QPointF> const& pathCm);
  QString withFreeMap(std::function<bool(SysCarto::Map&)> const& change);
  QString setVisible(QString const& layerName, bool visible);

  Workbench bench_;
  DialogAnswers answers_;
  QString failure_;  // of the last command
  bool const force_;
};
