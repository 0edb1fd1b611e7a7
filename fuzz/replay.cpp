// Gives every file of a folder to a fuzz target; an empty or missing folder is a failure.
#include "fuzz.h"
#include <QDir>
#include <QFile>

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    const QDir corpus(QFile::decodeName(argv[1]));
    const QStringList names = corpus.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(corpus.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray bytes = file.readAll();
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout); // the last name printed is the one that failed
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()), size_t(bytes.size()));
    }
    return names.isEmpty() ? 1 : 0;
}
