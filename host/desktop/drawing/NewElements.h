#pragma once

#include <SysCarto/PageLayout.h>

#include <QPointF>
#include <QString>
#include <QVector>

#include <optional>

/// What a new element says or shows, and the page that it is for. A problem is told in a sentence.
struct NewContent {
  SysCarto::PageLayout const& layout;
  QString const& words;  ///< a text, or the path of a file
  QString& problem;
};

/// A kind of element that a person puts on the page, by a tool of the window or by a step. One table serves both.
struct NewElementKind {
  /// What its points are: one point at which it stands, two opposite corners, or vertices.
  enum class Points { Place, Corners, Vertices };
  /// What it needs beside them.
  enum class Content { None, Text, File };

  char const* name;        ///< as a step calls it
  char const* identifier;  ///< of its command; null where there is none
  char const* stepName;    ///< in the history, untranslated
  Points points;
  Content content;
  int minPoints;

  /// A new element, in no container yet; empty where there is a problem. Points are page centimetres: as many as the
  /// kind takes, or those of one that was not drawn.
  SysUtility::_ptr_t<SysCarto::Element> (*make)(QVector<QPointF> const& points, NewContent const& content);

  /// Whether so many points draw one.
  bool takes(int count) const;

  bool isClosed() const { return points == Points::Vertices && minPoints > 2; }

  /// The points of one that is put at a place without being drawn.
  QVector<QPointF> usualPoints(QPointF const& place) const;

  /// Puts it on the page, as one step of the history, and selects it alone. Answers why not, as a sentence, with
  /// nothing changed, or an empty text.
  QString insert(SysCarto::PageLayout& layout, QVector<QPointF> const& points, QString const& content) const;

  static QVector<NewElementKind> const& all();

  /// As a step calls it; null where there is none.
  static NewElementKind const* named(QString const& name);
};

/// An element with its place, as KIND[:CONTENT]@X,Y[,X,Y…] tells them: "text:Hello@2,3", "rectangle@1,1,5,4". One point
/// alone puts one of the usual size.
struct NewElement {
  NewElementKind const* kind;
  QString content;
  QVector<QPointF> points;

  /// Nothing for another text.
  static std::optional<NewElement> of(QString const& text);
};
