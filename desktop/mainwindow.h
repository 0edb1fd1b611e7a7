#pragma once
#include "dialogs/busy.h"
#include "documents/session.h"
#include "views/picture.h"
#include <QMainWindow>
#include <QMessageBox>
#include <QTimer>
#include <functional>

class BaselinePanel;
class FilterPanel;
class FindDialog;
class FindingsPanel;
class NoteBar;
class PlanChart;
class PlanModel;
class PlanTable;
class QLabel;
class QUrl;
class QSplitter;
class ReasonsPanel;
class KWTaskInfo;
namespace cellinput {
struct Outcome;
}

// One window with one plan: the table, the chart, and what the actions of the table of actions do.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    Session &session() { return m_session; }
    PlanTable *table() const { return m_table; }
    PlanChart *chart() const { return m_chart; }
    PlanModel *model() const { return m_model; }
    NoteBar *note() const { return m_note; }
    ReasonsPanel *reasons() const { return m_reasons; }
    FindingsPanel *findingsPanel() const { return m_findings; }
    FilterPanel *filterPanel() const { return m_filter; }
    BaselinePanel *baselinePanel() const { return m_baseline; }
    QAction *action(const char *name) const;

    bool openFile(const QString &path);
    void startAnew();
    // Offers what programs that ended without closing have left behind.
    void offerCopies();
    // How the window asks; a test answers itself.
    using Asker = std::function<QMessageBox::StandardButton(const QString &text, const QString &more,
                                                            QMessageBox::StandardButtons buttons)>;
    void setAsker(const Asker &asker) { m_ask = asker; }
    // What shows pages and mails that users open.
    using Opener = std::function<bool(const QUrl &url)>;
    void setOpener(const Opener &opener) { m_open = opener; }
    // Between the copies that are kept for a crash, while the plan is modified; a minute.
    void setCopyInterval(int milliseconds) { m_copyTime.start(milliseconds); }

    // ---- What the actions do, in the order of their table
    // --------------------------------------------------
    void newPlan();
    void newWindow();
    void openAsk();
    void save();
    void saveAs();
    void exportAsk();
    void pageSetup();
    void preview();
    void print();
    void closeWindow();
    void quit();
    void undo();
    void redo();
    void cut();
    void copy();
    void paste();
    void duplicate();
    void removeTasks();
    void selectAll();
    void findAsk();
    void findNext();
    void replaceAsk();
    void goTo();
    void editCell();
    void openLink();
    void insertAbove();
    void insertBelow();
    void insertChild();
    void indent();
    void outdent();
    void moveUp();
    void moveDown();
    void fold();
    void foldAll();
    void unfoldAll();
    void link();
    void unlink();
    void milestone();
    void done();
    void calendar();
    void resources();
    void columns();
    void schedule();
    void closeGaps();
    void setBaseline();
    void clearBaseline();
    void toggleComparison();
    void zoomIn();
    void zoomOut();
    void fit();
    void today();
    void applySwitches();
    void nextLabels();
    void toggleReasons();
    void toggleFilter();
    void toggleHiding();
    void goToDriver();
    void commandPalette();
    void keys();
    void about();

    bool saveTo(const QString &path);
    bool exportTo(const QString &path); // by the suffix
    bool findText(const QString &text, bool isFromNext);
    // In names and notes, as one step; how many tasks have another text now.
    int replaceText(const QString &text, const QString &by, Qt::CaseSensitivity sensitivity);
    void jumpTo(quint32 id); // unfolds what hides it

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void makeActions();
    void makeLayout();
    void showPlan();    // another one
    void updateState(); // titles, enabled actions, the status line
    void updateTheme();
    void restoreSettings();
    void saveSettings();
    bool mayLeave(); // the plan is saved, or need not be
    void addRecent(const QString &path);
    void fillRecent();
    // One step; what it moved and lost, or why it was refused, is told.
    EditAnswer perform(const QString &name, const Session::Change &change, bool selects = false);
    // Whether there was anything to tell, a refusal or what moved, and it is told.
    bool scheduleAll(const QString &name, PlanEdits::Beginning beginning);
    void tellAnswer(const QString &what, const EditAnswer &answer, bool always);
    void tellOutcome(const cellinput::Outcome &outcome);
    void tellRefusal(const QString &what, const QString &hint);
    QString movesText(const EditAnswer &answer) const;
    QVector<quint32> chosen() const;
    void insert(PlanEdits::Place place);
    void toggleFold(quint32 id);
    void showFind(bool isReplacing);
    bool hasText(const KWTaskInfo &task, const QString &text) const;
    void foldEverything(bool isFolded);
    void hideOthers(); // as the filter's panel asks for
    void checkFile();
    void openCopy(const recovery::Copy &copy);
    // Work that may last, watched and given up by the user.
    void watch(const QString &what, Busy::Plan plan, const std::function<void()> &work);

    Session m_session;
    Picture m_picture;
    PlanModel *m_model;
    PlanTable *m_table;
    PlanChart *m_chart;
    QSplitter *m_splitter;
    NoteBar *m_note;
    ReasonsPanel *m_reasons;
    FindingsPanel *m_findings;
    FilterPanel *m_filter;
    BaselinePanel *m_baseline;
    QLabel *m_status;
    FindDialog *m_find = nullptr;
    QMenu *m_recent = nullptr;
    QTimer m_copyTime{this};
    Asker m_ask;
    Opener m_open;
    QString m_searched;
    Qt::CaseSensitivity m_searchedCase = Qt::CaseInsensitive;
    quint32 m_finish = 0; // of the project, before the last edit
    bool m_hasAskedAboutFile = false;
};
