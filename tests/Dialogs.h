#pragma once

#include "Test.h"
#include "Widgets.h"

#include "host/desktop/DialogAnswers.h"

/// Who answers the dialogs that a test opens, in their order. At the end nothing may be left over on either side.
class Person {
public:
  ~Person() { QCOMPARE(problem(), QString()); }

  /// In the dialog that has it; "file" is the path in a file dialog, "color" that of a color dialog.
  void sets(QString const& widget, QString const& value) { answers_.add({Kind::Widget, widget, value}); }
  void presses(QString const& buttonOfABox) { sets("button", buttonOfABox); }
  void accepts() { answers_.add({Kind::Accept, {}, {}}); }
  void cancels() { answers_.add({Kind::Cancel, {}, {}}); }

  /// A dialog that nobody answered was rejected: its title, and a message box's text.
  QString problem() { return answers_.takeProblem(); }

private:
  using Kind = DialogAnswers::Answer::Kind;
  DialogAnswers answers_;
};

/// What message boxes say.
class ToldTexts : public QObject {
public:
  ToldTexts() { qApp->installEventFilter(this); }
  QStringList texts;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto const* const box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
    if (box) texts << box->text();
    return false;
  }
};
