#include "FontFile.h"

#include "host/SysDisplay/FontFace.h"

#include <QPainterPath>

#include <hb-ot.h>

#include <array>
#include <cmath>

using SysDisplay::FontFace;

QString ownFamily(QRawFont const& font) {
  FontFace const face = SysDisplay::faceOf(font);
  std::array<char, 256> name{};
  unsigned size = name.size();
  hb_ot_name_get_utf8(face.get(), HB_OT_NAME_ID_FONT_FAMILY, hb_language_from_string("en", -1), &size, name.data());
  return QString::fromUtf8(name.data(), static_cast<int>(size));
}

// By the ten numbers of PANOSE in the table OS/2.
QString genericFamily(QRawFont const& font) {
  enum { kind, serif, weight, proportion };
  constexpr int at = 32, count = 10;
  constexpr char latin = 2, firstSerif = 2, lastSerif = 10, monospaced = 9;
  QByteArray const numbers = font.fontTable("OS/2").mid(at, count);
  if (numbers.size() == count && numbers[kind] == latin) {
    if (numbers[proportion] == monospaced) return QStringLiteral("monospace");
    if (numbers[serif] >= firstSerif && numbers[serif] <= lastSerif) return QStringLiteral("serif");
  }
  return QStringLiteral("sans-serif");
}

bool drawsAsTheFileDoes(QRawFont const& font) {
  FontFace const face = SysDisplay::faceOf(font);
  std::unique_ptr<hb_font_t, SysDisplay::Destroyer<hb_font_destroy>> const own(hb_font_create(face.get()));
  double const scale = font.pixelSize() / hb_face_get_upem(face.get());
  for (quint32 glyph : font.glyphIndexesForString(QStringLiteral("HOlx"))) {
    hb_glyph_extents_t extents;
    QRectF const drawn = font.pathForGlyph(glyph).boundingRect();
    if (drawn.isEmpty() || !hb_font_get_glyph_extents(own.get(), glyph, &extents)) continue;
    double const off = font.pixelSize() / 200;
    return std::abs(drawn.left() - extents.x_bearing * scale) < off &&
           std::abs(drawn.width() - extents.width * scale) < off;
  }
  return true;
}

bool isBoldInFile(QRawFont const& font) {
  QByteArray const table = font.fontTable("OS/2");
  constexpr int at = 4, semibold = 600;
  return table.size() >= at + 2 && (static_cast<uchar>(table[at]) << 8 | static_cast<uchar>(table[at + 1])) >= semibold;
}
