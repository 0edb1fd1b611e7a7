#include "dialogs/calendardialog.h"
#include "datetext.h"
#include "dialogs/fitting.h"
#include "documents/session.h"
#include "look.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwcalendar.h"
#include "texts.h"
#include "writtencalendar.h"
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTextCharFormat>

namespace {

enum Column { From, To, Works, Hours, Name, columnCount };

QString hoursText(const QVector<DayHours> &hours)
{
    QStringList parts;
    for (const DayHours &interval : hours)
        parts.append(datetext::timeText(int(interval.start)) + QLatin1Char('-') +
                     datetext::timeText(int(interval.finish)));
    return parts.join(QLatin1String(", "));
}

QVector<DayHours> hoursOf(const QList<KWDayTime *> &intervals)
{
    QVector<DayHours> hours;
    for (const KWDayTime *interval : intervals)
        hours.append({interval->start, interval->finish});
    return hours;
}

QVector<DateException> exceptionsOf(const KWDocument &document)
{
    QVector<DateException> exceptions;
    for (const KWCalendar *calendar : document.calendars) {
        if (calendar->isException)
            exceptions.append({calendar->name, calendar->startDate, calendar->finishDate, calendar->isWork,
                               hoursOf(calendar->dayTimes)});
    }
    return exceptions;
}

bool isSame(const QVector<DayHours> &a, const QVector<DayHours> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const DayHours &x, const DayHours &y) {
        return x.start == y.start && x.finish == y.finish;
    });
}

bool isSame(const DateException &a, const DateException &b)
{
    return a.name == b.name && a.from == b.from && a.to == b.to && a.works == b.works &&
           isSame(a.hours, b.hours);
}
}

CalendarDialog::CalendarDialog(Session &session, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_hours(new QLineEdit)
    , m_exceptions(new QTableWidget(0, columnCount))
    , m_month(new QCalendarWidget)
    , m_complaint(new QLabel)
{
    setWindowTitle(tr("Working time"));
    const KWDocument &document = session.document();
    const QLocale language(texts::chosen());
    auto *week = new QHBoxLayout;
    for (int day = 0; day < 7; ++day) {
        m_days[std::size_t(day)] = new QCheckBox(language.standaloneDayName(day + 1, QLocale::ShortFormat));
        m_days[std::size_t(day)]->setChecked(document.WorkDay[day]);
        week->addWidget(m_days[std::size_t(day)]);
        connect(m_days[std::size_t(day)], &QCheckBox::toggled, this, &CalendarDialog::showMonth);
    }
    week->addStretch(1);
    m_hours->setText(hoursText(hoursOf(document.workTimes)));
    m_hours->setPlaceholderText(QStringLiteral("08:00-12:00, 13:00-17:00"));
    connect(m_hours, &QLineEdit::editingFinished, this, &CalendarDialog::showMonth);
    m_hours->setAccessibleName(tr("Hours of a working day"));

    m_exceptions->setHorizontalHeaderLabels({tr("From"), tr("To"), tr("What"), tr("Hours"), tr("Name")});
    m_exceptions->verticalHeader()->hide();
    m_exceptions->horizontalHeader()->setStretchLastSection(true);
    m_exceptions->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_exceptions->setAccessibleName(tr("Exceptions"));
    for (const auto &[column, pixels] : {std::make_pair(From, 92), {To, 92}, {Works, 84}, {Hours, 150}})
        m_exceptions->setColumnWidth(column, pixels);
    for (const DateException &exception : exceptionsOf(document))
        addRow(exception);
    connect(m_exceptions, &QTableWidget::cellChanged, this, &CalendarDialog::showMonth);
    auto *add = new QPushButton(tr("&Add"));
    auto *remove = new QPushButton(tr("&Remove"));
    connect(add, &QPushButton::clicked, this, [this] {
        const QDate date = m_month->selectedDate();
        const bool isFree = !dayOf(date, readExceptions()).works;
        addRow({isFree ? tr("Working day") : tr("Holiday"), date, date, isFree, {}});
        m_exceptions->selectRow(m_exceptions->rowCount() - 1);
    });
    connect(remove, &QPushButton::clicked, this, [this] {
        m_exceptions->removeRow(m_exceptions->currentRow());
        showMonth();
    });
    auto *buttonsOfTable = new QVBoxLayout;
    buttonsOfTable->addWidget(add);
    buttonsOfTable->addWidget(remove);
    buttonsOfTable->addStretch(1);
    auto *tableBox = new QHBoxLayout;
    tableBox->addWidget(m_exceptions, 1);
    tableBox->addLayout(buttonsOfTable);

    m_month->setLocale(language);
    m_month->setFirstDayOfWeek(Qt::Monday);
    m_month->setVerticalHeaderFormat(QCalendarWidget::ISOWeekNumbers);
    m_month->setAccessibleName(tr("The month as it comes out"));
    const quint32 start = document.getMinStartSecs();
    if (start != 0)
        m_month->setSelectedDate(KWTaskInfo::showDateTime(&session.document(), start, true).date());
    connect(m_month, &QCalendarWidget::currentPageChanged, this, &CalendarDialog::showMonth);

    look::complains(*m_complaint);
    m_complaint->hide();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *form = new QFormLayout;
    form->addRow(tr("Working days"), week);
    form->addRow(tr("Hours"), m_hours);
    auto *left = new QVBoxLayout;
    left->addLayout(form);
    left->addWidget(new QLabel(tr("Exceptions; the first one that names a date decides:")));
    left->addLayout(tableBox, 1);
    auto *inside = new QWidget;
    auto *columns = new QHBoxLayout(inside);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addLayout(left, 3);
    columns->addWidget(m_month, 2);
    auto *all = new QVBoxLayout(this);
    all->addWidget(fitting::scrolled(inside), 1);
    all->addWidget(m_complaint);
    all->addWidget(buttons);
    fitting::resize(*this, QSize(1080, 440));
    showMonth();
}

void CalendarDialog::addRow(const DateException &exception)
{
    const QSignalBlocker blocker(m_exceptions);
    const int row = m_exceptions->rowCount();
    m_exceptions->insertRow(row);
    m_exceptions->setItem(row, From, new QTableWidgetItem(exception.from.toString(Qt::ISODate)));
    m_exceptions->setItem(row, To, new QTableWidgetItem(exception.to.toString(Qt::ISODate)));
    m_exceptions->setItem(row, Hours, new QTableWidgetItem(hoursText(exception.hours)));
    m_exceptions->setItem(row, Name, new QTableWidgetItem(exception.name));
    auto *works = new QComboBox;
    works->addItems({tr("off"), tr("works")});
    works->setCurrentIndex(exception.works);
    m_exceptions->setCellWidget(row, Works, works);
    connect(works, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &CalendarDialog::showMonth);
    showMonth();
}

bool CalendarDialog::readHours(const QString &text, QVector<DayHours> &hours) const
{
    WorkingTime read;
    if (!writtencalendar::parseHours(QString(text).remove(QLatin1Char(' ')), read))
        return false;
    hours.clear();
    for (const WorkingTime::Interval &interval : read.hours)
        hours.append({quint32(interval.startSecs), quint32(interval.finishSecs)});
    return true;
}

bool CalendarDialog::readRow(int row, DateException &exception, QString &fault) const
{
    const auto text = [&](int column) {
        const QTableWidgetItem *item = m_exceptions->item(row, column);
        return item ? item->text().trimmed() : QString();
    };
    datetext::Moment from, to;
    if (!datetext::parseMoment(text(From), from)) {
        fault = tr("'%1' is not a date").arg(text(From));
        return false;
    }
    to = from;
    if (!text(To).isEmpty() && !datetext::parseMoment(text(To), to)) {
        fault = tr("'%1' is not a date").arg(text(To));
        return false;
    }
    exception = {text(Name),
                 from.date,
                 to.date,
                 static_cast<QComboBox *>(m_exceptions->cellWidget(row, Works))->currentIndex() == 1,
                 {}};
    if (!text(Hours).isEmpty() && !readHours(text(Hours), exception.hours)) {
        fault = tr("'%1' are no hours").arg(text(Hours));
        return false;
    }
    return true;
}

QVector<DateException> CalendarDialog::readExceptions() const
{
    QVector<DateException> exceptions;
    for (int row = 0; row < m_exceptions->rowCount(); ++row) {
        DateException exception;
        QString fault;
        if (m_exceptions->cellWidget(row, Works) && readRow(row, exception, fault))
            exceptions.append(exception);
    }
    return exceptions;
}

CalendarDialog::Day CalendarDialog::dayOf(const QDate &date, const QVector<DateException> &exceptions) const
{
    for (const DateException &exception : exceptions)
        if (date >= exception.from && date <= exception.to)
            return {exception.works, true, exception.name};
    return {m_days[std::size_t(date.dayOfWeek() - 1)]->isChecked(), false, QString()};
}

// Hours are counted whole, and those of an exception are not kept beside the usual ones.
void CalendarDialog::tellHours(const QVector<DateException> &exceptions)
{
    const auto wholeHours = [](const QVector<DayHours> &hours) {
        constexpr quint32 hour = 3600;
        int sum = 0;
        for (const DayHours &interval : hours)
            sum += int(interval.finish / hour) - int(interval.start / hour);
        return sum;
    };
    QStringList parts;
    QVector<DayHours> usual;
    if (!readHours(m_hours->text(), usual))
        return;
    const auto isWhole = [](const DayHours &interval) {
        constexpr quint32 hour = 3600;
        return interval.start % hour == 0 && interval.finish % hour == 0;
    };
    if (!std::all_of(usual.begin(), usual.end(), isWhole))
        parts.append(
            tr("the hours %1 count as %2 whole hours a day").arg(hoursText(usual)).arg(wholeHours(usual)));
    for (const DateException &exception : exceptions)
        if (exception.works && !exception.hours.isEmpty() && wholeHours(exception.hours) != wholeHours(usual))
            parts.append((exception.name.isEmpty() ? exception.from.toString(Qt::ISODate) : exception.name) +
                         QLatin1String(": ") +
                         tr("its hours %1 are not kept: a whole working day of %2 hours is counted")
                             .arg(hoursText(exception.hours))
                             .arg(wholeHours(usual)));
    m_complaint->setText(parts.join(QLatin1Char('\n')));
    m_complaint->setVisible(!parts.isEmpty());
}

// Days off as the dialog stands, wherever it can be read.
void CalendarDialog::showMonth()
{
    m_month->setDateTextFormat(QDate(), QTextCharFormat());
    const QVector<DateException> exceptions = readExceptions();
    tellHours(exceptions);
    const QColor base = palette().base().color(), text = palette().text().color();
    constexpr double quiet = 0.55, shade = 0.14;
    QTextCharFormat off, otherwise, weekday;
    off.setForeground(look::mixed(base, text, quiet));
    off.setBackground(look::mixed(base, text, shade));
    weekday.setForeground(text); // no red, which says nothing of who works then
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        m_month->setWeekdayTextFormat(day, weekday);
    otherwise.setFontWeight(QFont::Bold);
    const QDate first = QDate(m_month->yearShown(), m_month->monthShown(), 1).addDays(-7);
    constexpr int daysShown = 49;
    for (int day = 0; day < daysShown; ++day) {
        const QDate date = first.addDays(day);
        const Day found = dayOf(date, exceptions);
        QTextCharFormat format = found.works ? QTextCharFormat() : off;
        if (found.isException)
            format.merge(otherwise);
        format.setToolTip(found.name);
        m_month->setDateTextFormat(date, format);
    }
}

void CalendarDialog::complain(const QString &text, const QString &hint)
{
    m_complaint->setText(hint.isEmpty() ? text : text + QLatin1String(": ") + hint);
    m_complaint->show();
}

QString CalendarDialog::complaint() const
{
    return m_complaint->isHidden() ? QString() : m_complaint->text();
}

bool CalendarDialog::apply()
{
    const KWDocument &document = m_session.document();
    std::array<bool, 7> week{};
    for (std::size_t day = 0; day < week.size(); ++day)
        week[day] = m_days[day]->isChecked();
    QVector<DayHours> hours;
    if (!readHours(m_hours->text(), hours)) {
        complain(tr("'%1' are no hours").arg(m_hours->text()), tr("write them as 08:00-12:00, 13:00-17:00"));
        m_hours->setFocus();
        return false;
    }
    QVector<DateException> wanted;
    for (int row = 0; row < m_exceptions->rowCount(); ++row) {
        DateException exception;
        QString fault;
        if (!readRow(row, exception, fault)) {
            complain(fault, tr("write dates as 2026-12-25, hours as 08:00-12:00"));
            m_exceptions->selectRow(row);
            return false;
        }
        wanted.append(exception);
    }
    const QVector<DateException> before = exceptionsOf(document);
    const bool sameWeek = std::equal(week.begin(), week.end(), document.WorkDay);
    const bool sameHours = isSame(hours, hoursOf(document.workTimes));
    const bool sameExceptions =
        std::equal(wanted.begin(), wanted.end(), before.begin(), before.end(),
                   [](const DateException &a, const DateException &b) { return isSame(a, b); });
    if (sameWeek && sameHours && sameExceptions)
        return true;
    m_answer = m_session.edit(tr("Change working time"), [&](PlanEdits &edits) {
        EditAnswer all;
        const auto join = [&all](const EditAnswer &part) {
            Session::join(all, part);
            return all.isDone();
        };
        if (!sameWeek && !join(edits.setWorkDays(week)))
            return all;
        if (!sameHours && !join(edits.setWorkHours(hours)))
            return all;
        if (sameExceptions)
            return all;
        // Each call takes the one away that decides about the date.
        for (const DateException &exception : before)
            while (!exceptionsOf(document).isEmpty() && edits.removeException(exception.from).isDone())
                continue;
        // The last one to come decides.
        for (int i = wanted.size() - 1; i >= 0; --i)
            if (!join(edits.addException(wanted.at(i))))
                return all;
        return all;
    });
    if (!m_answer.isDone())
        complain(m_answer.sentence(), m_answer.hint());
    m_hasChanged = m_answer.isDone();
    return m_hasChanged;
}

void CalendarDialog::accept()
{
    if (apply())
        QDialog::accept();
}
