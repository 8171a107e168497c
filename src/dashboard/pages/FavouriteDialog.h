#ifndef FAVOURITEDIALOG_H
#define FAVOURITEDIALOG_H

#include <QDialog>

#include "account/AccountCodes.h"

class QListWidget;
class QPushButton;

namespace Dashboard
{

/**
 * The dialog in which the user selects and orders the favourites. Each code has a check box. The
 * order can be changed with the mouse or with buttons.
 */
class FavouriteDialog : public QDialog
{
    Q_OBJECT
public:
    /// `selected` contains the current favourites in their order. At most `most` codes can be
    /// selected.
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

/** The dialog in which the user enters the number for a code that contains a placeholder. */
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
