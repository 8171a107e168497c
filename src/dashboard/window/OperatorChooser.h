#ifndef OPERATORCHOOSER_H
#define OPERATORCHOOSER_H

#include <QObject>
#include <QPointer>

#include "ProviderDatabase.h"

class QWidget;

namespace Dashboard
{

class OperatorCodes;
class OperatorDialog;
enum class Remedy;

/**
 * Suggests an operator's codes once for each home network, and lets the user choose
 * different codes at any time.
 */
class OperatorChooser : public QObject
{
    Q_OBJECT
public:
    /// `window` is the parent of the dialogs. Both arguments must outlive this object.
    OperatorChooser(OperatorCodes *codes, QWidget *window);

    /// Returns true if the user has to decide which operator's codes to use.
    bool isProposing() const { return m_state != Nothing; }
    /// Returns the suggestion, or an empty string if there is none.
    QString proposal() const;
    /// Returns the text of the button that accepts the suggestion.
    QString acceptText() const;

public slots:
    /// Suggests codes unless the user has already made a decision for this SIM's network.
    void propose();
    /// Uses the codes of the matching operator. If there are several, opens the dialog in which the
    /// user selects one.
    void accept();
    /// Records that no operator is to be used for this SIM's network.
    void decline();
    /// Opens the dialog in which the user selects an operator.
    void choose();
    /// Uses the operator's codes. Requests confirmation if this would replace manually edited
    /// files.
    void take(const Provisioning::Provider &provider);
    /// Updates the strings after a language change.
    void retranslate();

signals:
    /// Emitted when the suggestion or the operator whose codes are in use has changed.
    void changed();
    /// Emitted with an error message in the user's language.
    void problem(const QString &text);
    /// Emitted when no operator can be chosen for the current device, and the user has clicked the
    /// button that selects another device.
    void remedyRequested(Remedy remedy);

private:
    enum State { Nothing, OneProposed, SeveralProposed, Unknown };

    void setState(State state);
    State wantedState();
    void useChosen(bool isOperator, const Provisioning::Provider &provider);
    bool mayBeSetAside(const QStringList &files, const QString &operatorName);
    void explainMissingNetwork();
    void say(const char *key);

    OperatorCodes *const m_codes;
    QWidget *const m_window;
    QPointer<OperatorDialog> m_dialog;
    State m_state = Nothing;
    Provisioning::Provider m_proposed;
};

} // namespace Dashboard

#endif
