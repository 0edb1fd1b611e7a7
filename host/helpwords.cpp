// Prints every text of the help that a translator gets, one on a line: `tools/texts` puts them into the
// catalogues.
#include "helptext.h"
#include "texts.h"
#include <cstdio>

int main()
{
    for (const QString &topic : englishTexts().help) {
        const helptext::Page page = helptext::parsed(topic);
        std::printf("%s\n", qUtf8Printable(page.meaning));
        for (const helptext::Block &block : page.blocks)
            if (block.kind != helptext::Block::Example && !block.text.isEmpty())
                std::printf("%s\n", qUtf8Printable(block.text));
    }
    return 0;
}
