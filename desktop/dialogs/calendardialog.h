#pragma once
#include "edits/planedits.h"
#include <QDialog>
#include <array>

class QCalendarWidget;
class QCheckBox;
class QLabel;
class QLineEdit;
class QTableWidget;
class Session;

// The working time of a plan: days of the week, hours, exceptions with hours of their own, and the month as
// it comes out.
class CalendarDialog : public QDialog
{
    Q_OBJECT
public:
    explicit CalendarDialog(Session &session, QWidget *parent = nullptr);

    // One step with all that was changed; false, with the reason in the dialog, when it is refused.
    bool apply();
    void accept() override;
    EditAnswer answer() const { return m_answer; }
    bool hasChanged() const { return m_hasChanged; }

    // For tests, which type into them.
    QLineEdit *hours() const { return m_hours; }
    QCheckBox *day(int weekday) const { return m_days[std::size_t(weekday)]; }
    QTableWidget *exceptions() const { return m_exceptions; }
    void addRow(const DateException &exception);
    QString complaint() const;

private:
    void complain(const QString &text, const QString &hint);
    bool readHours(const QString &text, QVector<DayHours> &hours) const;
    bool readRow(int row, DateException &exception, QString &fault) const;
    void showMonth();
    // What a date is as the dialog stands.
    struct Day
    {
        bool works;
        bool isException;
        QString name;
    };
    QVector<DateException> readExceptions() const; // without those that cannot be read yet
    Day dayOf(const QDate &date, const QVector<DateException> &exceptions) const;
    void tellHours(const QVector<DateException> &exceptions);

    Session &m_session;
    std::array<QCheckBox *, 7> m_days;
    QLineEdit *m_hours;
    QTableWidget *m_exceptions;
    QCalendarWidget *m_month;
    QLabel *m_complaint;
    EditAnswer m_answer;
    bool m_hasChanged = false;
};
