#pragma once

#include <QtTest>

#include <tuple>
#include <vector>

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
