#pragma once
#include <QtGlobal>

// A public field whose owner hears of every write.
//
// Looking a task up by its identifier must stay right when a host writes the field directly. The field
// therefore reads and writes like the plain number it is, and counts its changes in the revision of the
// document that holds the record; a look-up table made at an older revision is rebuilt. Copying a record
// copies the number, never the attachment.
template <typename T>
class TrackedField
{
public:
    TrackedField() = default;
    // Explicit, so that a field and a plain value can stand on both sides of a "?:".
    explicit TrackedField(T value)
        : m_value(value)
    {
    }
    TrackedField(const TrackedField &other)
        : m_value(other.m_value)
    {
    }
    TrackedField &operator=(const TrackedField &other) { return *this = other.m_value; }
    TrackedField &operator=(T value)
    {
        if (value != m_value) {
            m_value = value;
            if (m_revision)
                ++*m_revision;
        }
        return *this;
    }
    operator T() const { return m_value; }
    T value() const { return m_value; }

    // Null detaches. The counter is not owned and must outlive the attachment.
    void attach(quint64 *revision) { m_revision = revision; }

private:
    T m_value = T();
    quint64 *m_revision = nullptr;
};
