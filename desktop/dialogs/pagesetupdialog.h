#pragma once
#include "settings/kwprintconfig.h"
#include <QDialog>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QRadioButton;
class QSpinBox;
class Session;

// Paper, margins, and on how many sheets the plan is printed; says at once what comes out.
class PageSetupDialog : public QDialog
{
    Q_OBJECT
public:
    explicit PageSetupDialog(Session &session, QWidget *parent = nullptr);
    void accept() override; // the plan takes it
    KWPrintConfig config() const;
    void fill(const KWPrintConfig &config);
    QString outcome() const; // "3 × 2 sheets, smallest text 5.2 pt"

private:
    void showOutcome();

    Session &m_session;
    QComboBox *m_paper;
    QComboBox *m_orientation;
    QDoubleSpinBox *m_left;
    QDoubleSpinBox *m_top;
    QRadioButton *m_fits;
    QRadioButton *m_zooms;
    QSpinBox *m_across;
    QSpinBox *m_down;
    QSpinBox *m_zoom;
    QCheckBox *m_background;
    QCheckBox *m_marks;
    QLabel *m_outcome;
    bool m_isFilling = false;
};
