#include "format/numericdate.h"

namespace numericdate {
namespace {

constexpr int firstYearOfTwoDigits = 1970;

struct Fields
{
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;

    int *of(QChar letter)
    {
        switch (letter.unicode()) {
        case 'y':
            return &year;
        case 'M':
            return &month;
        case 'd':
            return &day;
        case 'h':
            return &hour;
        case 'm':
            return &minute;
        case 's':
            return &second;
        default:
            return nullptr;
        }
    }
};

int runLength(QStringView format, int place)
{
    int end = place;
    while (end < format.size() && format.at(end) == format.at(place))
        ++end;
    return end - place;
}

// Takes `least` to `most` ASCII digits; false when there are too few.
bool takeNumber(QStringView text, int &place, int least, int most, int &number)
{
    const int begin = place;
    number = 0;
    while (place < text.size() && place - begin < most) {
        const ushort sign = text.at(place).unicode();
        if (sign < '0' || sign > '9')
            break;
        number = number * 10 + (sign - '0');
        ++place;
    }
    return place - begin >= least;
}
}

bool isNumeric(QStringView format)
{
    Fields fields;
    for (int place = 0; place < format.size();) {
        const QChar sign = format.at(place);
        const int length = runLength(format, place);
        if (sign == QLatin1Char('y') ? length != 2 && length != 4 : fields.of(sign) && length > 2)
            return false;
        if (sign == QLatin1Char('\'') || (sign.isLetter() && !fields.of(sign) && sign.unicode() < 0x80))
            return false;
        place += length;
    }
    return true;
}

std::optional<Moment> read(QStringView text, QStringView format)
{
    Fields fields;
    int textPlace = 0;
    for (int place = 0; place < format.size();) {
        const QChar sign = format.at(place);
        int *field = fields.of(sign);
        if (!field) {
            if (textPlace >= text.size() || text.at(textPlace) != sign)
                return std::nullopt;
            ++textPlace;
            ++place;
            continue;
        }
        const int length = runLength(format, place);
        if (!takeNumber(text, textPlace, length, qMax(length, 2), *field))
            return std::nullopt;
        if (field == &fields.year && length == 2)
            fields.year += fields.year < firstYearOfTwoDigits % 100 ? 2000 : 1900;
        place += length;
    }
    const Moment moment{QDate(fields.year, fields.month, fields.day),
                        QTime(fields.hour, fields.minute, fields.second)};
    if (textPlace != text.size() || !moment.date.isValid() || !moment.time.isValid())
        return std::nullopt;
    return moment;
}
}
