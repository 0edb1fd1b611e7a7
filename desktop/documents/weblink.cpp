#include "documents/weblink.h"
#include <QRegularExpression>
#include <QStringList>

namespace weblink {

QUrl openable(const QString &address)
{
    static const QStringList safe{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("ftp"),
                                  QStringLiteral("mailto")};
    static const QRegularExpression mail(QStringLiteral("^[^\\s@:/?#]+@[^\\s@:/?#]+\\.[^\\s@:/?#]+$"));
    QString text = address.trimmed();
    if (text.startsWith(QLatin1String("www."), Qt::CaseInsensitive))
        text.prepend(QLatin1String("https://"));
    else if (mail.match(text).hasMatch())
        text.prepend(QLatin1String("mailto:"));
    const QUrl url(text, QUrl::StrictMode);
    const bool isMail = url.scheme() == QLatin1String("mailto");
    if (!url.isValid() || !safe.contains(url.scheme()) || (isMail ? url.path() : url.host()).isEmpty())
        return QUrl();
    return url;
}
}
