#include "support/xmltree.h"
#include "support/longwork.h"
#include "support/said.h"
#include "support/xmlguard.h"
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <vector>

namespace {

bool fail(QString *error, const QString &what)
{
    if (error)
        *error = what;
    return false;
}

bool isSame(const char *a, const char *b)
{
    return std::strcmp(a, b) == 0;
}

// Finds attributes that stand twice in an element. Elements of one kind carry the same attributes in the same
// order, some of them left out now and then, so nearly all are known to be sound from one that was looked at.
class AttributeCheck
{
public:
    bool isSound(pugi::xml_node element)
    {
        Names &known = knownOf(element.name());
        return isAmong(element, known) || isSoundByItself(element, known);
    }

private:
    using Names = std::vector<const char *>;

    Names &knownOf(const char *element)
    {
        constexpr size_t maxKinds =
            16; // documents of ours have fewer, and looking through more would be slow
        for (auto &[name, names] : m_kinds) {
            if (isSame(name, element))
                return names;
        }
        if (m_kinds.size() == maxKinds)
            return m_kinds.back().second;
        return m_kinds.emplace_back(element, Names()).second;
    }

    // Whether the element has some of the names, in their order.
    static bool isAmong(pugi::xml_node element, const Names &names)
    {
        auto at = names.begin();
        for (pugi::xml_attribute one = element.first_attribute(); one; one = one.next_attribute()) {
            const char *const name = one.name();
            while (at != names.end() && !isSame(*at, name))
                ++at;
            if (at == names.end())
                return false;
            ++at;
        }
        return true;
    }

    bool isSoundByItself(pugi::xml_node element, Names &known)
    {
        m_names.clear();
        for (pugi::xml_attribute one = element.first_attribute(); one; one = one.next_attribute())
            m_names.push_back(one.name());
        m_sorted = m_names;
        std::sort(m_sorted.begin(), m_sorted.end(),
                  [](const char *a, const char *b) { return std::strcmp(a, b) < 0; });
        if (std::adjacent_find(m_sorted.begin(), m_sorted.end(), isSame) != m_sorted.end())
            return false;
        // Comparing with more than the elements of documents have would take longer than sorting does.
        constexpr size_t maxKnown = 64;
        if (m_names.size() >= known.size() && m_names.size() <= maxKnown)
            known.swap(m_names);
        return true;
    }

    std::vector<std::pair<const char *, Names>> m_kinds; // element and the most attributes it had
    Names m_names;
    Names m_sorted;
};

// The element after `element` in the order of the text, below `root`; null at the end.
pugi::xml_node nextNode(pugi::xml_node node, pugi::xml_node root)
{
    if (pugi::xml_node child = node.first_child())
        return child;
    while (node != root) {
        if (pugi::xml_node sibling = node.next_sibling())
            return sibling;
        node = node.parent();
    }
    return pugi::xml_node();
}

// Text between the elements belongs to no document of ours; it is kept all the same, to find it outside the
// root, where no XML may have any.
constexpr unsigned int options = pugi::parse_escapes | pugi::parse_wconv_attribute | pugi::parse_eol;

// The element, if there is one below `root` with an attribute twice.
pugi::xml_node unsoundBelow(pugi::xml_node root, AttributeCheck &check)
{
    for (pugi::xml_node node = root; node; node = nextNode(node, root)) {
        if (node.type() == pugi::node_element && !check.isSound(node))
            return node;
    }
    return pugi::xml_node();
}

char *skipBlanks(char *at, const char *end)
{
    while (at != end && (*at == ' ' || *at == '\n' || *at == '\r' || *at == '\t'))
        ++at;
    return at;
}

bool readFile(const QString &path, qint64 maxBytes, QByteArray &bytes, QString *error)
{
    // A pipe would block and a device never ends.
    QFile file(path);
    if (!QFileInfo(path).isFile())
        return fail(error, KW_TEXT("there is no such file"));
    if (!file.open(QIODevice::ReadOnly))
        return fail(error, file.errorString());
    if (file.size() > maxBytes)
        return fail(error, KW_TEXT("too large"));
    bytes = file.readAll();
    return file.error() == QFileDevice::NoError || fail(error, file.errorString());
}
}

bool XmlTree::parse(const QByteArray &bytes, QString *error)
{
    m_bytes = bytes;
    m_document.reset();
    return xmlguard::isSafe(m_bytes, error) && build(error);
}

bool XmlTree::load(const QString &path, qint64 maxBytes, QString *error)
{
    m_document.reset();
    return readFile(path, maxBytes, m_bytes, error) && xmlguard::isSafe(m_bytes, error) && build(error);
}

bool XmlTree::build(QString *error)
{
    const pugi::xml_parse_result result =
        m_document.load_buffer_inplace(m_bytes.data(), size_t(m_bytes.size()), options, pugi::encoding_utf8);
    if (!result) {
        m_document.reset();
        return fail(error, QStringLiteral("byte ") + QString::number(result.offset) + QLatin1String(": ") +
                               QLatin1String(result.description()));
    }
    const pugi::xml_node root = m_document.document_element();
    for (pugi::xml_node node : m_document.children()) {
        if (node != root) {
            m_document.reset();
            return fail(error, KW_TEXT("there is something beside the root element"));
        }
    }
    AttributeCheck check;
    if (const pugi::xml_node unsound = unsoundBelow(root, check)) {
        const QString name = QString::fromUtf8(unsound.name());
        m_document.reset();
        return fail(error, KW_TEXT("an attribute stands twice in the element %1").arg(name));
    }
    return true;
}

bool XmlParts::load(const QString &path, qint64 maxBytes, const char *list)
{
    m_list = xmlguard::ListPlace();
    m_list.name = list;
    if (!readFile(path, maxBytes, m_bytes, nullptr) || !xmlguard::isSafe(m_bytes, m_list) ||
        m_list.lists != 1 || m_list.hasText || m_list.starts.empty())
        return false;
    m_outer.m_bytes = m_bytes.left(m_list.begin) + m_bytes.mid(m_list.end);
    return m_outer.build(nullptr);
}

bool XmlParts::forEach(const Take &take, const std::function<void(const TreeSource &)> &visit)
{
    AttributeCheck check;
    pugi::xml_document part;
    for (size_t i = 0; i < m_list.starts.size(); ++i) {
        if (!LongWork::goesOn(LongWork::Reading, i == 0 ? m_list.begin : m_list.starts[i], m_list.end))
            return false;
        char *at = m_bytes.data() + (i == 0 ? m_list.begin : m_list.starts[i]);
        char *const end = m_bytes.data() + (i + 1 < m_list.starts.size() ? m_list.starts[i + 1] : m_list.end);
        at = skipBlanks(at, end);
        while (const char *const behind = at == end ? nullptr : take(at))
            at = skipBlanks(m_bytes.data() + (behind - m_bytes.constData()), end);
        if (at == end)
            continue;
        if (!part.load_buffer_inplace(at, size_t(end - at), options | pugi::parse_fragment,
                                      pugi::encoding_utf8))
            return false;
        for (pugi::xml_node node : part.children()) {
            if (node.type() != pugi::node_element || unsoundBelow(node, check))
                return false;
            visit(TreeSource(node));
        }
    }
    return true;
}
