#include "LayerFixture.h"

#include "host/SysCarto/layers/Classification.h"
#include "host/SysCarto/layers/ColorRamp.h"
#include "host/SysCarto/layers/FieldValues.h"

#include <cmath>
#include <numeric>
#include <limits>

using namespace SysCarto;

namespace {

using Numbers = std::vector<double>;
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

double toThousandths(double number) { return std::round(number * 1000) / 1000; }

// Columns of which another program's breaks are known.
Numbers column(QString const& name) {
  Numbers numbers;
  if (name == QLatin1String("cities"))
    return readValues({sample("world.gpkg"), "cities", {}, {}}, "population").numbers;
  if (name == QLatin1String("skewed"))
    for (int i = 0; i < 200; ++i) numbers.push_back(toThousandths(std::exp(7919 * i % 200 / 200.0 * 6)));
  if (name == QLatin1String("wave"))  // every third row of the table is empty
    for (int i = 1; i <= 300; ++i) {
      numbers.push_back(std::round(10000 * std::sin(i * 0.37)) / 100);
      if (i % 2 == 0) numbers.push_back(nan);
    }
  if (name == QLatin1String("ties"))
    for (auto const& [value, count] : {std::pair(1, 30), {2, 5}, {3, 20}, {4, 1}, {5, 2}, {9, 3}, {12, 1}})
      numbers.insert(numbers.end(), count, value);
  if (name == QLatin1String("constant")) numbers.assign(7, 4.5);
  if (name == QLatin1String("few")) numbers = {3, 8, 8, 21};
  if (name == QLatin1String("far")) numbers = {1e16, 1e16 + 2};
  return numbers;
}

QString listed(Numbers const& numbers) {
  QStringList texts;
  for (double const number : numbers) texts << QString::number(number, 'g', 12);
  return texts.join(' ');
}

}  // namespace

class ClassificationTest : public QObject {
  Q_OBJECT

private slots:
  // The expected bounds are those of R's package classInt 0.4 (equal, quantile, fisher, sd, pretty); of equal bounds
  // one.
  void boundsAreThoseOfAReference_data() {
    Rows<QString, ClassMethod, int, Numbers> row;
    using M = ClassMethod;
    // clang-format off
    row("equal intervals", "cities", M::EqualIntervals, 5, {0, 4463094.8, 8926189.6, 13389284.4, 17852379.2, 22315474});
    row("quantiles", "cities", M::Quantiles, 5, {0, 344939, 1152556, 1468609, 2750547, 22315474});
    row("quantiles between two values", "skewed", M::Quantiles, 7, {1, 2.34642857143, 5.50571428571, 12.9184285714, 30.311, 71.118, 166.876285714, 391.506});
    row("quantiles of many ties", "ties", M::Quantiles, 5, {1, 3, 12});
    row("natural breaks of cities", "cities", M::NaturalBreaks, 5, {0, 828473.5, 2365531.5, 5216750, 9392694, 22315474});
    row("more of them", "cities", M::NaturalBreaks, 7, {0, 761967.5, 1854141.5, 3183454.5, 5688969.5, 9392694, 18559795, 22315474});
    row("natural breaks of skewed numbers", "skewed", M::NaturalBreaks, 7, {1, 22.991, 61.875, 112.743, 171.5905, 238.677, 312.6585, 391.506});
    row("natural breaks of ties", "ties", M::NaturalBreaks, 5, {1, 1.5, 3.5, 7, 10.5, 12});
    row("natural breaks with missing numbers", "wave", M::NaturalBreaks, 7, {-99.52, -73.495, -44.255, -9.025, 27.11, 59.915, 84.615, 100});
    row("a class for each value", "few", M::NaturalBreaks, 9, {3, 5.5, 14.5, 21});
    row("standard deviations", "cities", M::StandardDeviation, 5, {-3016667.29379, 2001123, 7018913.29379, 12036703.5876, 17054493.8814, 22072284.1752, 27090074.469});
    row("halves of them", "skewed", M::StandardDeviation, 7, {-27.9449958715, 19.0626920642, 66.07038, 113.078067936, 160.085755872, 207.093443807, 254.101131743, 301.108819679, 348.116507615, 395.12419555});
    row("deviations with missing numbers", "wave", M::StandardDeviation, 5, {-104.967692602, -69.5803617347, -34.1930308673, 1.1943, 36.5816308673, 71.9689617347, 107.356292602});
    row("round numbers", "skewed", M::Pretty, 7, {0, 50, 100, 150, 200, 250, 300, 350, 400});
    row("round numbers in millions", "cities", M::Pretty, 5, {0, 5e6, 1e7, 1.5e7, 2e7, 2.5e7});
    row("round numbers on both sides of 0", "wave", M::Pretty, 5, {-100, -50, 0, 50, 100});
    row("a constant, by intervals", "constant", M::EqualIntervals, 5, {4.5, 4.5});
    row("a constant, by deviations", "constant", M::StandardDeviation, 5, {4.5, 4.5});
    row("a constant, by breaks", "constant", M::NaturalBreaks, 5, {4.5, 4.5});
    row("no numbers", "", M::Quantiles, 5, {});
    // clang-format on
  }
  void boundsAreThoseOfAReference() {
    auto const [name, method, count, expected] = fetched<QString, ClassMethod, int, Numbers>();
    ClassedValues const values = sortedValues(column(name));
    QCOMPARE(values.missing, name == QLatin1String("wave") ? 150 : 0);
    QCOMPARE(listed(classBounds(values.sorted, method, count)), listed(expected));
  }

  // Against all ways to cut, and in time for a large table.
  void naturalBreaksAreTheBestThereAre() {
    Numbers numbers;
    unsigned state = 7;
    for (int i = 0; i < 40; ++i) numbers.push_back((state = state * 1103515245u + 12345u) >> 20);
    numbers = sortedValues(numbers).sorted;
    auto const squares = [&](Numbers const& minima) {
      double all = 0;
      auto from = numbers.begin();
      for (int const count : classCounts(numbers, minima)) {
        double const mean = std::accumulate(from, from + count, 0.0) / count;
        for (int i = 0; i < count; ++i, ++from) all += (*from - mean) * (*from - mean);
      }
      return all;
    };
    double least = std::numeric_limits<double>::max();
    for (size_t a = 1; a < numbers.size(); ++a)
      for (size_t b = a + 1; b < numbers.size(); ++b)
        for (size_t c = b + 1; c < numbers.size(); ++c)
          if (numbers[a] < numbers[b] && numbers[b] < numbers[c])
            least = std::min(least, squares({numbers[0], numbers[a], numbers[b], numbers[c]}));
    Numbers bounds = classBounds(numbers, ClassMethod::NaturalBreaks, 4);
    bounds.pop_back();
    QVERIFY(std::abs(squares(bounds) - least) < 1e-6 * least);

    Numbers many;
    for (int i = 0; i < 3 * maxExactValues; ++i) many.push_back(std::pow(i % 1000, 2) + 0.25 * i);
    Numbers const sorted = sortedValues(many).sorted;
    QCOMPARE(classBounds(sorted, ClassMethod::NaturalBreaks, 9).size(), size_t(10));
  }

  // Rounder bounds part the same values.
  void roundedBoundsKeepTheClasses_data() {
    Rows<QString, ClassMethod, QString> row;
    row("cities", "cities", ClassMethod::NaturalBreaks, "0 820000 2360000 5200000 9500000 22500000");
    row("quantiles", "cities", ClassMethod::Quantiles, "0 340000 1152000 1460000 2750000 23000000");
    row("deviations", "wave", ClassMethod::StandardDeviation, "-105 -70 -34 1 36.5 72 106");
    row("few", "few", ClassMethod::NaturalBreaks, "3 5.5 14.5 21");
    row("constant", "constant", ClassMethod::Pretty, "4.5 4.5");
    row("too far from 0 for round steps", "far", ClassMethod::Pretty, "1e+16 1e+16");
  }
  void roundedBoundsKeepTheClasses() {
    auto const [name, method, expected] = fetched<QString, ClassMethod, QString>();
    Numbers const sorted = sortedValues(column(name)).sorted, exact = classBounds(sorted, method, 5);
    Numbers const rounded = roundedBounds(sorted, exact);
    auto const counts = [&](Numbers const& bounds) { return classCounts(sorted, {bounds.begin(), bounds.end() - 1}); };
    QCOMPARE(counts(rounded), counts(exact));
    QVERIFY(rounded.back() >= sorted.back() && rounded.front() <= sorted.front());
    QCOMPARE(listed(rounded), expected);
  }

  // The rows as ColorBrewer prints them; between them colours of viridis as its authors list them, by a step or two.
  void rampsHaveTheKnownColours_data() {
    Rows<QString, int, bool, QString> row;
    row("five of a sequence", "YlGnBu", 5, false, "#ffffcc #a1dab4 #41b6c4 #2c7fb8 #253494");
    row("nine", "Blues", 9, false, "#f7fbff #deebf7 #c6dbef #9ecae1 #6baed6 #4292c6 #2171b5 #08519c #08306b");
    row("three, reversed, in small letters", "reds", 3, true, "#de2d26 #fc9272 #fee0d2");
    row("a middle", "RdBu", 5, false, "#ca0020 #f4a582 #f7f7f7 #92c5de #0571b0");
    row("eleven", "Spectral", 11, false,
        "#9e0142 #d53e4f #f46d43 #fdae61 #fee08b #ffffbf #e6f598 #abdda4 #66c2a5 #3288bd #5e4fa2");
    row("kinds", "Dark2", 4, false, "#1b9e77 #d95f02 #7570b3 #e7298a");
    row("the ends of two", "Greys", 2, false, "#f0f0f0 #636363");
    row("interpolated", "Viridis", 5, false, "#440154 #3b528b #21918c #5ec962 #fde725");
  }
  void rampsHaveTheKnownColours() {
    auto const [name, count, reversed, expected] = fetched<QString, int, bool, QString>();
    ColorRamp const* const ramp = ColorRamp::named(name);
    QVERIFY(ramp);
    auto const colors = ramp->colors(count, reversed);
    QStringList const wanted = expected.split(' ');
    QCOMPARE(colors.size(), count);
    for (int i = 0; i < count; ++i) {
      QColor const known(wanted[i]);
      int const off = std::max({std::abs(colors[i].red() - known.red()), std::abs(colors[i].green() - known.green()),
                                std::abs(colors[i].blue() - known.blue())});
      QVERIFY2(off <= (name == QLatin1String("Viridis") ? 3 : 0), qPrintable(colors[i].name() + " " + wanted[i]));
    }
  }

  void anyRampHasAnyCountOfColours() {
    for (ColorRamp const& ramp : ColorRamp::all())
      for (int const count : {0, 1, 2, 3, 12, 13, 64}) {
        auto const colors = ramp.colors(count);
        QCOMPARE(colors.size(), count);
        for (int i = 1; i < count && count <= 13; ++i) QVERIFY2(colors[i] != colors[i - 1], ramp.name);
      }
  }

  void valuesOfAFieldAreReadWithTheFilter() {
    SourceSettings const source{sample("world.gpkg"), "cities", "population > 10000000", {}};
    FieldValues const names = readValues(source, "country");
    QCOMPARE(names.error, QString());
    QVERIFY(!names.isNumeric && names.numbers.size() > 10 && names.texts.front().text == "CN");
    QVERIFY(names.texts.front().count >= names.texts.back().count);
    QVERIFY(readValues(source, "inhabitants").error.contains("population"));
    QCOMPARE(numericAttributesOf(source), (QStringList{"population", "capital"}));
  }
};

QTEST_MAIN(ClassificationTest)
#include "ClassificationTest.moc"
