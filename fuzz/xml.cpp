// Text that the guard lets through gives the parser no document type declaration and no deep nesting, and
// reading piece by piece ends with every element closed or with a reason.
#include "fuzz.h"
#include "support/xmlguard.h"
#include "support/xmlpull.h"
#include <QDomDocument>
#include <QPair>
#include <QVector>

namespace {

// Without recursion: whether the nesting is bounded is what is asked here.
int depthOf(const QDomDocument &document)
{
    int deepest = 0;
    QVector<QPair<QDomElement, int>> open{{document.documentElement(), 1}};
    while (!open.isEmpty()) {
        const auto [element, depth] = open.takeLast();
        deepest = qMax(deepest, depth);
        for (QDomElement child = element.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement())
            open.append({child, depth + 1});
    }
    return deepest;
}

void pullThrough(const QByteArray &bytes)
{
    XmlPull pull(bytes);
    XmlPull::Token token = pull.next();
    for (; token != XmlPull::Finished && token != XmlPull::Failed; token = pull.next()) {
        FUZZ_CHECK(pull.depth() > 0);
        if (token == XmlPull::Begin)
            FUZZ_CHECK(pull.rawAttribute("a").data() || pull.attribute("a").isEmpty());
        else if (token == XmlPull::Text)
            FUZZ_CHECK(xmlguard::clean(pull.text()) == pull.text());
    }
    FUZZ_CHECK((token == XmlPull::Failed) != pull.error().isEmpty());
    FUZZ_CHECK(token == XmlPull::Failed || pull.depth() == 0);
}
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    QString error;
    const bool isSafe = xmlguard::isSafe(bytes, &error);
    FUZZ_CHECK(isSafe == error.isEmpty());

    pullThrough(XmlPull::toUtf8(bytes));

    const QString text = QString::fromUtf8(bytes);
    const QString clean = xmlguard::clean(text);
    FUZZ_CHECK(xmlguard::clean(clean) == clean);
    QDomDocument document;
    if (isSafe && document.setContent(text)) {
        FUZZ_CHECK(document.doctype().name().isEmpty());
        FUZZ_CHECK(depthOf(document) <= xmlguard::maxDepth);
    }
    return 0;
}
