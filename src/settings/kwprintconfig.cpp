#include "settings/kwprintconfig.h"
#include "quarkmanager.h"
#include "settings/kwprintconfig_xml.h"
#include "support/xmlsink.h"
#include "support/xmlsource.h"

void printxml::readUnit(const XmlText &text, quint32 &code)
{
    // Only looked up: a file must not make its texts the names of units.
    const int quark = QuarkManager::findQuark(text.toString());
    if (quark >= 0 && quark < QuarkManager::unitQuarkCount)
        code = quint32(quark);
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
