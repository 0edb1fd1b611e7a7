#pragma once
#include "support/xmlguard.h"
#include "support/xmlsource.h"
#include <QByteArray>
#include <QString>
#include <functional>
#include <pugixml.hpp>

// A whole XML file as a tree, in a tenth of the time and memory of a DOM, for reading only.
class XmlTree
{
public:
    XmlTree() = default;
    XmlTree(const XmlTree &) = delete;
    XmlTree &operator=(const XmlTree &) = delete;

    // Refuses what xmlguard refuses, text that is no XML, more than one root, and an attribute that stands
    // twice in an element. Never fetches or expands anything.
    bool parse(const QByteArray &bytes, QString *error = nullptr);
    // A plain file of at most `maxBytes`.
    bool load(const QString &path, qint64 maxBytes, QString *error = nullptr);
    TreeSource root() const { return TreeSource(m_document.document_element()); }

private:
    friend class XmlParts;
    bool build(QString *error); // of the bytes, after the guard has seen them

    QByteArray m_bytes; // the tree points into them
    pugi::xml_document m_document;
};

// The same file in parts: a tree without what stands in one long list below the root, and the elements of
// that list, some at a time. It takes a third of the memory, and what is read stays in the
// processor's cache.
class XmlParts
{
public:
    // False for what XmlTree refuses, and where there is no such list or more than one: XmlTree tells more.
    bool load(const QString &path, qint64 maxBytes, const char *list);
    TreeSource root() const { return m_outer.root(); }
    // Each element of the list, once; it is gone when `visit` returns. `take` is asked first, with the text
    // from where the element stands: it takes it and returns where it ends, or returns null and the element
    // is visited. False when they are no sound XML, or there is something else between them: what was visited
    // or taken is not to be used.
    using Take = std::function<const char *(const char *)>;
    bool forEach(const Take &take, const std::function<void(const TreeSource &)> &visit);

private:
    QByteArray m_bytes;
    xmlguard::ListPlace m_list;
    XmlTree m_outer;
};
