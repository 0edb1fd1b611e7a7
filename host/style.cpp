#include "style.h"

namespace {

const char *escapeOf(Style::Tone tone)
{
    switch (tone) {
    case Style::Bold:
        return "1";
    case Style::Dim:
        return "2";
    case Style::Critical:
        return "31";
    case Style::DoneTone:
        return "32";
    case Style::ToDoTone:
        return "36";
    case Style::Plain:
        break;
    }
    return "";
}
}

Style::Style(bool plainCharacters, bool withColor)
    : ascii(plainCharacters)
    , color(withColor)
{
    const auto symbol = [this](const char *drawn, const char *plain) {
        return QString::fromUtf8(ascii ? plain : drawn);
    };
    done = symbol("█", "#");
    toDo = symbol("░", "=");
    slack = symbol("┄", "-");
    dayOff = symbol("·", ".");
    milestone = symbol("◆", "*");
    summaryEnd = symbol("▼", "v");
    summary = symbol("▬", "~");
    expanded = symbol("▾", "-");
    line = symbol("│", "|");
    arrow = symbol("→", "->");
    cut = symbol("…", "~");
}

QString Style::toned(const QString &text, Tone tone) const
{
    const QLatin1String escape(escapeOf(tone));
    if (!color || escape.size() == 0 || text.trimmed().isEmpty())
        return text;
    return QLatin1String("\x1B[") + escape + QLatin1Char('m') + text + QLatin1String("\x1B[0m");
}
