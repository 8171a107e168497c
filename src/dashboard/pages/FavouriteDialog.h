#ifndef FAVOURITEDIALOG_H
#define FAVOURITEDIALOG_H

#include <QDialog>

#include "account/AccountCodes.h"

class QListWidget;
class QPushButton;

namespace Dashboard
{

/**
 * Selects the favourites among all codes, and their order. A check mark selects a code. Codes are
 * moved with the mouse or with the buttons.
 */
class FavouriteDialog : public QDialog
{
    Q_OBJECT
public:
    /// `selected` are the present favourites in their order. At most `most` codes can be selected.
    FavouriteDialog(const QList<NamedCode> &all, const QList<NamedCode> &selected, int most,
                    QWidget *parent = nullptr);

    /// Returns the selected codes in their order.
    QStringList codes() const;

private:
    void addCode(const NamedCode &code, bool isSelected);
    void move(int rows);
    void look();

    const int m_most;
    QListWidget *m_list;
    QPushButton *m_up;
    QPushButton *m_down;
};

/** Asks for the number that belongs into a code. */
class CodeNumberDialog : public QDialog
{
    Q_OBJECT
public:
    explicit CodeNumberDialog(const NamedCode &code, QWidget *parent = nullptr);

signals:
    /// Emitted with the complete code when the user has entered the number.
    void completed(const QString &code);
};

} // namespace Dashboard

#endif
