#include "editing/kwhyperlink.h"
#include "editing/hyperlinkxml.h"
#include "model/kwdocument.h"
#include "support/xmlguard.h"
#include "support/xmlsink.h"
#include "support/xmlsource.h"
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <limits>

namespace {

constexpr qint32 otherType = 1;
constexpr qint32 fileType = 2;
constexpr qint32 webType = 3;
constexpr qint32 folderType = 4;

// Kept on purpose: only the end of the address counts, and its case does. "page.cc" is a web address, and a
// web address with a path is a file.
const char *const webEndings[] = {".com", ".xyz", ".net", ".top", ".tech", ".org", ".gov", ".edu", ".ink",
                                  ".red", ".int", ".mil", ".pub", ".cn",   ".cc",  ".tv",  ".biz"};
const char *const webSchemes[] = {"http:", "ftp:", "https:", "ftps:"};
const char *const documentEndings[] = {".kwpx", ".hbnx", ".kwx"};

template <typename Endings>
bool endsWithOneOf(const QString &address, const Endings &endings)
{
    for (const char *ending : endings) {
        if (address.endsWith(QLatin1String(ending)))
            return true;
    }
    return false;
}

QDataStream &operator<<(QDataStream &stream, const KWHyperlink &link)
{
    return stream << link.ID << link.type << link.isDefault << link.name << link.description << link.address
                  << link.subAddress << link.relatAddress << link.extraInfo;
}

QDataStream &operator>>(QDataStream &stream, KWHyperlink &link)
{
    return stream >> link.ID >> link.type >> link.isDefault >> link.name >> link.description >>
           link.address >> link.subAddress >> link.relatAddress >> link.extraInfo;
}

// The path as seen from the folder; the root has nothing above it.
QString resolvedPath(const QString &folder, const QString &path)
{
    const QString up = QStringLiteral("/..");
    const QString clean = QDir::cleanPath(folder + QLatin1Char('/') + path) + QLatin1Char('/');
    int begin = 0;
    while (clean.midRef(begin).startsWith(up + QLatin1Char('/')))
        begin += up.size();
    return QDir::cleanPath(clean.mid(begin));
}
}

qint32 KWHyperlink::hyperlinkType(const QString &address)
{
    if (endsWithOneOf(address, webEndings))
        return webType;
    const QFileInfo target(address);
    if (target.isDir())
        return folderType;
    return target.fileName().isEmpty() ? otherType : fileType;
}

QString KWHyperlink::getWebPageUrl() const
{
    if (type != webType)
        return address;
    for (const char *scheme : webSchemes) {
        if (address.contains(QLatin1String(scheme)))
            return address;
    }
    return QLatin1String("http://") + address;
}

QString KWHyperlink::addressReal(KWDocument *document, bool relative) const
{
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*:"));
    QString path = relative && !relatAddress.isEmpty() ? relatAddress : address;
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    const bool standsAlone = path.isEmpty() || path.startsWith(QLatin1Char('/')) || path.contains(scheme);
    if (standsAlone || !document || document->filePath().isEmpty())
        return path;
    return resolvedPath(QFileInfo(document->filePath()).path(), path);
}

QString KWHyperlink::linkedPageName() const
{
    return endsWithOneOf(address, documentEndings) ? subAddress : QString();
}

// Nothing in a link tells a page from a task; the document that is opened knows which one it has.
QString KWHyperlink::linkedTaskName() const
{
    return linkedPageName();
}

bool KWHyperlink::operator==(const KWHyperlink &other) const
{
    return ID == other.ID && type == other.type && isDefault == other.isDefault && name == other.name &&
           description == other.description && address == other.address && subAddress == other.subAddress &&
           relatAddress == other.relatAddress && extraInfo == other.extraInfo;
}

KWHyperlinkSheet &KWHyperlinkSheet::operator=(const KWHyperlinkSheet &other)
{
    assign(other);
    return *this;
}

KWHyperlinkSheet::~KWHyperlinkSheet()
{
    clear();
}

KWHyperlink *KWHyperlinkSheet::getAt(int index) const
{
    return m_links.value(index);
}

QString hyperlinkxml::storedText(const QString &text)
{
    return xmlguard::clean(text);
}

void hyperlinkxml::readNumber(const XmlText &text, qint32 &number)
{
    bool isNumber = false;
    const qint32 read = text.toString().toInt(&isNumber);
    if (isNumber)
        number = read;
}

void KWHyperlinkSheet::saveTo(QDomElement &parent, unsigned int) const
{
    DomSink sink(parent);
    hyperlinkxml::write(sink, *this);
}

bool KWHyperlinkSheet::parse(const QDomElement &element, unsigned int)
{
    hyperlinkxml::read(DomSource(element), *this);
    return !element.isNull();
}

void KWHyperlinkSheet::write(QDataStream &stream) const
{
    stream << qint32(m_links.size());
    for (const KWHyperlink *link : m_links)
        stream << *link;
}

bool KWHyperlinkSheet::read(QDataStream &stream)
{
    clear();
    qint32 linkCount = 0;
    stream >> linkCount;
    // The count comes from outside: nothing is reserved by it, and the first bad link ends the reading.
    for (qint32 index = 0; index < linkCount; ++index) {
        KWHyperlink link;
        stream >> link;
        if (stream.status() != QDataStream::Ok)
            return false;
        m_links.append(new KWHyperlink(link));
    }
    return linkCount >= 0 && stream.status() == QDataStream::Ok;
}

void KWHyperlinkSheet::assign(const KWHyperlinkSheet &other)
{
    if (this == &other)
        return;
    clear();
    m_links.reserve(other.m_links.size());
    for (const KWHyperlink *link : other.m_links)
        m_links.append(new KWHyperlink(*link));
}

void KWHyperlinkSheet::assignFrom(QVector<KWHyperlink> &links)
{
    clear();
    m_links.reserve(links.size());
    for (const KWHyperlink &link : qAsConst(links))
        m_links.append(new KWHyperlink(link));
}

void KWHyperlinkSheet::clear()
{
    qDeleteAll(m_links);
    m_links.clear();
}

void KWHyperlinkSheet::deleteHyperlinkSheet()
{
    clear();
}

KWHyperlink *KWHyperlinkSheet::getByID(int id) const
{
    for (KWHyperlink *link : m_links) {
        if (link->ID == id)
            return link;
    }
    return nullptr;
}

KWHyperlink *KWHyperlinkSheet::getByName(const QString &name, bool caseSensitive) const
{
    const Qt::CaseSensitivity sensitivity = caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
    for (KWHyperlink *link : m_links) {
        if (link->name.compare(name, sensitivity) == 0)
            return link;
    }
    return nullptr;
}

bool KWHyperlinkSheet::isNameExist(int id, const QString &name) const
{
    for (const KWHyperlink *link : m_links) {
        if (link->ID != id && link->name == name)
            return true;
    }
    return false;
}

void KWHyperlinkSheet::reNameHyperlink(int id, const QString &name)
{
    KWHyperlink *link = getByID(id);
    if (link && !isNameExist(id, name))
        link->name = name;
}

void KWHyperlinkSheet::deleteHyperlink(int id)
{
    KWHyperlink *link = getByID(id);
    m_links.removeOne(link);
    delete link;
}

void KWHyperlinkSheet::appendHyperlink(KWHyperlink *link)
{
    if (link)
        m_links.append(link);
}

// "H" and the smallest number that makes a new name; the ID after the greatest one, or the smallest free one
// when there is none after it.
KWHyperlink *KWHyperlinkSheet::autoAddHyperlink()
{
    QSet<QString> names;
    QSet<qint32> ids;
    qint32 greatestID = 0;
    for (const KWHyperlink *link : qAsConst(m_links)) {
        names.insert(link->name);
        ids.insert(link->ID);
        greatestID = qMax(greatestID, link->ID);
    }
    qint32 id = greatestID;
    if (greatestID == std::numeric_limits<qint32>::max()) {
        id = 0;
        while (ids.contains(id + 1))
            ++id;
    }
    int number = 1;
    const auto nameOf = [](int n) { return QLatin1Char('H') + QString::number(n); };
    while (names.contains(nameOf(number)))
        ++number;

    auto *link = new KWHyperlink;
    link->ID = id + 1;
    link->name = nameOf(number);
    m_links.append(link);
    return link;
}

QString KWHyperlinkSheet::content(bool addresses) const
{
    QStringList entries;
    entries.reserve(m_links.size());
    for (const KWHyperlink *link : m_links)
        entries.append(addresses || link->name.isEmpty() ? link->address : link->name);
    return entries.join(QLatin1Char(';'));
}
