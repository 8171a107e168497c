#ifndef OPERATORNOTICE_H
#define OPERATORNOTICE_H

#include <QPointer>

#include "NoticeBar.h"
#include "ProviderDatabase.h"

class OperatorCodes;
class OperatorDialog;

/** Proposes an operator's codes, once for each network of a SIM, and asks whose when it is
 * uncertain. What the user answers can be changed by choose(). */
class OperatorNotice : public NoticeBar
{
    Q_OBJECT
public:
    /// The codes outlive the notice.
    explicit OperatorNotice(OperatorCodes *codes, QWidget *parent = nullptr);

public slots:
    /// Proposes codes if that has not been done for this SIM's network.
    void propose();
    /// Asks whose codes are to be used.
    void choose();
    /// Reads the texts again.
    void retranslate();

private slots:
    void onTake();
    void onNo();
    void onChosen();
    void useChosen();

private:
    enum State { Nothing, OneProposed, SeveralProposed, Done, Failed };

    void setState(State state, const QString &subject = QString(),
                  const QString &problem = QString());
    QString stateText() const;
    void take(const Provider &provider);
    bool mayBeSetAside(const QStringList &files, const QString &operatorName);
    void say(const char *key);

    OperatorCodes *const m_codes;
    QPushButton *m_take; // or "Choose", when there are several
    QPushButton *m_no;   // or "Close", when there is nothing to decide
    QPointer<OperatorDialog> m_dialog;
    State m_state = Nothing;
    QString m_subject; // an operator
    QString m_problem;
    Provider m_proposed;
    Provider m_chosen; // in the dialog
    bool m_isOperatorChosen = false;
};

#endif
