#include "LinePlaces.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

namespace SysCarto {

namespace {

constexpr double straightness = 0.97;  // of a stretch: its chord over its length
constexpr double maxBend = 0.2;        // and how far the line may leave it, in text heights
constexpr int maxStarts = 60;
constexpr int mostLetters = 500;  // each is measured with all before it; what is longer is not parted
constexpr double maxTurn = 30;    // degrees from one letter to the next

double angleOf(QPointF const& way) { return std::atan2(way.y(), way.x()) * 180 / M_PI; }

double upright(double angle) { return angle > 90 ? angle - 180 : angle <= -90 ? angle + 180 : angle; }

// Where texts of that width may begin, nearest to the line's middle first.
std::vector<double> startsOf(MeasuredLine const& line, double width, double height) {
  std::vector<double> starts;
  double const room = line.length() - width;
  if (room < 0) return starts;
  int const steps = std::clamp(static_cast<int>(room / height), 1, maxStarts);
  for (int i = 0; i <= steps; ++i) starts.push_back(room * i / steps);
  std::stable_sort(starts.begin(), starts.end(),
                   [room](double a, double b) { return std::abs(a - room / 2) < std::abs(b - room / 2); });
  return starts;
}

// Scripts whose letters look the same alone, written to the right.
constexpr QChar::Script partedScripts[] = {
    QChar::Script_Common,   QChar::Script_Inherited, QChar::Script_Latin,    QChar::Script_Greek,
    QChar::Script_Cyrillic, QChar::Script_Armenian,  QChar::Script_Georgian, QChar::Script_Han,
    QChar::Script_Hiragana, QChar::Script_Katakana,  QChar::Script_Hangul,
};

bool isParted(QString const& text) {
  auto const ucs4 = text.toUcs4();
  return std::all_of(ucs4.begin(), ucs4.end(), [](uint letter) {
    auto const found = std::find(std::begin(partedScripts), std::end(partedScripts), QChar::script(letter));
    return found != std::end(partedScripts) && letter != '\n';
  });
}

std::optional<std::vector<PlacedLetter>> along(MeasuredLine const& line, std::vector<Letter> const& letters,
                                               double middle, double lift, bool isBackwards) {
  double const way = isBackwards ? -1 : 1;
  std::vector<PlacedLetter> placed;
  for (Letter const& letter : letters) {
    double const at = middle + way * letter.along, half = letter.width / 2;
    QPointF const a = line.place(at - way * half), b = line.place(at + way * half);
    double const angle = angleOf(b - a), turn = angle * M_PI / 180;
    if (!placed.empty() && std::abs(std::remainder(angle - placed.back().angle, 360)) > maxTurn) return std::nullopt;
    placed.push_back({(a + b) / 2 + QPointF(-std::sin(turn), std::cos(turn)) * lift, angle});
  }
  return placed;
}

}  // namespace

MeasuredLine::MeasuredLine(std::vector<QPointF> line) : line_(std::move(line)), at_(line_.size(), 0) {
  for (size_t i = 1; i < line_.size(); ++i)
    at_[i] = at_[i - 1] + std::hypot(line_[i].x() - line_[i - 1].x(), line_[i].y() - line_[i - 1].y());
}

QPointF MeasuredLine::place(double along) const {
  size_t const next =
      std::clamp<size_t>(std::lower_bound(at_.begin(), at_.end(), along) - at_.begin(), 1, at_.size() - 1);
  double const length = at_[next] - at_[next - 1];
  double const t = length > 0 ? (along - at_[next - 1]) / length : 0;
  return line_[next - 1] + (line_[next] - line_[next - 1]) * t;
}

double MeasuredLine::bend(double from, double to, QPointF const& a, QPointF const& b) const {
  double bend = 0;
  for (size_t k = std::upper_bound(at_.begin(), at_.end(), from) - at_.begin(); k < at_.size() && at_[k] < to; ++k)
    bend = std::max(bend, std::sqrt(SysGeometry::squaredDistanceToSegment(a, b, line_[k])));
  return bend;
}

std::vector<Stretch> straightStretches(MeasuredLine const& line, double width, double height) {
  std::vector<Stretch> stretches;
  for (double const from : startsOf(line, width, height)) {
    QPointF const a = line.place(from), b = line.place(from + width);
    if (std::hypot(b.x() - a.x(), b.y() - a.y()) < straightness * width) continue;
    double const bend = line.bend(from, from + width, a, b);
    if (bend <= maxBend * height) stretches.push_back({(a + b) / 2, upright(angleOf(b - a)), bend});
  }
  return stretches;
}

std::vector<QPointF> spotsOn(MeasuredLine const& line, double apart) {
  std::vector<QPointF> spots;
  for (double const at : startsOf(line, 0, apart)) spots.push_back(line.place(at));
  return spots;
}

// The widths of beginnings say where letters lie, so that pairs keep their distance.
std::vector<Letter> lettersOf(QString const& text, SysDisplay::TextSymbol const& symbol) {
  if (text.size() > mostLetters || !isParted(text) || symbol.format().hasBox()) return {};  // a box is straight
  double const halo = 2 * symbol.format().haloSize;
  auto const widthOf = [&](QString const& part) { return std::max(symbol.bounds(part).width() - halo, 0.0); };
  double const whole = widthOf(text);
  std::vector<Letter> letters;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  int number = 0;
  for (int from = 0, to = finder.toNextBoundary(); to > from; from = to, to = finder.toNextBoundary(), ++number) {
    QString const letter = text.mid(from, to - from);
    if (letter.trimmed().isEmpty()) continue;
    double const width = widthOf(letter);
    letters.push_back({letter, widthOf(text.left(to)) - width / 2 - whole / 2, width, number});
  }
  return letters;
}

std::vector<std::vector<PlacedLetter>> curvedPlaces(MeasuredLine const& line, std::vector<Letter> const& letters,
                                                    double width, double height, double lift) {
  std::vector<std::vector<PlacedLetter>> places;
  for (double const from : startsOf(line, width, height)) {
    QPointF const chord = line.place(from + width) - line.place(from);
    double const angle = angleOf(chord);
    if (auto placed = along(line, letters, from + width / 2, lift, upright(angle) != angle))
      places.push_back(std::move(*placed));
  }
  return places;
}

}  // namespace SysCarto
