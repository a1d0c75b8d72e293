#pragma once

#include "host/SysCarto/projection/ProjectionDomain.h"

#include <utility>
#include <vector>

namespace SysCarto {

class ProjectionProbe;

/// Finds out what of the globe a projection shows, and where neighbours come to lie apart. It asks for the nodes of a
/// lattice of meridians and parallels, looks for breaks between neighbours, and follows each to where it is.
class GlobeSurvey {
public:
  /// A glance is quick, and tells whether a domain suits; a survey tells the border. Both have odd numbers of columns
  /// and rows, so that none lies on a round longitude or latitude, where projections are cut.
  enum class Care { Glance, Survey };

  GlobeSurvey(ProjectionProbe const& probe, double centralLongitude, Care care);

  /// Whether the projection shows without a break what a domain holds, and not much more.
  bool suits(ProjectionDomain const& domain) const;

  /// The longer side of the box about what is shown, in map units.
  double size() const;

  /// The border of what is shown, in degrees from the central longitude, with what is shown on the left. A projection
  /// of less than the globe is of use in its large parts and about its middle, which is given as a place like those of
  /// the border: what else comes out somewhere, and even back, is left out.
  std::vector<Run> border(Vertex const& middle);

private:
  struct Place {
    Vertex at;
    double x = 0, y = 0;  // on the map; NaN where the place isn't shown

    bool isShown() const;
  };
  // Leads from a place that is shown to one that isn't, or that may lie beyond a break.
  struct Trace {
    Place from, to;
    double first;    // how far apart the two lay on the map at first
    int start, end;  // nodes
    int edge;        // of the lattice, or the chord that it crosses

    bool isForward() const { return end > start; }
    double apart() const;
    bool isBreak() const;
  };
  // Points of the border on an edge of the lattice, or -1: the last place that belongs to its lower end, and the first
  // that belongs to its upper end.
  struct Edge {
    int last = -1, first = -1;
  };
  struct Point {
    Place place;
    int node;         // to which it belongs
    double inX, inY;  // a direction in which the map goes on
    double room;      // and how far, at least
    double bend;      // how far the border may lie from the chord to the next point
    int next;
    bool isRim;  // and so is the way to the next
  };
  using Ends = std::vector<std::pair<int, bool>>;  // points, and whether a stretch of what is shown starts there

  int node(int column, int row) const { return row * (columns_ + 1) + column; }
  static int edge(int node, bool isUp) { return 2 * node + isUp; }
  void fill(std::vector<Place*> const& places) const;
  void fillHoles();
  void dropCrumbs();
  void findBreaks();
  bool hideTornCells();
  bool mayBreak(int before, int a, int b, int after) const;
  void addEdges(bool isUp);
  void follow(std::vector<Trace>& traces, int halvings) const;
  void followAgain(std::vector<Trace>& traces) const;
  int addPoint(Place const& place, int node, Place const& towards);
  std::vector<double> findParts(std::vector<int>& part) const;
  void keepPartsAbout(Vertex const& middle);
  void visitEdge(int edge, bool isForward, Ends& ends) const;
  void addCell(int column, int row);
  void addRim();
  std::vector<int> refined(std::vector<int> const& chords, bool isFirst);

  ProjectionProbe const& probe_;
  double centralLongitude_;
  int columns_, rows_;
  double radii_;
  std::vector<Place> nodes_;
  std::vector<char> isKept_;
  std::vector<Edge> edges_;
  std::vector<Trace> breaks_;
  std::vector<Point> points_;
};

}  // namespace SysCarto
