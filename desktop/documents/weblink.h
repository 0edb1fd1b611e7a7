#pragma once
#include <QUrl>

class KWHyperlink;

// Addresses that come with a plan. A plan is a foreign file: what it names is opened only where that can do
// no more than show a page or begin a mail.
namespace weblink {

// http, https, ftp and mailto; an empty URL for everything else: programs, files, scripts. "www.example.com"
// is a page, "ann@example.com" a mail.
QUrl openable(const QString &address);
}
