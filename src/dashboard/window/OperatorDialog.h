#ifndef OPERATORDIALOG_H
#define OPERATORDIALOG_H

#include <QDialog>

#include "ProviderDatabase.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace Dashboard
{

/**
 * The dialog in which the user selects the operator whose codes are used, or no operator.
 */
class OperatorDialog : public QDialog
{
    Q_OBJECT
public:
    /// `current` is the name of the operator whose codes are in use. It may be empty. `noneKey` is
    /// the text key of the last row, which represents no operator.
    OperatorDialog(const QString &network, const QList<Provisioning::Provider> &candidates,
                   const QString &current, const char *noneKey, QWidget *parent);

    /// Returns true if the user selected an operator. Returns false if the user selected the last
    /// row.
    bool choosesOperator() const;
    /// Returns the selected operator.
    Provisioning::Provider provider() const;

public slots:
    /// Updates the strings after a language change.
    void retranslate();

private slots:
    void onSelectionChanged();
    void acceptSelected();

private:
    void layOut();
    void select(const QString &current);
    int selectedRow() const; // -1 if no row is selected

    const QString m_network;
    const QList<Provisioning::Provider> m_candidates;
    const char *const m_noneKey;
    QLabel *m_question;
    QListWidget *m_list; // the candidates, followed by the row that represents no operator
    QPushButton *m_ok;
    QPushButton *m_cancel;
};

} // namespace Dashboard

#endif
