#pragma once

#include "host/SysCarto/elements/Placeholders.h"
#include "host/SysCarto/layers/SourceSettings.h"

#include <SysCarto/Map.h>
#include <SysDisplay/FillSymbol.h>
#include <SysDisplay/Symbol.h>

#include <QVector>

#include <functional>

namespace SysCarto {

/// How a map follows the features of a series from page to page.
struct SeriesFrame {
  SysUtility::_ptr_t<Map> map;  ///< empty for none
  double marginPercent = 10;    ///< of the feature's width and height, at each side
  double scale = 0;             ///< a denominator that is kept on all pages; 0 for none
  QVector<double> scales;       ///< denominators to choose from; empty for whatever fits
  bool mainPart = false;        ///< whether the largest part of a feature, with what is near, stands for all of it
  bool alongLines = false;      ///< whether a line lies from left to right
  QString rotationField;        ///< of the degrees by which the map is turned counterclockwise; empty for none
};

/// A page for each feature of a layer or row of a table.
struct Series {
  QString layer;          ///< of the map of `frame`, by its name; empty where `source` has the features
  SourceSettings source;  ///< with an absolute path
  QString filter;         ///< as of a source
  QString sortField;      ///< empty for the order of the source
  bool isDescending = false;
  QString name;  ///< of a page, with placeholders
  SeriesFrame frame;
  QVector<SeriesFrame> followers;

  // Of a layer alone: how the feature of the page is drawn over it, whether the others are left out, and how all that
  // lies outside the feature is covered. Symbols may be missing.
  SysUtility::_ptr_t<SysDisplay::Symbol> highlight;
  bool hidesOthers = false;
  SysUtility::_ptr_t<SysDisplay::FillSymbol> outside;

  bool isUsed() const { return !layer.isEmpty() || source.isGiven(); }
};

/// What the layout knows of the page that is shown of a series.
struct ShownPage {
  Placeholders::Source text;                          ///< asked before the layout's own placeholders
  std::function<bool(QString const& pages)> isAmong;  ///< whether it is one of the pages that an element stands on
};

}  // namespace SysCarto
