#include "settings/kwprintconfig.h"
#include "settings/kwprintconfig_xml.h"
#include "support/xmlsink.h"
#include "support/xmlsource.h"

void printxml::readUnit(const XmlText &text, quint32 &code)
{
    // Asking for the key of a text would make it a name in the table of units.
    const QString name = text.toString();
    quint32 unit = 0;
    while (unit < UnitUtil::unitCount && (name.isEmpty() || UnitUtil::unitStr(unit) != name))
        ++unit;
    if (unit < UnitUtil::unitCount)
        code = unit;
}

bool printxml::isTrue(const XmlText &text)
{
    return text == "1" || text.toString().compare(QLatin1String("TRUE"), Qt::CaseInsensitive) == 0;
}

void KWPrintConfig::saveTo(QDomElement &parent) const
{
    DomSink sink(parent);
    printxml::write(sink, *this);
}

void KWPrintConfig::parse(const QDomElement &element)
{
    DomSource source(element);
    printxml::read(source, *this);
}

QString KWPrintConfig::paperSize() const
{
    const QString unit = QLatin1Char(' ') + UnitUtil::unitStr(Unit);
    return QString::number(Width) + unit + QLatin1String(" x ") + QString::number(Height) + unit;
}
