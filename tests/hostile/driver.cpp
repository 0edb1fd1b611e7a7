// Opens a file that may hold anything, and does to the document what a user would do next.
//
//   kwhostile ENTRY FILE          makes the call ENTRY on FILE; prints "key=value" lines, ends with 0
//   kwhostile [KIND] make FILE    writes the old version of a small plan; KIND is kwpx when left out
//   kwhostile [KIND] save FILE    loads, changes and saves it; prints result= and modified=
//   kwhostile [KIND] check FILE   prints "old", "new" or "neither"
//   kwhostile entries             prints the entries it knows
//
// Two words that name an entry are joined by a full stop, so "xls save" is the entry xls.save.
#include "hostile/entries.h"
#include "hostile/smallplan.h"
#include <QDir>
#include <QGuiApplication>
#include <QStandardPaths>
#include <cstdio>
#include <string>

namespace {

struct Entry
{
    const char *name;
    int (*run)(const QString &path);
};

// A line each, sorted; the functions are declared in entries.h.
const Entry entries[] = {
    {"autosave.check", checkPackage},
    {"autosave.make", makePackage},
    {"autosave.save", saveBackup},
    {"clip.paste", pasteClipboard},
    {"kwpx.check", checkPackage},
    {"kwpx.load", loadPackage},
    {"kwpx.make", makePackage},
    {"kwpx.save", savePackage},
    {"kwpx.structure", loadStructure},
    {"xls.check", checkXls},
    {"xls.import", importXls},
    {"xls.make", makeXls},
    {"xls.save", saveXls},
    {"xls.titles", readXlsTitles},
    {"xlsx.check", checkXlsx},
    {"xlsx.import", importXlsx},
    {"xlsx.make", makeXlsx},
    {"xlsx.save", saveXlsx},
    {"xlsx.titles", readXlsxTitles},
};

// Without a folder for it in the environment Qt makes one among the temporary files and leaves it there.
struct RuntimeFolder
{
    const bool isQts = !qEnvironmentVariableIsSet("XDG_RUNTIME_DIR");
    ~RuntimeFolder()
    {
        if (isQts)
            QDir().rmdir(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    }
};

std::string entryName(int words, char **word)
{
    if (words == 2)
        return word[0] + std::string(".") + word[1];
    const std::string name = word[0];
    return name.find('.') == std::string::npos ? "kwpx." + name : name;
}
}

int main(int argc, char **argv)
{
    const RuntimeFolder runtimeFolder;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Never deleted: the offscreen platform loses its screen when it is torn down, which counts as a leak.
    new QGuiApplication(argc, argv);
    if (argc == 2 && std::string(argv[1]) == "entries") {
        for (const Entry &entry : entries)
            std::printf("%s\n", entry.name);
        return 0;
    }
    if (argc != 3 && argc != 4) {
        std::fprintf(stderr, "usage: kwhostile ENTRY FILE\n");
        return 2;
    }
    const std::string name = entryName(argc - 2, argv + 1);
    for (const Entry &entry : entries) {
        if (name == entry.name) {
            smallplan::fillTitles();
            return entry.run(QString::fromLocal8Bit(argv[argc - 1]));
        }
    }
    std::fprintf(stderr, "kwhostile: no such entry: %s\n", name.c_str());
    return 2;
}
