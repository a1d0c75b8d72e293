#pragma once

#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QString>

#include <vector>

/// An attribute as it stands in a tag, with a blank before it. The value is escaped.
QByteArray svgAttribute(char const* name, QString const& value);

/// A number without exponent, with no more digits than are needed and at most so many behind the point.
QByteArray svgNumber(double number, int decimals = 3);

/// The file of an SVG, written as it comes. A group is in it only where something is in the group.
class SvgWriter {
public:
  explicit SvgWriter(QString const& path);

  void write(QByteArray const& markup);

  /// Writes a path, which may be filled or stroked by these attributes; either may be empty. A stroke of what was
  /// filled last is one with it, and what is alike in succession says so once.
  void writePath(QByteArray const& fill, QByteArray const& stroke, QByteArray const& d);

  /// What is written between the two is a group with these attributes, and a title where that is not empty.
  void beginGroup(QByteArray const& attributes, QString const& title = {});
  void endGroup();

  /// Defines an element, such as "<path …" to "/>" without its number, which it answers; equal ones are one. What else
  /// is being written is left alone.
  QByteArray define(char const* tag, QByteArray const& attributes, QByteArray const& content);

  /// What is written between the two is kept, and answered.
  void beginPart();
  QByteArray endPart();

  /// Ends the file. Empty, or what went wrong. Where there was no room for all of it, nothing is told, and the end is
  /// missing.
  QString finish();

private:
  struct Group {
    QByteArray attributes;
    QString title;
    bool isWritten = false;
  };
  struct Path {
    QByteArray fill, stroke, d;
  };
  struct Part {
    QByteArray markup;
    std::vector<Group> groups;
    Path waiting;            // which a stroke may join
    QByteArray attributes;   // of the path that was written last; empty where another thing was
    bool isRunOpen = false;  // a group of paths with these attributes
  };

  void openGroups();
  void writeWaiting();
  void endRun();
  void store(QByteArray const& markup);
  void flush();
  QFile file_;
  QByteArray waiting_;  // for the file
  bool isBroken_ = false;
  std::vector<Part> parts_;  // the first one is the file
  QHash<QByteArray, QByteArray> definitions_;
  int definitionCount_ = 0;
};
