#pragma once

#include <tuple>

namespace SysCarto {

/// How the page of a document becomes a file.
struct ExportChoices {
  static constexpr int maxDpi = 2400;
  static constexpr double maxBleedMm = 100;

  int dpi = 300;              ///< of images, and of pictures in place of what can't be shapes
  bool textAsShapes = false;  ///< letters are outlines
  double bleedMm = 0;         ///< how far what lies over the page's edges is drawn beyond them
  bool cropMarks = false;
  bool layers = true;     ///< can be hidden by who reads the file
  bool isOpened = false;  ///< once it is written

  bool operator==(ExportChoices const& o) const {
    return std::tie(dpi, textAsShapes, bleedMm, cropMarks, layers, isOpened) ==
           std::tie(o.dpi, o.textAsShapes, o.bleedMm, o.cropMarks, o.layers, o.isOpened);
  }
};

/// How it comes to paper.
struct PrintChoices {
  enum class Size { Real, Fitted };
  static constexpr int paperOfThePage = -1;
  static constexpr double maxOverlapCm = 10;

  int paper = paperOfThePage;  ///< a form of `Paper`
  Size size = Size::Real;      ///< what is larger than the paper comes to several sheets then
  double overlapCm = 1;        ///< of these sheets
  bool marks = true;           ///< on them, where they are cut and glued
  bool numbers = true;

  bool operator==(PrintChoices const& o) const {
    return std::tie(paper, size, overlapCm, marks, numbers) ==
           std::tie(o.paper, o.size, o.overlapCm, o.marks, o.numbers);
  }
};

struct OutputChoices {
  ExportChoices file;
  PrintChoices paper;

  bool operator==(OutputChoices const& o) const { return file == o.file && paper == o.paper; }
};

}  // namespace SysCarto
