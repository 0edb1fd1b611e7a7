#include "engine/record/rowfont.h"
#include "engine/record/taskrecord.h"
#include <QCoreApplication>
#include <optional>

namespace rowfont {
namespace {

// The row font in both weights. Tasks share these two, a font of its own for each of 100,000 tasks costs
// memory and a font engine each. Made again when the application's font has changed.
struct RowFonts
{
    QFont applicationFont;
    QFont plain;
    QFont bold;

    explicit RowFonts(const QFont &base)
        : applicationFont(base)
        , plain(base)
    {
        plain.setPointSize(9);
        plain.setItalic(false);
        plain.setUnderline(false);
        plain.setStrikeOut(false);
        plain.setWeight(QFont::Normal);
        bold = plain;
        bold.setWeight(QFont::Bold);
    }
};

std::optional<RowFonts> rowFonts;

// Fonts must not outlive the application object.
void dropRowFonts()
{
    rowFonts.reset();
}
}

void set(TaskRecord &task)
{
    const QFont applicationFont;
    if (!rowFonts || !(rowFonts->applicationFont == applicationFont)) {
        if (!rowFonts)
            qAddPostRoutine(dropRowFonts);
        rowFonts.emplace(applicationFont);
    }
    task.font = task.isParent() ? rowFonts->bold : rowFonts->plain;
}
}
