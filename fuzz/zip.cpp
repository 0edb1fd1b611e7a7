// An archive unpacks to plain files inside its folder or to nothing at all, and what came out can be packed
// again.
#include "fuzz.h"
#include "kwzip.h"
#include "support/kwlimits.h"
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

namespace {

constexpr auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QTemporaryDir scratch;
    const QString archive = scratch.filePath(QStringLiteral("a.zip"));
    const QString folder = scratch.filePath(QStringLiteral("out"));
    QFile file(archive);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<const char *>(data), qint64(size)) < 0)
        return 0;
    file.close();
    QDir().mkdir(folder);

    const bool isUnpacked = KWZip::unZip(archive, folder);
    FUZZ_CHECK(isUnpacked == KWZip::lastError().isEmpty());
    if (!isUnpacked) {
        FUZZ_CHECK(QDir(folder).isEmpty(everything));
        return 0;
    }
    qint64 bytes = 0;
    QDirIterator entries(folder, everything, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        entries.next();
        FUZZ_CHECK(!entries.fileInfo().isSymLink());
        FUZZ_CHECK(entries.fileInfo().isFile() || entries.fileInfo().isDir());
        bytes += entries.fileInfo().isFile() ? entries.fileInfo().size() : 0;
    }
    FUZZ_CHECK(bytes <= kwzip::maxArchiveBytes);
    FUZZ_CHECK(bytes <= kwzip::ratioFreeBytes || bytes <= kwzip::maxRatio * qint64(size));
    if (!QDir(folder).isEmpty(everything))
        FUZZ_CHECK(KWZip::zip(archive, folder));
    return 0;
}
