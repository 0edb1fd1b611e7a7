#pragma once
#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

// Finds a text in the plan, and replaces it. Stays open beside the plan; what it does is up to the window.
class FindDialog : public QDialog
{
    Q_OBJECT
public:
    explicit FindDialog(QWidget *parent = nullptr);
    void begin(const QString &text, bool isReplacing);
    void say(const QString &words);

    QLineEdit *text() const { return m_text; }
    QLineEdit *replacement() const { return m_replacement; }
    QCheckBox *matchesCase() const { return m_case; }
    QPushButton *replaceButton() const { return m_replaceAll; }

Q_SIGNALS:
    void findWanted(const QString &text, bool matchesCase);
    void replaceWanted(const QString &text, const QString &replacement, bool matchesCase);

private:
    QLineEdit *m_text;
    QLineEdit *m_replacement;
    QCheckBox *m_case;
    QLabel *m_said;
    QPushButton *m_replaceAll;
};
