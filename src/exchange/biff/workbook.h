#pragma once
#include "exchange/biff/record.h"
#include "exchange/biff/recordstream.h"
#include "exchange/biff/strings.h"
#include "kwgantt_export.h"
#include <QSet>
#include <QString>
#include <vector>

namespace YExcel {

// The part of a workbook that all sheets share. A new one holds the formats that every reader expects.
class KWGANTT_EXPORT Workbook
{
public:
    struct Window1 final : RecordOf<Window1, biff::code::window1>
    {
        quint16 x = 0x0078, y = 0x0078, width = 0x3B1F, height = 0x2454; // twips
        quint16 options = 0x0038;
        quint16 activeSheet = 0;
        quint16 firstTab = 0;
        quint16 selectedSheets = 1;
        quint16 tabWidthPermille = 0x0258;

        template <class Self, class Io>
        static void fields(Self &self, Io &io)
        {
            io(self.x, self.y, self.width, self.height, self.options, self.activeSheet, self.firstTab,
               self.selectedSheets, self.tabWidthPermille);
        }
    };

    struct Font final : RecordOf<Font, biff::code::font>
    {
        quint16 height = 200; // twentieths of a point
        quint16 options = 0;
        quint16 color = 0x7FFF;
        quint16 weight = 400;
        quint16 escapement = 0;
        quint8 underline = 0, family = 0, characterSet = 0, reserved = 0;
        SmallString name = QStringLiteral("Arial");

        template <class Self, class Io>
        static void fields(Self &self, Io &io)
        {
            io(self.height, self.options, self.color, self.weight, self.escapement, self.underline,
               self.family, self.characterSet, self.reserved, self.name);
        }
    };

    struct XF final : RecordOf<XF, biff::code::xf>
    {
        enum Type : quint16 { StyleFormat = 0xFFF5, CellFormat = 0x0001 };

        quint16 font = 0;
        quint16 numberFormat = 0;
        quint16 type = StyleFormat;
        quint8 alignment = 0x20;
        quint8 rotation = 0;
        quint8 indent = 0;
        quint8 used = 0;
        quint32 borders = 0;
        quint32 borderColors = 0;
        quint16 fill = 0x20C0;

        template <class Self, class Io>
        static void fields(Self &self, Io &io)
        {
            io(self.font, self.numberFormat, self.type, self.alignment, self.rotation, self.indent, self.used,
               self.borders, self.borderColors, self.fill);
        }
    };

    // A style that every reader knows by number, or one with a name of its own.
    struct KWGANTT_EXPORT Style final : Record
    {
        static constexpr quint16 code = biff::code::style;

        quint16 format = 0x8000; // the upper bit says that the style is a known one
        quint8 known = 0;
        quint8 outlineLevel = 0xFF;
        LargeString name;

        bool IsKnown() const { return format & 0x8000; }
        quint16 Code() const override { return code; }
        bool Read(const biff::RecordStream &from) override;
        void Write(biff::Sink &to) const override;
    };

    struct BoundSheet final : RecordOf<BoundSheet, biff::code::boundSheet>
    {
        enum Type : quint8 { Sheet = 0 }; // others are charts, macros and modules

        quint32 offset = 0; // of the BOF in the stream
        quint8 visibility = 0;
        quint8 type = Sheet;
        SmallString name;

        template <class Self, class Io>
        static void fields(Self &self, Io &io)
        {
            io(self.offset, self.visibility, self.type, self.name);
        }
    };

    // Where every so many strings begin, to find one without reading all.
    struct ExtSST final : RecordOf<ExtSST, biff::code::extSst>
    {
        struct Bucket
        {
            static constexpr size_t sizeBytes = 8;
            quint32 streamOffset = 0;
            quint16 recordOffset = 0;
            quint16 reserved = 0;

            template <class Self, class Io>
            static void fields(Self &self, Io &io)
            {
                io(self.streamOffset, self.recordOffset, self.reserved);
            }
        };
        quint16 stringsInBucket = 8;
        std::vector<Bucket> buckets;

        template <class Self, class Io>
        static void fields(Self &self, Io &io)
        {
            io(self.stringsInBucket);
            io.list(self.buckets);
        }
    };

    // Every text of the workbook once.
    class KWGANTT_EXPORT SharedStringTable final : public Record
    {
    public:
        static constexpr quint16 code = biff::code::sharedStrings;

        struct Entry
        {
            biff::Text text;
            bool isWide;
        };
        std::vector<Entry> strings;
        quint32 uses = 0; // by cells; kept by the writer

        quint16 Code() const override { return code; }
        // Takes the strings that are there, however many are announced. False when one is cut.
        bool Read(const biff::RecordStream &from) override;
        void Write(biff::Sink &to) const override;
        void Write(biff::Sink &to, ExtSST *positions) const;
    };

    Workbook();
    // From the start of the stream to the end of the shared part. False with an error text.
    bool Read(const QByteArray &stream, QString *error);
    // `selectedSheets` of the window and the offsets of the sheets are filled in: the latter by SetOffset().
    void Write(biff::Sink &to);
    // To be called when the sheet's BOF is about to be written.
    void SetOffset(biff::Sink &to, size_t sheet) const;

    Window1 window;
    std::vector<Font> fonts;
    std::vector<XF> formats;
    std::vector<Style> styles;
    std::vector<BoundSheet> sheets;
    SharedStringTable strings;
    // Whether cells of that format are shown as percentages.
    bool showsPercent(quint16 format) const
    {
        return format < formats.size() && m_percentFormats.contains(formats[format].numberFormat);
    }
    bool is1904 = false; // days count from 1904-01-01, not from 1899-12-31

private:
    QSet<quint16> m_percentFormats;      // of numbers
    std::vector<quint32> m_sheetRecords; // where they were written
};
}
