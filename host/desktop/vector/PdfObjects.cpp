#include "PdfObjects.h"

#include <qpdf/Pl_Buffer.hh>
#include <qpdf/Pl_Flate.hh>

#include <QImage>

#include <algorithm>
#include <cmath>

using SysDisplay::CanvasBlend;

QPDFObjectHandle pdfText(QString const& text) { return QPDFObjectHandle::newUnicodeString(text.toStdString()); }

QByteArray pdfNumber(double number) {
  QByteArray text = QByteArray::number(number, 'f', 7);
  while (text.endsWith('0')) text.chop(1);
  if (text.endsWith('.')) text.chop(1);
  return text == "-0" ? QByteArray("0") : text;
}

QByteArray pdfMatrix(QTransform const& t) {
  QByteArray numbers;
  for (double number : {t.m11(), t.m12(), t.m21(), t.m22(), t.dx(), t.dy()}) numbers += pdfNumber(number) + ' ';
  numbers.chop(1);
  return numbers;
}

namespace {

// The function from 0 to 1 that a gradient's stops are, of colours or of opacity.
QByteArray functionOf(QGradientStops stops, bool isOpacity) {
  if (stops.first().first > 0) stops.prepend({0, stops.first().second});
  if (stops.last().first < 1) stops.append({1, stops.last().second});
  auto const color = [&](int i) {
    QColor const& stop = stops[i].second;
    if (isOpacity) return '[' + pdfNumber(stop.alphaF()) + ']';
    return '[' + pdfNumber(stop.redF()) + ' ' + pdfNumber(stop.greenF()) + ' ' + pdfNumber(stop.blueF()) + ']';
  };
  QByteArray pieces, bounds, encoded;
  for (int i = 1; i < stops.size(); ++i) {
    pieces += "<</FunctionType 2/Domain[0 1]/N 1/C0" + color(i - 1) + "/C1" + color(i) + ">>";
    if (i > 1) bounds += pdfNumber(stops[i - 1].first) + ' ';
    encoded += "0 1 ";
  }
  return "<</FunctionType 3/Domain[0 1]/Functions[" + pieces + "]/Bounds[" + bounds + "]/Encode[" + encoded + "]>>";
}

// A line from one point to another, or two circles.
QByteArray courseOf(QGradient const& gradient) {
  if (gradient.type() == QGradient::LinearGradient) {
    auto const& linear = static_cast<QLinearGradient const&>(gradient);
    return "/ShadingType 2/Coords[" + pdfNumber(linear.start().x()) + ' ' + pdfNumber(linear.start().y()) + ' ' +
           pdfNumber(linear.finalStop().x()) + ' ' + pdfNumber(linear.finalStop().y()) + ']';
  }
  auto const& radial = static_cast<QRadialGradient const&>(gradient);
  return "/ShadingType 3/Coords[" + pdfNumber(radial.focalPoint().x()) + ' ' + pdfNumber(radial.focalPoint().y()) +
         ' ' + pdfNumber(radial.focalRadius()) + ' ' + pdfNumber(radial.center().x()) + ' ' +
         pdfNumber(radial.center().y()) + ' ' + pdfNumber(radial.centerRadius()) + ']';
}

// The colours of a JPEG file as PDF calls them; null where a reader might take them for others.
char const* jpegColors(QByteArray const& file) {
  auto const byte = [&](int at) { return static_cast<uchar>(file[at]); };
  for (int at = 2; at + 9 < file.size() && byte(at) == 0xff;) {
    int const marker = byte(at + 1), length = byte(at + 2) << 8 | byte(at + 3);
    bool const isFrame = marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
    if (isFrame) {
      int const components = byte(at + 9);
      bool const isCommon = marker <= 0xc2 && byte(at + 4) == 8;
      return !isCommon ? nullptr : components == 3 ? "/DeviceRGB" : components == 1 ? "/DeviceGray" : nullptr;
    }
    at += 2 + length;
  }
  return nullptr;
}

// Bytes that are packed as they come: of a large picture, the whole is never there unpacked.
class Packing {
public:
  void add(QByteArray const& bytes) {
    deflate_.write(reinterpret_cast<uchar const*>(bytes.constData()), static_cast<size_t>(bytes.size()));
  }
  QPDFObjectHandle stream(QPDF& file) {
    deflate_.finish();
    QPDFObjectHandle made = QPDFObjectHandle::newStream(&file, kept_.getBufferSharedPointer());
    made.getDict().replaceKey("/Filter", QPDFObjectHandle::newName("/FlateDecode"));
    return made;
  }

private:
  Pl_Buffer kept_{"kept"};
  Pl_Flate deflate_{"deflate", &kept_, Pl_Flate::a_deflate};
};

char const* nameOf(CanvasBlend blend) {
  switch (blend) {
    case CanvasBlend::Normal: return "/Normal";
    case CanvasBlend::Multiply: return "/Multiply";
    case CanvasBlend::Screen: return "/Screen";
  }
  return "/Normal";
}

}  // namespace

PdfObjects::PdfObjects(QPDF& file)
    : file_(file), resources_(file.makeIndirectObject(QPDFObjectHandle::newDictionary())) {}

QPDFObjectHandle PdfObjects::category(char const* key) {
  if (!resources_.hasKey(key)) resources_.replaceKey(key, QPDFObjectHandle::newDictionary());
  return resources_.getKey(key);
}

QByteArray PdfObjects::add(char const* key, char const* prefix, QPDFObjectHandle const& object) {
  QByteArray const name = '/' + QByteArray(prefix) + QByteArray::number(++count_);
  category(key).replaceKey(name.toStdString(), object);
  return name;
}

QPDFObjectHandle PdfObjects::stream(QByteArray const& bytes) {
  return QPDFObjectHandle::newStream(&file_, bytes.toStdString());
}

QPDFObjectHandle PdfObjects::packed(QByteArray const& bytes) {
  constexpr int lengthBytes = 4;  // that qCompress puts before the stream
  QPDFObjectHandle stream = this->stream(qCompress(bytes).mid(lengthBytes));
  stream.getDict().replaceKey("/Filter", QPDFObjectHandle::newName("/FlateDecode"));
  return stream;
}

// Readers look through all that a pattern may use, and all that this may use; with one dictionary of all names some
// come to no end. Fonts get their names at the end.
QPDFObjectHandle PdfObjects::usedBy(QByteArray const& content) {
  QPDFObjectHandle used = QPDFObjectHandle::newDictionary();
  for (int at = content.indexOf('/'); at >= 0; at = content.indexOf('/', at + 1)) {
    int end = at + 2;
    while (end < content.size() && content[end] >= '0' && content[end] <= '9') ++end;
    std::string const name = content.mid(at, end - at).toStdString();
    if (name.size() > 2 && name[1] == 'F') return resources_;
    for (char const* key : {"/Properties", "/XObject", "/Pattern", "/Shading", "/ExtGState"}) {
      if (!resources_.hasKey(key) || !resources_.getKey(key).hasKey(name)) continue;
      if (!used.hasKey(key)) used.replaceKey(key, QPDFObjectHandle::newDictionary());
      used.getKey(key).replaceKey(name, resources_.getKey(key).getKey(name));
    }
  }
  return used;
}

QByteArray PdfObjects::form(QByteArray const& content, QRectF const& bounds, Sheet sheet) {
  QByteArray box = "[";
  for (double side :
       {std::floor(bounds.left()), std::floor(bounds.top()), std::ceil(bounds.right()), std::ceil(bounds.bottom())})
    box += pdfNumber(side) + ' ';
  box += ']';
  QByteArray& name = forms_[QByteArray::number(static_cast<int>(sheet)) + box + content];
  if (!name.isEmpty()) return name;
  QPDFObjectHandle form = stream(content);
  QPDFObjectHandle dictionary = form.getDict();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
  dictionary.replaceKey("/BBox", QPDFObjectHandle::parse(box.toStdString()));
  dictionary.replaceKey("/Resources", usedBy(content));
  if (sheet != Sheet::None)
    dictionary.replaceKey("/Group",
                          QPDFObjectHandle::parse(std::string("<</Type/Group/S/Transparency/I true/CS/") +
                                                  (sheet == Sheet::Gray ? "DeviceGray" : "DeviceRGB") + ">>"));
  return name = add("/XObject", "X", form);
}

QPDFObjectHandle PdfObjects::image(QPDFObjectHandle stream, QSize const& size, char const* colors) {
  QPDFObjectHandle dictionary = stream.getDict();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Image"));
  dictionary.replaceKey("/Width", QPDFObjectHandle::newInteger(size.width()));
  dictionary.replaceKey("/Height", QPDFObjectHandle::newInteger(size.height()));
  dictionary.replaceKey("/ColorSpace", QPDFObjectHandle::newName(colors));
  dictionary.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(8));
  return stream;
}

QByteArray PdfObjects::picture(SysDisplay::PictureData const& picture) {
  constexpr int stripRows = 64;
  QByteArray& name = pictures_[picture.image.cacheKey()];
  if (!name.isEmpty()) return name;
  QSize const size = picture.image.size();
  if (char const* const colors = jpegColors(picture.jpeg)) {
    QPDFObjectHandle kept = image(stream(picture.jpeg), size, colors);
    kept.getDict().replaceKey("/Filter", QPDFObjectHandle::newName("/DCTDecode"));
    return name = add("/XObject", "P", kept);
  }
  Packing colors, opacities;
  bool isOpaque = true;
  for (int y = 0; y < size.height(); y += stripRows) {
    int const rows = std::min(stripRows, size.height() - y);
    QImage const strip = picture.image.copy(0, y, size.width(), rows).convertToFormat(QImage::Format_RGBA8888);
    if (strip.isNull()) qBadAlloc();
    QByteArray color(size.width() * rows * 3, Qt::Uninitialized), opacity(size.width() * rows, Qt::Uninitialized);
    char *toColor = color.data(), *toOpacity = opacity.data();
    for (int row = 0; row < rows; ++row) {
      uchar const* pixel = strip.constScanLine(row);
      for (int x = 0; x < size.width(); ++x, pixel += 4) {
        toColor = std::copy_n(reinterpret_cast<char const*>(pixel), 3, toColor);
        *toOpacity++ = static_cast<char>(pixel[3]);
        isOpaque = isOpaque && pixel[3] == 255;
      }
    }
    colors.add(color);
    opacities.add(opacity);
  }
  QPDFObjectHandle made = image(colors.stream(file_), size, "/DeviceRGB");
  if (!isOpaque) made.getDict().replaceKey("/SMask", image(opacities.stream(file_), size, "/DeviceGray"));
  return name = add("/XObject", "P", made);
}

QByteArray PdfObjects::addOnce(char const* key, char const* prefix, QByteArray const& text) {
  QByteArray& name = others_[key + text];
  if (name.isEmpty()) name = add(key, prefix, file_.makeIndirectObject(QPDFObjectHandle::parse(text.toStdString())));
  return name;
}

QByteArray PdfObjects::addShading(QGradient const& gradient, bool isOpacity) {
  return addOnce("/Shading", "H",
                 "<<" + courseOf(gradient) + "/ColorSpace/" + (isOpacity ? "DeviceGray" : "DeviceRGB") +
                     "/Extend[true true]/Function" + functionOf(SysDisplay::straightStops(gradient), isOpacity) + ">>");
}

std::pair<QByteArray, QByteArray> PdfObjects::shading(QGradient const& gradient, QRectF const& bounds) {
  QByteArray const colors = addShading(gradient, false);
  QGradientStops const stops = gradient.stops();
  bool const isOpaque =
      std::all_of(stops.begin(), stops.end(), [](QGradientStop const& stop) { return stop.second.alpha() == 255; });
  if (isOpaque) return {colors, {}};
  QByteArray const opacity = addShading(gradient, true);
  QByteArray const mask = form(opacity + " sh\n", bounds, Sheet::Gray);
  QByteArray& name = others_["mask " + mask];
  if (!name.isEmpty()) return {colors, name};
  QPDFObjectHandle state = QPDFObjectHandle::parse("<</ca 1/CA 1/SMask<</S/Luminosity>>>>");
  state.getKey("/SMask").replaceKey("/G", category("/XObject").getKey(mask.toStdString()));
  name = add("/ExtGState", "S", state);
  return {colors, name};
}

QByteArray PdfObjects::tiles(QByteArray const& form, QSizeF const& size, QTransform const& placed) {
  QByteArray const text = "<</PatternType 1/PaintType 1/TilingType 2/BBox[0 0 " + pdfNumber(size.width()) + ' ' +
                          pdfNumber(size.height()) + "]/XStep " + pdfNumber(size.width()) + "/YStep " +
                          pdfNumber(size.height()) + "/Matrix[" + pdfMatrix(placed) + "]>>";
  QByteArray& name = others_[form + text];
  if (!name.isEmpty()) return name;
  QPDFObjectHandle pattern = stream(form + " Do\n");
  QPDFObjectHandle dictionary = pattern.getDict();
  QPDFObjectHandle keys = QPDFObjectHandle::parse(text.toStdString());
  for (std::string const& key : keys.getKeys()) dictionary.replaceKey(key, keys.getKey(key));
  dictionary.replaceKey("/Resources", usedBy(form));
  return name = add("/Pattern", "T", pattern);
}

QByteArray PdfObjects::state(double opacity, CanvasBlend blend) {
  int const steps = static_cast<int>(std::lround(opacity * 255));
  QByteArray& name = states_[std::make_pair(steps, static_cast<int>(blend))];
  if (!name.isEmpty()) return name;
  QByteArray const part = pdfNumber(steps / 255.0);
  auto const state =
      QPDFObjectHandle::parse(("<</ca " + part + "/CA " + part + "/BM" + nameOf(blend) + ">>").toStdString());
  return name = add("/ExtGState", "S", state);
}

int PdfObjects::layer(QString const& name, int parent) {
  int const before = onPage_[{parent, name}]++;
  auto const known = sameLayers_.emplace(std::make_tuple(parent, name, before), static_cast<int>(layers_.size()));
  if (!known.second) return known.first->second;
  QPDFObjectHandle group = QPDFObjectHandle::newDictionary();
  group.replaceKey("/Type", QPDFObjectHandle::newName("/OCG"));
  group.replaceKey("/Name", pdfText(name));
  int const number = static_cast<int>(layers_.size());
  layers_.push_back({file_.makeIndirectObject(group), {}});
  (parent < 0 ? outermost_ : layers_[static_cast<size_t>(parent)].below).push_back(number);
  category("/Properties").replaceKey(layerName(number).toStdString(), layers_.back().group);
  return number;
}

QByteArray PdfObjects::layerName(int layer) { return "/L" + QByteArray::number(layer); }

// As the contents of the program have them: what is drawn last comes first.
QPDFObjectHandle PdfObjects::order(std::vector<int> const& layers) {
  QPDFObjectHandle order = QPDFObjectHandle::newArray();
  for (auto number = layers.rbegin(); number != layers.rend(); ++number) {
    Layer const& layer = layers_[static_cast<size_t>(*number)];
    order.appendItem(layer.group);
    if (!layer.below.empty()) order.appendItem(this->order(layer.below));
  }
  return order;
}

QPDFObjectHandle PdfObjects::layerProperties() {
  if (layers_.empty()) return QPDFObjectHandle::newNull();
  QPDFObjectHandle groups = QPDFObjectHandle::newArray();
  for (Layer const& layer : layers_) groups.appendItem(layer.group);
  QPDFObjectHandle shown = QPDFObjectHandle::newDictionary();
  shown.replaceKey("/Name", QPDFObjectHandle::newString("Layers"));
  shown.replaceKey("/Order", order(outermost_));
  QPDFObjectHandle properties = QPDFObjectHandle::newDictionary();
  properties.replaceKey("/OCGs", groups);
  properties.replaceKey("/D", shown);
  return properties;
}

void PdfObjects::addFont(QByteArray const& name, QPDFObjectHandle const& font) {
  category("/Font").replaceKey(name.toStdString(), font);
}
