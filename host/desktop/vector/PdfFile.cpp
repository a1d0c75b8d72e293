#include "PdfFile.h"

#include "host/desktop/output/XmlText.h"
#include "host/desktop/output/XmpPacket.h"

#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>
#include <stdexcept>

namespace {

QString const producer = QStringLiteral("Plotvane");

QPDFObjectHandle name(char const* text) { return QPDFObjectHandle::newName(text); }

QPDFObjectHandle numbers(std::initializer_list<double> values) {
  QPDFObjectHandle array = QPDFObjectHandle::newArray();
  for (double value : values) array.appendItem(QPDFObjectHandle::newReal(value, 5));
  return array;
}

// One string in the one way of telling it, words in the other.
QString keywordsIn(SysCarto::DocumentInformation const& information) {
  return information.keywords.join(QStringLiteral(", "));
}

QPDFObjectHandle boxIn(QRectF const& mediaCm, QRectF const& boxCm, QSizeF const& mediaPt) {
  double const scale = mediaPt.width() / mediaCm.width();
  return numbers({(boxCm.left() - mediaCm.left()) * scale, (mediaCm.bottom() - boxCm.bottom()) * scale,
                  (boxCm.right() - mediaCm.left()) * scale, (mediaCm.bottom() - boxCm.top()) * scale});
}

bool isCancelled(PdfFile::Cancel const& cancel) { return cancel && cancel->IsCanced(); }

}  // namespace

PdfFile::PdfFile(SysCarto::FileInformation information, OutputIntent intent)
    : information_(std::move(information)), intent_(std::move(intent)), objects_((file_.emptyPDF(), file_)) {
  parents_ = file_.makeIndirectObject(QPDFObjectHandle::parse("<</Nums[]>>"));
  structure_ = file_.makeIndirectObject(QPDFObjectHandle::parse("<</Type/StructTreeRoot>>"));
  whole_ = file_.makeIndirectObject(QPDFObjectHandle::parse("<</Type/StructElem/S/Document/K[]>>"));
  whole_.replaceKey("/P", structure_);
  structure_.replaceKey("/K", whole_);
  structure_.replaceKey("/ParentTree", parents_);
}

void PdfFile::addPage(PdfCanvas const& canvas, QSizeF const& sizePt, std::vector<GeoreferencedFrame> const& frames,
                      PageBoxes const& boxes) {
  QPDFObjectHandle page = QPDFObjectHandle::newDictionary();
  page.replaceKey("/Type", name("/Page"));
  page.replaceKey("/MediaBox", numbers({0, 0, sizePt.width(), sizePt.height()}));
  for (auto const& [key, box] : {std::make_pair("/BleedBox", boxes.bleed), {"/TrimBox", boxes.trim}})
    if (!boxes.arePlain()) page.replaceKey(key, boxIn(boxes.media, box, sizePt));
  page.replaceKey("/Resources", objects_.resources());
  page.replaceKey("/Contents", canvas.content(sizePt));
  page.replaceKey("/Group", QPDFObjectHandle::parse("<</Type/Group/S/Transparency/CS/DeviceRGB>>"));
  page.replaceKey("/Tabs", name("/S"));
  page.replaceKey("/StructParents", QPDFObjectHandle::newInteger(pages_));
  QTransform const toPoints = canvas.toPoints(sizePt);
  QPDFObjectHandle viewports = QPDFObjectHandle::newArray();
  for (GeoreferencedFrame const& frame : frames) viewports.appendItem(viewport(frame, toPoints));
  if (viewports.getArrayNItems() > 0) page.replaceKey("/VP", viewports);
  page = file_.makeIndirectObject(page);
  QPDFPageDocumentHelper(file_).addPage(QPDFPageObjectHelper(page), false);
  addParts(canvas, page, pages_++);
  lastPage_ = page;
  objects_.endPage();
}

void PdfFile::addBookmark(QString const& name) {
  QPDFObjectHandle bookmark = QPDFObjectHandle::newDictionary();
  bookmark.replaceKey("/Title", pdfText(name));
  bookmark.replaceKey("/Dest", QPDFObjectHandle::newArray({lastPage_, ::name("/Fit")}));
  bookmarks_.push_back(file_.makeIndirectObject(bookmark));
}

// A list in which each entry knows the next one and the one before.
void PdfFile::addOutline() {
  if (bookmarks_.empty()) return;
  QPDFObjectHandle outline = file_.makeIndirectObject(QPDFObjectHandle::parse("<</Type/Outlines>>"));
  outline.replaceKey("/First", bookmarks_.front());
  outline.replaceKey("/Last", bookmarks_.back());
  outline.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(bookmarks_.size())));
  for (size_t i = 0; i < bookmarks_.size(); ++i) {
    bookmarks_[i].replaceKey("/Parent", outline);
    if (i > 0) bookmarks_[i].replaceKey("/Prev", bookmarks_[i - 1]);
    if (i + 1 < bookmarks_.size()) bookmarks_[i].replaceKey("/Next", bookmarks_[i + 1]);
  }
  file_.getRoot().replaceKey("/Outlines", outline);
  file_.getRoot().replaceKey("/PageMode", name("/UseOutlines"));
}

// Each part of the page is an element of the structure, and the page's entry in the index lists them by their numbers.
void PdfFile::addParts(PdfCanvas const& canvas, QPDFObjectHandle const& page, int pageNumber) {
  QPDFObjectHandle ofPage = QPDFObjectHandle::newArray();
  for (PdfCanvas::Part const& part : canvas.parts()) {
    QPDFObjectHandle element = QPDFObjectHandle::newDictionary();
    element.replaceKey("/Type", name("/StructElem"));
    element.replaceKey("/S", name(part.isFigure ? "/Figure" : "/P"));
    element.replaceKey("/P", whole_);
    element.replaceKey("/Pg", page);
    element.replaceKey("/K", QPDFObjectHandle::newInteger(ofPage.getArrayNItems()));
    if (part.isFigure) element.replaceKey("/Alt", pdfText(part.description));
    element = file_.makeIndirectObject(element);
    whole_.getKey("/K").appendItem(element);
    ofPage.appendItem(element);
  }
  parents_.getKey("/Nums").appendItem(QPDFObjectHandle::newInteger(pageNumber));
  parents_.getKey("/Nums").appendItem(file_.makeIndirectObject(ofPage));
}

// As ISO 32000 has it: the corners as parts of the viewport's box and as latitudes and longitudes, and the system by
// its text.
QPDFObjectHandle PdfFile::viewport(GeoreferencedFrame const& frame, QTransform const& toPoints) {
  QRectF const box = toPoints.mapRect(frame.frame);
  QPDFObjectHandle onPage = QPDFObjectHandle::newArray(), onGlobe = QPDFObjectHandle::newArray();
  for (int i = 0; i < frame.corners.size(); ++i) {
    QPointF const corner = toPoints.map(frame.corners[i]) - box.topLeft();
    onPage.appendItem(QPDFObjectHandle::newReal(corner.x() / box.width(), 6));
    onPage.appendItem(QPDFObjectHandle::newReal(corner.y() / box.height(), 6));
    onGlobe.appendItem(QPDFObjectHandle::newReal(frame.places[i].y(), 12));
    onGlobe.appendItem(QPDFObjectHandle::newReal(frame.places[i].x(), 12));
  }
  QPDFObjectHandle system = QPDFObjectHandle::newDictionary();
  system.replaceKey("/Type", name(frame.isProjected ? "/PROJCS" : "/GEOGCS"));
  system.replaceKey("/WKT", QPDFObjectHandle::newString(frame.wkt.toStdString()));
  if (frame.epsg > 0) system.replaceKey("/EPSG", QPDFObjectHandle::newInteger(frame.epsg));
  QPDFObjectHandle measure = QPDFObjectHandle::newDictionary();
  measure.replaceKey("/Type", name("/Measure"));
  measure.replaceKey("/Subtype", name("/GEO"));
  measure.replaceKey("/GCS", file_.makeIndirectObject(system));
  measure.replaceKey("/GPTS", onGlobe);
  measure.replaceKey("/LPTS", onPage);
  measure.replaceKey("/Bounds", numbers({0, 0, 0, 1, 1, 1, 1, 0}));
  QPDFObjectHandle viewport = QPDFObjectHandle::newDictionary();
  viewport.replaceKey("/Type", name("/Viewport"));
  viewport.replaceKey("/Name", pdfText(frame.name));
  viewport.replaceKey("/BBox", numbers({box.left(), box.top(), box.right(), box.bottom()}));
  viewport.replaceKey("/Measure", file_.makeIndirectObject(measure));
  return file_.makeIndirectObject(viewport);
}

// The same properties in the two ways that readers know.
void PdfFile::describe() {
  QPDFObjectHandle information = QPDFObjectHandle::newDictionary();
  for (auto const& [key, text] : {std::make_pair("/Title", information_.title),
                                  {"/Author", information_.author},
                                  {"/Subject", information_.subject},
                                  {"/Keywords", keywordsIn(information_)},
                                  {"/Producer", producer}})
    if (!text.isEmpty()) information.replaceKey(key, pdfText(xmlText(text)));
  file_.getTrailer().replaceKey("/Info", file_.makeIndirectObject(information));

  QPDFObjectHandle xml = objects_.stream(metadata());
  xml.getDict().replaceKey("/Type", name("/Metadata"));
  xml.getDict().replaceKey("/Subtype", name("/XML"));

  QPDFObjectHandle profile = objects_.stream(intent_.profile);
  profile.getDict().replaceKey("/N", QPDFObjectHandle::newInteger(3));
  QPDFObjectHandle intent = QPDFObjectHandle::parse("<</Type/OutputIntent/S/GTS_PDFA1>>");
  for (char const* key : {"/OutputConditionIdentifier", "/Info"}) intent.replaceKey(key, pdfText(intent_.name));
  intent.replaceKey("/DestOutputProfile", profile);

  QPDFObjectHandle root = file_.getRoot();
  root.replaceKey("/Metadata", xml);
  root.replaceKey("/OutputIntents", QPDFObjectHandle::newArray({file_.makeIndirectObject(intent)}));
  root.replaceKey("/StructTreeRoot", structure_);
  root.replaceKey("/MarkInfo", QPDFObjectHandle::parse("<</Marked true>>"));
  if (!information_.language.isEmpty()) root.replaceKey("/Lang", pdfText(information_.language));
  root.replaceKey("/ViewerPreferences", QPDFObjectHandle::parse("<</DisplayDocTitle true>>"));
  QPDFObjectHandle layers = objects_.layerProperties();
  if (!layers.isNull()) root.replaceKey("/OCProperties", layers);
}

QByteArray PdfFile::metadata() const {
  QString const pdf = QStringLiteral("http://ns.adobe.com/pdf/1.3/"), pdfPrefix = QStringLiteral("pdf");
  QString const archive = QStringLiteral("http://www.aiim.org/pdfa/ns/id/"), archivePrefix = QStringLiteral("pdfaid");
  return xmpPacket(information_, {{archive, archivePrefix, QStringLiteral("part"), QStringLiteral("2")},
                                  {archive, archivePrefix, QStringLiteral("conformance"), QStringLiteral("B")},
                                  {pdf, pdfPrefix, QStringLiteral("Producer"), producer},
                                  {pdf, pdfPrefix, QStringLiteral("Keywords"), keywordsIn(information_)}});
}

void PdfFile::write(QString const& path, Cancel const& cancel) {
  fonts_.embed(objects_);
  describe();
  addOutline();
  QPDFWriter writer(file_, path.toLocal8Bit().constData());
  writer.setMinimumPDFVersion("1.7");
  writer.setObjectStreamMode(qpdf_o_generate);
  writer.setCompressStreams(true);
  writer.setDeterministicID(true);
  writer.registerProgressReporter(std::make_shared<QPDFWriter::FunctionProgressReporter>([&](int) {
    if (isCancelled(cancel)) throw std::runtime_error("cancelled");  // qpdf stops by a throw alone
  }));
  writer.write();
}
