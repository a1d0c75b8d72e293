#pragma once

#include "host/SysDisplay/VectorCanvas.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <tuple>
#include <utility>
#include <vector>

/// A text string of PDF's: the characters as they are where they are plain, else UTF-16.
QPDFObjectHandle pdfText(QString const& text);

/// A number as PDF has it: no exponent, no more digits than are needed.
QByteArray pdfNumber(double number);

/// The six numbers of a mapping.
QByteArray pdfMatrix(QTransform const& transformation);

/// The objects that all contents of a file share, each made once and known by a name.
class PdfObjects {
public:
  explicit PdfObjects(QPDF& file);

  QPDF& file() const { return file_; }

  /// The dictionary of all names, for pages and forms alike.
  QPDFObjectHandle const& resources() const { return resources_; }

  enum class Sheet { None, Colors, Gray };

  /// A form: content that is drawn as one thing. `bounds` are in its own units. As a sheet, what is in it is mixed with
  /// itself before it comes to the page.
  QByteArray form(QByteArray const& content, QRectF const& bounds, Sheet sheet = Sheet::None);

  QByteArray picture(SysDisplay::PictureData const& picture);

  /// Colours along a gradient, in its own coordinates, and how far they cover what lies below. The bounds are what is
  /// filled. The second is empty where they cover it all.
  std::pair<QByteArray, QByteArray> shading(QGradient const& gradient, QRectF const& bounds);

  /// A pattern of a form over and over, in steps of that size; from its units to those of where it is used.
  QByteArray tiles(QByteArray const& form, QSizeF const& size, QTransform const& placed);

  /// How strongly and in what way things are put on what is there.
  QByteArray state(double opacity, SysDisplay::CanvasBlend blend);

  /// A group of contents that can be hidden, below the group `parent`; -1 for none. Those that are called alike on
  /// several pages are one, and those on one page are not.
  int layer(QString const& name, int parent);
  static QByteArray layerName(int layer);

  /// What comes is on another page.
  void endPage() { onPage_.clear(); }

  /// What the catalogue says of the groups; null where there are none.
  QPDFObjectHandle layerProperties();

  /// Adds a font under a name.
  void addFont(QByteArray const& name, QPDFObjectHandle const& font);

  QPDFObjectHandle stream(QByteArray const& bytes);

  /// The same, compressed at once: a file of many pages is kept in memory until it is written.
  QPDFObjectHandle packed(QByteArray const& bytes);

private:
  struct Layer {
    QPDFObjectHandle group;
    std::vector<int> below;
  };
  QPDFObjectHandle category(char const* key);
  QPDFObjectHandle usedBy(QByteArray const& content);
  QByteArray addOnce(char const* key, char const* prefix, QByteArray const& text);
  QByteArray addShading(QGradient const& gradient, bool isOpacity);
  QByteArray add(char const* key, char const* prefix, QPDFObjectHandle const& object);
  QPDFObjectHandle order(std::vector<int> const& layers);
  static QPDFObjectHandle image(QPDFObjectHandle stream, QSize const& size, char const* colors);

  QPDF& file_;
  QPDFObjectHandle resources_;
  QHash<QByteArray, QByteArray> forms_;               // names by content
  QHash<QByteArray, QByteArray> others_;              // names by what they are, as text
  QHash<qint64, QByteArray> pictures_;                // by the image's key
  std::map<std::pair<int, int>, QByteArray> states_;  // by opacity and blend
  std::vector<Layer> layers_;
  std::map<std::pair<int, QString>, int> onPage_;            // how many by parent and name
  std::map<std::tuple<int, QString, int>, int> sameLayers_;  // with how many of the page were before
  std::vector<int> outermost_;
  int count_ = 0;
};
