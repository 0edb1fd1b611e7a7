#include "export/pdfpacker.h"
#include <cairo.h>
#include <limits>

namespace {

constexpr int objectsInGroup = 200;
constexpr int mostObjects = 8000000; // what a cross-reference table may name; far more than any plan has
const QByteArray streamMark = QByteArrayLiteral("\nstream\n");
const QByteArray streamEnd = QByteArrayLiteral("\nendstream\nendobj\n");
const QByteArray objectEnd = QByteArrayLiteral("endobj\n");

// Without the four bytes with which Qt tells the size.
QByteArray deflated(const QByteArray &bytes)
{
    return qCompress(bytes).mid(4);
}

// The number behind `from`, which moves behind it; -1 where none stands.
int numberAt(const QByteArray &bytes, int &from)
{
    int value = 0;
    const int begin = from;
    while (from < bytes.size() && bytes.at(from) >= '0' && bytes.at(from) <= '9') {
        if (value > (std::numeric_limits<int>::max() - 9) / 10)
            return -1;
        value = value * 10 + (bytes.at(from++) - '0');
    }
    return from == begin ? -1 : value;
}

// The number before " 0 obj\n", with `from` behind it all; -1 where that does not stand.
int objectAt(const QByteArray &bytes, int &from)
{
    const QByteArray mark = QByteArrayLiteral(" 0 obj\n");
    const int number = numberAt(bytes, from);
    if (number < 0 || bytes.mid(from, mark.size()) != mark)
        return -1;
    from += mark.size();
    return number;
}

void addBigEndian(QByteArray &bytes, quint32 value, int size)
{
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes.append(char(value >> shift & 0xff));
}
}

PdfPacker::PdfPacker(QIODevice &device)
    : m_device(device)
{
}

bool PdfPacker::isOfUse()
{
    return cairo_version() < CAIRO_VERSION_ENCODE(1, 17, 6);
}

bool PdfPacker::put(const QByteArray &bytes)
{
    m_written += bytes.size();
    return m_isSound = m_isSound && m_device.write(bytes) == bytes.size();
}

PdfPacker::ObjectPlace &PdfPacker::place(int number)
{
    if (std::size_t(number) >= m_places.size())
        m_places.resize(std::size_t(number) + 1);
    return m_places[std::size_t(number)];
}

bool PdfPacker::write(const char *bytes, int size)
{
    m_pending.append(bytes, size);
    if (!m_hasHeader && !takeHeader())
        return m_isSound;
    while (m_isSound && takeObject()) {
    }
    return m_isSound;
}

// Two lines: the version, and signs that tell a binary file.
bool PdfPacker::takeHeader()
{
    const int first = m_pending.indexOf('\n');
    const int second = first < 0 ? -1 : m_pending.indexOf('\n', first + 1);
    if (second < 0)
        return false;
    m_isSound = m_pending.startsWith("%PDF-1.5\n");
    put(m_pending.left(second + 1));
    m_pending.remove(0, second + 1);
    return m_hasHeader = true;
}

// Takes one whole object off the pending bytes; false when it is not yet there, or the table of objects is.
bool PdfPacker::takeObject()
{
    if (m_pending.startsWith("xref\n"))
        return false;
    int begin = 0;
    const int end = m_pending.indexOf(objectEnd);
    const int stream = m_pending.indexOf(streamMark);
    if (end < 0 && stream < 0)
        return false;
    const int number = objectAt(m_pending, begin);
    if (number < 0 || number > mostObjects)
        return m_isSound = false;
    if (stream >= 0 && (end < 0 || stream < end))
        return takeStream(number, begin);
    pack(number, m_pending.mid(begin, end - begin));
    m_pending.remove(0, end + objectEnd.size());
    return true;
}

// A stream whose length stands in the object behind it, since cairo learns it last. Any bytes may stand in
// the stream: it ends where the length agrees.
bool PdfPacker::takeStream(int number, int begin)
{
    const int dictionaryEnd = m_pending.indexOf(streamMark);
    const int content = dictionaryEnd + streamMark.size();
    const QByteArray mark = QByteArrayLiteral("/Length ");
    const int lengthAt = m_pending.indexOf(mark, begin);
    int from = lengthAt + mark.size();
    const int reference = lengthAt < 0 || lengthAt > dictionaryEnd ? -1 : numberAt(m_pending, from);
    if (reference < 0 || m_pending.mid(from, 4) != " 0 R")
        return m_isSound = false;
    const int behindLength = from + 4;
    const QByteArray tail = streamEnd + QByteArray::number(reference) + " 0 obj\n   ";
    for (int at = std::max(content, m_searched);; ++at) {
        at = m_pending.indexOf(tail, at);
        if (at < 0) {
            m_searched = std::max(content, m_pending.size() - tail.size());
            return false;
        }
        int digits = at + tail.size();
        const int length = numberAt(m_pending, digits);
        const QByteArray rest = m_pending.mid(digits, 1 + objectEnd.size());
        if (rest.size() < 1 + objectEnd.size()) {
            m_searched = at;
            return false;
        }
        if (length != at - content || rest != '\n' + objectEnd)
            continue;
        place(number) = {ObjectPlace::InFile, quint32(m_written), 0};
        put(m_pending.left(lengthAt + mark.size()) + QByteArray::number(length) +
            m_pending.mid(behindLength, at - behindLength) + streamEnd);
        m_pending.remove(0, digits + rest.size());
        m_searched = 0;
        return m_isSound;
    }
}

void PdfPacker::pack(int number, const QByteArray &body)
{
    place(number) = {ObjectPlace::Packed, quint32(m_groups.size()), quint16(m_grouped)};
    m_index += QByteArray::number(number) + ' ' + QByteArray::number(m_bodies.size()) + ' ';
    m_bodies += body;
    if (++m_grouped == objectsInGroup)
        closeGroup();
}

void PdfPacker::closeGroup()
{
    if (m_grouped == 0)
        return;
    m_groups.push_back({m_grouped, m_index.size(), deflated(m_index + m_bodies)});
    m_index.clear();
    m_bodies.clear();
    m_grouped = 0;
}

bool PdfPacker::putStream(int number, const QByteArray &dictionary, const QByteArray &content)
{
    place(number) = {ObjectPlace::InFile, quint32(m_written), 0};
    return put(QByteArray::number(number) + " 0 obj\n<< " + dictionary + " /Filter /FlateDecode /Length " +
               QByteArray::number(content.size()) + " >>" + streamMark + content + streamEnd);
}

bool PdfPacker::finish()
{
    const int trailer = m_pending.indexOf("trailer\n<<");
    const int trailerEnd = m_pending.indexOf(">>", trailer);
    if (!m_isSound || !m_hasHeader || !m_pending.startsWith("xref\n") || trailer < 0 || trailerEnd < 0)
        return false;
    const auto entry = [&](const char *name) {
        const int at = m_pending.indexOf(name, trailer);
        const int end = at < 0 ? -1 : m_pending.indexOf(" R", at);
        return end < 0 || end > trailerEnd ? QByteArray() : ' ' + m_pending.mid(at, end + 2 - at);
    };
    const QByteArray ends = entry("/Root ") + entry("/Info ");
    closeGroup();
    const int firstGroup = int(m_places.size());
    for (std::size_t i = 0; i < m_groups.size(); ++i) {
        const Group &group = m_groups[i];
        putStream(firstGroup + int(i),
                  "/Type /ObjStm /N " + QByteArray::number(group.count) + " /First " +
                      QByteArray::number(group.first),
                  group.content);
    }
    const qint64 tableAt = m_written;
    const int table = int(m_places.size());
    place(table) = {ObjectPlace::InFile, quint32(tableAt), 0};
    QByteArray rows;
    for (std::size_t number = 0; number < m_places.size(); ++number) {
        const ObjectPlace &at = m_places[number];
        const bool isFree = at.kind == ObjectPlace::Free;
        rows.append(char(at.kind == ObjectPlace::InFile ? 1 : isFree ? 0 : 2));
        addBigEndian(rows, at.kind == ObjectPlace::Packed ? quint32(firstGroup) + at.at : at.at, 4);
        addBigEndian(rows, isFree && number == 0 ? 0xffff : at.index, 2);
    }
    return tableAt <= std::numeric_limits<quint32>::max() &&
           putStream(table, "/Type /XRef /Size " + QByteArray::number(table + 1) + " /W [1 4 2]" + ends,
                     deflated(rows)) &&
           put("startxref\n" + QByteArray::number(tableAt) + "\n%%EOF\n");
}
