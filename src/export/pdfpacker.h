#pragma once
#include <QByteArray>
#include <QIODevice>
#include <vector>

// Makes the PDF that cairo writes smaller on its way to a device: objects that are no streams (pages, their
// resources, bookmarks, which are a fifth of a long plan) go into compressed object streams, and the table of
// objects with them. Streams pass as they are. Holds one object of the file at a time, and what it has
// packed.
class PdfPacker
{
public:
    // `device` stays the caller's.
    explicit PdfPacker(QIODevice &device);

    // The next bytes of the file; false when the device takes no more or they are not what cairo writes.
    bool write(const char *bytes, int size);
    // Behind the last byte; false when something is missing.
    bool finish();

    // Whether cairo leaves its objects unpacked: it packs them itself from 1.17.6 on.
    static bool isOfUse();

private:
    struct ObjectPlace
    {
        enum Kind : quint8 { Free, InFile, Packed };
        Kind kind = Free;
        quint32 at = 0;    // offset in the file, or number of the object stream
        quint16 index = 0; // in the object stream
    };

    bool takeHeader();
    bool takeObject();
    bool takeStream(int number, int begin);
    void pack(int number, const QByteArray &body);
    void closeGroup();
    bool put(const QByteArray &bytes);
    bool putStream(int number, const QByteArray &dictionary, const QByteArray &content);
    ObjectPlace &place(int number);

    QIODevice &m_device;
    QByteArray m_pending; // not yet understood
    int m_searched = 0;   // how far its end of a stream was looked for
    qint64 m_written = 0;
    bool m_hasHeader = false;
    bool m_isSound = true;
    std::vector<ObjectPlace> m_places; // by number
    QByteArray m_index, m_bodies;      // of the group that is being filled
    int m_grouped = 0;
    struct Group
    {
        int count = 0, first = 0;
        QByteArray content; // compressed
    };
    std::vector<Group> m_groups;
};
