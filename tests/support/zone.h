#pragma once
#include <QByteArray>
#include <QtGlobal>

// Another time zone for the rest of a scope.
class Zone
{
public:
    explicit Zone(const char *name)
        : m_wasSet(qEnvironmentVariableIsSet("TZ"))
        , m_before(qgetenv("TZ"))
    {
        qputenv("TZ", name);
    }
    ~Zone()
    {
        if (m_wasSet)
            qputenv("TZ", m_before);
        else
            qunsetenv("TZ");
    }
    Zone(const Zone &) = delete;
    Zone &operator=(const Zone &) = delete;

private:
    bool m_wasSet;
    QByteArray m_before;
};
