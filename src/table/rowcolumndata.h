#pragma once
#include "engine/record/trackedfield.h"
#include "kwgantt_export.h"
#include <QDomElement>
#include <QHash>
#include <QList>
#include <QMap>
#include <QString>
#include <QVector>
#include <vector>

class KWDocument;
class UndoColData;
class UndoItemData;

// The task table's row heights and columns.
class KWGANTT_EXPORT RowColumnData
{
public:
    struct KWGANTT_EXPORT ColumnData
    {
        TrackedField<bool> isHide;
        TrackedField<QString> title; // also says what the column shows, see typeOfTitle
        double width = 0;            // pixels at the current screen scale

        ColumnData() = default;
        ColumnData(bool hide, const QString &columnTitle, double columnWidth)
            : isHide(hide)
            , title(columnTitle)
            , width(columnWidth)
        {
        }

        void getUndoColVal(UndoColData *column) const;
        void setUndoColVal(const UndoColData *column);
    };

    // Column type -> title. Filled by the host before a document is created.
    static QMap<int, QString> s_columnNames;
    // Priority -> text shown behind the number; filled by the host.
    static QMap<int, QString> s_priorityNames;
    // The first type whose title is equal; 0 when there is none.
    static int typeOfTitle(const QString &title);
    static constexpr double defaultRowHeight = 30.0; // pixels at 96 dpi

    explicit RowColumnData(KWDocument *document); // with the default columns, without any for no document
    ~RowColumnData();
    RowColumnData(const RowColumnData &) = delete;
    RowColumnData &operator=(const RowColumnData &) = delete;

    KWDocument *document() const { return m_document; }

    int rowCount() const; // visible tasks

    // ---- Columns ------------------------------------------------------------------------------------------
    // A pos counts all columns, a column number only those that are not hidden.
    void initColumnDataList(); // the default columns in place of those there are
    const QList<ColumnData *> &columns() const { return m_columns; }
    void appendColumnData(ColumnData *column); // takes the column over; null is ignored
    int columnCount() const;
    ColumnData *getColumnDataByPos(int pos) const;
    ColumnData *getColumnDataByColumn(int column) const;
    // The first column of that title; -1 or null when there is none, and for an empty title.
    int getPosByName(const QString &title) const;
    int getColumnByName(const QString &title) const; // -1 for a hidden column too
    ColumnData *getColumnDataByName(const QString &title) const;
    // Column numbers; `to` is clamped to the visible columns, nothing happens for a `from` outside them.
    void moveColumnDataList(int from, int to);
    void setAllColDataHide();
    void clearColDataList();
    static void oldToNewColValue(const ColumnData *from, ColumnData *to);
    bool isReplaceColumn(int pos) const; // not the ID and the name, which a table cannot do without

    // ---- Rows ---------------------------------------------------------------------------------------------
    // Heights by list position, in pixels at 96 dpi; `scaled` multiplies by the screen scale.
    // 0.0 outside the list; writes outside the list are ignored, insertions are clamped to it.
    double getRowHeightByPos(int pos, bool scaled) const;
    double getRowHeightByRow(int row) const;
    void replaceRowHeight(int pos, double height);
    void replaceRowHeightByRow(int row, double height);
    void insertRowHeightByPos(int pos, double height);
    void insertRowHeightByRow(int row, double height);
    void insertRowHeights(int pos, const QList<double> &heights);
    void appendRowHeight(double height);
    void removeRowHeightAt(int pos);
    // `count` entries one after the other, from place `from` + i to place `to` + i.
    void moveRowHeights(int from, int to, int count);
    void setRowHeights(const QList<double> &heights);
    // Cuts the list, or fills it up with the default height.
    void setRowHeightCount(int count);
    const QList<double> &rowHeights() const { return m_rowHeights; }
    // Changes with every change of the heights but an addition at the end.
    quint64 revision() const { return m_revision; }

    // ---- Undo records -------------------------------------------------------------------------------------
    // The row height of the record's task; nothing happens when there is no such task.
    void getUndoRowVal(UndoItemData *item) const;
    void setUndoRowVal(const UndoItemData *item);

    // ---- Cells --------------------------------------------------------------------------------------------
    // The text at a visible row and a column number; empty when there is no such task or column.
    QString itemText(int row, int column) const;

    // ---- Files --------------------------------------------------------------------------------------------
    // Appends "RowHeightList" and "ColumnList"; heights are kept with six digits.
    void save(QDomElement &parent) const;
    // Replaces the lists that the element holds; unreadable numbers are 0.
    void parse(const QDomElement &element, bool skipRowHeights);

private:
    // Looked up for every cell of a table, so they are kept until a column changes.
    struct ColumnIndex
    {
        quint64 madeAt = 0;
        std::vector<int> posOfColumn;
        std::vector<int> columnOfPos; // -1: hidden
        QHash<QString, int> posOfTitle;
    };
    const ColumnIndex &columnIndex() const;
    void columnsChanged();
    int posOfRow(int row) const; // -1 when there is no such row

    KWDocument *m_document; // not owned
    QList<double> m_rowHeights;
    quint64 m_revision = 1;
    QList<ColumnData *> m_columns; // owned
    quint64 m_columnRevision = 1;
    mutable ColumnIndex m_columnIndex;
};
