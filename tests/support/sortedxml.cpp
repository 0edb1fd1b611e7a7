#include "support/sortedxml.h"
#include <QDomDocument>
#include <QStringList>

namespace {

void append(const QDomElement &element, int level, std::string &text)
{
    QStringList attributes;
    const QDomNamedNodeMap map = element.attributes();
    for (int i = 0; i < map.count(); ++i) {
        const QDomAttr attribute = map.item(i).toAttr();
        attributes.append(attribute.name() + QLatin1String("='") + attribute.value() + QLatin1Char('\''));
    }
    attributes.sort();
    text += std::string(size_t(level), ' ') + element.tagName().toStdString();
    for (const QString &attribute : qAsConst(attributes))
        text += ' ' + attribute.toStdString();
    text += '\n';
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        append(child, level + 1, text);
}
}

std::string sortedXml(const QDomElement &element)
{
    std::string text;
    append(element, 0, text);
    return text;
}

std::string sortedXml(const QByteArray &bytes)
{
    QDomDocument document;
    return document.setContent(QString::fromUtf8(bytes)) ? sortedXml(document.documentElement()) : "(no XML)";
}
