#include "console.h"
#include "support/findings.h"
#include "texts.h"
#include "textwidth.h"
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr qint64 progressAfterMsecs = 500;
constexpr int progressBarColumns = 24;
constexpr int findingsShown = 20;
constexpr int narrowest = 20;
constexpr int widest = 10000;

bool localeIsUtf8()
{
    for (const char *name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const QByteArray value = qgetenv(name);
        if (!value.isEmpty())
            return value.toUpper().contains("UTF-8") || value.toUpper().contains("UTF8");
    }
    return false;
}

int terminalWidth(bool outIsTerminal)
{
    bool ok = false;
    const int wanted = qEnvironmentVariableIntValue("COLUMNS", &ok);
    if (ok && wanted >= narrowest && wanted <= widest)
        return wanted;
    winsize size{};
    if (outIsTerminal && ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col >= narrowest)
        return size.ws_col;
    return outIsTerminal ? 80 : Console::widthWithoutTerminal;
}
}

Console::Surroundings Console::Surroundings::find()
{
    Surroundings found;
    found.outIsTerminal = isatty(STDOUT_FILENO);
    found.errorIsTerminal = isatty(STDERR_FILENO);
    found.utf8 = localeIsUtf8();
    found.colorWelcome = qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
    found.width = terminalWidth(found.outIsTerminal);
    return found;
}

Console::Console()
    : Console(Surroundings::find(), nullptr, nullptr)
{
}

Console::Console(const Surroundings &surroundings, QByteArray *out, QByteArray *error)
    : m_surroundings(surroundings)
    , m_outText(out)
    , m_errorText(error)
{
    m_sinceStart.start();
}

// Bytes that go to a file or a pipe are the same in every locale; only a terminal may not know UTF-8.
bool Console::usesAscii() const
{
    return m_options.ascii ||
           (m_surroundings.outIsTerminal && m_options.output.isEmpty() && !m_surroundings.utf8);
}

bool Console::usesColor() const
{
    if (m_options.color != Options::Auto)
        return m_options.color == Options::Always;
    return m_surroundings.outIsTerminal && m_surroundings.colorWelcome && m_options.output.isEmpty();
}

int Console::width() const
{
    return m_options.width > 0 ? m_options.width : m_surroundings.width;
}

void Console::say(const QString &line)
{
    endProgress();
    const bool asciiOnly = m_surroundings.errorIsTerminal && !m_surroundings.utf8;
    const QByteArray bytes = textwidth::oneLine(line, asciiOnly).toUtf8() + '\n';
    if (m_errorText)
        m_errorText->append(bytes);
    else
        std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stderr);
}

void Console::error(const QString &what, const QString &hint)
{
    say(QLatin1String("kwgantt: ") + what);
    if (!hint.isEmpty())
        say(QLatin1String("  ") + t("hint: %1").arg(hint));
}

void Console::warning(const QString &what, const QString &hint)
{
    if (!m_options.quiet)
        error(what, hint);
}

void Console::note(const QString &what)
{
    if (!m_options.quiet)
        error(what);
}

void Console::list(const QString &file, const Findings &findings)
{
    const QList<Finding> &list = findings.list();
    const int shown = m_options.verbose ? list.size() : qMin(list.size(), findingsShown);
    for (int i = 0; i < shown; ++i) {
        const Finding &finding = list.at(i);
        // What holds for several in a row stands below the last of them.
        const bool isShared = i + 1 < shown && list.at(i + 1).hint == finding.hint;
        error(file + QLatin1String(": ") +
                  (finding.place.isEmpty() ? QString() : texts::said(finding.place) + QLatin1String(": ")) +
                  texts::said(finding.what),
              isShared ? QString() : texts::said(finding.hint));
    }
    if (findings.count() > shown)
        error(t("%1: %2 more like these").arg(file, grouped(findings.count() - shown)),
              m_options.verbose ? QString() : t("-v lists more of them"));
}

void Console::progress(const QString &work, qint64 done, qint64 total)
{
    if (m_options.progress == Options::Never ||
        (m_options.progress == Options::Auto && (!m_surroundings.errorIsTerminal || m_options.quiet)) ||
        m_sinceStart.elapsed() < progressAfterMsecs)
        return;
    const int percent = total > 0 ? int(qMin<qint64>(done, total) * 100 / total) : 0;
    if (percent == m_lastPercent && work == m_lastWork)
        return;
    m_lastPercent = percent;
    m_lastWork = work;
    const bool plain = m_options.ascii || !m_surroundings.utf8;
    const int filled = progressBarColumns * percent / 100;
    const QString bar = QString(filled, plain ? QLatin1Char('#') : QChar(0x2588)) +
                        QString(progressBarColumns - filled, plain ? QLatin1Char('.') : QChar(0x2591));
    const QByteArray bytes = QStringLiteral("\r%1 %2% %3\x1B[K").arg(bar).arg(percent, 3).arg(work).toUtf8();
    if (m_errorText)
        m_errorText->append(bytes);
    else
        std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stderr);
    m_progressShown = true;
}

void Console::endProgress()
{
    if (!m_progressShown)
        return;
    m_progressShown = false;
    const QByteArray clear = "\r\x1B[K";
    if (m_errorText)
        m_errorText->append(clear);
    else
        std::fwrite(clear.constData(), 1, std::size_t(clear.size()), stderr);
}

bool Console::write(const QByteArray &data)
{
    return write([&data](const Take &take) { return take(data); });
}

bool Console::write(const Make &make)
{
    endProgress();
    if (!m_options.output.isEmpty())
        return replaceFile(m_options.output, make, m_options.force);
    if (m_outText) {
        return make([this](const QByteArray &data) {
            m_outText->append(data);
            return true;
        });
    }
    errno = 0;
    const bool written = make([](const QByteArray &data) {
                             return std::fwrite(data.constData(), 1, std::size_t(data.size()), stdout) ==
                                    std::size_t(data.size());
                         }) &&
                         std::fflush(stdout) == 0;
    m_hasLostReader = !written && errno == EPIPE && m_endsWithReader;
    if (!written && !m_hasLostReader)
        error(t("standard output: %1").arg(qt_error_string()));
    return written;
}

bool Console::replaceFile(const QString &path, const QByteArray &data, bool overwrite)
{
    return replaceFile(
        path, [&data](const Take &take) { return take(data); }, overwrite);
}

bool Console::replaceFile(const QString &path, const Make &make, bool overwrite)
{
    const auto into = [&make](QIODevice &file) {
        return make([&file](const QByteArray &data) { return file.write(data) == data.size(); });
    };
    const QFileInfo info(path);
    if (info.isDir()) {
        error(t("%1: cannot be written: it is a folder").arg(path), t("give a file name to -o"));
        return false;
    }
    // A device or a pipe is written to, not replaced.
    if (info.exists() && !info.isFile()) {
        QFile device(path);
        if (device.open(QIODevice::WriteOnly) && into(device) && device.flush())
            return true;
        error(t("%1: cannot be written: %2").arg(path, texts::said(device.errorString())));
        return false;
    }
    if (info.exists() && !overwrite) {
        error(t("%1: exists already and stays as it is").arg(path), t("--force replaces it"));
        return false;
    }
    QSaveFile file(path);
    // commit() alone would not notice that the last buffered bytes failed.
    if (file.open(QIODevice::WriteOnly) && into(file) && file.flush() && file.commit())
        return true;
    error(t("%1: cannot be written: %2").arg(path, texts::said(file.errorString())),
          t("the folder must exist and have room; nothing was changed"));
    return false;
}
