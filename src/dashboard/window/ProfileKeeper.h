#ifndef PROFILEKEEPER_H
#define PROFILEKEEPER_H

#include <QObject>

#include "plugin/ProfileBackup.h"

namespace Dashboard
{

/**
 * Keeps the backup copy of the user's own codes up to date, and offers to restore it if the codes
 * are missing or damaged. All functions must be called from the GUI thread.
 */
class ProfileKeeper : public QObject
{
    Q_OBJECT
public:
    explicit ProfileKeeper(const ProfileBackup &backup, QObject *parent = nullptr);

    /// Returns the offer to restore the backup copy in the current language. Returns an empty
    /// string if there is nothing to restore.
    QString offer() const;

public slots:
    /// Offers to restore the backup copy if the codes are missing or damaged. Otherwise, updates
    /// the copy.
    void start();
    /// Updates the backup copy. Must be called each time the codes may have been saved. Keeps the
    /// copy as long as it is offered.
    void refresh();
    /// Restores the backup copy.
    void restore();
    /// Deletes the backup copy.
    void forget();

signals:
    /// Emitted when the return value of offer() has changed.
    void offerChanged();
    /// Emitted when the plug-in must read the codes again.
    void restored();
    /// Emitted when one of the user's files cannot be saved. `text` is an error message in the
    /// current language.
    void problem(const QString &text);

private:
    enum Offer { Nothing, Lost, Damaged };

    void setOffer(Offer offer);

    const ProfileBackup m_backup;
    Offer m_offer = Nothing;
};

} // namespace Dashboard

#endif
