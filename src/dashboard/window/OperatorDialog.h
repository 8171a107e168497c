#ifndef OPERATORDIALOG_H
#define OPERATORDIALOG_H

#include <QDialog>

#include "ProviderDatabase.h"

class QLabel;
class QListWidget;
class QPushButton;

/** Asks whose codes are to be used: one of several operators', or those that come with the program.
 */
class OperatorDialog : public QDialog
{
    Q_OBJECT
public:
    /// `current` is the name of the operator whose codes are in use; empty for none.
    OperatorDialog(const QString &network, const QList<Provider> &candidates,
                   const QString &current, QWidget *parent);

    /// Whether an operator was chosen, and not the codes that come with the program.
    bool choosesOperator() const;
    /// The one that was chosen.
    Provider provider() const;

public slots:
    /// Reads the texts again.
    void retranslate();

private slots:
    void onSelectionChanged();
    void acceptSelected();

private:
    void layOut();
    void select(const QString &current);
    int selectedRow() const; // -1 when none is

    const QString m_network;
    const QList<Provider> m_candidates;
    QLabel *m_question;
    QListWidget *m_list; // the candidates, and behind them the codes that come with the program
    QPushButton *m_ok;
    QPushButton *m_cancel;
};

#endif
