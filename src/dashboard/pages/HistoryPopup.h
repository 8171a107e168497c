#ifndef HISTORYPOPUP_H
#define HISTORYPOPUP_H

#include <QLineEdit>
#include <QObject>
#include <QPointer>

#include <functional>

#include "StateStrip.h"

class QCompleter;
class QStandardItemModel;
class QTreeView;

namespace Dashboard
{

class CodeHistory;

/**
 * The list under the code field: the codes that the user has sent and the user's own codes, with
 * their names. The list opens on request, or when the user types the beginning of a code or name.
 * All functions must be called from the GUI thread.
 */
class HistoryPopup : public QObject
{
    Q_OBJECT
public:
    using Names = std::function<QList<CodeName>()>;

    /// Both arguments must stay valid as long as this object exists.
    HistoryPopup(CodeHistory *history, const Names &names, QObject *parent = nullptr);

    /// Attaches the list to the code field, which may be null.
    void attach(QLineEdit *edit);
    /// Sets whether typing opens the list. An answer to a menu is not a code.
    void setOpenedByTyping(bool isOpened) { m_isOpenedByTyping = isOpened; }
    /// Opens the list with all codes.
    void open();
    bool isOpen() const;
    QTreeView *view() const { return m_view; }

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void chosen(const QString &code);

private:
    void onTextEdited(const QString &text);
    bool onEditKey(int key);
    bool onPopupKey(QKeyEvent *event);
    void choose(const QModelIndex &index);
    void fill(const QString &start);
    void addRow(const QString &code, const QString &name, const QString &time);
    void addFooter();
    void popUp();

    CodeHistory *const m_history;
    const Names m_names;
    QPointer<QLineEdit> m_edit;
    QStandardItemModel *m_model;
    QTreeView *m_view;
    QCompleter *m_completer;
    bool m_isOpenedByTyping = true;
    bool m_isKeyPressed = false; // false while the dashboard itself types into the field
    bool m_isRowChosen = false;  // the user has chosen a row with the keyboard
};

} // namespace Dashboard

#endif
