#include "SvgWriter.h"

namespace {

constexpr int blockBytes = 1 << 20;

// Definitions longer than this are hardly ever made twice, and not looked for.
constexpr int maxSharedBytes = 1 << 16;

}  // namespace

QByteArray svgAttribute(char const* name, QString const& value) {
  return ' ' + QByteArray(name) + "=\"" + value.toHtmlEscaped().toUtf8() + '"';
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

void SvgWriter::write(QByteArray const& markup) {
  for (Group& group : parts_.back().groups) {
    if (group.isWritten) continue;
    group.isWritten = true;
    store("<g" + group.attributes + ">\n");
    if (!group.title.isEmpty()) store("<title>" + group.title.toHtmlEscaped().toUtf8() + "</title>\n");
  }
  store(markup);
}

void SvgWriter::beginGroup(QByteArray const& attributes, QString const& title) {
  parts_.back().groups.push_back({attributes, title, false});
}

void SvgWriter::endGroup() {
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
  waiting_ += "<defs><" + QByteArray(tag) + " id=\"" + id + '"' + body + "</defs>\n";
  return id;
}

void SvgWriter::beginPart() { parts_.emplace_back(); }

QByteArray SvgWriter::endPart() {
  QByteArray const markup = parts_.back().markup;
  parts_.pop_back();
  return markup;
}

QString SvgWriter::finish() {
  flush();
  isBroken_ = isBroken_ || !file_.flush();
  return isBroken_ ? file_.errorString() : QString();
}
