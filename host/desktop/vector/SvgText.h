#pragma once

#include "host/SysDisplay/TextShaper.h"

#include <QByteArray>

#include <map>

/// What an SVG says of fonts so that readers find them, kept for each.
class SvgFonts {
public:
  struct Font {
    QStringList families;
    QString generic;
    bool isBold;
  };
  Font const& font(QRawFont const& font);

private:
  std::map<QRawFont const*, Font> fonts_;
};

/// A line of text as an SVG has it. Lengths are in units of the file, of which `em` are the font's size; places are
/// counted from the line's start.
///
/// Each word stands where it was set, and is as long, whatever font a reader has. Where letters join, change their
/// order or stand above each other, the line is one word.
QByteArray svgText(SvgFonts& fonts, SysDisplay::TextFormat const& format, SysDisplay::ShapedLine const& line, double em,
                   QPointF const& start);
