#ifndef TOPUPSHEET_H
#define TOPUPSHEET_H

#include <QDialog>

class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace Dashboard
{

/**
 * A dialog in which the user enters a number for a top-up. The dialog enters the number into the
 * field of the general window and clicks a preset button there, even if the field and the button
 * are hidden.
 */
class TopUpSheet : public QDialog
{
    Q_OBJECT
public:
    /// `general` is the widget that contains the general window.
    TopUpSheet(const QWidget *general, QWidget *parent);

    /// Adds a button that clicks the preset button.
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
