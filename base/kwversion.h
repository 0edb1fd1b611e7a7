#pragma once
#include "kwbase_export.h"
#include <QString>

// A version text "major.minor" (further numbers after a point are left aside), and the language of the user
// interface.
class KWBASE_EXPORT KWVersion
{
public:
    KWVersion() = default;                   // -1.-1: no version
    explicit KWVersion(const QString &text); // text that is no version gives -1.-1
    int major() const { return m_major; }
    int minor() const { return m_minor; }
    QString toString() const;

    static QString langBrev(); // "en" by default
    static void setLangBrev(const QString &language);

private:
    int m_major = -1;
    int m_minor = -1;
};
