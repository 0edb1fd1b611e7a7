#include "runinglog.h"
#include <QDateTime>
#include <QFile>

namespace {

QString &logPath()
{
    static QString instance;
    return instance;
}
}

void RuningLog::log(const QString &line)
{
    if (logPath().isEmpty())
        return;
    QString text = line;
    // A name from a file may hold line breaks; an event stays one line all the same.
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control)
            c = QLatin1Char(' ');
    }
    QFile file(logPath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return; // there is nowhere left to report to
    file.write(
        (QDateTime::currentDateTimeUtc().toString(Qt::ISODate) + QLatin1Char(' ') + text + QLatin1Char('\n'))
            .toUtf8());
}

void RuningLog::setLogFile(const QString &path)
{
    logPath() = path;
}

QString RuningLog::logFile()
{
    return logPath();
}
