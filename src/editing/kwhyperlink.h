#pragma once
#include "kwgantt_export.h"
#include <QDataStream>
#include <QDomElement>
#include <QList>
#include <QString>
#include <QVector>

class KWDocument;

// One hyperlink of a task: a web page, a file, a folder, or a place in another document.
class KWGANTT_EXPORT KWHyperlink
{
public:
    qint32 ID = 0;   // unique in its sheet
    qint32 type = 1; // 1 other, 2 file, 3 web address, 4 folder
    bool isDefault = false;
    QString name;
    QString description;
    QString address;
    QString subAddress;   // a place inside the target: a page or a task
    QString relatAddress; // the address relative to the document's folder
    QString extraInfo;

    static qint32 hyperlinkType(const QString &address);
    QString getWebPageUrl() const;
    // The address to open. `relative` starts from relatAddress when there is one.
    QString addressReal(KWDocument *document, bool relative) const;
    QString linkedPageName() const;
    QString linkedTaskName() const;
    bool operator==(const KWHyperlink &other) const;
    bool operator!=(const KWHyperlink &other) const { return !(*this == other); }
};

// The hyperlinks of one task, in order. The sheet owns its links.
class KWGANTT_EXPORT KWHyperlinkSheet
{
public:
    KWHyperlinkSheet() = default;
    KWHyperlinkSheet(const KWHyperlinkSheet &other) { assign(other); }
    KWHyperlinkSheet &operator=(const KWHyperlinkSheet &other);
    ~KWHyperlinkSheet();

    int count() const { return m_links.size(); }
    bool isEmpty() const { return m_links.isEmpty(); }
    // Null outside 0..count-1. The sheet keeps the link.
    KWHyperlink *getAt(int index) const;

    void saveTo(QDomElement &parent, unsigned int version) const;
    // Reads a "Hyperlinks" element and appends its links; the caller clears the sheet first.
    bool parse(const QDomElement &element, unsigned int version);
    void write(QDataStream &stream) const;
    // Replaces the links; false, with the links read so far, when the stream ends early.
    bool read(QDataStream &stream);

    void assign(const KWHyperlinkSheet &other);
    void assignFrom(QVector<KWHyperlink> &links);
    void clear();
    void deleteHyperlinkSheet();

    KWHyperlink *getByID(int id) const;
    KWHyperlink *getByName(const QString &name, bool caseSensitive) const;
    bool isNameExist(int id, const QString &name) const;
    void reNameHyperlink(int id, const QString &name);
    void deleteHyperlink(int id);
    void appendHyperlink(KWHyperlink *link); // takes the link over; null is ignored
    KWHyperlink *autoAddHyperlink();         // the sheet keeps the link

    // The entries joined by ";": addresses, or names (the address where a name is empty).
    QString content(bool addresses) const;

private:
    QList<KWHyperlink *> m_links;
};
