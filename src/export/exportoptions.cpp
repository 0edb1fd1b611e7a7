#include "export/exportoptions.h"
#include "chart/plan.h"
#include "export/planpage.h"
#include "support/xmlguard.h"
#include <QStringList>
#include <functional>

namespace {

struct Flag
{
    const char *name;
    bool KWExportOptions::*member;
};
constexpr Flag flags[] = {{"FitColumns", &KWExportOptions::fitColumns},
                          {"RepeatColumns", &KWExportOptions::repeatColumns},
                          {"OnlyCritical", &KWExportOptions::onlyCritical},
                          {"Trim", &KWExportOptions::trim},
                          {"Today", &KWExportOptions::today},
                          {"Baseline", &KWExportOptions::baseline},
                          {"Slack", &KWExportOptions::slack},
                          {"Critical", &KWExportOptions::critical},
                          {"Links", &KWExportOptions::links},
                          {"Legend", &KWExportOptions::legend},
                          {"Highlight", &KWExportOptions::highlight}};

struct Number
{
    const char *name;
    int least, most;
    std::function<int(const KWExportOptions &)> get;
    std::function<void(KWExportOptions &, int)> set;
};

template <typename Enum>
Number choice(const char *name, int most, Enum KWExportOptions::*member)
{
    return {name, 0, most, [member](const KWExportOptions &o) { return int(o.*member); },
            [member](KWExportOptions &o, int value) { o.*member = Enum(value); }};
}

Number number(const char *name, int least, int most, int KWExportOptions::*member)
{
    return {name, least, most, [member](const KWExportOptions &o) { return o.*member; },
            [member](KWExportOptions &o, int value) { o.*member = value; }};
}

const std::vector<Number> &numbers()
{
    constexpr int deepest = 1000000, widest = 10000;
    static const std::vector<Number> table{
        choice("Theme", KWExportOptions::Contrast, &KWExportOptions::theme),
        choice("Labels", KWExportOptions::DateLabels, &KWExportOptions::labels),
        choice("Scale", KWExportOptions::FixedScale, &KWExportOptions::scale),
        number("MinorUnit", 0, 6, &KWExportOptions::minorUnit),
        number("UnitWidth", 1, widest, &KWExportOptions::unitWidth),
        number("Depth", KWExportOptions::everyLevel, deepest, &KWExportOptions::depth)};
    return table;
}

struct Words
{
    const char *name;
    QString KWExportOptions::*member;
};
constexpr Words words[] = {{"Family", &KWExportOptions::family},
                           {"Language", &KWExportOptions::language},
                           {"Title", &KWExportOptions::title},
                           {"Head", &KWExportOptions::head},
                           {"Foot", &KWExportOptions::foot}};

constexpr const char *elementName = "ExportOptions";
}

QMap<QString, QString> KWExportOptions::s_shownTexts;

QStringList KWExportOptions::allTexts()
{
    QStringList all = PlanPage::texts();
    chart::Texts ofPicture;
    for (const QString *text : ofPicture.all())
        all.append(*text);
    return all;
}

// The stamp, the moment of today and the branch belong to one run and are not kept.
void KWExportOptions::saveTo(QDomElement &parent) const
{
    QDomElement element = parent.ownerDocument().createElement(QLatin1String(elementName));
    for (const Flag &flag : flags)
        element.setAttribute(QLatin1String(flag.name), this->*flag.member ? 1 : 0);
    for (const Number &each : numbers())
        element.setAttribute(QLatin1String(each.name), each.get(*this));
    for (const Words &each : words)
        element.setAttribute(QLatin1String(each.name), xmlguard::clean(this->*each.member));
    QStringList types;
    for (const int type : columns)
        types.append(QString::number(type));
    element.setAttribute(QStringLiteral("Columns"), types.join(QLatin1Char(';')));
    if (from.isValid())
        element.setAttribute(QStringLiteral("From"), from.toString(Qt::ISODate));
    if (to.isValid())
        element.setAttribute(QStringLiteral("To"), to.toString(Qt::ISODate));
    parent.appendChild(element);
}

void KWExportOptions::parse(const QDomElement &given)
{
    const QDomElement child = given.firstChildElement(QLatin1String(elementName));
    const QDomElement element = child.isNull() ? given : child;
    const auto value = [&element](const char *name) { return element.attribute(QLatin1String(name)); };
    for (const Flag &flag : flags)
        if (!value(flag.name).isEmpty())
            this->*flag.member = value(flag.name) != QLatin1String("0");
    for (const Number &each : numbers()) {
        bool ok = false;
        const int read = value(each.name).toInt(&ok);
        if (ok && read >= each.least && read <= each.most)
            each.set(*this, read);
    }
    for (const Words &each : words)
        if (element.hasAttribute(QLatin1String(each.name)))
            this->*each.member = value(each.name);
    if (element.hasAttribute(QStringLiteral("Columns"))) {
        columns.clear();
        constexpr int most = 1000;
        for (const QString &type : value("Columns").split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            bool ok = false;
            const int read = type.toInt(&ok);
            if (ok && read >= 0 && int(columns.size()) < most)
                columns.push_back(read);
        }
    }
    const QDate first = QDate::fromString(value("From"), Qt::ISODate);
    const QDate last = QDate::fromString(value("To"), Qt::ISODate);
    from = first.isValid() ? first : from;
    to = last.isValid() ? last : to;
}
