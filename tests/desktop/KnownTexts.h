#pragma once

#include "Test.h"

#include "host/SysCarto/document/MapDocumentHost.h"

#include <QUndoStack>

/// What a document says at each place of its history, held against what it said when it was there before. What a
/// command keeps out of the history is left out once it has been used.
class KnownTexts {
public:
  explicit KnownTexts(SysCarto::MapDocument const& document)
      : document_(document), history_(*SysCarto::MapDocumentHost::history(document)) {
    startAnew();
  }

  /// The document has become another one, or the history may have been cleared.
  void startAnew() {
    texts_.clear();
    note(now());
  }

  /// Everywhere, or as in “page/form” in objects of that name alone.
  void leaveOut(QString const& key) { leftOut_ << key; }

  /// After something that was done, which may clear the history or not. Operations of the plug-in's commands are steps
  /// also where they change nothing. Answers what is wrong, or nothing.
  QString look(bool clears, bool mayChangeNothing) {
    QByteArray const text = now();
    bool const hasSameSteps = steps() == steps_, isSamePlace = hasSameSteps && history_.index() == index_;
    if (text.isEmpty() && document_.GetPageLayout()) return "the document can't be saved any more";
    if (clears && !(isSamePlace && isSame(text, texts_.value(index_)))) {
      startAnew();
      return QString();
    }
    for (int i = 0; i < history_.count(); ++i)
      if (history_.text(i).isEmpty()) return QString("step %1 of the history has no name").arg(i);
    bool const isOneStep = history_.count() == history_.index() && history_.index() == index_ + 1;
    if (!mayChangeNothing && isOneStep && !hasSameSteps && text == before_)
      return QString("“%1” is a step that changes nothing").arg(history_.text(index_));
    if (hasSameSteps) return compare(text, isSamePlace ? "a change that is no step" : "moving in the history");
    int same = 0;
    for (auto const now = steps(); same < qMin(now.size(), steps_.size()) && now[same] == steps_[same];) ++same;
    for (int place : texts_.keys())
      if (place > same) texts_.remove(place);
    return compare(text, "going back");
  }

  /// All back, all forth, and again. Answers what is wrong, or nothing.
  QString goThrough() {
    int const end = history_.index();
    for (int to : {0, history_.count(), end}) {
      while (history_.index() != to) {
        int const before = history_.index();
        to < before ? history_.undo() : history_.redo();
        if (history_.index() == before) return QString("step %1 of the history can't be moved over").arg(before);
        QString const wrong = compare(now(), to < before ? "undo" : "redo");
        if (!wrong.isEmpty()) return wrong;
      }
    }
    return QString();
  }

  QByteArray now() const { return SysCarto::MapDocumentHost::text(document_); }

  bool isSame(QByteArray const& a, QByteArray const& b) const { return a == b || without(a) == without(b); }

private:
  void note(QByteArray const& text) {
    before_ = text;
    index_ = history_.index();
    steps_ = steps();
    texts_[index_] = text;
  }

  // Which they are; a new one is made before one that it replaces is destroyed.
  QVector<QUndoCommand const*> steps() const {
    QVector<QUndoCommand const*> steps;
    for (int i = 0; i < history_.count(); ++i) steps << history_.command(i);
    return steps;
  }

  // A step that took the last one into itself has changed the text of its place.
  QString compare(QByteArray const& text, QString const& during) {
    int const place = history_.index();
    bool const isJoined = during.startsWith("a change") && place > 0 && history_.command(place - 1)->id() != -1;
    if (texts_.contains(place) && !isJoined && !isSame(text, texts_[place]))
      return QString("%1 at place %2 of %3 (%4): %5")
          .arg(during)
          .arg(place)
          .arg(history_.count())
          .arg(place > 0 ? history_.text(place - 1) : QString("the beginning"), difference(texts_[place], text));
    note(texts_.contains(place) && !isJoined ? texts_[place] : text);
    return QString();
  }

  QJsonValue without(QJsonValue const& value, QString const& parent = {}) const {
    if (value.isArray()) {
      QJsonArray kept;
      for (QJsonValue const& one : value.toArray()) kept.append(without(one, parent));
      return kept;
    }
    if (!value.isObject()) return value;
    QJsonObject kept;
    QJsonObject const whole = value.toObject();
    for (auto it = whole.begin(); it != whole.end(); ++it) {
      QJsonValue const one = without(it.value(), it.key());
      bool const isEmpty = one.isObject() && one.toObject().isEmpty();
      bool const isLeftOut = leftOut_.contains(it.key()) || leftOut_.contains(parent + '/' + it.key());
      if (!isLeftOut && !isEmpty) kept[it.key()] = one;
    }
    return kept;
  }
  QJsonValue without(QByteArray const& text) const { return without(QJsonDocument::fromJson(text).object()); }

  // The first lines that differ.
  static QString difference(QByteArray const& before, QByteArray const& after) {
    auto const a = before.split('\n'), b = after.split('\n');
    int first = 0, last = 0;
    while (first < qMin(a.size(), b.size()) && a[first] == b[first]) ++first;
    while (last < qMin(a.size(), b.size()) - first && a[a.size() - 1 - last] == b[b.size() - 1 - last]) ++last;
    auto const part = [&](QList<QByteArray> const& lines) {
      QStringList shown;
      for (QByteArray const& line : lines.mid(qMax(0, first - 2), qMin(lines.size() - last - first + 3, 12)))
        shown << line.trimmed();
      return shown.join(' ');
    };
    return QString("it was “%1” and is “%2”").arg(part(a), part(b));
  }

  SysCarto::MapDocument const& document_;
  QUndoStack& history_;
  QMap<int, QByteArray> texts_;
  QByteArray before_;
  QStringList leftOut_{"focusMap"};  // comes and goes with the maps
  QVector<QUndoCommand const*> steps_;
  int index_ = 0;
};
