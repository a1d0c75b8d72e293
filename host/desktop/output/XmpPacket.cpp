#include "XmpPacket.h"

#include "XmlText.h"

#include <QXmlStreamWriter>

namespace {

QString const rdf = QStringLiteral("http://www.w3.org/1999/02/22-rdf-syntax-ns#");
QString const dc = QStringLiteral("http://purl.org/dc/elements/1.1/");

// A property of Dublin Core as a list of that kind; nothing where there is nothing to be told.
void writeList(QXmlStreamWriter& xml, char const* property, char const* list, QStringList values) {
  values.removeAll(QString());
  if (values.isEmpty()) return;
  bool const isOfLanguages = qstrcmp(list, "Alt") == 0;
  xml.writeStartElement(dc, QLatin1String(property));
  xml.writeStartElement(rdf, QLatin1String(list));
  for (QString const& value : qAsConst(values)) {
    xml.writeStartElement(rdf, QStringLiteral("li"));
    if (isOfLanguages) xml.writeAttribute(QStringLiteral("xml:lang"), QStringLiteral("x-default"));
    xml.writeCharacters(xmlText(value));
    xml.writeEndElement();
  }
  xml.writeEndElement();
  xml.writeEndElement();
}

}  // namespace

QByteArray xmpPacket(SysCarto::FileInformation const& information, QVector<XmpProperty> const& ofItsKind) {
  QByteArray bytes;
  QXmlStreamWriter xml(&bytes);
  xml.writeProcessingInstruction(QStringLiteral("xpacket"),
                                 QStringLiteral("begin=\"\ufeff\" id=\"W5M0MpCehiHzreSzNTczkc9d\""));
  xml.writeNamespace(QStringLiteral("adobe:ns:meta/"), QStringLiteral("x"));
  xml.writeStartElement(QStringLiteral("adobe:ns:meta/"), QStringLiteral("xmpmeta"));
  xml.writeNamespace(rdf, QStringLiteral("rdf"));
  xml.writeStartElement(rdf, QStringLiteral("RDF"));
  xml.writeNamespace(dc, QStringLiteral("dc"));
  QStringList declared;
  for (XmpProperty const& property : ofItsKind)
    if (!declared.contains(property.space)) {
      xml.writeNamespace(property.space, property.prefix);
      declared << property.space;
    }
  xml.writeStartElement(rdf, QStringLiteral("Description"));
  xml.writeAttribute(rdf, QStringLiteral("about"), QString());
  for (XmpProperty const& property : ofItsKind)
    if (!property.value.isEmpty()) xml.writeTextElement(property.space, property.name, xmlText(property.value));
  writeList(xml, "title", "Alt", {information.title});
  writeList(xml, "creator", "Seq", {information.author});
  writeList(xml, "description", "Alt", {information.subject});
  writeList(xml, "subject", "Bag", information.keywords);
  writeList(xml, "language", "Bag", {information.language});
  writeList(xml, "rights", "Alt", {information.credits});
  for (int i = 0; i < 3; ++i) xml.writeEndElement();
  xml.writeProcessingInstruction(QStringLiteral("xpacket"), QStringLiteral("end=\"w\""));
  return bytes;
}
