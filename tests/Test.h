#pragma once

#include <SysUtility/Ptr.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QMimeData>
#include <QPointer>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <tuple>
#include <vector>

// What nearly every test uses.
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::ptr_cast;

/// Gives a test its rows: `Rows<QString, int> row;` and then `row("a claim", "a text", 3);` in its `_data()`. What is
/// given converts to the columns' types as arguments do.
template <class... Values>
class Rows {
public:
  Rows() {
    all().clear();
    QTest::addColumn<int>("row");
  }

  void operator()(QString const& claim, Values const&... values) const {
    QTest::newRow(claim.toUtf8().constData()) << static_cast<int>(all().size());
    all().emplace_back(values...);
  }

  static std::vector<std::tuple<Values...>>& all() {
    static auto* const rows = new std::vector<std::tuple<Values...>>;  // outlives what static objects destroy
    return *rows;
  }
};

/// The row of the moment: `auto const [text, count] = fetched<QString, int>();`.
template <class... Values>
std::tuple<Values...> fetched() {
  QFETCH(int, row);
  return Rows<Values...>::all().at(static_cast<std::size_t>(row));
}

/// JSON with single quotes, which reads better in a test.
inline QJsonObject json(QByteArray text) {
  QJsonParseError error;
  QJsonDocument const document = QJsonDocument::fromJson(text.replace('\'', '"'), &error);
  if (error.error != QJsonParseError::NoError) qFatal("%s in %s", qPrintable(error.errorString()), text.data());
  return document.object();
}
