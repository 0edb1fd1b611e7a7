// Opening a package.
#include "hostile/entries.h"
#include "hostile/followups.h"
#include "hostile/smallplan.h"

int loadPackage(const QString &path)
{
    KWDocument document;
    smallplan::fill(document, smallplan::oldName);
    const std::string before = smallplan::textOf(document);
    const bool isLoaded = document.loadFromKWGT(path);
    say("result", isLoaded ? "true" : "false");
    if (isLoaded)
        sayFactsAndOperate(document);
    else
        say("document", smallplan::textOf(document) == before ? "same" : "changed");
    return 0;
}

int loadStructure(const QString &path)
{
    KWDocument document;
    smallplan::fill(document, smallplan::oldName);
    const bool isLoaded = document.loadStructure(path);
    say("result", isLoaded ? "true" : "false");
    if (isLoaded)
        sayFactsAndOperate(document);
    return 0;
}
