#include "FeatureShaping.h"

#include "FontFace.h"

#include <QRegularExpression>

#include <hb-ot.h>

#include <algorithm>
#include <optional>

namespace SysDisplay {

namespace {

using Font = std::unique_ptr<hb_font_t, Destroyer<hb_font_destroy>>;
using Buffer = std::unique_ptr<hb_buffer_t, Destroyer<hb_buffer_destroy>>;

std::optional<hb_feature_t> parsed(QString const& feature) {
  hb_feature_t result;
  QByteArray const text = feature.toLatin1();
  if (!hb_feature_from_string(text.constData(), text.size(), &result)) return std::nullopt;
  return result;
}

std::vector<hb_tag_t> tagsOf(hb_face_t* face) {
  std::vector<hb_tag_t> tags;
  for (hb_tag_t const table : {HB_OT_TAG_GSUB, HB_OT_TAG_GPOS}) {
    unsigned count = hb_ot_layout_table_get_feature_tags(face, table, 0, nullptr, nullptr);
    size_t const before = tags.size();
    tags.resize(before + count);
    hb_ot_layout_table_get_feature_tags(face, table, 0, &count, tags.data() + before);
  }
  return tags;
}

}  // namespace

struct FeatureShaper::Known {
  QRawFont font;
  Font shaped;                 // in its own units
  std::vector<hb_tag_t> tags;  // of the features that it has
};

FeatureShaper::FeatureShaper() = default;
FeatureShaper::~FeatureShaper() = default;

FeatureShaper::Known& FeatureShaper::known(QRawFont const& font) {
  for (auto const& one : known_)
    if (one->font == font) return *one;
  FontFace const face = faceOf(font);
  known_.push_back(std::make_unique<Known>(Known{font, Font(hb_font_create(face.get())), tagsOf(face.get())}));
  return *known_.back();
}

std::vector<FeaturedGlyph> FeatureShaper::shape(QRawFont const& font, QStringList const& features, QString const& line,
                                                int from, int to, double spacing, double& advance,
                                                QStringList& lacking) {
  Known const& known = this->known(font);
  std::vector<hb_feature_t> wanted;
  // Letters that are set apart are not joined, but where that is asked for.
  if (spacing != 0)
    for (char const* joining : {"liga=0", "clig=0"}) wanted.push_back(*parsed(QLatin1String(joining)));
  for (QString const& feature : features) {
    auto const one = parsed(feature);
    if (!one) continue;
    wanted.push_back(*one);
    bool const isKnown = std::find(known.tags.begin(), known.tags.end(), one->tag) != known.tags.end();
    if (!isKnown && one->value != 0 && !lacking.contains(feature)) lacking << feature;
  }
  Buffer const buffer(hb_buffer_create());
  hb_buffer_add_utf16(buffer.get(), line.utf16(), line.size(), static_cast<unsigned>(from), to - from);
  hb_buffer_set_direction(buffer.get(), HB_DIRECTION_LTR);
  hb_buffer_guess_segment_properties(buffer.get());
  hb_shape(known.shaped.get(), buffer.get(), wanted.data(), static_cast<unsigned>(wanted.size()));

  unsigned count = 0;
  hb_glyph_info_t const* const infos = hb_buffer_get_glyph_infos(buffer.get(), &count);
  hb_glyph_position_t const* const positions = hb_buffer_get_glyph_positions(buffer.get(), nullptr);
  double const em = hb_face_get_upem(hb_font_get_face(known.shaped.get()));
  std::vector<FeaturedGlyph> glyphs;
  QPointF pen;
  for (unsigned i = 0; i < count; ++i) {
    QPointF const off(positions[i].x_offset / em, -positions[i].y_offset / em);
    glyphs.push_back({infos[i].codepoint, static_cast<int>(infos[i].cluster), pen + off});
    pen += QPointF(positions[i].x_advance / em, -positions[i].y_advance / em);
    bool const endsLetter = i + 1 == count || infos[i + 1].cluster != infos[i].cluster;
    if (endsLetter) pen += QPointF(spacing, 0);
  }
  advance = pen.x();
  return glyphs;
}

// Of what HarfBuzz understands the part that style sheets have words for, too.
bool isFontFeature(QString const& feature) {
  static QRegularExpression const known(QStringLiteral("\\A[A-Za-z0-9]{4}(=[0-9]{1,4})?\\z"));
  return known.match(feature).hasMatch();
}

}  // namespace SysDisplay
