#pragma once
#include "export/exportoptions.h"
#include <QDialog>

class QLabel;
class QScrollArea;
class QSpinBox;
class Session;

// The sheets as they come out of a printer.
class PreviewDialog : public QDialog
{
    Q_OBJECT
public:
    PreviewDialog(Session &session, const KWExportOptions &options, QWidget *parent = nullptr);
    int pageCount() const { return m_pages; }
    void showPage(int page); // 0-based

Q_SIGNALS:
    void exportWanted();
    void setupWanted();
    void printWanted();

private:
    void restart();

    Session &m_session;
    KWExportOptions m_options;
    int m_pages = 0;
    QLabel *m_sheet;
    QLabel *m_count;
    QSpinBox *m_number;
};
