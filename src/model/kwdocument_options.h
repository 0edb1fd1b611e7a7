#pragma once
#include "model/kwdocument.h"
#include "schedule/calendarxml.h"
#include "support/xmltext.h"
#include <tuple>

// The project's options as elements with a "V" each, over any of the XML sinks and sources.
namespace optionsxml {

template <typename Value>
struct Option
{
    const char *name;
    Value KWDocument::*member;
};

// The working days and hours stand between these rows, where files have them.
inline constexpr auto units = std::make_tuple(Option<quint32>{"MajorUnit", &KWDocument::MajorUnit},
                                              Option<quint32>{"MinorUnit", &KWDocument::MinorUnit},
                                              Option<quint32>{"ProjectUnit", &KWDocument::ProjectUnit},
                                              Option<double>{"BaselineCost", &KWDocument::BaselineCost},
                                              Option<quint32>{"StartDate", &KWDocument::StartDate},
                                              Option<quint32>{"FinishDate", &KWDocument::FinishDate});
inline constexpr auto display = std::make_tuple(
    Option<qint32>{"UnitWidth", &KWDocument::UnitWidth}, Option<bool>{"AutoZoom", &KWDocument::AutoZoom},
    Option<bool>{"Auto", &KWDocument::Auto}, Option<qint32>{"ThemeIndex", &KWDocument::ThemeIndex});

// How an option's value is written.
QString text(bool value);
QString text(qint32 value);
QString text(quint32 value);
QString text(double value); // the shortest text that reads back as the number; 0 when it is not finite
QString text(const QList<quint32> &values);
QString workDaysText(const KWDocument &document);

// How it is read: whole numbers as unsigned ones, so that a negative one counts as 0.
void read(const XmlText &text, bool &value);
void read(const XmlText &text, qint32 &value);
void read(const XmlText &text, quint32 &value);
void read(const XmlText &text, double &value);
void readWorkDays(const XmlText &text, KWDocument &document);

template <typename Sink>
void writeOption(Sink &sink, const char *name, const QString &value)
{
    sink.open(name);
    sink.attribute("V", value);
    sink.close();
}

template <typename Sink, typename Table>
void writeTable(Sink &sink, const Table &table, const KWDocument &document)
{
    const auto write = [&](const auto &row) { writeOption(sink, row.name, text(document.*row.member)); };
    std::apply([&](const auto &...rows) { (write(rows), ...); }, table);
}

template <typename Sink>
void write(Sink &sink, const KWDocument &document)
{
    sink.open("GanttOption");
    writeOption(sink, "WorkDay", workDaysText(document));
    writeTable(sink, units, document);
    writeOption(sink, "StartTime", text(calendarxml::starts(document.workTimes)));
    writeOption(sink, "FinishTime", text(calendarxml::finishes(document.workTimes)));
    writeTable(sink, display, document);
    sink.close();
}

template <typename Source, typename Table>
void readTable(const Source &option, const XmlText &value, const Table &table, KWDocument &document)
{
    const auto readRow = [&](const auto &row) {
        if (option.is(row.name))
            read(value, document.*row.member);
    };
    std::apply([&](const auto &...rows) { (readRow(rows), ...); }, table);
}

// Options with an empty value and unknown ones change nothing. The working hours join those there are.
template <typename Source>
void readAll(const Source &options, KWDocument &document)
{
    for (Source option = options.firstChild(); !option.isNull(); option = option.nextSibling()) {
        const XmlText value = option.text("V");
        if (value.isEmpty())
            continue;
        if (option.is("WorkDay"))
            readWorkDays(value, document);
        else if (option.is("StartTime"))
            calendarxml::appendStarts(value, document.workTimes);
        else if (option.is("FinishTime"))
            calendarxml::readFinishes(value, document.workTimes);
        readTable(option, value, units, document);
        readTable(option, value, display, document);
    }
}
}
