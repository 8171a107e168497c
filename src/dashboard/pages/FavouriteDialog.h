#ifndef FAVOURITEDIALOG_H
#define FAVOURITEDIALOG_H

#include <QDialog>
#include <QMap>

#include "account/AccountCodes.h"

class QHBoxLayout;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace Dashboard
{

/**
 * The dialog in which the user selects favourites from all codes and chains. The list contains a
 * check box for each of them. The order can be changed with the mouse or with buttons. Chains can
 * be renamed and deleted.
 */
class FavouriteDialog : public QDialog
{
    Q_OBJECT
public:
    /// `selected` contains the current favourites in their order. At most `most` codes can be
    /// selected.
    FavouriteDialog(const QList<NamedCode> &all, const QList<NamedCode> &selected, int most,
                    QWidget *parent = nullptr);

    /// Returns the selected codes and chains in their order.
    QList<NamedCode> selected() const;
    /// Returns the new names of the renamed chains, keyed by their previous names.
    QMap<QString, QString> renamed() const;
    /// Returns the names of the chains to delete.
    QStringList removed() const { return m_removed; }

private:
    void makeButtons();
    QHBoxLayout *makeMoves();
    bool isChain(const QListWidgetItem *item) const;
    bool isNameFree(const QString &name) const;
    void renameChain();
    void removeChain();
    void addCode(const NamedCode &code, bool isSelected);
    void move(int rows);
    void look();

    const int m_most;
    QListWidget *m_list;
    QPushButton *m_up;
    QPushButton *m_down;
    QPushButton *m_rename;
    QPushButton *m_remove;
    QStringList m_removed;
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
