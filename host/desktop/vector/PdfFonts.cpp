#include "PdfFonts.h"

#include "FontFile.h"

#include "host/SysDisplay/FontFace.h"

#include <QCryptographicHash>

#include <hb-subset.h>

#include <cmath>
#include <memory>
#include <stdexcept>

namespace {

constexpr int unitsPerEm = 1000;  // of PDF's widths
constexpr hb_tag_t cffTag = HB_TAG('C', 'F', 'F', ' ');

using Blob = std::unique_ptr<hb_blob_t, SysDisplay::Destroyer<hb_blob_destroy>>;
using Input = std::unique_ptr<hb_subset_input_t, SysDisplay::Destroyer<hb_subset_input_destroy>>;

// A font's makers may forbid that it is put into documents: bit 1 of fsType in the table OS/2.
bool allowsEmbedding(QRawFont const& font) {
  QByteArray const table = font.fontTable("OS/2");
  constexpr int restricted = 2;
  return table.size() < 10 || (table[9] & 0xf) != restricted;
}

QByteArray subset(QRawFont const& font, std::map<quint32, QString> const& glyphs) {
  SysDisplay::FontFace const face = SysDisplay::faceOf(font);
  Input const input(hb_subset_input_create_or_fail());
  if (!input) return {};
  for (auto const& glyph : glyphs) hb_set_add(hb_subset_input_glyph_set(input.get()), glyph.first);
  hb_subset_input_set_flags(input.get(), HB_SUBSET_FLAGS_RETAIN_GIDS | HB_SUBSET_FLAGS_NOTDEF_OUTLINE);
  for (char const* table : {"GSUB", "GPOS", "GDEF", "kern", "name", "post", "OS/2", "DSIG"})
    hb_set_add(hb_subset_input_set(input.get(), HB_SUBSET_SETS_DROP_TABLE_TAG), hb_tag_from_string(table, -1));
  SysDisplay::FontFace const cut(hb_subset_or_fail(face.get(), input.get()));
  if (!cut) return {};
  Blob const blob(font.fontTable("CFF ").isEmpty() ? hb_face_reference_blob(cut.get())
                                                   : hb_face_reference_table(cut.get(), cffTag));
  unsigned length = 0;
  char const* const bytes = hb_blob_get_data(blob.get(), &length);
  return {bytes, static_cast<int>(length)};
}

// Says by its first six letters that it is a part of the font, and which.
QByteArray baseName(PdfFonts::Font const& font) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  for (auto const& glyph : font.glyphs) hash.addData(QByteArray::number(glyph.first) + ' ');
  QByteArray const digest = hash.result();
  QByteArray name;
  for (int i = 0; i < 6; ++i) name += static_cast<char>('A' + static_cast<uchar>(digest[i]) % 26);
  name += '+';
  for (QChar const letter : QString(font.font.familyName() + QLatin1Char('-') + font.font.styleName()))
    if (letter.isLetterOrNumber() && letter.unicode() < 128)
      name += letter.toLatin1();
    else if (letter == QLatin1Char('-'))
      name += '-';
  return name;
}

QByteArray hex(QString const& text) {
  QByteArray digits;
  for (QChar const unit : text) digits += QByteArray::number(unit.unicode() | 0x10000, 16).mid(1);
  return digits;
}

QByteArray hex(quint32 glyph) { return QByteArray::number(glyph | 0x10000, 16).mid(1); }

// Which text the glyphs stand for, in the language of such tables.
QByteArray textTable(std::map<quint32, QString> const& glyphs) {
  QVector<QByteArray> rows;
  for (auto const& [glyph, text] : glyphs)
    if (!text.isEmpty()) rows << '<' + hex(glyph) + "><" + hex(text) + '>';
  QByteArray table =
      "/CIDInit/ProcSet findresource begin 12 dict begin begincmap\n"
      "/CIDSystemInfo<</Registry(Adobe)/Ordering(UCS)/Supplement 0>>def\n"
      "/CMapName/Adobe-Identity-UCS def/CMapType 2 def\n"
      "1 begincodespacerange<0000><ffff>endcodespacerange\n";
  constexpr int mostRows = 100;
  for (int from = 0; from < rows.size(); from += mostRows) {
    QVector<QByteArray> const part = rows.mid(from, mostRows);
    table += QByteArray::number(part.size()) + " beginbfchar\n";
    for (QByteArray const& row : part) table += row + '\n';
    table += "endbfchar\n";
  }
  return table + "endcmap CMapName currentdict/CMap defineresource pop end end\n";
}

QByteArray widths(PdfFonts::Font const& font) {
  QByteArray list = "[";
  for (auto const& glyph : font.glyphs)
    list += QByteArray::number(glyph.first) + '[' + pdfNumber(PdfFonts::advance(font, glyph.first) * unitsPerEm) + ']';
  return list + ']';
}

QPDFObjectHandle descriptor(PdfObjects& objects, PdfFonts::Font const& font, QByteArray const& name) {
  QRawFont const& raw = font.font;
  double const scale = unitsPerEm / raw.pixelSize();
  bool const isCff = !raw.fontTable("CFF ").isEmpty();
  QRectF box;
  for (auto const& glyph : font.glyphs) box |= raw.pathForGlyph(glyph.first).boundingRect();
  QByteArray const text =
      "<</Type/FontDescriptor/FontName/" + name + "/Flags 4/ItalicAngle " +
      (raw.style() == QFont::StyleNormal ? "0" : "-12") + "/Ascent " + pdfNumber(raw.ascent() * scale) + "/Descent " +
      pdfNumber(-raw.descent() * scale) + "/CapHeight " + pdfNumber(raw.capHeight() * scale) + "/StemV 80/FontBBox[" +
      pdfNumber(std::floor(box.left() * scale)) + ' ' + pdfNumber(std::floor(-box.bottom() * scale)) + ' ' +
      pdfNumber(std::ceil(box.right() * scale)) + ' ' + pdfNumber(std::ceil(-box.top() * scale)) + "]>>";
  QPDFObjectHandle result = QPDFObjectHandle::parse(text.toStdString());
  QByteArray const bytes = subset(raw, font.glyphs);
  std::string const family = raw.familyName().toStdString();
  if (bytes.isEmpty()) throw std::runtime_error("the font " + family + " can't be cut down");  // as qpdf, in a throw
  QPDFObjectHandle file = objects.stream(bytes);
  if (isCff)
    file.getDict().replaceKey("/Subtype", QPDFObjectHandle::newName("/CIDFontType0C"));
  else
    file.getDict().replaceKey("/Length1", QPDFObjectHandle::newInteger(bytes.size()));
  result.replaceKey(isCff ? "/FontFile3" : "/FontFile2", file);
  return objects.file().makeIndirectObject(result);
}

}  // namespace

PdfFonts::Font& PdfFonts::font(QRawFont const& font) {
  for (Font& known : fonts_)
    if (known.font == font) return known;
  Font& added = fonts_.emplace_back();
  added.font = font;
  added.name = "/F" + QByteArray::number(static_cast<int>(fonts_.size()));
  added.isEmbeddable = allowsEmbedding(font) && drawsAsTheFileDoes(font) && !subset(font, {{0, {}}}).isEmpty();
  return added;
}

bool PdfFonts::use(Font& font, quint32 glyph, QString const& letters) {
  return font.glyphs.emplace(glyph, letters).first->second == letters;
}

double PdfFonts::advance(Font const& font, quint32 glyph) {
  QPointF advance;
  font.font.advancesForGlyphIndexes(&glyph, &advance, 1, QRawFont::UseDesignMetrics);
  return advance.x() / font.font.pixelSize();
}

void PdfFonts::embed(PdfObjects& objects) {
  for (Font const& font : fonts_) {
    if (font.glyphs.empty() || !font.isEmbeddable) continue;
    QByteArray const name = baseName(font);
    bool const isCff = !font.font.fontTable("CFF ").isEmpty();
    QPDFObjectHandle glyphs = QPDFObjectHandle::parse(
        ("<</Type/Font/Subtype/" + QByteArray(isCff ? "CIDFontType0" : "CIDFontType2") + "/BaseFont/" + name +
         "/CIDSystemInfo<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>/DW 0/W" + widths(font) +
         (isCff ? ">>" : "/CIDToGIDMap/Identity>>"))
            .toStdString());
    glyphs.replaceKey("/FontDescriptor", descriptor(objects, font, name));
    QPDFObjectHandle whole = QPDFObjectHandle::parse(
        ("<</Type/Font/Subtype/Type0/BaseFont/" + name + (isCff ? "-Identity-H" : "") + "/Encoding/Identity-H>>")
            .toStdString());
    whole.replaceKey("/DescendantFonts", QPDFObjectHandle::newArray({objects.file().makeIndirectObject(glyphs)}));
    whole.replaceKey("/ToUnicode", objects.stream(textTable(font.glyphs)));
    objects.addFont(font.name, objects.file().makeIndirectObject(whole));
  }
}
