#pragma once

#include "PdfObjects.h"

#include <QRawFont>

#include <list>
#include <map>

/// The fonts of a PDF file, each with the glyphs that its contents use.
class PdfFonts {
public:
  struct Font {
    QRawFont font;
    QByteArray name;                    ///< as contents call it
    bool isEmbeddable = true;           ///< else its letters have to be drawn as shapes
    std::map<quint32, QString> glyphs;  ///< that are used, and their letters; may be none
  };

  Font& font(QRawFont const& font);

  /// That a glyph is used, and for which letters. False where it stands for others elsewhere.
  static bool use(Font& font, quint32 glyph, QString const& letters);

  /// How far a glyph moves on, in units of the font's size.
  static double advance(Font const& font, quint32 glyph);

  /// Puts the fonts into the file, cut down to the glyphs that were used. Once, at the end.
  void embed(PdfObjects& objects);

private:
  std::list<Font> fonts_;
};
