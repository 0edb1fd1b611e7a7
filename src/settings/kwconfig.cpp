#include "settings/kwconfig.h"
#include "kwfilepathmanager.h"
#include "support/atomicfile.h"
#include "support/xmlguard.h"
#include <QDomDocument>
#include <QFile>
#include <climits>

namespace {

constexpr qint64 maxFileBytes = 1 << 20;
constexpr int maxTextLength = 1024;

// What the program knows of its settings. A text has no range.
struct Setting
{
    const char *name;
    const char *defaultText;
    int least = 0;
    int most = -1;

    bool isNumber() const { return least <= most; }
};

constexpr Setting settings[] = {
    {"UndoLevel", "60", INT_MIN, 10000}, // steps kept; one even when it is less
    {"AutoSaveElapse", "10", 0, 1440},   // minutes between autosaves; 0 = none
    {"RecentFileNum", "10", 0, 100},     // files listed
    {"DateFormat", "yyyy-MM-dd"},        {"TimeFormat", "hh:mm"}, {"CurrencyUnit", ""}, {"Language", "en"},
};

const Setting *settingOf(const QString &name)
{
    for (const Setting &setting : settings) {
        if (name == QLatin1String(setting.name))
            return &setting;
    }
    return nullptr;
}

// The value as the setting keeps it; invalid when it does not fit. Settings the program does not know are
// texts.
QVariant checked(const QString &name, const QVariant &value)
{
    const Setting *setting = settingOf(name);
    if (setting && setting->isNumber()) {
        bool isNumber = false;
        const int number = value.toString().toInt(&isNumber); // a wide number would wrap, were it converted
        return isNumber && number >= setting->least && number <= setting->most ? QVariant(number)
                                                                               : QVariant();
    }
    if (!value.canConvert<QString>() || value.toString().size() > maxTextLength)
        return QVariant();
    return value.toString();
}

QString pathIn(const QString &folder)
{
    const QString fileName = QStringLiteral("Config.xml");
    return folder.isEmpty() ? KWFilePathManager::configPath(fileName) : folder + QLatin1Char('/') + fileName;
}
}

KWConfig::KWConfig() = default;

QVariant KWConfig::value(const QString &name) const
{
    const auto stored = m_values.constFind(name);
    if (stored != m_values.constEnd())
        return *stored;
    const Setting *setting = settingOf(name);
    return setting ? checked(name, QString::fromLatin1(setting->defaultText)) : QVariant();
}

int KWConfig::intValue(const QString &name) const
{
    return value(name).toInt();
}

QString KWConfig::textValue(const QString &name) const
{
    return value(name).toString();
}

void KWConfig::setValue(const QString &name, const QVariant &value)
{
    const QVariant fitting = checked(name, value);
    if (!name.isEmpty() && fitting.isValid())
        m_values.insert(name, fitting);
}

bool KWConfig::contains(const QString &name) const
{
    return m_values.contains(name) || settingOf(name);
}

bool KWConfig::load(const QString &folder)
{
    QFile file(pathIn(folder));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = file.read(maxFileBytes + 1);
    QDomDocument document;
    // Decoded here: an encoding that the text names must not show the parser other characters than were
    // checked.
    if (text.size() > maxFileBytes || !xmlguard::isSafe(text) ||
        !document.setContent(QString::fromUtf8(text)))
        return false;
    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String("Config"))
        return false;

    m_values.clear();
    const QString tag = QStringLiteral("Setting");
    for (QDomElement entry = root.firstChildElement(tag); !entry.isNull();
         entry = entry.nextSiblingElement(tag)) {
        if (entry.hasAttribute(QStringLiteral("V")))
            setValue(entry.attribute(QStringLiteral("Name")), entry.attribute(QStringLiteral("V")));
    }
    return true;
}

bool KWConfig::save(const QString &folder) const
{
    QDomDocument document;
    document.appendChild(document.createProcessingInstruction(
        QStringLiteral("xml"), QStringLiteral("version=\"1.0\" encoding=\"UTF-8\"")));
    QDomElement root = document.createElement(QStringLiteral("Config"));
    document.appendChild(root);
    for (auto entry = m_values.constBegin(); entry != m_values.constEnd(); ++entry) {
        QDomElement element = document.createElement(QStringLiteral("Setting"));
        element.setAttribute(QStringLiteral("Name"), xmlguard::clean(entry.key()));
        element.setAttribute(QStringLiteral("V"), xmlguard::clean(entry.value().toString()));
        root.appendChild(element);
    }
    return atomicfile::replace(pathIn(folder), document.toByteArray());
}
