#ifndef HISTORYPOPUP_H
#define HISTORYPOPUP_H

#include <QLineEdit>
#include <QObject>
#include <QPointer>

#include <functional>

#include "StateStrip.h"

class QCompleter;
class QStandardItem;
class QStandardItemModel;

namespace Dashboard
{

class CodeHistory;
class HistoryView;

/**
 * The list below the code field, with the codes that the user has sent, the codes that have names,
 * and the chains. The list opens on request, or when the user types the beginning of a code or
 * name. All functions must be called from the GUI thread.
 */
class HistoryPopup : public QObject
{
    Q_OBJECT
public:
    using Names = std::function<QList<CodeName>()>;

    /// For chains, CodeName::code contains the code and the answers, such as "*123# › 2 › 1".
    /// `history` and all objects that the functions use must outlive this object.
    HistoryPopup(CodeHistory *history, const Names &names, const Names &chains,
                 QObject *parent = nullptr);

    /// Attaches the list to the code field, which may be null.
    void attach(QLineEdit *edit);
    /// Sets whether the list opens when the user types. This is not useful while the user answers a
    /// menu.
    void setOpenedByTyping(bool isOpened) { m_isOpenedByTyping = isOpened; }
    /// Opens the list with all codes, and selects `code` or, if it is not listed, the first code.
    void open(const QString &code = QString());
    bool isOpen() const;
    HistoryView *view() const { return m_view; }

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void chosen(const QString &code);
    /// Emitted with the name of the chain that the user has selected.
    void chainChosen(const QString &name);

private:
    void onTextEdited(const QString &text);
    bool onEditKey(int key);
    bool onPopupKey(QKeyEvent *event);
    void choose(const QModelIndex &index);
    void fill(const QString &start);
    QStandardItem *addRow(const QString &code, const QString &name, const QString &note);
    int rowOf(const QString &code) const;
    void addChains(const QString &start);
    void showFooter();
    bool moveToButton(int key);
    void place();
    void popUp();

    CodeHistory *const m_history;
    const Names m_names;
    const Names m_chains;
    QPointer<QLineEdit> m_edit;
    QStandardItemModel *m_model;
    HistoryView *m_view;
    QCompleter *m_completer;
    bool m_isOpenedByTyping = true;
    bool m_isKeyPressed = false; // false if the dashboard itself has changed the text of the field
    bool m_isRowChosen = false;  // true if the user has selected a row with the keyboard
};

} // namespace Dashboard

#endif
