#include "export/htmlpage.h"
#include "export/exportoptions.h"
#include "export/htmlparts.h"
#include "export/planpage.h"
#include "model/kwdocument.h"
#include "styles/chartstyle.h"
#include <QCryptographicHash>
#include <QIODevice>

namespace {

using chartstyle::Role;
using chartstyle::Sheet;
using chartstyle::Theme;

// The custom properties of the page's style sheet: each takes one colour of a style.
enum class Part { Fill, OtherFill, Line, Edge, Text };
struct Property
{
    const char *name;
    Role role;
    Part part;
};
constexpr Property properties[] = {{"paper", Role::Paper, Part::Fill},
                                   {"head-ground", Role::HeadGround, Part::Fill},
                                   {"day-off", Role::DayOff, Part::Fill},
                                   {"active-row", Role::ActiveRow, Part::Fill},
                                   {"head-line", Role::HeadLine, Part::Line},
                                   {"row-line", Role::RowLine, Part::Line},
                                   {"unit-line", Role::UnitLine, Part::Line},
                                   {"major-line", Role::MajorLine, Part::Line},
                                   {"bar", Role::Bar, Part::Line},
                                   {"bar-rest", Role::Bar, Part::Fill},
                                   {"critical-bar", Role::CriticalBar, Part::Line},
                                   {"critical-bar-rest", Role::CriticalBar, Part::OtherFill},
                                   {"critical-edge", Role::CriticalBar, Part::Edge},
                                   {"critical-text", Role::CriticalLink, Part::Line},
                                   {"summary", Role::Summary, Part::Fill},
                                   {"baseline", Role::Baseline, Part::Fill},
                                   {"slack", Role::Slack, Part::Line},
                                   {"link", Role::Link, Part::Line},
                                   {"today", Role::Today, Part::Line},
                                   {"active-halo", Role::ActiveHalo, Part::Line},
                                   {"fold-mark", Role::FoldMark, Part::Fill},
                                   {"head-major", Role::HeadMajor, Part::Text},
                                   {"head-unit", Role::HeadUnit, Part::Text},
                                   {"head-unit-off", Role::HeadUnitOff, Part::Text},
                                   {"table-title", Role::TableTitle, Part::Text},
                                   {"table-text", Role::TableText, Part::Text},
                                   {"table-summary", Role::TableSummary, Part::Text},
                                   {"table-muted", Role::TableMuted, Part::Text},
                                   {"label", Role::Label, Part::Text}};
constexpr QRgb foundColor = 0xffc000;
constexpr double foundShare = 0.35; // of that colour in what stands under a text that was found

QByteArray colorsOf(const Sheet &sheet)
{
    QByteArray css;
    for (const Property &property : properties) {
        const chartstyle::Style &style = sheet.style(property.role);
        const auto color = [&] {
            switch (property.part) {
            case Part::Fill:
                return style.fill.color;
            case Part::OtherFill: // the ground under a hatch, which a page draws as a pattern of its own
                return style.fill.type == KWPaint::Hatch ? style.fill.otherColor : style.fill.color;
            case Part::Line:
                return style.line.color;
            case Part::Edge:
                return style.edge.color;
            case Part::Text:
                return style.text.color;
            }
            return KWColor();
        }();
        css += QByteArray("--") + property.name + ':' + ColorUtil::toHex(color.color()).toLatin1() + ';';
    }
    const QColor paper = sheet.style(Role::Paper).fill.color.color();
    return css +
           "--found:" + ColorUtil::toHex(ColorUtil::blend(QColor(foundColor), paper, foundShare)).toLatin1() +
           ';';
}

// Without what only its authors read: indents, empty lines, comments.
QByteArray compact(const char *text)
{
    QByteArray result;
    for (QByteArray line : QByteArray(text).split('\n')) {
        line = line.trimmed();
        const int comment = line.indexOf(" // ");
        if (comment > 0 && line.indexOf('\'', comment) < 0)
            line = line.left(comment).trimmed();
        if (!line.isEmpty() && !line.startsWith("//") && !(line.startsWith("/*") && line.endsWith("*/")))
            result += line + '\n';
    }
    return result;
}

// Blanks round these signs mean nothing; none of the script's texts has one of them between two blanks.
QByteArray compactScript(const char *text)
{
    QByteArray result = compact(text);
    for (const char *sign : {"=>", "=", "===", "!==", "&&", "||", "?", ">=", "<=", "+="})
        result.replace(QByteArray(" ") + sign + ' ', sign);
    return result.replace(") {", "){");
}

QByteArray compactStyle(const char *text)
{
    QByteArray result = compact(text);
    for (const char *sign : {"{", "}", ":", ";", ","}) {
        const QByteArray alone(sign);
        result.replace(alone + ' ', alone).replace(alone + '\n', alone);
    }
    // A blank before ":" belongs to a selector.
    return result.replace(" {", "{").replace(";}", "}") + '\n';
}
}

htmlpage::Result htmlpage::write(QIODevice &device, KWDocument &document, const KWExportOptions &options,
                                 const QString &title, const QDateTime &now,
                                 const std::function<bool(int done, int total)> &progress)
{
    const PlanPage plan(document, options, now);
    if (plan.rowCount() == 0)
        return Result::NoTask;
    bool isSound = true;
    const auto put = [&](const QByteArray &bytes) {
        isSound = isSound && device.write(bytes) == bytes.size();
    };

    const ThemePalette &palette = document.chosenTheme();
    const QByteArray script = compactScript(htmlparts::script);
    const QByteArray hash = QCryptographicHash::hash(script, QCryptographicHash::Sha256).toBase64();
    const QString language = options.language.isEmpty() ? QStringLiteral("en") : options.language;
    put("<!DOCTYPE html>\n<html lang=\"" + language.toHtmlEscaped().toUtf8() +
        "\">\n<head>\n<meta charset=\"utf-8\">\n<meta name=\"viewport\" content=\"width=device-width\">\n"
        // Nothing but this one script may run, and nothing may be fetched.
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src "
        "'unsafe-inline'; "
        "script-src 'sha256-" +
        hash + "'\">\n<title>" + title.toHtmlEscaped().toUtf8() + "</title>\n<style>\n");
    const auto colors = [&](Theme theme) { return ":root{" + colorsOf(Sheet(theme, palette)) + "}"; };
    put(colors(Theme(options.theme)));
    if (options.theme == KWExportOptions::Light) // the page's own: it follows the system
        put("\n@media (prefers-color-scheme: dark){" + colors(Theme::Dark) + '}');
    put("\n@media print{" + colors(Theme::Print) + "}\n" + compactStyle(htmlparts::style) +
        "</style>\n</head>\n<body>\n" + compact(htmlparts::page));

    const QByteArray head = plan.head();
    put("<script type=\"application/json\" id=\"plan\">\n" + head.left(head.size() - 1) + ",\"rows\":[\n");
    constexpr int rowsAtATime = 500; // between two questions whether to go on
    for (int row = 0; row < plan.rowCount() && isSound; ++row) {
        if (row % rowsAtATime == 0 && progress && !progress(row, plan.rowCount()))
            return Result::Cancelled;
        put(plan.row(row) + (row + 1 < plan.rowCount() ? ",\n" : "\n"));
    }
    put("]}\n</script>\n<script>" + script + "</script>\n</body>\n</html>\n");
    return isSound ? Result::Written : Result::Failed;
}
