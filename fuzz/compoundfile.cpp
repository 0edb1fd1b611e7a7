// A compound file opens or not; every stream of an open one can be read or not, and what is written of it
// opens again with the same content.
#include "exchange/biff/compoundfile.h"
#include "fuzz.h"
#include <QBuffer>

namespace {

using YCompoundFiles::CompoundFile;

// Every storage and stream with its content, damaged ones without. No recursion: storages may be nested deep.
QByteArray listing(const CompoundFile &file, bool *isWhole)
{
    QByteArray all;
    QStringList storages{QStringLiteral("/")};
    while (!storages.isEmpty()) {
        const QString storage = storages.takeLast();
        all += storage.toUtf8() + '\n';
        if (storage.size() > 3000) // a path as long takes its time; its storages are met on the way
            continue;
        const QStringList names = file.List(storage);
        for (const QString &name : names) {
            if (name.endsWith(QLatin1Char('/'))) {
                storages.append(storage + name);
                continue;
            }
            QByteArray content;
            FUZZ_CHECK(file.FindProperty(storage + name));
            const bool isRead = file.ReadFile(storage + name, &content);
            FUZZ_CHECK(!isRead || file.FileSize(storage + name) == content.size());
            *isWhole = isRead && *isWhole;
            all += name.toUtf8() + '=' + content + '\n';
        }
    }
    return all;
}

// Takes out whatever stands at the top.
void removeAll(CompoundFile &file)
{
    const QStringList names = file.List(QStringLiteral("/"));
    for (const QString &name : names) {
        const QString path = QLatin1Char('/') + name;
        const bool isStorage = name.endsWith(QLatin1Char('/'));
        FUZZ_CHECK(file.ChangeDirectory(path) == isStorage);
        FUZZ_CHECK(isStorage ? file.RemoveDirectory(path) : file.RemoveFile(path));
        FUZZ_CHECK(file.PresentWorkingDirectory() == QLatin1String("/"));
    }
    FUZZ_CHECK(file.List(QStringLiteral("/")).isEmpty());
}

// An empty file can be filled, and says no to what makes no sense.
void fill(CompoundFile &file)
{
    const QString storage = QStringLiteral("/a"), stream = QStringLiteral("/a/b");
    FUZZ_CHECK(file.MakeDirectory(storage) && file.ChangeDirectory(storage));
    FUZZ_CHECK(file.MakeFile(QStringLiteral("../a/./b")) && file.WriteFile(stream, QByteArray(5000, 'x')));
    FUZZ_CHECK(file.FileSize(QStringLiteral("b")) == 5000 && file.FileSize(storage) < 0);
    FUZZ_CHECK(!file.MakeFile(stream) && !file.MakeFile(QStringLiteral("/c/b")));
    FUZZ_CHECK(!file.RemoveFile(storage) && !file.RemoveDirectory(stream));
    FUZZ_CHECK(!file.WriteFile(storage, "x") && !file.ChangeDirectory(stream));
    FUZZ_CHECK(file.RemoveDirectory(storage) && file.FileSize(stream) < 0);
}
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    CompoundFile file;
    if (!file.OpenBytes(QByteArray(reinterpret_cast<const char *>(data), int(size)))) {
        FUZZ_CHECK(!file.ErrorText().isEmpty());
        return 0;
    }
    bool isWhole = true;
    const QByteArray before = listing(file, &isWhole);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const bool isWritten = file.WriteTo(buffer);
    // A damaged stream is not written over with nothing.
    if (!isWritten) {
        removeAll(file);
        fill(file);
        return 0;
    }
    CompoundFile again;
    bool isAgainWhole = true;
    FUZZ_CHECK(again.OpenBytes(buffer.data()));
    FUZZ_CHECK(!isWhole || listing(again, &isAgainWhole) == before);
    removeAll(again);
    fill(again);
    return 0;
}
