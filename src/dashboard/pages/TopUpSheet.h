#ifndef TOPUPSHEET_H
#define TOPUPSHEET_H

#include <QDialog>

class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace Dashboard
{

/**
 * A dialog with a number and the actions that use it. It fills in the number field of the general
 * window and presses the button there, both of which may be hidden.
 */
class TopUpSheet : public QDialog
{
    Q_OBJECT
public:
    /// `general` contains the general window.
    TopUpSheet(const QWidget *general, QWidget *parent);

    /// Adds an action that presses the preset button.
    void addPreset(const QString &name, QPushButton *preset);

private:
    void press(QPushButton *preset);
    void updateActions();

    const QWidget *const m_general;
    QLineEdit *m_number;
    QList<QPushButton *> m_actions;
    QVBoxLayout *m_column;
};

} // namespace Dashboard

#endif
