#pragma once
#include "engine/text/celltext.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "table/rowcolumndata.h"

// A document's part in the texts of its cells.
class DocumentTexts : public celltext::Plan
{
public:
    // Whoever asks for many cells gives the calendar: the document would look for changes at each of them.
    explicit DocumentTexts(const KWDocument &document, const worktime::WorkCalendar *calendar = nullptr)
        : m_document(document)
        , m_calendar(calendar)
    {
    }

    outline::Tasks outline() const override { return m_document.outline(); }
    const worktime::WorkCalendar &calendar() const override
    {
        return m_calendar ? *m_calendar : m_document.workCalendar();
    }
    QString priorityName(int priority) const override
    {
        return RowColumnData::s_priorityNames.value(priority);
    }
    QString hyperlinks(const TaskRecord &task, bool addresses) const override
    {
        return asTask(&task)->getHyperlinksContent(addresses);
    }
    QString predecessors(const TaskRecord &task) const override
    {
        return asTask(&task)->getDependOnListTagContent(const_cast<KWDocument *>(&m_document), true);
    }

private:
    const KWDocument &m_document;
    const worktime::WorkCalendar *m_calendar;
};
