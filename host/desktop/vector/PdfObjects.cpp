#include "PdfObjects.h"

#include <QImage>

#include <cmath>

using SysDisplay::CanvasBlend;

QPDFObjectHandle pdfText(QString const& text) { return QPDFObjectHandle::newUnicodeString(text.toStdString()); }

QByteArray pdfNumber(double number) {
  QByteArray text = QByteArray::number(number, 'f', 7);
  while (text.endsWith('0')) text.chop(1);
  if (text.endsWith('.')) text.chop(1);
  return text == "-0" ? QByteArray("0") : text;
}

namespace {

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

QByteArray PdfObjects::form(QByteArray const& content, QRectF const& bounds, bool isSheet) {
  QByteArray box = "[";
  for (double side :
       {std::floor(bounds.left()), std::floor(bounds.top()), std::ceil(bounds.right()), std::ceil(bounds.bottom())})
    box += pdfNumber(side) + ' ';
  box += ']';
  QByteArray& name = forms_[(isSheet ? "sheet " : "") + box + content];
  if (!name.isEmpty()) return name;
  QPDFObjectHandle form = stream(content);
  QPDFObjectHandle dictionary = form.getDict();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
  dictionary.replaceKey("/BBox", QPDFObjectHandle::parse(box.toStdString()));
  dictionary.replaceKey("/Resources", resources_);
  if (isSheet)
    dictionary.replaceKey("/Group", QPDFObjectHandle::parse("<</Type/Group/S/Transparency/I true/CS/DeviceRGB>>"));
  return name = add("/XObject", "X", form);
}

QPDFObjectHandle PdfObjects::image(QByteArray const& bytes, QSize const& size, char const* colors) {
  QPDFObjectHandle image = stream(bytes);
  QPDFObjectHandle dictionary = image.getDict();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Image"));
  dictionary.replaceKey("/Width", QPDFObjectHandle::newInteger(size.width()));
  dictionary.replaceKey("/Height", QPDFObjectHandle::newInteger(size.height()));
  dictionary.replaceKey("/ColorSpace", QPDFObjectHandle::newName(colors));
  dictionary.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(8));
  return image;
}

QByteArray PdfObjects::picture(SysDisplay::PictureData const& picture) {
  QByteArray& name = pictures_[picture.image.cacheKey()];
  if (!name.isEmpty()) return name;
  QSize const size = picture.image.size();
  if (char const* const colors = jpegColors(picture.jpeg)) {
    QPDFObjectHandle kept = image(picture.jpeg, size, colors);
    kept.getDict().replaceKey("/Filter", QPDFObjectHandle::newName("/DCTDecode"));
    return name = add("/XObject", "P", kept);
  }
  QImage const straight = picture.image.convertToFormat(QImage::Format_RGBA8888);
  QByteArray colors, opacity;
  colors.reserve(size.width() * size.height() * 3);
  bool isOpaque = true;
  for (int y = 0; y < size.height(); ++y) {
    uchar const* pixel = straight.constScanLine(y);
    for (int x = 0; x < size.width(); ++x, pixel += 4) {
      colors.append(reinterpret_cast<char const*>(pixel), 3);
      opacity.append(static_cast<char>(pixel[3]));
      isOpaque = isOpaque && pixel[3] == 255;
    }
  }
  QPDFObjectHandle made = image(colors, size, "/DeviceRGB");
  if (!isOpaque) made.getDict().replaceKey("/SMask", image(opacity, size, "/DeviceGray"));
  return name = add("/XObject", "P", made);
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
