#include "svgpath.h"
#include "kwpath.h"
#include <QTransform>
#include <QtMath>
#include <cmath>
#include <cstring>

namespace {

// Reads numbers, flags and letters; remembers failure.
class Scanner
{
public:
    explicit Scanner(const QByteArray &text)
        : m_at(text.constData())
        , m_end(m_at + text.size())
    {
    }

    bool ok() const { return m_isSound; }
    bool atEnd()
    {
        skipBlanks();
        return m_at == m_end;
    }
    // The command letter here; 0 when there is none.
    char command()
    {
        skipBlanks();
        if (m_at == m_end || !std::strchr("MmLlHhVvCcSsQqTtAaZz", *m_at))
            return 0;
        return *m_at++;
    }
    // Whether another set of numbers follows without a letter.
    bool isNumberNext()
    {
        skipSeparator();
        return m_at != m_end && (isDigit(*m_at) || *m_at == '.' || *m_at == '-' || *m_at == '+');
    }
    double number()
    {
        skipSeparator();
        const char *const from = m_at;
        if (m_at != m_end && (*m_at == '-' || *m_at == '+'))
            ++m_at;
        int digits = skipDigits();
        if (m_at != m_end && *m_at == '.') {
            ++m_at;
            digits += skipDigits();
        }
        if (digits == 0)
            return fail();
        if (m_at != m_end && (*m_at == 'e' || *m_at == 'E')) {
            const char *const exponent = m_at++;
            if (m_at != m_end && (*m_at == '-' || *m_at == '+'))
                ++m_at;
            if (skipDigits() == 0)
                m_at = exponent;
        }
        bool isNumber = false;
        const double value = QByteArray(from, int(m_at - from)).toDouble(&isNumber);
        return isNumber && std::isfinite(value) ? value : fail();
    }
    // One digit, which need not be separated from what follows.
    bool flag()
    {
        skipSeparator();
        if (m_at == m_end || (*m_at != '0' && *m_at != '1'))
            return fail() != 0;
        return *m_at++ == '1';
    }

private:
    static bool isDigit(char c) { return c >= '0' && c <= '9'; }
    int skipDigits()
    {
        const char *const from = m_at;
        while (m_at != m_end && isDigit(*m_at))
            ++m_at;
        return int(m_at - from);
    }
    void skipBlanks()
    {
        while (m_at != m_end &&
               (*m_at == ' ' || *m_at == '\t' || *m_at == '\n' || *m_at == '\r' || *m_at == '\f'))
            ++m_at;
    }
    void skipSeparator()
    {
        skipBlanks();
        if (m_at != m_end && *m_at == ',') {
            ++m_at;
            skipBlanks();
        }
    }
    double fail()
    {
        m_isSound = false;
        m_at = m_end;
        return 0;
    }

    const char *m_at;
    const char *m_end;
    bool m_isSound = true;
};

double angleOf(const QPointF &vector)
{
    return std::atan2(vector.y(), vector.x());
}

// A part of an ellipse from the path's current point, as curves of at most a quarter turn each.
void addArc(KWPath &path, double rx, double ry, double degrees, bool isLarge, bool isClockwise,
            const QPointF &end)
{
    const QPointF start = path.currentPoint();
    rx = std::fabs(rx);
    ry = std::fabs(ry);
    if (start == end)
        return;
    if (rx == 0 || ry == 0) {
        path.lineTo(end);
        return;
    }
    // In the coordinates in which the ellipse is the unit circle the middle is easily found.
    const QTransform toPlane = QTransform().rotate(degrees).scale(rx, ry);
    bool isInvertible = false;
    const QTransform toUnit = toPlane.inverted(&isInvertible);
    const QPointF from = toUnit.map(start), to = toUnit.map(end);
    const QPointF half = (to - from) / 2;
    const double halfSquare = QPointF::dotProduct(half, half);
    if (!isInvertible || !(halfSquare > 0)) {
        path.lineTo(end);
        return;
    }
    // Radii that are too short grow until the ellipse just reaches both ends.
    const double radius = std::max(1.0, std::sqrt(halfSquare));
    double height = std::sqrt(std::max(0.0, radius * radius / halfSquare - 1));
    if (isLarge == isClockwise)
        height = -height;
    const QPointF middle = (from + to) / 2 + QPointF(-half.y(), half.x()) * height;
    const double first = angleOf(from - middle);
    double sweep = angleOf(to - middle) - first;
    if (isClockwise && sweep < 0)
        sweep += 2 * M_PI;
    if (!isClockwise && sweep > 0)
        sweep -= 2 * M_PI;
    const int parts = std::max(1, int(std::ceil(std::fabs(sweep) / M_PI_2 - 1e-9)));
    const double step = sweep / parts;
    const double control = 4.0 / 3 * std::tan(step / 4) * radius;
    for (int i = 0; i < parts; ++i) {
        const double a = first + i * step, b = a + step;
        const QPointF fromHere = middle + QPointF(std::cos(a), std::sin(a)) * radius;
        const QPointF toHere = middle + QPointF(std::cos(b), std::sin(b)) * radius;
        path.curveTo(toPlane.map(fromHere + QPointF(-std::sin(a), std::cos(a)) * control),
                     toPlane.map(toHere - QPointF(-std::sin(b), std::cos(b)) * control),
                     i + 1 == parts ? end : toPlane.map(toHere));
    }
}

// What one command letter means for the sets of numbers behind it.
class Reader
{
public:
    Reader(Scanner &scanner, KWPath &path)
        : m_scanner(scanner)
        , m_path(path)
    {
    }

    void apply(char command)
    {
        const QPointF from = m_path.currentPoint();
        const bool isRelative = command >= 'a';
        const QPointF origin = isRelative ? from : QPointF();
        const auto point = [&] {
            const double x = m_scanner.number();
            const double y = m_scanner.number();
            return origin + QPointF(x, y);
        };
        const char kind = isRelative ? char(command - 'a' + 'A') : command;
        QPointF cubic = from, quadratic = from; // where a smooth curve's control would mirror to
        switch (kind) {
        case 'M': {
            const QPointF to = point();
            keep([&] { m_path.moveTo(to); });
            break;
        }
        case 'L': {
            const QPointF to = point();
            keep([&] { m_path.lineTo(to); });
            break;
        }
        case 'H': {
            const double x = m_scanner.number();
            keep([&] { m_path.lineTo({origin.x() + x, from.y()}); });
            break;
        }
        case 'V': {
            const double y = m_scanner.number();
            keep([&] { m_path.lineTo({from.x(), origin.y() + y}); });
            break;
        }
        case 'C':
        case 'S': {
            const QPointF first = kind == 'C' ? point() : from * 2 - m_cubicControl;
            const QPointF second = point();
            const QPointF to = point();
            keep([&] { m_path.curveTo(kind == 'S' && !m_wasCubic ? from : first, second, to); });
            cubic = second;
            break;
        }
        case 'Q':
        case 'T': {
            const QPointF control = kind == 'Q'      ? point()
                                    : m_wasQuadratic ? from * 2 - m_quadraticControl
                                                     : from;
            const QPointF to = point();
            keep([&] { m_path.quadTo(control, to); });
            quadratic = control;
            break;
        }
        case 'A': {
            const double rx = m_scanner.number();
            const double ry = m_scanner.number();
            const double degrees = m_scanner.number();
            const bool isLarge = m_scanner.flag();
            const bool isClockwise = m_scanner.flag();
            const QPointF to = point();
            keep([&] { addArc(m_path, rx, ry, degrees, isLarge, isClockwise, to); });
            break;
        }
        case 'Z':
            m_path.close();
            break;
        }
        m_wasCubic = kind == 'C' || kind == 'S';
        m_wasQuadratic = kind == 'Q' || kind == 'T';
        m_cubicControl = cubic;
        m_quadraticControl = quadratic;
    }

private:
    template <typename Draw>
    void keep(Draw &&draw)
    {
        if (m_scanner.ok())
            draw();
    }

    Scanner &m_scanner;
    KWPath &m_path;
    bool m_wasCubic = false;
    bool m_wasQuadratic = false;
    QPointF m_cubicControl;
    QPointF m_quadraticControl;
};
}

QString svgpath::number(double value, int decimals)
{
    QString text = QString::number(value, 'f', qBound(0, decimals, 6));
    if (text.contains(QLatin1Char('.'))) {
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
    }
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

bool svgpath::read(const QString &data, KWPath &path)
{
    const QByteArray text = data.toLatin1();
    Scanner scanner(text);
    Reader reader(scanner, path);
    bool isFirst = true;
    while (!scanner.atEnd()) {
        char command = scanner.command();
        if (command == 0 || (isFirst && command != 'M' && command != 'm'))
            return false;
        isFirst = false;
        reader.apply(command);
        while (scanner.ok() && command != 'Z' && command != 'z' && scanner.isNumberNext()) {
            // More points behind a move are lines.
            if (command == 'M')
                command = 'L';
            else if (command == 'm')
                command = 'l';
            reader.apply(command);
        }
        if (!scanner.ok())
            return false;
    }
    return true;
}
