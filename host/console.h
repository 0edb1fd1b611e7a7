#pragma once
#include "options.h"
#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QString>
#include <functional>

class Findings;

// Where the program's words go: data to standard output, everything else to standard error.
class Console
{
public:
    enum Code {
        Done = 0,
        AnswerIsNo = 1,
        WrongUse = 2,
        CannotRead = 3,
        CannotWrite = 4,
        CannotSchedule = 5,
        MachineLacks = 6,
        Bug = 70,
    };
    static constexpr int widthWithoutTerminal = 100;

    // What the streams can show; found out once, or set by a test.
    struct Surroundings
    {
        bool outIsTerminal = false;
        bool errorIsTerminal = false;
        bool utf8 = true;         // of the terminal
        bool colorWelcome = true; // neither NO_COLOR nor a dumb terminal
        int width = widthWithoutTerminal;
        static Surroundings find();
    };

    Console();
    Console(const Surroundings &surroundings, QByteArray *out, QByteArray *error);

    void follow(const Options &options) { m_options = options; }
    const Options &options() const { return m_options; }
    const Surroundings &surroundings() const { return m_surroundings; }
    bool usesAscii() const;
    bool usesColor() const;
    int width() const;

    // One line each on standard error: "kwgantt: PLACE: WHAT" and "  hint: HINT". Never more than one line,
    // whatever a file puts into them.
    void error(const QString &what, const QString &hint = QString());
    void warning(const QString &what, const QString &hint = QString());
    void note(const QString &what);
    // The findings of a file; after the first ones only their number, unless all are wanted.
    void list(const QString &file, const Findings &findings);

    // Progress of work that lasts, from half a second on. `total` 0: unknown.
    void progress(const QString &work, qint64 done, qint64 total);
    void endProgress();

    // Data: to the output file when there is one, which is replaced when everything is written, else to
    // standard output. False when it cannot be written; the reason has been told then.
    bool write(const QByteArray &data);
    // The same piece by piece: `make` hands its pieces to what it is given and ends when that answers false.
    using Take = std::function<bool(const QByteArray &)>;
    using Make = std::function<bool(const Take &)>;
    bool write(const Make &make);
    // Replaces `path`, the old file staying whole when that fails. Tells the reason.
    bool replaceFile(const QString &path, const QByteArray &data, bool overwrite);
    bool replaceFile(const QString &path, const Make &make, bool overwrite);

    // Whether the program ends without a word when nobody reads its data any more, as in `show | head`.
    void endWithReader(bool ends) { m_endsWithReader = ends; }
    bool hasLostReader() const { return m_hasLostReader; }

private:
    void say(const QString &line);

    Options m_options;
    Surroundings m_surroundings;
    QByteArray *m_outText = nullptr; // of a test; null: the process's streams
    QByteArray *m_errorText = nullptr;
    QElapsedTimer m_sinceStart;
    bool m_progressShown = false;
    bool m_endsWithReader = false;
    bool m_hasLostReader = false;
    int m_lastPercent = -1;
    QString m_lastWork;
};
