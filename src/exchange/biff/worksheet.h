#pragma once
#include "exchange/biff/cells.h"
#include "exchange/biff/record.h"
#include "exchange/biff/workbook.h"
#include "kwgantt_export.h"
#include <functional>
#include <optional>
#include <vector>

namespace YExcel {

// The part of a stream that holds one sheet.
class KWGANTT_EXPORT Worksheet
{
public:
    struct Index final : RecordOf<Index, biff::code::index>
    {
        quint32 reserved = 0;
        quint32 firstRow = 0;
        quint32 endRow = 0;
        quint32 defaultWidthOffset = 0;
        std::vector<quint32> dbCellOffsets; // in the stream, one for every 32 rows

        template <class Self, class Io>
        static void fields(Self &self, Io &io)
        {
            io(self.reserved, self.firstRow, self.endRow, self.defaultWidthOffset);
            io.list(self.dbCellOffsets);
        }
    };

    // A hint: readers count the cells themselves.
    struct Dimensions final : RecordOf<Dimensions, biff::code::dimensions>
    {
        quint32 firstRow = 0, endRow = 0;
        quint16 firstColumn = 0, endColumn = 0;
        quint16 reserved = 0;

        template <class Self, class Io>
        static void fields(Self &self, Io &io)
        {
            io(self.firstRow, self.endRow, self.firstColumn, self.endColumn, self.reserved);
        }
    };

    struct Window2 final : RecordOf<Window2, biff::code::window2>
    {
        // Kept on purpose: every sheet says that it is selected, as the window counts them.
        quint16 options = 0x06B6;
        quint16 firstRow = 0, firstColumn = 0;
        quint32 gridColor = 64;
        quint16 previewPercent = 0, normalPercent = 0;
        quint32 reserved = 0;

        template <class Self, class Io>
        static void fields(Self &self, Io &io)
        {
            io(self.options, self.firstRow, self.firstColumn, self.gridColor, self.previewPercent,
               self.normalPercent, self.reserved);
        }
    };

    class KWGANTT_EXPORT CellTable
    {
    public:
        // 32 rows with their cells.
        class KWGANTT_EXPORT RowBlock
        {
        public:
            struct Row final : RecordOf<Row, biff::code::row>
            {
                quint16 row = 0, firstColumn = 0, endColumn = 0;
                quint16 height = 0x00FF; // twips
                quint16 reserved = 0, unused = 0;
                quint32 options = 0x00000100 | quint32(biff::cellFormat) << 16;

                template <class Self, class Io>
                static void fields(Self &self, Io &io)
                {
                    io(self.row, self.firstColumn, self.endColumn, self.height, self.reserved, self.unused,
                       self.options);
                }
            };

            struct CellBlock
            {
                // Every cell begins like this.
                struct Place
                {
                    quint16 row = 0, column = 0;
                    quint16 format = biff::cellFormat;

                    template <class Self, class Io>
                    static void fields(Self &self, Io &io)
                    {
                        io(self.row, self.column, self.format);
                    }
                };

                struct Blank final : RecordOf<Blank, biff::code::blank>
                {
                    Place place;

                    template <class Self, class Io>
                    static void fields(Self &self, Io &io)
                    {
                        io(self.place);
                    }
                };

                struct BoolErr final : RecordOf<BoolErr, biff::code::boolErr>
                {
                    Place place;
                    quint8 value = 0; // a truth value, or the code of an error
                    quint8 isError = 0;

                    template <class Self, class Io>
                    static void fields(Self &self, Io &io)
                    {
                        io(self.place, self.value, self.isError);
                    }
                };

                struct LabelSST final : RecordOf<LabelSST, biff::code::labelSst>
                {
                    Place place;
                    quint32 string = 0;

                    template <class Self, class Io>
                    static void fields(Self &self, Io &io)
                    {
                        io(self.place, self.string);
                    }
                };

                // The number of cells follows from the length, not from the last column.
                struct MulBlank final : RecordOf<MulBlank, biff::code::mulBlank>
                {
                    quint16 row = 0, firstColumn = 0;
                    std::vector<quint16> formats;
                    quint16 lastColumn = 0;

                    template <class Self, class Io>
                    static void fields(Self &self, Io &io)
                    {
                        io(self.row, self.firstColumn);
                        io.list(self.formats, sizeof self.lastColumn);
                        io(self.lastColumn);
                    }
                };

                struct MulRK final : RecordOf<MulRK, biff::code::mulRk>
                {
                    struct XFRK
                    {
                        static constexpr size_t sizeBytes = 6;
                        quint16 format = biff::cellFormat;
                        quint32 packed = 0;

                        template <class Self, class Io>
                        static void fields(Self &self, Io &io)
                        {
                            io(self.format, self.packed);
                        }
                    };
                    quint16 row = 0, firstColumn = 0;
                    std::vector<XFRK> numbers;
                    quint16 lastColumn = 0;

                    template <class Self, class Io>
                    static void fields(Self &self, Io &io)
                    {
                        io(self.row, self.firstColumn);
                        io.list(self.numbers, sizeof self.lastColumn);
                        io(self.lastColumn);
                    }
                };

                struct Number final : RecordOf<Number, biff::code::number>
                {
                    Place place;
                    double value = 0;

                    template <class Self, class Io>
                    static void fields(Self &self, Io &io)
                    {
                        io(self.place, self.value);
                    }
                };

                struct RK final : RecordOf<RK, biff::code::rk>
                {
                    Place place;
                    quint32 packed = 0;

                    template <class Self, class Io>
                    static void fields(Self &self, Io &io)
                    {
                        io(self.place, self.packed);
                    }
                };

                // Formulas are read for their results and never written.
                struct Formula final : RecordOf<Formula, biff::code::formula>
                {
                    struct Range
                    {
                        quint16 firstRow = 0, lastRow = 0;
                        quint8 firstColumn = 0, lastColumn = 0;

                        template <class Self, class Io>
                        static void fields(Self &self, Io &io)
                        {
                            io(self.firstRow, self.lastRow, self.firstColumn, self.lastColumn);
                        }
                    };
                    struct Array final : RecordOf<Array, biff::code::array>
                    {
                        Range range;
                        quint16 options = 0;
                        quint32 chain = 0;
                        quint16 expressionBytes = 0;
                        std::vector<quint8> expression; // and what follows its bytes

                        template <class Self, class Io>
                        static void fields(Self &self, Io &io)
                        {
                            io(self.range, self.options, self.chain, self.expressionBytes);
                            io.list(self.expression);
                        }
                    };
                    struct ShrFmla final : RecordOf<ShrFmla, biff::code::sharedFormula>
                    {
                        Range range;
                        quint8 reserved = 0, uses = 0;
                        quint16 expressionBytes = 0;
                        std::vector<quint8> expression; // and what follows its bytes

                        template <class Self, class Io>
                        static void fields(Self &self, Io &io)
                        {
                            io(self.range, self.reserved, self.uses, self.expressionBytes);
                            io.list(self.expression);
                        }
                    };
                    struct Table final : RecordOf<Table, biff::code::table>
                    {
                        Range range;
                        quint16 options = 0;
                        quint16 inputRow = 0, inputColumn = 0, secondRow = 0, secondColumn = 0;

                        template <class Self, class Io>
                        static void fields(Self &self, Io &io)
                        {
                            io(self.range, self.options, self.inputRow, self.inputColumn, self.secondRow,
                               self.secondColumn);
                        }
                    };
                    // The text that a formula gave.
                    struct String final : Record
                    {
                        static constexpr quint16 code = biff::code::string;
                        LargeString text;

                        quint16 Code() const override { return code; }
                        bool Read(const biff::RecordStream &from) override
                        {
                            biff::ContinuedBytes data(from);
                            return text.Read(data);
                        }
                        void Write(biff::Sink &to) const override
                        {
                            biff::ContinuedSink sink(to, code);
                            text.Write(sink);
                        }
                    };

                    Place place;
                    std::array<quint8, 8> result{};
                    quint16 options = 0;
                    quint32 chain = 0;
                    quint16 expressionBytes = 0;
                    std::vector<quint8> expression; // and what follows its bytes

                    template <class Self, class Io>
                    static void fields(Self &self, Io &io)
                    {
                        io(self.place, self.result, self.options, self.chain, self.expressionBytes);
                        io.list(self.expression);
                    }
                    // Whether the text comes in a String of its own.
                    bool HasString() const { return isSpecial() && result[0] == 0; }
                    biff::Value Result() const;

                private:
                    bool isSpecial() const { return result[6] == 0xFF && result[7] == 0xFF; }
                };
            };

            // Distances back to the block's first row, and on to the cells of each row.
            struct DBCell final : RecordOf<DBCell, biff::code::dbCell>
            {
                quint32 toFirstRow = 0;
                std::vector<quint16> toCells;

                template <class Self, class Io>
                static void fields(Self &self, Io &io)
                {
                    io(self.toFirstRow);
                    io.list(self.toCells);
                }
            };

            // In order, rows before columns; `value` must stay until Write().
            void Add(int row, int column, const biff::Value &value);
            bool IsEmpty() const { return m_cells.empty(); }
            // Rows, cells, DBCell; the block is empty afterwards. Returns where the DBCell stands.
            quint32 Write(biff::Sink &to);

        private:
            struct Cell
            {
                quint16 row, column;
                const biff::Value *value;
            };
            std::vector<Cell> m_cells;
        };

        // In order, rows before columns; `value` must stay until the sheet is written.
        void Add(biff::Sink &to, int row, int column, const biff::Value &value);
        // Writes what is left. Returns where the DBCell of each block stands.
        std::vector<quint32> Finish(biff::Sink &to, int rows);

    private:
        void writeBlocks(biff::Sink &to, int endBlock);

        RowBlock m_block;
        std::vector<quint32> m_dbCells;
    };

    // Whether a sheet begins there.
    static bool Begins(const QByteArray &stream, quint32 at);
    // Where the only sheet of a workbook begins, whatever the workbook says; nothing when there are others.
    static std::optional<quint32> OnlyBegin(const QByteArray &stream);

    // The format is the place in the workbook's list of them.
    using Taker = std::function<void(int row, int column, biff::Value &&value, quint16 format)>;
    // Hands every value between the two offsets of the stream to `take`, blank cells excepted. False with an
    // error text when the sheet is damaged; then some cells may have been handed over.
    static bool Read(const QByteArray &stream, quint32 begin, quint32 end,
                     const Workbook::SharedStringTable &strings, const Taker &take, QString *error);

    // The sheet is written as it goes: begin, cells in order, end. Texts are known by their place in the
    // table.
    void Begin(biff::Sink &to, int rows, int columns);
    void Add(int row, int column, const biff::Value &value) { m_cells.Add(*m_to, row, column, value); }
    void End();

private:
    biff::Sink *m_to = nullptr;
    quint32 m_indexAt = 0;
    int m_rows = 0;
    CellTable m_cells;
};
}
