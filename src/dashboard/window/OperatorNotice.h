#ifndef OPERATORNOTICE_H
#define OPERATORNOTICE_H

#include <QPointer>

#include "NoticeBar.h"
#include "ProviderDatabase.h"

namespace Dashboard
{

class OperatorCodes;
class OperatorDialog;

/**
 * A line that suggests an operator's codes, once for each home network of a SIM. If several
 * operators are possible or none is known, the user can select one. choose() lets the user change
 * the decision later.
 */
class OperatorNotice : public NoticeBar
{
    Q_OBJECT
public:
    /// `codes` must outlive the notice.
    explicit OperatorNotice(OperatorCodes *codes, QWidget *parent = nullptr);

public slots:
    /// Suggests codes unless the user has already decided for this SIM's network.
    void propose();
    /// Opens the dialog in which the user selects an operator.
    void choose();
    /// Updates the strings after a language change.
    void retranslate();

private slots:
    void onTake();
    void onNo();
    void onChosen();
    void useChosen();

private:
    enum State { Nothing, OneProposed, SeveralProposed, Unknown, Done, Failed };

    void setState(State state, const QString &subject = QString(),
                  const QString &problem = QString());
    bool isProposal() const;
    QString stateText() const;
    void take(const Provisioning::Provider &provider);
    bool mayBeSetAside(const QStringList &files, const QString &operatorName);
    void say(const char *key);

    OperatorCodes *const m_codes;
    QPushButton *m_takeButton;    // labelled "Choose" if there are several operators
    QPushButton *m_declineButton; // labelled "Close" if there is nothing to decide
    QPointer<OperatorDialog> m_dialog;
    State m_state = Nothing;
    QString m_subject; // the name of an operator
    QString m_problem;
    Provisioning::Provider m_proposed;
    Provisioning::Provider m_chosen; // the operator that was selected in the dialog
    bool m_isOperatorChosen = false;
};

} // namespace Dashboard

#endif
