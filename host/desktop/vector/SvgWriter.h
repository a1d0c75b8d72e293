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

  /// What is written between the two is a group with these attributes, and a title where that is not empty.
  void beginGroup(QByteArray const& attributes, QString const& title = {});
  void endGroup();

  /// Defines an element, such as "<path …" to "/>" without its number, which it answers; equal ones are one. What else
  /// is being written is left alone.
  QByteArray define(char const* tag, QByteArray const& attributes, QByteArray const& content);

  /// What is written between the two is kept, and answered.
  void beginPart();
  QByteArray endPart();

  /// Ends the file. Empty, or what went wrong.
  QString finish();

private:
  struct Group {
    QByteArray attributes;
    QString title;
    bool isWritten = false;
  };
  struct Part {
    QByteArray markup;
    std::vector<Group> groups;
  };

  void store(QByteArray const& markup);
  void flush();
  QString problem() const;

  QFile file_;
  QByteArray waiting_;  // for the file
  bool isBroken_ = false;
  std::vector<Part> parts_;  // the first one is the file
  QHash<QByteArray, QByteArray> definitions_;
  int definitionCount_ = 0;
};
