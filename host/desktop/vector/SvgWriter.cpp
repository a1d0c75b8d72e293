#include "SvgWriter.h"

#include "host/desktop/output/XmlText.h"

#include <utility>

namespace {

constexpr int blockBytes = 1 << 20;

// Definitions longer than this are hardly ever made twice, and not looked for.
constexpr int maxSharedBytes = 1 << 16;

}  // namespace

QByteArray svgAttribute(char const* name, QString const& value) {
  return ' ' + QByteArray(name) + "=\"" + escapedXml(value) + '"';
}

QByteArray svgNumber(double number, int decimals) {
  QByteArray text = QByteArray::number(number, 'f', decimals);
  if (text.contains('.')) {
    while (text.endsWith('0')) text.chop(1);
    if (text.endsWith('.')) text.chop(1);
  }
  return text == "-0" ? QByteArray("0") : text;
}

SvgWriter::SvgWriter(QString const& path) : file_(path), parts_(1) {
  isBroken_ = !file_.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

void SvgWriter::flush() {
  isBroken_ = isBroken_ || file_.write(waiting_) != waiting_.size();
  waiting_.clear();
}

void SvgWriter::store(QByteArray const& markup) {
  if (parts_.size() > 1) {
    parts_.back().markup += markup;
    return;
  }
  waiting_ += markup;
  if (waiting_.size() >= blockBytes) flush();
}

void SvgWriter::openGroups() {
  for (Group& group : parts_.back().groups) {
    if (group.isWritten) continue;
    group.isWritten = true;
    store("<g" + group.attributes + ">\n");
    if (!group.title.isEmpty()) store("<title>" + escapedXml(group.title) + "</title>\n");
  }
}

void SvgWriter::writePath(QByteArray const& fill, QByteArray const& stroke, QByteArray const& d) {
  Path& waiting = parts_.back().waiting;
  if (fill.isEmpty() && waiting.stroke.isEmpty() && waiting.d == d && !d.isEmpty()) {
    waiting.stroke = stroke;
    return;
  }
  writeWaiting();
  waiting = {fill, stroke, d};
}

void SvgWriter::writeWaiting() {
  Part& part = parts_.back();
  if (part.waiting.d.isEmpty()) return;
  Path const path = std::exchange(part.waiting, {});
  openGroups();
  QByteArray const attributes = (path.fill.isEmpty() ? " fill=\"none\"" : path.fill) + path.stroke;
  bool const isAlike = part.attributes == attributes;
  if (part.isRunOpen != isAlike) store(isAlike ? "<g" + attributes + ">\n" : "</g>\n");
  part.isRunOpen = isAlike;
  part.attributes = attributes;
  store("<path" + (isAlike ? QByteArray() : attributes) + " d=\"" + path.d + "\"/>\n");
}

void SvgWriter::endRun() {
  writeWaiting();
  Part& part = parts_.back();
  if (part.isRunOpen) store("</g>\n");
  part.isRunOpen = false;
  part.attributes.clear();
}

void SvgWriter::write(QByteArray const& markup) {
  endRun();
  openGroups();
  store(markup);
}

void SvgWriter::beginGroup(QByteArray const& attributes, QString const& title) {
  endRun();
  parts_.back().groups.push_back({attributes, title, false});
}

void SvgWriter::endGroup() {
  endRun();
  bool const isWritten = parts_.back().groups.back().isWritten;
  parts_.back().groups.pop_back();
  if (isWritten) store("</g>\n");
}

QByteArray SvgWriter::define(char const* tag, QByteArray const& attributes, QByteArray const& content) {
  QByteArray const body = attributes + (content.isEmpty() ? "/>" : '>' + content + "</" + tag + '>');
  QByteArray const key = body.size() <= maxSharedBytes ? tag + body : QByteArray();
  if (QByteArray const known = definitions_.value(key); !key.isEmpty() && !known.isEmpty()) return known;
  QByteArray const id = 'd' + QByteArray::number(++definitionCount_);
  if (!key.isEmpty()) definitions_.insert(key, id);
  // What is defined in a run of paths would take over what they have.
  Part& file = parts_.front();
  if (file.isRunOpen) waiting_ += "</g>\n";
  file.isRunOpen = false;
  file.attributes.clear();
  waiting_ += "<defs><" + QByteArray(tag) + " id=\"" + id + '"' + body + "</defs>\n";
  return id;
}

void SvgWriter::beginPart() { parts_.emplace_back(); }

QByteArray SvgWriter::endPart() {
  endRun();
  QByteArray const markup = parts_.back().markup;
  parts_.pop_back();
  return markup;
}

QString SvgWriter::finish() {
  flush();
  return file_.error() == QFile::NoError ? QString() : file_.errorString();
}
