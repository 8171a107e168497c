#ifndef MESSAGESPAGE_H
#define MESSAGESPAGE_H

#include "messages/Message.h"
#include "Page.h"
#include "plugin/MenuChoices.h"

class QAction;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QListView;
class QModelIndex;
class QPushButton;

namespace Dashboard
{

class CommandMonitor;
class MessageModel;
class MessageReader;
class MessageStore;

/**
 * The Messages page, which shows a list of the network-initiated messages, and the selected message
 * next to it. In the narrow form, the message replaces the list.
 */
class MessagesPage : public Page
{
    Q_OBJECT
public:
    /// `monitor` is used to send answers. Both arguments must outlive the page.
    MessagesPage(MessageStore *store, CommandMonitor *monitor, QWidget *parent = nullptr);

    MessageModel *model() const { return m_model; }
    /// Opens the message, for example after the user has clicked a notification.
    void open(qint64 id);

    void retranslate() override;
    void setForm(Form form) override;
    QWidget *firstFocus() const override;

public slots:
    /// Moves the focus to the search field.
    void focusSearch();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QWidget *makeList();
    QWidget *makeFilters();
    void connectParts();
    void setTabOrders();
    void setFilter(MessageQuery::Filter filter);
    void search();
    QModelIndex chosen() const;
    void onChosen();
    void readChosen();
    void readActivated(const QModelIndex &index);
    void showList();
    void showParts();
    void showCounts();
    void showAnswers();
    void keepPlace();
    void removeCurrent();

    MessageStore *const m_store;
    CommandMonitor *const m_monitor;
    MessageModel *m_model;
    QLabel *m_title;
    QPushButton *m_markAll;
    QWidget *m_listSide;
    QLineEdit *m_search;
    QAction *m_searchIcon = nullptr;
    QPushButton *m_filters[3];
    QListView *m_list;
    QLabel *m_empty;
    MessageReader *m_reader;
    QHBoxLayout *m_row;
    Form m_form = Form::Wide;
    bool m_isReading = false; // true if the narrow form shows the message instead of the list
};

} // namespace Dashboard

#endif
